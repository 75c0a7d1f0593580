// The preparation of C and C++ sources: embedded SQL first, then the macro processor.
#pragma once

#include "Preparation/MacroPreprocessorChecker.h"
#include "Preparation/PreparationNotes.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class IUVDBDatabaseInfo;

// One for each parser object, used by one thread at a time.
class Preprocessor
{
public:
    Preprocessor();

    // Reads the options, once for all runs to come; a later change of them isn't seen. A second call begins
    // afresh, but for the undefines tokens. Does nothing if `info` is empty. Shares `info`.
    //
    //   PREPROCESSOR                  0 turns the preparation on
    //   PREPROCESSOR_FUNCTION         the command, see MacroPreprocessorChecker::Command
    //   API_SOURCE_DB                 "ESQLC", in any case of letters: the source has embedded SQL
    //   SOURCE_FORMS                  "FAITHFUL", in any case of letters: embedded SQL is read by the rules
    //                                 of its compiler, see RewriteEmbeddedSqlFaithfully()
    //   DSN                           the first include path
    //   PREPROCESSOR_DEFINITIONS      macros, with ";" between them
    //   PREPROCESSOR_UNDEFINES        names not to be defined, or a file of them; ";" between them
    //   PREPROCESSOR_ADDITIONAL_INCLUDE_DIRECTORIES
    //                                 more include paths, with ";" between them
    //   INCLUDE_ROOT                  the folder that include files lie below, see CIncludeRoot
    //   PREPROCESSOR_EXPANSION_LIMIT  what macros may make, in bytes, instead of 64 MB
    void Init(const std::shared_ptr<IUVDBDatabaseInfo>& info);

    bool IsEnabled() const { return enabled; }

    // `filePath`:    where the source's own include files are looked for.
    // `result`:      the prepared text; empty if the run failed.
    // `errorText`:   gets a line appended for each message, whether or not the run fails. Lines of the source
    //                have the numbers that they have there.
    // `sourceLines`: if not null, gets for each line of `result` the line of `text` where it begins, from 1.
    // `notes`:       if not null, gets the messages with their places in the source.
    // Returns: false if the run failed. Nothing is thrown.
    bool Run(Uve::U8CString text, const Uve::U8CString& filePath, Uve::U8CString& result,
             Uve::U8CString& errorText, std::vector<std::uint32_t>* sourceLines = nullptr,
             std::vector<SPreparationNote>* notes = nullptr);

    // The names that PREPROCESSOR_UNDEFINES kept from being defined, with what they would have stood for. The
    // map is the same for all runs, and grows.
    std::shared_ptr<MacroPreprocessorChecker::UndefinesTokens> GetUndefinesTokens() const
    {
        return undefinesTokens;
    }

private:
    std::shared_ptr<IUVDBDatabaseInfo> databaseInfo;
    bool enabled = false;
    MacroPreprocessorChecker::DefaultPresetValues presets;
    int function = -1;
    bool isEmbeddedSql = false;
    bool isFaithful = false;
    std::shared_ptr<MacroPreprocessorChecker::UndefinesTokens> undefinesTokens;
};

// What a failed run tells the user: the line, the character that can't be read, and all of `errorText`.
// Returns: nothing if `errorText` tells of no such character; the failure is then left to the trace.
std::optional<Uve::U8CString> PreprocessorFailureMessage(const Uve::U8CString& errorText);
