#include "Preparation/Formatters/CobolFaithful.h"

#include "Preparation/Formatters/BlankRuns.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

// A tab goes on to the next stop, one that begins in the columns of the number and the indicator to the first
// stop after them: nobody writes code in those. `line` itself, or its expanded form, kept in `buffer`.
std::string_view ExpandTabs(std::string_view line, int tabWidth, std::string& buffer)
{
    if (line.find('\t') == line.npos)
        return line;
    const auto width = static_cast<std::size_t>(std::max(tabWidth, 1));
    buffer.clear();
    std::size_t column = 0;
    for (std::size_t at = 0; at != line.size();) {
        const std::size_t length = CharacterLength(line, at);
        if (line[at] != '\t') {
            buffer.append(line, at, length);
            ++column;
        } else {
            const std::size_t next = std::max(column, kCobolIndicatorColumn) / width * width + width;
            buffer.append(next - column, ' ');
            column = next;
        }
        at += length;
    }
    return buffer;
}

bool IsQuote(char character)
{
    return character == '\'' || character == '"';
}

// A statement's line and all that goes on with it.
class CCodeLine
{
public:
    // `width`: columns of the source line that `code` ends.
    void Begin(std::string_view code, std::size_t width, std::uint32_t number)
    {
        m_Code.clear();
        m_Comment.clear();
        m_Quote = '\0';
        m_Width = width;
        m_Number = number;
        m_IsOpen = true;
        Append(code, 0);
    }

    void Close() { m_IsOpen = false; }
    bool IsOpen() const { return m_IsOpen; }
    std::uint32_t Number() const { return m_Number; }
    std::string Text() const { return m_Code + m_Comment; }

    // `endColumn`: up to which a literal that is left open holds blanks; 0 if there is none.
    void Continue(std::string_view text, std::size_t width, std::size_t endColumn)
    {
        text = WithoutLeadingBlanks(text);
        if (text.empty())
            return;
        std::size_t known = 0; // bytes of the text that say nothing more of the literal
        if (m_Quote != '\0') {
            if (m_Width < endColumn)
                m_Code.append(endColumn - m_Width, ' ');
            if (text.starts_with(m_Quote))
                text.remove_prefix(1);
        } else if (HalvesDoubledQuote(text, endColumn)) {
            m_Quote = text.front();
            text.remove_prefix(1);
            known = 1;
        } else {
            // nothing but a comment may have stood after the margin, which stays
            const std::size_t filled = WithoutTrailingBlanks(m_Code).size();
            m_Code.resize(filled != 0 ? filled : std::min(m_Code.size(), kCobolMargin.size()));
            if (IsQuote(text.front()) && m_Code.ends_with(text.front()))
                m_Code += ' '; // both end and begin a literal of their own
        }
        m_Width = width;
        Append(text, known);
    }

private:
    // A quote in the last column and two more that follow are one in the literal.
    bool HalvesDoubledQuote(std::string_view text, std::size_t endColumn) const
    {
        return m_Comment.empty() && endColumn != 0 && m_Width == endColumn && m_HasClosedAtEnd &&
               text.size() > 1 && text[0] == m_Code.back() && text[1] == text[0];
    }

    // Takes the text apart: the literal that it leaves open, and the comment that ends it.
    void Append(std::string_view text, std::size_t known)
    {
        m_HasClosedAtEnd = false;
        std::size_t at = known;
        for (; at != text.size(); ++at) {
            const char character = text[at];
            if (m_Quote == '\0') {
                if (text.substr(at, 2) == "*>")
                    break;
                if (IsQuote(character))
                    m_Quote = character;
            } else if (character == m_Quote) {
                if (at + 1 != text.size() && text[at + 1] == m_Quote) {
                    ++at;
                    continue;
                }
                m_Quote = '\0';
                m_HasClosedAtEnd = at + 1 == text.size();
            }
        }
        m_Code.append(text, 0, at);
        if (at != text.size()) {
            if (!m_Comment.empty())
                m_Comment += ' ';
            m_Comment.append(text, at);
        }
        if (!m_Comment.empty() && !m_Code.ends_with(' '))
            m_Code += ' ';
    }

    std::string m_Code;
    std::string m_Comment; // "*>" and what follows; what goes on with the line goes on before it
    std::size_t m_Width = 0;
    std::uint32_t m_Number = 0;
    char m_Quote = '\0'; // of the literal that is open; 0 outside
    bool m_HasClosedAtEnd = false;
    bool m_IsOpen = false;
};

