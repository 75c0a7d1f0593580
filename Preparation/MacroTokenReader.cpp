// From a text to a token list.
#include "Preparation/MacroTokenReader.h"

#include "Preparation/MacroCharacters.h"
#include "Preparation/MacroLineDirectives.h"

#include <algorithm>
#include <istream>
#include <iterator>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace MacroPreprocessorChecker::internal {

namespace {

// What may need more than a look when a line of code is skimmed: where a line, a comment, a literal begins or
// a line goes on, and what can't be read.
constexpr CharacterSet kSkimStops = CharacterSet("\n/\\\"'").AndForeign();

bool IsStringPrefix(std::string_view word)
{
    return word == "u" || word == "U" || word == "L" || word == "u8";
}

bool IsRawStringPrefix(std::string_view word)
{
    return word == "R" || word == "uR" || word == "UR" || word == "LR" || word == "u8R";
}

std::string NoPairMessage(char opening)
{
    return std::string("No pair for character (") + opening +
           "). Can't process file. File is either invalid or unicode, which is currently not supported.";
}

// One pass over a decoded text. The line of a token's location is that of its logical line: line ends inside,
// after a backslash or in a comment of a directive, are counted in m_InnerLineEnds and made up for at the
// logical line's end. m_SourceLine counts the same lines without regard to line directives.
class CTextCursor
{
public:
    CTextCursor(TokenList& list, std::string_view text, const std::string& fileName, ErrorList& errors,
                bool isHidden)
        : m_List(list), m_Text(text), m_Errors(errors),
          m_IsHidden(isHidden), m_Location{list.fileIndex(fileName)}
    {}

    // `isWhole`: operators are joined, and names get their numbers.
    bool Read(std::size_t count, bool isWhole)
    {
        Token* const before = m_List.last;
        m_IsWhole = isWhole;
        m_Count = 0;
        while (m_At < m_Text.size() && (m_Count < count || !MayStop())) {
            if (m_Line == LINE_CODE && !isWhole && SkimCode())
                continue;
            if (!ReadToken()) {
                m_List.clear();
                m_At = m_Text.size();
                return false;
            }
        }
        const bool isEnd = m_At >= m_Text.size();
        if (isEnd)
            EndLine();
        if (isWhole)
            m_List.combineOperators(before != nullptr ? before->next : m_List.first, m_Scope);
        return !isEnd;
    }

private:
    // What the line is known to be so far, by its significant tokens.
    enum enLine
    {
        LINE_EMPTY,
        LINE_HASH,
        LINE_INCLUDE, // "# include"
        LINE_MESSAGE, // "# error" or "# warning"
        LINE_DIRECTIVE,
        LINE_CODE
    };

    // At a line's beginning, or between tokens that stand apart; a backslash may still make its line go on.
    bool MayStop() const
    {
        if (m_Line == LINE_EMPTY)
            return m_Location.col == 1 && m_InnerLineEnds == 0;
        if (m_Line != LINE_CODE || (m_Text[m_At] != ' ' && m_Text[m_At] != '\t'))
            return false;
        return m_List.last != nullptr && m_List.last->op != '\\' && !m_List.last->SkipWhenNextOrPrev();
    }

    bool IsDirectiveLine() const { return m_Line != LINE_EMPTY && m_Line != LINE_CODE; }
    char Peek(std::size_t distance) const
    {
        return m_Text.size() - m_At > distance ? m_Text[m_At + distance] : '\0';
    }

    void Fail(enErrorType type, std::string message) { Fail(type, m_Location, std::move(message)); }
    void Fail(enErrorType type, const Location& where, std::string message)
    {
        m_Errors.push_back({type, where, std::move(message)});
    }

    Token& Push(enTokenKind kind, std::string_view text)
    {
        Token* const token = m_List.AppendRaw();
        token->str = text;
        token->nameNumber = 0;
        token->sourceLine = m_SourceLine;
        token->location = m_Location;
        token->kind = kind;
        token->op = '\0';
        token->comment = token->name = token->number = false;
        token->hidden = m_IsHidden;
        ++m_Count;
        return *token;
    }

    // Makes a token of a text; what it is shows in the text.
    void Add(std::string_view text)
    {
        Token& token = Push(TOKEN_INK, text);
        token.flags();
        if (!token.comment)
            FollowLine(token);
    }

    // The next `length` characters. The caller makes a token of them.
    std::string_view Take(std::size_t length)
    {
        const std::string_view text(m_Text.data() + m_At, length);
        m_At += length;
        return text;
    }

    // Makes a token of the next `length` characters.
    void TakeToken(std::size_t length)
    {
        Add(Take(length));
        m_Location.col += static_cast<std::uint32_t>(length);
    }

