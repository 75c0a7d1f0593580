#include "Tools/uvgrammar/ActionText.h"

#include "Grammar/UVGrammarKeeper.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view kEndOfFile = "case YY_STATE_EOF(";

constexpr std::string_view kWhiteSpace = " \t\r\n";
constexpr std::string_view kDigits = "0123456789";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t from = std::min(text.find_first_not_of(kWhiteSpace), text.size());
    const std::size_t to = text.find_last_not_of(kWhiteSpace);
    return to == std::string_view::npos ? std::string_view() : text.substr(from, to + 1 - from);
}

// "<prefix>number<suffix...>"; -1 if the line isn't of this form.
int NumberBetween(std::string_view line, std::string_view prefix, char suffix)
{
    if (!line.starts_with(prefix))
        return -1;
    int number = -1;
    const char* const end = line.data() + line.size();
    const auto read = std::from_chars(line.data() + prefix.size(), end, number);
    return read.ec == std::errc() && read.ptr != end && *read.ptr == suffix ? number : -1;
}

class CLines
{
public:
    explicit CLines(std::string_view text) : m_Rest(text) {}
    bool Next(std::string_view& line)
    {
        if (m_Rest.empty())
            return false;
        const std::size_t end = std::min(m_Rest.find('\n'), m_Rest.size());
        line = m_Rest.substr(0, end);
        m_Rest.remove_prefix(std::min(end + 1, m_Rest.size()));
        return true;
    }
    bool SkipTo(std::string_view beginning)
    {
        std::string_view line;
        while (Next(line)) {
            if (line.starts_with(beginning))
                return true;
        }
        return false;
    }

private:
    std::string_view m_Rest;
};

} // namespace

SScannerActions ReadScannerActions(std::string_view text)
{
    SScannerActions actions;
    CLines lines(text);
    lines.SkipTo("do_action:");
    std::vector<SActionCase> open;      // labels whose action hasn't come yet
    std::vector<SEndOfFileAction> ends; // likewise
    std::string body;
    std::string_view line;
    while (lines.Next(line) && line.find("case YY_END_OF_BUFFER:") == std::string_view::npos) {
        const int number = NumberBetween(line, "case ", ':');
        const int place = NumberBetween(line, "#line ", ' ');
        if (number > 0) {
            if (!open.empty())
                open.back().isShared = true;
            open.push_back({number, 0, {}, false});
        } else if (line.starts_with(kEndOfFile))
            ends.push_back(
                {std::string(line.substr(kEndOfFile.size(), line.find(')') - kEndOfFile.size())), 0, {}});
        else if (place >= 0) {
            if (!open.empty())
                open.back().line = place;
            if (!ends.empty())
                ends.back().line = place;
        } else if (line == "\tYY_BREAK") {
            for (SEndOfFileAction& entry : ends) {
                entry.line = ends.back().line;
                entry.body = Trimmed(body);
                actions.endsOfFile.push_back(std::move(entry));
            }
            for (SActionCase& entry : open) {
                entry.body = entry.isShared ? std::string() : std::string(Trimmed(body));
                actions.cases.push_back(std::move(entry));
            }
            open.clear();
            ends.clear();
            body.clear();
        } else if (line != "YY_RULE_SETUP" && !line.starts_with("/* rule ") &&
                   (!open.empty() || !ends.empty()))
            body.append(line).append(1, '\n');
    }
    return actions;
}

std::vector<SActionCase> ReadParserActions(std::string_view text)
{
    std::vector<SActionCase> cases;
    CLines lines(text);
    lines.SkipTo("yyreduce:");
    bool isOpen = false;
    bool hasPlace = false;
    std::string_view line;
    while (lines.Next(line) && !line.starts_with("yyerrlab:")) {
        const int number = NumberBetween(Trimmed(line), "case ", ':');
        const int place = NumberBetween(line, "#line ", ' ');
        if (number > 0 && !isOpen) {
            cases.push_back({number, 0, {}, false});
            isOpen = true;
            hasPlace = false;
        } else if (isOpen && place >= 0 && !hasPlace) {
            cases.back().line = place;
            hasPlace = true;
        } else if (isOpen && line == "    break;") {
            SActionCase& entry = cases.back();
            // The place in the generated file stands after the action.
            entry.body = Trimmed(std::string_view(entry.body).substr(0, entry.body.rfind("#line ")));
            isOpen = false;
        } else if (isOpen)
            cases.back().body.append(line).append(1, '\n');
    }
    return cases;
}

