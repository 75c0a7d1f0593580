// How the tools speak: messages to the standard error stream in the form that editors jump by, and progress.
// Results go to the standard output, never through here. Texts are UTF-8, without a line feed at their end.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Where in an input a message belongs. Lines and columns count from 1, 0 leaves them out.
struct SSourcePlace
{
    std::string file;
    int line = 0;
    int column = 0;         // in code points
    std::string sourceLine; // shown below the message, unless empty
};

enum class enSeverity
{
    Error,
    Warning,
    Note
};

// "error", "warning" or "note".
const char* SeverityWord(enSeverity severity);

// The line as it may go to a terminal: it comes from a file of any bytes, and what would move the cursor or
// end the line is shown as a blank.
std::string Printable(std::string_view line);

class CToolMessages
{
public:
    // `toolName` stands where a message has no file. Borrows `stream`.
    CToolMessages(std::string toolName, std::ostream& stream);

    // toolName: error: text
    void Write(enSeverity severity, const std::string& text);
    // file:line:column: error: text
    //     source line
    void Write(enSeverity severity, const SSourcePlace& place, const std::string& text);

    void Error(const std::string& text) { Write(enSeverity::Error, text); }
    void Warning(const std::string& text) { Write(enSeverity::Warning, text); }
    void Note(const std::string& text) { Write(enSeverity::Note, text); }

    std::size_t ErrorCount() const { return m_Errors; }
    std::size_t WarningCount() const { return m_Warnings; }

    // Warnings and notes are counted but no longer written.
    void SetQuiet(bool quiet) { m_Quiet = quiet; }

    // Messages are kept back until `Release` writes them in their order, all or those alone that are no warnings.
    void Hold() { m_IsHolding = true; }
    void Release(bool withWarnings);

private:
    void WriteLine(enSeverity severity, const std::string& place, const std::string& text,
                   const std::string& sourceLine);

    std::string m_ToolName;
    std::ostream& m_Stream;
    std::size_t m_Errors = 0;
    std::size_t m_Warnings = 0;
    bool m_Quiet = false;
    bool m_IsHolding = false;
    std::vector<std::pair<enSeverity, std::string>> m_Held;
};

// One line of progress over many inputs, rewritten in place. Only a terminal sees it: a log would fill with
// it.
class CToolProgress
{
public:
    // Shows nothing for fewer than two inputs or when standard error isn't a terminal.
    CToolProgress(std::size_t total, bool isWanted);
    CToolProgress(const CToolProgress&) = delete;
    CToolProgress& operator=(const CToolProgress&) = delete;
    ~CToolProgress();

    void Step(const std::string& name);
    // Takes the line off the screen, before a message is written.
    void Clear();

private:
    std::size_t m_Total;
    std::size_t m_Done = 0;
    bool m_Shows;
    bool m_OnScreen = false;
};