    void FollowLine(const Token& token)
    {
        if (m_Line == LINE_CODE)
            return;
        switch (m_Line) {
        case LINE_EMPTY:
            m_Line = token.op == '#' ? LINE_HASH : LINE_CODE;
            break;
        case LINE_HASH:
            if (token.str == "include")
                m_Line = LINE_INCLUDE;
            else if (token.str == "error" || token.str == "warning")
                m_Line = LINE_MESSAGE;
            else
                m_Line = LINE_DIRECTIVE;
            break;
        case LINE_INCLUDE:
            m_Line = LINE_DIRECTIVE;
            break;
        default:
            break;
        }
    }

    // Passes over tokens of a code line that nobody who skims asks for.
    // Returns: false if there are none here.
    bool SkimCode()
    {
        // what stands after a backslash tells whether the line goes on
        m_IsSkimming = m_IsSkimming && (m_List.last == nullptr || m_List.last->op != '\\');
        if (!m_IsSkimming)
            return false;
        std::size_t end = m_At;
        while (end < m_Text.size() && !kSkimStops.Has(m_Text[end]))
            ++end;
        if (end < m_Text.size() && (m_Text[end] == '"' || m_Text[end] == '\''))
            while (end > m_At &&
                   kNameCharacters.Has(m_Text[end - 1])) // a prefix, or a number with separators
                --end;
        m_Location.col += static_cast<std::uint32_t>(end - m_At);
        return std::exchange(m_At, end) != end;
    }

    // False: reading ends here, with a message.
    bool ReadToken()
    {
        const char c = m_Text[m_At];
        const enBeginning beginning = BeginningOf(c);
        if (m_Line == LINE_MESSAGE && beginning != BEGINS_LINE && beginning != BEGINS_BLANKS &&
            beginning != BEGINS_TABS && beginning != BEGINS_FOREIGN) {
            ReadMessage();
            return true;
        }
        switch (beginning) {
        case BEGINS_LINE:
            if (!ContinueLine())
                EndLine();
            ++m_At;
            return true;
        case BEGINS_BLANKS:
            ReadBlanks();
            return true;
        case BEGINS_TABS:
            ReadTabs();
            return true;
        case BEGINS_FOREIGN:
            Fail(UNHANDLED_CHARACTER, "The code contains unhandled character(s) (character code=" +
                                          std::to_string(static_cast<unsigned char>(c)) +
                                          "). Neither unicode nor extended ascii is supported.");
            return false;
        case BEGINS_NAME:
            return ReadName();
        case BEGINS_NUMBER:
            return ReadNumber();
        case BEGINS_QUOTED:
            return ReadQuoted(0);
        case BEGINS_SLASHED:
            if (Peek(1) == '*')
                return ReadBlockComment();
            if (Peek(1) == '/') {
                ReadLineComment();
                return true;
            }
            break;
        case BEGINS_LESS:
            if (m_Line == LINE_INCLUDE)
                return ReadHeaderName();
            break;
        case BEGINS_SIGN:
            break;
        }
        Token& sign = Push(TOKEN_INK, Take(1));
        sign.op = c;
        FollowLine(sign);
        ++m_Location.col;
        return true;
    }

    // Any control character is printed as a blank.
    void ReadBlanks()
    {
        bool hasControls = m_Text[m_At] != ' ';
        std::size_t length = 1;
        for (; m_At + length < m_Text.size() && BeginningOf(m_Text[m_At + length]) == BEGINS_BLANKS; ++length)
            hasControls |= m_Text[m_At + length] != ' ';
        std::string_view text = Take(length);
        if (hasControls)
            text = m_List.store().Keep(std::string(length, ' '));
        Push(TOKEN_SPACES, text);
        m_Location.col += static_cast<std::uint32_t>(length);
    }

    void ReadTabs()
    {
        std::size_t length = 1;
        while (m_At + length < m_Text.size() && m_Text[m_At + length] == '\t')
            ++length;
        Push(TOKEN_TABS, Take(length));
        m_Location.col += static_cast<std::uint32_t>(length);
    }

    // At a line end: a backslash before it makes the logical line go on.
    bool ContinueLine()
    {
        Token* slash = m_List.last;
        while (slash != nullptr && slash->sourceLine == m_SourceLine && slash->SkipWhenNextOrPrev() &&
               !slash->IsNextLineToken())
            slash = slash->previous;
        if (slash == nullptr || slash->op != '\\' || slash->sourceLine != m_SourceLine)
            return false;
        if (slash != m_List.last)
            Fail(PORTABILITY, slash->location, "Combination 'backslash space newline' is not portable.");
        m_Location = slash->location;
        while (m_List.last != slash)
            m_List.deleteToken(m_List.last);
        m_List.deleteToken(slash);
        Push(TOKEN_SLASH, "\\\n");
        ++m_InnerLineEnds;
        m_Location.col = 1;
        m_IsSkimming = true;
        return true;
    }