std::vector<int> ReadRuleLines(std::string_view text)
{
    const std::size_t lines = text.find(" yyrline[] =");
    if (lines == std::string_view::npos)
        return {};
    std::vector<int> table = UVDBGrammarKeeper::GetFileTable<int>(text.substr(text.find('{', lines)));
    if (!table.empty())
        table.erase(table.begin()); // its count
    return table;
}

namespace {

class CStatementReader
{
public:
    explicit CStatementReader(const SActionCase& action) : m_Text(action.body), m_FirstLine(action.line) {}

    SActionStatements Read()
    {
        ++m_At; // the brace
        while (true) {
            Skip(" \t\r\n;");
            if (AtEnd()) {
                Problem("the action has no closing brace");
                break;
            }
            if (TakeComment())
                continue;
            if (Peek() == '}') {
                ++m_At;
                ReadTail();
                break;
            }
            if (!ReadStatement())
                break;
        }
        return std::move(m_Result);
    }

private:
    bool AtEnd() const { return m_At >= m_Text.size(); }
    char Peek() const { return AtEnd() ? '\0' : m_Text[m_At]; }
    void Skip(std::string_view set) { m_At = std::min(m_Text.find_first_not_of(set, m_At), m_Text.size()); }
    int Line() const
    {
        return m_FirstLine +
               static_cast<int>(std::count(
                   m_Text.begin(),
                   m_Text.begin() + static_cast<std::ptrdiff_t>(std::min(m_At, m_Text.size())), '\n'));
    }
    void Problem(const std::string& text) { m_Result.problems.push_back({Line(), text}); }

    // A comment, or a line for the preprocessor up to the block that it opens.
    bool TakeComment()
    {
        if (m_Text.compare(m_At, 2, "/*") == 0)
            m_At = std::min(m_Text.find("*/", m_At + 2), m_Text.size() - 2) + 2;
        else if (m_Text.compare(m_At, 2, "//") == 0 || m_Text.compare(m_At, 5, "#line") == 0)
            m_At = std::min(m_Text.find('\n', m_At), m_Text.size());
        else if (m_Text.compare(m_At, 6, "#ifdef") == 0) {
            m_At = std::min(m_Text.find('{', m_At), m_Text.size() - 1) + 1;
            m_HasCondition = true;
        } else
            return false;
        return true;
    }

    // The record ends at the first closing brace.
    void ReadTail()
    {
        while (!m_HasCondition) {
            Skip(kWhiteSpace);
            if (AtEnd())
                return;
            if (!TakeComment()) {
                Problem("what stands after the first closing brace is lost");
                return;
            }
        }
    }

    // False if nothing sensible can be read after it.
    bool ReadStatement()
    {
        if (TakePlumbing())
            return true;
        const std::string word = TakeWord();
        if (word.empty()) {
            const std::size_t end = m_Text.find_first_of(kWhiteSpace, m_At);
            Problem(std::string("'").append(m_Text.substr(m_At, end - m_At)) +
                    "' is not a statement of the action language");
            return false;
        }
        const SGrammarKeyword* const keyword = FindGrammarKeyword(word);
        if (keyword == nullptr) {
            Problem("unknown keyword '" + word + "'");
            return false;
        }
        m_Result.statements.push_back({keyword, {}, Line()});
        switch (keyword->keyword) {
        case enGrammarKeyword::Begin:
            return ReadBegin();
        case enGrammarKeyword::Yytext:
            return ReadIndex();
        default:
            return ReadArguments();
        }
    }

    std::string TakeWord()
    {
        const std::size_t from = m_At;
        while (!AtEnd()) {
            const char c = Peek();
            const bool isArrow = m_Text.compare(m_At, 2, "->") == 0;
            if (!isArrow && c != '.' && c != '_' && !(c >= '0' && c <= '9') && !(c >= 'a' && c <= 'z') &&
                !(c >= 'A' && c <= 'Z'))
                break;
            m_At += isArrow ? 2 : 1;
        }
        return std::string(m_Text.substr(from, m_At - from));
    }

