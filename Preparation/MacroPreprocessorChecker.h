// The macro processor for C and C++ sources that are translated rather than compiled: the output still looks
// like the source, and no text of include files gets into it; they are read for their macros only.
#pragma once

#include "Preparation/Formatters/IncludeFile.h"
#include "Preparation/Macro.h"
#include "Preparation/MacroTokenReader.h"
#include "Preparation/MacroTokens.h"
#include "Preparation/PreparationNotes.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace MacroPreprocessorChecker {

// What the run does to directives and macro names.
//   0  every line stays, false branches included; macros aren't expanded
//   1  "#include" and "#define" lines stay, other directives and false branches go; macros aren't expanded
//   2  macros are expanded; of the directives only "#include" lines stay
// Any other value acts like 1.
struct Command
{
    std::int32_t value = -1;
};

struct DefaultPresetValues
{
    std::list<std::string> defines; // NAME, NAME=VALUE or NAME(ARGUMENTS)=VALUE; empty ones are passed over
    std::set<std::string> undefines;
    std::list<std::string> includePaths;
    std::list<std::string> explicitIncludes;
    std::string includeRoot; // the folder that include files lie below; empty: anywhere
    // What one run may make out of its macros, in bytes; what include files bring in, each time they are
    // entered, may be four times as much. Beyond it the run fails with a message.
    std::size_t expansionLimit = std::size_t{64} << 20;
};

using UndefinesTokens = std::map<std::string, std::string>;

class Checker
{
public:
    // Runs the directives and macros of `text`, whose include files are looked for beside `filePath` and in
    // the presets' paths.
    // `result`:          the prepared text; empty if the run failed. A final line end may be missing.
    // `errorText`:       gets appended to it a line for each message, also for those that don't make the run
    //                    fail.
    // `undefinesTokens`: if not null, gets the names that the presets keep from being defined, with the text
    //                    that they would have stood for.
    // `sourceLines`:     if not null, gets for each line of `result` the line of `text` where it begins,
    //                    from 1.
    // `notes`:           if not null, gets the messages with their places. What makes the run fail is an
    // error,
    //                    save for "#warning" and what merely isn't portable.
    // Returns: true if there was nothing to report but headers that are missing or nested too deeply.
    static bool PreprocessFile(const std::string& filePath, const std::string& text, Uve::U8CString& result,
                               Command command, const DefaultPresetValues& presets, Uve::U8CString& errorText,
                               const std::shared_ptr<UndefinesTokens>& undefinesTokens,
                               std::vector<std::uint32_t>* sourceLines = nullptr,
                               CPreparationNotes* notes = nullptr);

    virtual ~Checker();

    Checker(const Checker&) = delete;
    Checker& operator=(const Checker&) = delete;

private:
    struct SRun;
    struct SHeader
    {
        std::unique_ptr<internal::TokenList> tokens;
        std::size_t size = 0; // bytes of the file
    };

    Checker(const std::string& path, const std::string& source, const DefaultPresetValues& values,
            std::vector<std::uint32_t>* sourceLines, CPreparationNotes& notes);

    // The steps, in their order. False ends them.
    bool LoadSourceFile();
    bool LoadOtherFiles();
    bool RunCommand(Command command, UndefinesTokens* undefinesTokens);
    void GetErrors(Uve::U8CString& text) const;

    // A line of errorText for each record.
    // Returns: true if there is none.
    bool CheckErrorResult();
    void Report(internal::enErrorType type, const internal::Location& location, std::string message);
    void Warn(const std::string& text, const internal::Location& location);
    std::string FileOfNote(const internal::Location& location) const;

    // Headers. A name is a key of fileData; an empty one says that there is no such file.
    std::string FindHeader(const std::string& sourceFile, const std::string& header, bool isSystem);
    void WarnOfHeader(const std::string& sourceFile, const std::string& name,
                      const internal::Location& directive);
    bool LoadHeader(const std::string& path);
    void LoadHeaders(const std::string& sourceFile, const std::set<std::string>& names,
                     std::vector<std::string>& loaded);

    // The run. Those that answer false have reported why it ends.
    void DefinePresets(SRun& run);
    bool RunTokens(SRun& run);
    bool RunLine(SRun& run);
    bool preprocessToken(SRun& run, std::uint32_t& line);
    internal::Token* Following(SRun& run, const internal::Token& token);
    void Take(SRun& run);
    void AddAllTokensCurrLine(SRun& run, bool keep);
    void KeepStatement(SRun& run, const internal::Macro& macro, const internal::Token& name);
    void FollowStatementCall(SRun& run, const internal::Token& taken);
    void AddSemicolon(const internal::Token& before);
    bool FailRun(const internal::Token& where, std::string message);

    bool RunDirective(SRun& run, const internal::Token* hash);
    bool RunConditional(SRun& run, const internal::Token& directive);
    bool OpenConditional(SRun& run, const internal::Token& directive);
    bool RunMessage(const internal::Token& directive);
    bool RunDefine(SRun& run, const internal::Token* hash);
    bool RunInclude(SRun& run, const internal::Token& directive);
    bool EnterHeader(SRun& run, const internal::Location& directive, const std::string& name);
    bool EvaluateCondition(SRun& run, const internal::Token& directive, bool& holds);

    const std::string& filePath;
    const DefaultPresetValues& presets;
    internal::TokenStore store;
    internal::TokenList rawTokens;
    std::map<std::string, SHeader> fileData;
    CIncludeRoot m_IncludeRoot;
    std::set<std::string> m_RefusedHeaders; // outside of the root, or no text
    internal::ErrorList errors;
    std::string errorText;
    CPreparationNotes& m_Notes;
    std::size_t m_LoadedBytes = 0;

    // The main source is read piece by piece, once for its messages and include lines, then as the run needs
    // it. What the run has done with is written or dropped.
    std::string_view m_Source; // decoded
    internal::TokenReader m_Reader;
    bool m_HasMore = false;
    std::set<std::string> m_MainHeaders; // with their quotes or brackets
    internal::TokenWriter m_Writer;
};

} // namespace MacroPreprocessorChecker