    void EndLine()
    {
        Location next = m_Location;
        next.line += 1 + m_InnerLineEnds;
        next.col = 1;
        if (m_Line == LINE_DIRECTIVE)
            HonourLineDirective(next);
        m_Location = next;
        m_SourceLine += 1 + m_InnerLineEnds;
        m_InnerLineEnds = 0;
        m_Line = LINE_EMPTY;
        m_IsSkimming = true;
    }

    void HonourLineDirective(Location& next)
    {
        const SLineDirective directive = LineDirectiveOf(m_List);
        switch (directive.kind) {
        case SLineDirective::KIND_NONE:
            break;
        case SLineDirective::KIND_FILE:
            m_Files.push_back(next);
            next = Location{m_List.fileIndex(*directive.file)};
            break;
        case SLineDirective::KIND_LINE: {
            const std::uint32_t file =
                directive.file ? m_List.fileIndex(*directive.file) : m_Location.fileIndex;
            next = m_Location;
            m_List.lineDirective(file, directive.line, next);
            break;
        }
        case SLineDirective::KIND_END_OF_FILE:
            if (m_Files.empty())
                break;
            next = m_Files.back();
            m_Files.pop_back();
            break;
        }
    }

    // The rest of the line as it stands; a backslash at its end is left for ContinueLine().
    void ReadMessage()
    {
        const std::size_t end = std::min(m_Text.find('\n', m_At), m_Text.size());
        std::size_t length = end - m_At;
        if (length > 1 && end < m_Text.size() && m_Text[end - 1] == '\\')
            --length;
        TakeToken(length);
    }

    bool ReadName()
    {
        std::size_t end = m_At + 1;
        while (end < m_Text.size() && kNameCharacters.Has(m_Text[end]))
            ++end;
        const std::size_t length = end - m_At;
        const char following = end < m_Text.size() ? m_Text[end] : '\0';
        if (following == '"' || following == '\'') {
            const std::string_view word = m_Text.substr(m_At, length);
            if (IsStringPrefix(word))
                return ReadQuoted(length);
            if (following == '"' && IsRawStringPrefix(word))
                return ReadRawString(length);
        }
        Token& token = Push(TOKEN_INK, Take(length));
        token.op = length == 1 ? token.str[0] : '\0';
        token.name = true;
        if (m_IsWhole)
            token.nameNumber = m_List.store().names.Number(token.str);
        FollowLine(token);
        m_Location.col += static_cast<std::uint32_t>(length);
        return true;
    }

    bool ReadNumber()
    {
        std::size_t end = m_At + 1;
        while (end < m_Text.size() &&
               (kNameCharacters.Has(m_Text[end]) ||
                (m_Text[end] == '\'' && end + 1 < m_Text.size() && kNameCharacters.Has(m_Text[end + 1]))))
            ++end;
        TakeToken(end - m_At);
        return true;
    }

    void ReadLineComment()
    {
        std::size_t end = std::min(m_Text.find('\n', m_At), m_Text.size());
        while (end < m_Text.size()) {
            const std::size_t lastInk = m_Text.find_last_not_of(" \t", end - 1);
            if (m_Text[lastInk] != '\\')
                break;
            if (lastInk != end - 1)
                Fail(PORTABILITY, "Combination 'backslash space newline' is not portable.");
            ++m_InnerLineEnds;
            end = std::min(m_Text.find('\n', end + 1), m_Text.size());
        }
        TakeToken(end - m_At);
    }

    bool ReadBlockComment()
    {
        const std::size_t close = m_Text.find("*/", m_At + 2);
        if (close == m_Text.npos) {
            Fail(SYNTAX_ERROR, "No end of the comment.");
            return false;
        }
        std::string_view text = m_Text.substr(m_At, close + 2 - m_At);
        std::uint32_t spliced = 0;
        if (text.find("\\\n") != text.npos)
            text = WithoutContinuations(std::string(text), spliced);
        Location end = m_Location;
        end.adjust(text);
        const std::uint32_t lineEnds = end.line - m_Location.line;
        Add(text);
        if (IsDirectiveLine()) {
            m_InnerLineEnds += lineEnds;
            end.line = m_Location.line;
        } else {
            m_SourceLine += lineEnds;
            m_IsSkimming = m_IsSkimming && lineEnds == 0; // what follows may be a directive
        }
        m_InnerLineEnds += spliced;
        m_Location = end;
        m_At = close + 2;
        return true;
    }

