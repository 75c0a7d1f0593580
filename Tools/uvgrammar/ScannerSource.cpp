#include "Tools/uvgrammar/ScannerSource.h"

#include "Tools/uvgrammar/KeywordTable.h"
#include "Tools/uvgrammar/ParserRules.h"

#include <algorithm>
#include <utility>

namespace {

// The line of a "%%", or one after the last line.
int FindSections(const CSourceFile& file, int from)
{
    while (from <= file.LineCount() && !file.Line(from).starts_with("%%"))
        ++from;
    return from;
}

std::string_view Trimmed(std::string_view text)
{
    const std::size_t end = text.find_last_not_of(" \t\r");
    const std::size_t begin = text.find_first_not_of(" \t\r");
    return end == std::string_view::npos ? std::string_view() : text.substr(begin, end + 1 - begin);
}

// A pattern for the text, in which flex takes what is quoted as it is. Each letter is a class of characters: where case
// doesn't matter flex needs half the states for it, and its automaton is the same.
std::string PatternOf(std::string_view spelling)
{
    std::string pattern;
    for (std::size_t i = 0; i < spelling.size(); ++i) {
        const bool isLetter =
            (spelling[i] >= 'a' && spelling[i] <= 'z') || (spelling[i] >= 'A' && spelling[i] <= 'Z');
        const std::size_t length = spelling[i] == '\\' && i + 1 < spelling.size() ? 2 : 1;
        pattern.append(isLetter ? "[" : "\"")
            .append(spelling.substr(i, length))
            .append(isLetter ? "]" : "\"");
        i += length - 1;
    }
    return pattern;
}

class CScannerAssembler
{
public:
    CScannerAssembler(const std::string& path, CToolMessages& messages)
        : m_Files(std::make_unique<CSourceFiles>(path)), m_Messages(messages)
    {}

    CGrammarSource Assemble()
    {
        const CSourceFile& main = m_Files->Main();
        const int rules = FindSections(main, 1);
        const int code = FindSections(main, rules + 1);
        TakeLines(main, 1, rules, m_Definitions, false);
        TakeLines(main, rules + 1, code, m_Rules, true);
        CAssembledText text;
        text.Append(m_Definitions);
        CopyLines(main, rules, std::min(rules + 1, main.LineCount() + 1), text);
        text.Append(m_Rules);
        CopyLines(main, code, main.LineCount() + 1, text);
        return {std::move(m_Files), std::move(text)};
    }

private:
    static void CopyLines(const CSourceFile& file, int from, int to, CAssembledText& text)
    {
        if (from < to)
            text.Copy(file, file.LineStart(from),
                      to <= file.LineCount() ? file.LineStart(to) : file.Text().size());
    }

    // The lines of one section, with what their own forms stand for.
    void TakeLines(const CSourceFile& file, int from, int to, CAssembledText& text, bool isRules)
    {
        for (int line = from; line < to; ++line) {
            std::string_view form = file.Line(line);
            std::string_view conditions;
            if (isRules && form.starts_with('<')) {
                conditions = form.substr(0, form.find('>') + 1);
                form.remove_prefix(conditions.size());
            }
            const bool isInclude = form.starts_with("%include") && conditions.empty();
            if (!isInclude && !form.starts_with("%keywords")) {
                CopyLines(file, line, line + 1, text);
                continue;
            }
            const std::size_t offset = file.LineStart(line);
            const std::string_view word = isInclude ? "%include" : "%keywords";
            const std::string name = QuotedName(Trimmed(form.substr(word.size())));
            if (name.empty())
                Error(file, offset, std::string(word) + " takes one path in quotes");
            else if (isInclude)
                Include(file, offset, name, text, isRules);
            else if (isRules)
                WriteKeywords(file, offset, name, conditions, text);
            else
                Error(file, offset, "the words become rules: %keywords stands after the %%");
        }
    }

    void Include(const CSourceFile& file, std::size_t offset, const std::string& name, CAssembledText& text,
                 bool isRules)
    {
        const CSourceFile* const fragment = m_Files->Include(file, offset, name, m_Messages);
        if (fragment == nullptr)
            return;
        const int lines = fragment->LineCount();
        const int rules = FindSections(*fragment, 1);
        if (rules > lines) {
            TakeLines(*fragment, 1, lines + 1, text, isRules);
            return;
        }
        if (!isRules) {
            Error(file, offset,
                  fragment->Path() + " has rules: it is included among the rules, after the %%");
            return;
        }
        if (const int code = FindSections(*fragment, rules + 1); code <= lines)
            Error(*fragment, fragment->LineStart(code), "a fragment ends with its rules");
        TakeLines(*fragment, 1, rules, m_Definitions, false);
        TakeLines(*fragment, rules + 1, lines + 1, text, true);
    }

    void WriteKeywords(const CSourceFile& file, std::size_t offset, const std::string& name,
                       std::string_view conditions, CAssembledText& text)
    {
        CKeywordTable table;
        table.Read(*m_Files, file, offset, name, m_Messages);
        for (const auto& [word, keyword] : table.Words()) {
            for (const std::string& spelling : keyword.spellings) {
                std::string rule(conditions);
                rule.append(PatternOf(spelling)).append(" { TOKEN_ACTIONE(").append(keyword.token);
                rule.append(", ").append(std::to_string(keyword.color)).append("); }\n");
                text.Write(*keyword.file, keyword.offset, rule);
            }
        }
    }

    void Error(const CSourceFile& file, std::size_t offset, const std::string& text)
    {
        m_Messages.Write(enSeverity::Error, file.PlaceAt(offset), text);
    }

    std::unique_ptr<CSourceFiles> m_Files;
    CToolMessages& m_Messages;
    CAssembledText m_Definitions;
    CAssembledText m_Rules;
};

} // namespace

std::string ReadableRule(const std::string& line)
{
    const std::size_t from = line.starts_with('<') ? std::min(line.find('>'), line.size() - 1) + 1 : 0;
    std::string spelling;
    std::size_t at = from;
    while (at + 2 < line.size() && (line[at] == '[' || line[at] == '"')) {
        const char close = line[at] == '[' ? ']' : '"';
        const std::size_t length = line[at + 1] == '\\' ? 2 : 1;
        if (line[at + 1 + length] != close)
            return line;
        spelling.append(line, at + 1, length);
        at += length + 2;
    }
    if (spelling.empty() || line[at] != ' ')
        return line;
    return line.substr(0, from).append("\"").append(spelling).append("\"").append(line, at);
}

CGrammarSource AssembleScanner(const std::string& path, CToolMessages& messages)
{
    return CScannerAssembler(path, messages).Assemble();
}
