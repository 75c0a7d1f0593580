#include "Preparation/Formatters/FoxPro.h"

#include "Preparation/Formatters/SourceLines.h"

#include <utility>

namespace {

// The walk over one statement. Nothing that it has passed is looked at again, however many lines are joined:
// a ";" in a literal that was closed before stays plain text whatever follows.
class CStatement
{
public:
    // Appends to `output`; takes the lines that the statement goes on with from `lines`.
    CStatement(CSourceLines& lines, std::string& output) : m_Lines(lines), m_Output(output) {}

    void Walk(std::string_view line)
    {
        Enter(line);
        while (m_At != m_Line.size()) {
            const char character = m_Line[m_At];
            if (character == ';' && !IsPlainText()) {
                Semicolon();
                continue;
            }
            if (character == '"' || character == '\'') {
                if (m_Quote == '\0')
                    m_Quote = character;
                else if (m_Quote == character)
                    m_Quote = '\0';
            }
            m_Output += static_cast<unsigned char>(character) < 0x80 ? character : '`';
            m_At += CharacterLength(m_Line, m_At);
        }
    }

private:
    void Enter(std::string_view line)
    {
        m_Line = line;
        m_At = 0;
        m_Closing = 0;
    }

    // Is the ";" inside a literal that the line closes?
    bool IsPlainText()
    {
        if (m_Quote == '\0')
            return false;
        if (m_Closing <= m_At)
            m_Closing = m_Line.find(m_Quote, m_At);
        return m_Closing != m_Line.npos;
    }

    void Semicolon()
    {
        const std::string_view rest = m_Line.substr(m_At + 1);
        SSourceLine next;
        if (!WithoutOuterBlanks(rest.substr(0, rest.find("&&"))).empty()) {
            m_Output.append(m_Line.substr(m_At));
            m_At = m_Line.size();
        } else if (m_Quote != '\0') {
            Enter(m_Lines.Next(next) ? next.text : std::string_view());
        } else if (!WithoutOuterBlanks(rest).empty()) {
            m_Line = WithoutTrailingBlanks(m_Line);
            ++m_At;
        } else if (m_Lines.Next(next)) {
            m_Output += ' ';
            Enter(next.text);
        } else {
            m_At = m_Line.size();
        }
    }

    CSourceLines& m_Lines;
    std::string& m_Output;
    std::string_view m_Line; // the line that the walk has come to
    std::size_t m_At = 0;
    std::size_t m_Closing =
        0;               // where the open literal ends, if that is known: behind m_At; npos: not in this line
    char m_Quote = '\0'; // that opened the literal; 0 outside
};

} // namespace

SPreparedText FormatFoxPro(const Uve::U8CString& text)
{
    SPreparedText prepared;
    std::string output;
    output.reserve(text.size());
    CSourceLines lines(text);
    for (SSourceLine line; lines.Next(line); output += '\n') {
        prepared.sourceLines.push_back(line.number);
        const std::string_view code = WithoutLeadingBlanks(line.text);
        if (code.starts_with('*'))
            output.append(code);
        else if (line.text.find(';') == line.text.npos)
            output.append(line.text);
        else
            CStatement(lines, output).Walk(line.text);
    }
    const std::size_t finalLineFeeds = CountFinalLineFeeds(output);
    output.resize(output.size() - finalLineFeeds);
    // the first of them ended a line that stays, unless there is none
    prepared.sourceLines.resize(output.empty() ? 0 : prepared.sourceLines.size() - (finalLineFeeds - 1));
    prepared.text = std::move(output);
    return prepared;
}