    // Words that the extractor skips together with whatever is glued to them.
    bool TakePlumbing()
    {
        for (const std::string_view word :
             {"UVDB::CString strtmp;", "strtmp;", "m_Extension.m_strParsedXml", "+=", "return;", "return"}) {
            if (m_Text.compare(m_At, word.size(), word) != 0)
                continue;
            const std::size_t behind = m_At + word.size();
            if (behind < m_Text.size() && kWhiteSpace.find(m_Text[behind]) == std::string_view::npos &&
                m_Text[behind] != '}')
                continue;
            m_At = behind;
            return true;
        }
        return false;
    }

    bool ReadBegin()
    {
        Skip(kWhiteSpace);
        const std::size_t end = std::min(m_Text.find_first_of(";}", m_At), m_Text.size());
        const std::string_view state = Trimmed(m_Text.substr(m_At, end - m_At));
        m_Result.statements.back().operands.emplace_back(state);
        if (state.empty() || state.find_first_of(" \t\r\n(),") != std::string_view::npos) {
            Problem("BEGIN takes one word and no brackets: BEGIN X;");
            m_Result.statements.pop_back();
        }
        m_At = end;
        return true;
    }

    bool ReadIndex()
    {
        Skip(" ");
        const std::size_t close = m_Text.find(']', m_At);
        const std::string_view index =
            Peek() == '[' && close != std::string_view::npos ? m_Text.substr(m_At + 1, close - m_At - 1) : "";
        if (index.empty() || index.find_first_not_of(kDigits) != std::string_view::npos) {
            Problem("yytext takes a number in brackets: yytext[0]");
            return false;
        }
        m_Result.statements.back().operands.emplace_back(index);
        m_At = close + 1;
        Skip(" \t\r\n;");
        if (Peek() != '}') {
            Problem("what stands after yytext[...] is lost");
            return false;
        }
        return true;
    }

    bool ReadArguments()
    {
        SActionStatement& statement = m_Result.statements.back();
        Skip(" ");
        if (Peek() == ';' && statement.keyword->operands == 0)
            return true;
        const std::size_t close = m_Text.find(')', m_At);
        if (Peek() != '(' || close == std::string_view::npos) {
            Problem(std::string(statement.keyword->name) + (statement.keyword->operands == 0
                                                                ? " is followed by a ';'"
                                                                : " takes its arguments in brackets"));
            return false;
        }
        std::string_view rest = m_Text.substr(m_At + 1, close - m_At - 1);
        m_At = close + 1;
        if (Trimmed(rest).empty() && statement.keyword->operands == 0)
            return true;
        while (true) {
            const std::size_t comma = rest.find(',');
            statement.operands.emplace_back(Trimmed(rest.substr(0, comma)));
            if (comma == std::string_view::npos)
                break;
            rest.remove_prefix(comma + 1);
        }
        CheckArguments(statement);
        return true;
    }

    void CheckArguments(const SActionStatement& statement)
    {
        const std::string name = statement.keyword->name;
        if (statement.operands.size() != static_cast<std::size_t>(statement.keyword->operands)) {
            Problem(name + " takes " + std::to_string(statement.keyword->operands) + " argument(s), not " +
                    std::to_string(statement.operands.size()) +
                    "; a comma or bracket inside of one can't be stored");
            return;
        }
        // The one form whose rest of the line is an operand.
        if (statement.keyword->keyword == enGrammarKeyword::StrtmpFormat)
            return;
        for (const std::string& operand : statement.operands) {
            if (operand.empty())
                Problem(name + " has an empty argument");
            else if (operand.find_first_of("( \t\r\n") != std::string::npos)
                Problem(std::string(name).append(": the argument ").append(operand) +
                        " holds a blank or bracket and can't be stored");
        }
    }

    std::string_view m_Text;
    int m_FirstLine;
    std::size_t m_At = 0;
    bool m_HasCondition = false;
    SActionStatements m_Result;
};

} // namespace

SActionStatements ReadActionStatements(const SActionCase& action)
{
    return CStatementReader(action).Read();
}