class CFaithfulForm
{
public:
    explicit CFaithfulForm(const SCobolOptions& options)
        : m_Options(options), m_IsFixed(options.format == enCobolFormat::Fixed)
    {}

    SPreparedText Run(std::string_view source)
    {
        m_Output.reserve(source.size() + source.size() / 8);
        std::string expanded;
        CSourceLines lines(source);
        for (SSourceLine line; lines.NextFilled(line);) {
            if (line.text.ends_with('\r'))
                line.text.remove_suffix(1);
            Add(ExpandTabs(line.text, m_Options.tabWidth, expanded), line.number);
        }
        Flush();
        if (m_IsFixed)
            AppendFinalLineFeeds(source, lines.Count(), m_Output, m_Prepared.sourceLines);
        else if (!m_Output.empty())
            m_Output += '\n';
        m_Prepared.text = std::move(m_Output);
        return std::move(m_Prepared);
    }

private:
    struct SHeldLine
    {
        std::string text;
        std::uint32_t number;
    };

    void Add(std::string_view line, std::uint32_t number)
    {
        const std::size_t indicator = ColumnOffset(line, kCobolIndicatorColumn);
        const char mark = indicator == line.size() ? ' ' : line[indicator];
        if (m_IsFixed && mark != '*' && mark != '$')
            line = line.substr(0, ColumnOffset(line, kCobolEndColumn));
        const bool isInclude = m_IsFixed && indicator != line.size() && IsCobolIncludeLine(line);
        if (isInclude) {
            Flush();
            m_Code.Close();
            Write(line, number);
        } else if (mark == '-' && m_Code.IsOpen()) {
            m_Code.Continue(line.substr(indicator + 1), Width(line), m_IsFixed ? kCobolEndColumn : 0);
        } else {
            AddLine(line, indicator, mark, number);
        }
    }

    void AddLine(std::string_view line, std::size_t indicator, char mark, std::uint32_t number)
    {
        std::string text;
        if (m_IsFixed) {
            const std::string_view code =
                indicator == line.size() ? std::string_view() : CobolCode(line, indicator, m_Options);
            if (m_Options.removesFormatting && code.empty())
                return;
            text.append(kCobolMargin).append(code);
        } else if (CountCharacters(line, kCobolIndicatorColumn) == kCobolIndicatorColumn && mark != '-') {
            text.append(kCobolMargin).append(line.substr(indicator));
        } else {
            text = line;
        }
        if (text.empty())
            return;
        const std::string_view code = WithoutLeadingBlanks(text);
        const bool isComment = m_IsFixed ? mark == '*' || mark == '/' || mark == '$' : code.starts_with('*');
        if (code.empty() || isComment) {
            Hold(std::move(text), number);
        } else {
            Flush();
            m_Code.Begin(text, Width(line), number);
        }
    }

    std::size_t Width(std::string_view line) const { return CountCharacters(line, kCobolEndColumn); }

    // Comments and blank lines wait, since the line before them may go on after them.
    void Hold(std::string text, std::uint32_t number)
    {
        if (m_Code.IsOpen())
            m_Held.push_back({std::move(text), number});
        else
            WriteCollapsed(text, number);
    }

    void Flush()
    {
        if (m_Code.IsOpen()) {
            WriteCollapsed(WithoutConditionComma(m_Code.Text()), m_Code.Number());
            m_Code.Close();
        }
        for (const SHeldLine& held : m_Held)
            WriteCollapsed(held.text, held.number);
        m_Held.clear();
    }

    void WriteCollapsed(std::string_view text, std::uint32_t number)
    {
        if (!m_IsFixed || !m_Options.removesFormatting || text.substr(kCobolMargin.size()).starts_with('*'))
            Write(text, number);
        else
            Write(std::string(kCobolMargin) + RemoveDuplicatedDelimiters(text.substr(kCobolMargin.size())),
                  number);
    }

    void Write(std::string_view text, std::uint32_t number)
    {
        if (!m_Prepared.sourceLines.empty())
            m_Output += '\n';
        m_Output.append(text);
        m_Prepared.sourceLines.push_back(number);
    }

    const SCobolOptions& m_Options;
    bool m_IsFixed;
    SPreparedText m_Prepared;
    std::string m_Output;
    CCodeLine m_Code;
    std::vector<SHeldLine> m_Held; // in order of the source, all after m_Code
};

} // namespace

SPreparedText FormatCobolFaithfully(std::string_view source, const SCobolOptions& options)
{
    return CFaithfulForm(options).Run(source);
}
