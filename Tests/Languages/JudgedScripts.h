// What programs have in common that give the statements of real scripts to a language and to a judge, and count how far the
// two agree. They aren't tests, since their figures are those of the scripts.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct SJudgedSettings
{
    std::vector<std::string> inputs;
    std::size_t faults = 3; // for each statement
    std::uint64_t seed = 1;
    bool isList = false;
    bool isHelp = false;
};

// A row of the result: what is counted, of what.
struct SJudgedRow
{
    const char* name;
    const char* whole;
};

// The counts of one file, and the cases to list.
class CJudgedCounts
{
public:
    // `text` is the file's. Both are borrowed.
    CJudgedCounts(const std::string& path, const std::string& text) : m_Path(path), m_Text(text) {}

    void Count(const char* name) { ++m_Counts[name]; }
    // Counts it under `whole`, and if it is so under `part`, else it is listed there.
    void Count(const char* whole, const char* part, bool isSo, const std::string& error, std::size_t offset,
               std::string_view text);
    // Counts whether the language's first message on `text`, a statement, is about the place that the judge's is about.
    // Places count bytes of the statement, which begins at `offset` of the file.
    void ComparePlaces(const char* whole, const char* part, std::string_view text, std::size_t place,
                       const std::string& judgeError, std::size_t judgePlace, std::size_t offset);
    // It says nothing about the language, for this reason.
    void SetAside(const std::string& reason, const std::string& error, std::size_t offset,
                  std::string_view text);

    // As lines of fields, for the process that adds the counts up: name, number, case.
    std::string Lines() const;

private:
    void List(const std::string& name, const std::string& error, std::size_t offset, std::string_view text);

    const std::string& m_Path;
    const std::string& m_Text;
    std::map<std::string, std::size_t> m_Counts;
    std::map<std::string, std::size_t> m_Aside;
    std::string m_Cases;
};

bool IsThere(const std::vector<uvscore::STokenPlace>& tokens, std::string_view name);

// A text in one line, cut if it is long.
std::string ListedText(std::string_view text);

// Where the first message stands; at the end of the text if there is none.
std::size_t FirstMessage(const std::vector<uvparse::SFinding>& findings, std::size_t end);

struct SInnerStatement
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string form;
};

// Statements in statements: those of routine bodies. They come in the order of their ends.
std::vector<SInnerStatement> InnerStatements(const uvscore::SParsedText& text);

struct SJudgedProgram
{
    const char* name;
    const char* language;
    std::span<const SJudgedRow> rows;
    // Makes ready what the work needs, before anything is read; may be null. Not called if only help is wanted.
    // Throws: std::exception.
    std::function<void(CToolMessages& messages)> prepare;
    // Gives one file to both, in a process of its own.
    // Returns: CJudgedCounts::Lines.
    std::function<std::string(uvscore::CTextParser& parser, const std::string& path,
                              const SJudgedSettings& settings)>
        judge;
};

// Reads the command line, runs the program on the files that it names, and prints the rows.
// Returns: the exit code.
int RunJudgedProgram(const SJudgedProgram& program, int argc, char** argv);
