#include "Grammar/UVGrammarTextChecks.h"

#include "Grammar/Runtime/ScannerTables.h"
#include "Grammar/UVGrammarKeywords.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <string_view>

namespace {

constexpr std::string_view kWhiteSpace = " \t\r";

bool IsNumber(std::string_view word)
{
    int number = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    return !word.empty() && read.ec == std::errc() && read.ptr == word.data() + word.size();
}

bool Executes(enMachine machine, const SGrammarKeyword& keyword)
{
    // the parser passes over a TEXT_ACTION
    return machine == enMachine::Scanner
               ? keyword.isLexer
               : keyword.isParser || keyword.keyword == enGrammarKeyword::TextAction;
}

class CTextLines
{
public:
    // `blanks` are what the reader skips before a line's first word.
    CTextLines(const std::string& directory, const char* file, const std::string& text,
               std::string_view blanks)
        : m_Directory(directory), m_File(file), m_Rest(text), m_Blanks(blanks)
    {
        if (text.empty())
            RefuseTable(directory, file, "it is empty");
        if (text.back() != '\n')
            RefuseTable(directory, file, "it is cut: the last line has no end");
    }

    // The next line that holds something; false after the last.
    bool Next(std::string_view& line)
    {
        while (!m_Rest.empty()) {
            ++m_nLine;
            const std::size_t end = m_Rest.find('\n');
            line = m_Rest.substr(0, end);
            m_Rest.remove_prefix(end + 1);
            if (line.find_first_not_of(m_Blanks) != std::string_view::npos)
                return true;
        }
        return false;
    }

    [[noreturn]] void Refuse(const std::string& what) const
    {
        RefuseTable(m_Directory, m_File, "line " + std::to_string(m_nLine) + ": " + what);
    }

private:
    const std::string& m_Directory;
    const char* m_File;
    std::string_view m_Rest;
    std::string_view m_Blanks;
    int m_nLine = 0;
};

std::string_view TakeWord(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    const std::string_view word = line.substr(0, line.find(' '));
    line.remove_prefix(word.size());
    return word;
}

// strtmp.Format takes the rest of the line: a quoted text and a subtraction. The reader would look for both
// in the lines that follow.
bool IsFormat(std::string_view rest)
{
    const std::size_t open = rest.find('"');
    const std::size_t close = open == std::string_view::npos ? open : rest.find('"', open + 1);
    return close != std::string_view::npos && rest.find('-', close) != std::string_view::npos;
}

void CheckOperations(const CTextLines& lines, std::string_view line, enMachine machine)
{
    for (std::string_view word = TakeWord(line); !word.empty(); word = TakeWord(line)) {
        const SGrammarKeyword* const keyword = FindGrammarKeyword(word);
        if (!keyword)
            lines.Refuse("unknown keyword '" + std::string(word) + "'");
        if (!Executes(machine, *keyword))
            lines.Refuse(std::string(word) + " is not a keyword of the " +
                         (machine == enMachine::Scanner ? "scanner" : "parser"));
        if (keyword->keyword == enGrammarKeyword::StrtmpFormat) {
            if (!IsFormat(line))
                lines.Refuse(std::string(word) + " without a quoted text and a subtraction");
            return;
        }
        for (const char* role = keyword->roles; *role; ++role) {
            const std::string_view operand = TakeWord(line);
            if (operand.empty())
                lines.Refuse("an operand of " + std::string(word) + " is missing");
            if ((*role == 'n' || *role == 'c' || *role == 'e') && !IsNumber(operand))
                lines.Refuse(std::string(word) + " takes a number, not '" + std::string(operand) + "'");
        }
    }
}

} // namespace

void CheckActionText(const std::string& directory, const std::string& text, enMachine machine)
{
    CTextLines lines(directory, "actions.dat", text, kWhiteSpace);
    std::set<int> numbers;
    std::string_view line;
    while (lines.Next(line)) {
        line.remove_prefix(line.find_first_not_of(kWhiteSpace));
        const std::string_view number = line.substr(0, line.find_first_not_of("0123456789"));
        line.remove_prefix(number.size());
        if (!IsNumber(number) || number.front() == '0' || !line.starts_with(' '))
            lines.Refuse("it doesn't begin with the number of a rule");
        int rule = 0;
        std::from_chars(number.data(), number.data() + number.size(), rule);
        const std::size_t known = numbers.size();
        numbers.insert(numbers.end(), rule); // where ascending numbers go
        if (numbers.size() == known)
            lines.Refuse("a second record of rule " + std::string(number));
        line.remove_prefix(1);
        // the reader takes one blank and a line feed for an empty record, and goes on to the next line after
        // more
        if (!line.empty() && line.find_first_not_of(' ') == std::string_view::npos)
            lines.Refuse("neither an operation nor an empty record");
        CheckOperations(lines, line, machine);
    }
}

void CheckDefinesText(const std::string& directory, const char* file, const std::string& text)
{
    CTextLines lines(directory, file, text, " ");
    std::string_view line;
    while (lines.Next(line)) {
        const std::string_view name = TakeWord(line);
        const std::string_view value = TakeWord(line);
        if (name.find_first_of(kWhiteSpace) != std::string_view::npos || !IsNumber(value) ||
            !TakeWord(line).empty())
            lines.Refuse("not a name and a number");
    }
}
