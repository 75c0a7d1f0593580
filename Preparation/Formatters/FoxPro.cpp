#include "Preparation/Formatters/FoxPro.h"

#include "Preparation/Formatters/LineNotes.h"
#include "Preparation/Formatters/SourceLines.h"

#include <utility>

namespace {

// What the literal form loses of lines that it keeps.
class CLosses
{
public:
    void AddCharacter(std::uint32_t line) { m_Characters.Add(line); }
    void AddRest(std::uint32_t line) { m_Rests.Add(line); }

    void MoveTo(std::vector<SPreparationNote>& notes)
    {
        m_Characters.notes.MoveTo(notes);
        m_Rests.notes.MoveTo(notes);
        SortNotes(notes);
    }

private:
    struct SLoss
    {
        CLineNotes notes;
        std::uint32_t lastLine = 0;

        void Add(std::uint32_t line)
        {
            if (line == lastLine)
                return;
            if (line != lastLine + 1)
                notes.EndRun();
            notes.Add(line);
            lastLine = line;
        }
    };

    SLoss m_Characters{CLineNotes("lost characters beyond ASCII: \"`\" stands in their places")};
    SLoss m_Rests{CLineNotes("lost what follows a \";\" within a literal that goes on")};
};

// The walk over one statement. Nothing that it has passed is looked at again, however many lines are joined:
// a ";" in a literal that was closed before stays plain text whatever follows.
class CStatement
{
public:
    // Appends to `output`; takes the lines that the statement goes on with from `lines`.
    CStatement(CSourceLines& lines, std::string& output, const SFoxProOptions& options, CLosses& losses)
        : m_Lines(lines), m_Output(output), m_IsFaithful(options.isFaithful), m_Losses(losses)
    {}

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
            const std::size_t length = CharacterLength(m_Line, m_At);
            if (m_IsFaithful || static_cast<unsigned char>(character) < 0x80) {
                m_Output.append(m_Line, m_At, length);
            } else {
                m_Output += '`';
                m_Losses.AddCharacter(m_Lines.Count());
            }
            m_At += length;
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
        const std::string_view rest = WithoutLeadingBlanks(m_Line.substr(m_At + 1));
        const bool isBeforeComment = rest.starts_with("&&");
        SSourceLine next;
        if (m_IsFaithful && !rest.empty() && (!isBeforeComment || m_Quote != '\0')) {
            m_Output += ';';
            ++m_At;
        } else if (!rest.empty() && !isBeforeComment) {
            m_Output.append(m_Line.substr(m_At));
            m_At = m_Line.size();
        } else if (m_Quote != '\0') {
            if (!rest.empty())
                m_Losses.AddRest(m_Lines.Count());
            Enter(m_Lines.Next(next) ? next.text : std::string_view());
        } else if (!rest.empty()) {
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
    bool m_IsFaithful;
    CLosses& m_Losses;
    std::string_view m_Line; // the line that the walk has come to
    std::size_t m_At = 0;
    std::size_t m_Closing =
        0;               // where the open literal ends, if that is known: after m_At; npos: not in this line
    char m_Quote = '\0'; // that opened the literal; 0 outside
};

// A comment that goes on: nothing in it is a literal or another comment.
void JoinComment(CSourceLines& lines, std::string_view comment, std::string& output)
{
    SSourceLine next;
    for (;; comment = next.text) {
        const std::string_view filled = WithoutTrailingBlanks(comment);
        if (!filled.ends_with(';') || !lines.Next(next)) {
            output.append(comment);
            return;
        }
        output.append(filled.substr(0, filled.size() - 1)) += ' ';
    }
}

} // namespace

SPreparedText FormatFoxPro(const Uve::U8CString& text, const SFoxProOptions& options)
{
    SPreparedText prepared;
    CLosses losses;
    std::string output;
    output.reserve(text.size());
    CSourceLines lines(text);
    for (SSourceLine line; lines.Next(line); output += '\n') {
        prepared.sourceLines.push_back(line.number);
        const std::string_view code = WithoutLeadingBlanks(line.text);
        if (code.starts_with('*') && options.isFaithful)
            JoinComment(lines, code, output);
        else if (code.starts_with('*'))
            output.append(code);
        else if (line.text.find(';') == line.text.npos)
            output.append(line.text);
        else
            CStatement(lines, output, options, losses).Walk(line.text);
    }
    const std::size_t finalLineFeeds = CountFinalLineFeeds(output);
    output.resize(output.size() - finalLineFeeds);
    // the first of them ended a line that stays, unless there is none
    prepared.sourceLines.resize(output.empty() ? 0 : prepared.sourceLines.size() - (finalLineFeeds - 1));
    prepared.text = std::move(output);
    losses.MoveTo(prepared.notes);
    return prepared;
}