    // `count` gets how many there were.
    std::string_view WithoutContinuations(std::string text, std::uint32_t& count)
    {
        std::size_t kept = 0;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '\\' && at + 1 < text.size() && text[at + 1] == '\n') {
                ++count;
                ++at;
            } else {
                text[kept++] = text[at];
            }
        }
        text.resize(kept);
        return m_List.store().Keep(std::move(text));
    }

    // A literal after a prefix. A line end after a backslash goes; one of another kind, or the text's end,
    // can't stand in it.
    bool ReadQuoted(std::size_t prefixLength)
    {
        const char quote = m_Text[m_At + prefixLength];
        std::string spliced; // what stands before the last continuation
        std::size_t from = m_At;
        std::size_t at = m_At + prefixLength + 1;
        for (;; ++at) {
            if (at >= m_Text.size() || m_Text[at] == '\n') {
                Fail(SYNTAX_ERROR, NoPairMessage(quote));
                return false;
            }
            if (m_Text[at] == quote)
                break;
            if (m_Text[at] != '\\' || at + 1 >= m_Text.size())
                continue;
            if (m_Text[++at] == '\n') {
                ++m_InnerLineEnds;
                spliced += m_Text.substr(from, at - 1 - from);
                from = at + 1;
            }
        }
        std::string_view text = m_Text.substr(from, at + 1 - from);
        if (from != m_At)
            text = m_List.store().Keep(spliced.append(text));
        Add(text);
        m_Location.col += static_cast<std::uint32_t>(text.size());
        m_At = at + 1;
        return true;
    }

    bool ReadHeaderName()
    {
        const std::size_t end = m_Text.find_first_of(">\n", m_At);
        if (end == m_Text.npos || m_Text[end] != '>') {
            Fail(SYNTAX_ERROR, NoPairMessage('<'));
            return false;
        }
        TakeToken(end + 1 - m_At);
        return true;
    }

    // R"delimiter(text)delimiter" becomes an ordinary string of the same value.
    bool ReadRawString(std::size_t prefixLength)
    {
        const std::size_t open = m_At + prefixLength + 1;
        const std::size_t parenthesis = m_Text.find_first_of("(\n", open);
        if (parenthesis != m_Text.npos && m_Text[parenthesis] == '\n') {
            Fail(SYNTAX_ERROR, "Invalid newline in raw string delimiter.");
            return false;
        }
        std::string closing = ")";
        std::size_t end = m_Text.npos;
        if (parenthesis != m_Text.npos) {
            closing.append(m_Text.substr(open, parenthesis - open)).push_back('"');
            end = m_Text.find(closing, parenthesis + 1);
        }
        if (end == m_Text.npos) {
            Fail(SYNTAX_ERROR, "Raw string missing terminating delimiter.");
            return false;
        }
        const std::string_view content = m_Text.substr(parenthesis + 1, end - parenthesis - 1);
        m_InnerLineEnds += static_cast<std::uint32_t>(std::ranges::count(content, '\n'));
        std::string text(m_Text.substr(m_At, prefixLength - 1));
        Add(m_List.store().Keep(text.append(escapeString(content))));
        m_At = end + closing.size();
        m_Location.col += static_cast<std::uint32_t>(m_List.last->str.size());
        return true;
    }

    TokenList& m_List;
    std::string_view m_Text;
    ErrorList& m_Errors;
    bool m_IsHidden;
    bool m_IsWhole = true;
    bool m_IsSkimming = true; // nothing on the line so far wants its tokens
    Location m_Location;
    OperatorScope m_Scope;
    std::size_t m_At = 0;
    std::size_t m_Count = 0; // tokens of this piece
    std::uint32_t m_SourceLine = 1;
    std::uint32_t m_InnerLineEnds = 0;
    enLine m_Line = LINE_EMPTY;
    std::vector<Location> m_Files; // where "# file" lines came from
};

} // namespace

class TokenReader::Cursor : public CTextCursor
{
public:
    using CTextCursor::CTextCursor;
};

TokenReader::TokenReader(TokenList& list, std::string_view text, std::string fileName, ErrorList& errors,
                         bool isHidden)
    : m_List(list), m_Text(text), m_FileName(std::move(fileName)), m_Errors(errors), m_IsHidden(isHidden)
{
    Restart();
}

TokenReader::~TokenReader() = default;

bool TokenReader::Read(std::size_t count)
{
    return m_Cursor->Read(count, true);
}

bool TokenReader::Skim(std::size_t count)
{
    return m_Cursor->Read(count, false);
}

void TokenReader::Restart()
{
    m_Cursor = std::make_unique<Cursor>(m_List, m_Text, m_FileName, m_Errors, m_IsHidden);
}

void TokenList::readfile(std::istream& stream, const std::string& fileName, ErrorList& errors, bool isHidden)
{
    readtext({std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()}, fileName, errors,
             isHidden);
}

void TokenList::readtext(std::string text, const std::string& fileName, ErrorList& errors, bool isHidden)
{
    clear();
    TokenReader(*this, m_Store->Keep(DecodeText(std::move(text))), fileName, errors, isHidden)
        .Read(std::numeric_limits<std::size_t>::max());
}

} // namespace MacroPreprocessorChecker::internal
