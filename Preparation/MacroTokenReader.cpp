// From a text to a token list.
#include "Preparation/MacroTokenReader.h"

#include <algorithm>
#include <array>
#include <istream>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace MacroPreprocessorChecker::internal {

namespace {

constexpr auto kNameCharacters = [] {
    std::array<bool, 256> table{};
    for (int c = 0; c < 256; ++c)
        table[c] = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
                   c == '$';
    return table;
}();

bool IsNameCharacter(char c)
{
    return kNameCharacters[static_cast<unsigned char>(c)];
}

// A control character counts as a blank, a tab and a line end don't.
bool IsBlank(char c)
{
    return c == ' ' || (static_cast<unsigned char>(c) < 32 && c != '\t' && c != '\n');
}

bool IsStringPrefix(std::string_view word)
{
    return word == "u" || word == "U" || word == "L" || word == "u8";
}

bool IsRawStringPrefix(std::string_view word)
{
    return word == "R" || word == "uR" || word == "UR" || word == "LR" || word == "u8R";
}

// The characters behind a byte order mark, with "\n" at every line's end. A wide character above 127 becomes
// the byte 255, which the reader refuses outside comments and strings.
std::string DecodeText(std::string_view bytes)
{
    std::string text;
    const bool isBigEnd = bytes.starts_with("\xFE\xFF");
    if (isBigEnd || bytes.starts_with("\xFF\xFE")) {
        text.reserve(bytes.size() / 2);
        for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
            const auto high = static_cast<unsigned char>(bytes[isBigEnd ? at : at + 1]);
            const auto low = static_cast<unsigned char>(bytes[isBigEnd ? at + 1 : at]);
            text += high != 0 || low > 127 ? '\xFF' : static_cast<char>(low);
        }
    } else {
        text = bytes.substr(bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0);
    }
    std::size_t kept = text.find('\r');
    if (kept == text.npos)
        return text;
    for (std::size_t at = kept; at < text.size(); ++at) {
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n')
            continue;
        text[kept++] = text[at] == '\r' ? '\n' : text[at];
    }
    text.resize(kept);
    return text;
}

std::string NoPairMessage(char opening)
{
    return std::string("No pair for character (") + opening +
           "). Can't process file. File is either invalid or unicode, which is currently not supported.";
}

} // namespace

// One pass over a decoded text. The line of a token's location is that of its logical line: line ends inside,
// behind a backslash or in a comment of a directive, are counted in m_InnerLineEnds and made up for at the
// logical line's end. m_SourceLine counts the same lines without regard to line directives.
class TokenReader::Cursor
{
public:
    Cursor(TokenList& list, std::string_view text, const std::string& fileName, ErrorList& errors,
           bool isHidden)
        : m_List(list), m_Text(text), m_Errors(errors), m_IsHidden(isHidden),
          m_Location(list.names(), list.fileIndex(fileName))
    {}

    bool Read(std::size_t count)
    {
        Token* const before = m_List.last;
        m_Count = 0;
        while (m_At < m_Text.size() && (m_Count < count || !MayStop())) {
            if (!ReadToken()) {
                m_List.clear();
                m_At = m_Text.size();
                return false;
            }
        }
        const bool isEnd = m_At >= m_Text.size();
        if (isEnd)
            EndLine();
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

    void Push(Token* token)
    {
        token->sourceLine = m_SourceLine;
        m_List.push_back(token);
        ++m_Count;
    }

    // Makes a token that begins at `where`.
    void Add(std::string text, const Location& where)
    {
        Token* const token = new Token(std::move(text), where, m_IsHidden);
        Push(token);
        if (!token->comment)
            FollowLine(*token);
    }

    // Takes the next `length` characters as a token.
    void Take(std::size_t length)
    {
        Add(std::string(m_Text.substr(m_At, length)), m_Location);
        m_Location.col += static_cast<std::uint32_t>(length);
        m_At += length;
    }

    void FollowLine(const Token& token)
    {
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

    // False: reading ends here, with a message.
    bool ReadToken()
    {
        const char c = m_Text[m_At];
        if (c == '\n') {
            if (!ContinueLine())
                EndLine();
            ++m_At;
            return true;
        }
        if (c == '\t' || IsBlank(c)) {
            ReadGap(c == '\t');
            return true;
        }
        if (static_cast<unsigned char>(c) > 127) {
            Fail(UNHANDLED_CHARACTER, "The code contains unhandled character(s) (character code=" +
                                          std::to_string(static_cast<unsigned char>(c)) +
                                          "). Neither unicode nor extended ascii is supported.");
            return false;
        }
        if (m_Line == LINE_MESSAGE) {
            ReadMessage();
            return true;
        }
        if (IsNameCharacter(c))
            return ReadNameOrNumber();
        if (c == '/' && Peek(1) == '/') {
            ReadLineComment();
            return true;
        }
        if (c == '/' && Peek(1) == '*')
            return ReadBlockComment();
        if (c == '"' || c == '\'')
            return ReadQuoted(0);
        if (c == '<' && m_Line == LINE_INCLUDE)
            return ReadHeaderName();
        Take(1);
        return true;
    }

    void ReadGap(bool isTabs)
    {
        const Location start = m_Location;
        std::size_t end = m_At + 1;
        while (end < m_Text.size() && (isTabs ? m_Text[end] == '\t' : IsBlank(m_Text[end])))
            ++end;
        m_Location.col += static_cast<std::uint32_t>(end - m_At);
        m_At = end;
        Push(isTabs ? new TokenTabs(start, m_Location, m_IsHidden)
                    : new TokenSpaces(start, m_Location, m_IsHidden));
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
        const Location where = slash->location;
        while (m_List.last != slash)
            m_List.deleteToken(m_List.last);
        m_List.deleteToken(slash);
        Push(new TokenSlash(where, m_IsHidden));
        ++m_InnerLineEnds;
        m_Location.col = 1;
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
    }

    // The tokens of the current line as a text, and those of them that a line directive carries.
    void HonourLineDirective(Location& next)
    {
        const Token* hash = m_List.last;
        int significant = 0;
        for (const Token* token = m_List.last; token != nullptr && token->sourceLine == m_SourceLine;
             token = token->previous) {
            if (token->comment || token->SkipWhenNextOrPrev())
                continue;
            hash = token;
            if (++significant > 4) // longer than any of them
                return;
        }
        const std::string line = m_List.lastLine(kWholeLine);
        const Token* const second = NextSignificant(hash);
        if (line == "# file %str%") {
            m_Files.push_back(next);
            next = Location(m_List.names(), m_List.fileIndex(Unquoted(NextSignificant(second)->str)));
        } else if (line == "# line %num%") {
            DirectLine(NextSignificant(second), nullptr, next);
        } else if (line == "# line %num% %str%") {
            const Token* const number = NextSignificant(second);
            DirectLine(number, NextSignificant(number), next);
        } else if (line == "# %num% %str%") {
            DirectLine(second, NextSignificant(second), next);
        } else if (line == "# endfile" && !m_Files.empty()) {
            next = m_Files.back();
            m_Files.pop_back();
        }
    }

    void DirectLine(const Token* number, const Token* name, Location& next)
    {
        const long long wanted = stringToLL(number->str);
        const auto line = static_cast<std::uint32_t>(
            std::clamp<long long>(wanted, 0, std::numeric_limits<std::int32_t>::max()));
        const std::uint32_t file =
            name == nullptr ? m_Location.fileIndex : m_List.fileIndex(FileOfDirective(name->str));
        Location location = m_Location;
        m_List.lineDirective(file, line, location);
        next = location;
    }

    static std::string Unquoted(const std::string& quoted)
    {
        const std::size_t from = quoted.find('"') + 1;
        return quoted.substr(from, quoted.size() - from - 1);
    }

    static std::string FileOfDirective(const std::string& quoted)
    {
        std::string name = Unquoted(quoted);
        std::size_t kept = 0;
        for (std::size_t at = 0; at < name.size(); ++at) {
            name[kept++] = name[at];
            if (name[at] == '\\' && at + 1 < name.size() && name[at + 1] == '\\')
                ++at;
        }
        name.resize(kept);
        return name;
    }

    // The rest of the line as it stands; a backslash at its end is left for ContinueLine().
    void ReadMessage()
    {
        const std::size_t end = std::min(m_Text.find('\n', m_At), m_Text.size());
        std::size_t length = end - m_At;
        if (length > 1 && end < m_Text.size() && m_Text[end - 1] == '\\')
            --length;
        Take(length);
    }

    bool ReadNameOrNumber()
    {
        const bool isNumber = m_Text[m_At] >= '0' && m_Text[m_At] <= '9';
        std::size_t end = m_At + 1;
        while (end < m_Text.size() &&
               (IsNameCharacter(m_Text[end]) || (isNumber && m_Text[end] == '\'' && end + 1 < m_Text.size() &&
                                                 IsNameCharacter(m_Text[end + 1]))))
            ++end;
        const char following = end < m_Text.size() ? m_Text[end] : '\0';
        if (following == '"' || following == '\'') {
            const std::string_view word = m_Text.substr(m_At, end - m_At);
            if (IsStringPrefix(word))
                return ReadQuoted(word.size());
            if (following == '"' && IsRawStringPrefix(word))
                return ReadRawString(word.size());
        }
        Take(end - m_At);
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
        Take(end - m_At);
    }

    bool ReadBlockComment()
    {
        const std::size_t close = m_Text.find("*/", m_At + 2);
        if (close == m_Text.npos) {
            Fail(SYNTAX_ERROR, "No end of the comment.");
            return false;
        }
        std::string text(m_Text.substr(m_At, close + 2 - m_At));
        const std::uint32_t spliced = RemoveContinuations(text);
        Location end = m_Location;
        end.adjust(text);
        const std::uint32_t lineEnds = end.line - m_Location.line;
        Add(std::move(text), m_Location);
        if (IsDirectiveLine()) {
            m_InnerLineEnds += lineEnds;
            end.line = m_Location.line;
        } else {
            m_SourceLine += lineEnds;
        }
        m_InnerLineEnds += spliced;
        m_Location = end;
        m_At = close + 2;
        return true;
    }

    static std::uint32_t RemoveContinuations(std::string& text)
    {
        std::size_t kept = text.find("\\\n");
        if (kept == text.npos)
            return 0;
        std::uint32_t count = 0;
        for (std::size_t at = kept; at < text.size(); ++at) {
            if (text[at] == '\\' && at + 1 < text.size() && text[at + 1] == '\n') {
                ++count;
                ++at;
            } else {
                text[kept++] = text[at];
            }
        }
        text.resize(kept);
        return count;
    }

    // Appends a quoted text up to the closing character. False if the line or the text ends before it.
    bool ReadUntil(std::string& text, char closing)
    {
        while (m_At < m_Text.size() && m_Text[m_At] != '\n') {
            const char c = m_Text[m_At++];
            if (c == '\\' && m_At < m_Text.size()) {
                if (m_Text[m_At] == '\n') {
                    ++m_InnerLineEnds;
                } else {
                    text += c;
                    text += m_Text[m_At];
                }
                ++m_At;
                continue;
            }
            text += c;
            if (c == closing)
                return true;
        }
        return false;
    }

    bool ReadQuoted(std::size_t prefixLength)
    {
        const char quote = m_Text[m_At + prefixLength];
        std::string text(m_Text.substr(m_At, prefixLength + 1));
        m_At += prefixLength + 1;
        if (!ReadUntil(text, quote)) {
            Fail(SYNTAX_ERROR, NoPairMessage(quote));
            return false;
        }
        const Location start = m_Location;
        m_Location.col += static_cast<std::uint32_t>(text.size());
        Add(std::move(text), start);
        return true;
    }

    bool ReadHeaderName()
    {
        const std::size_t end = m_Text.find_first_of(">\n", m_At);
        if (end == m_Text.npos || m_Text[end] != '>') {
            Fail(SYNTAX_ERROR, NoPairMessage('<'));
            return false;
        }
        Take(end + 1 - m_At);
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
        const std::string prefix(m_Text.substr(m_At, prefixLength - 1));
        Add(prefix + escapeString(content), m_Location);
        m_At = end + closing.size();
        m_Location.col += static_cast<std::uint32_t>(m_List.last->str.size());
        return true;
    }

    static constexpr std::size_t kWholeLine = 100000;

    TokenList& m_List;
    std::string_view m_Text;
    ErrorList& m_Errors;
    bool m_IsHidden;
    Location m_Location;
    OperatorScope m_Scope;
    std::size_t m_At = 0;
    std::size_t m_Count = 0; // tokens of this piece
    std::uint32_t m_SourceLine = 1;
    std::uint32_t m_InnerLineEnds = 0;
    enLine m_Line = LINE_EMPTY;
    std::vector<Location> m_Files; // where "# file" lines came from
};

TokenReader::TokenReader(TokenList& list, std::string_view text, std::string fileName, ErrorList& errors,
                         bool isHidden)
    : m_List(list), m_Text(DecodeText(text)), m_FileName(std::move(fileName)), m_Errors(errors),
      m_IsHidden(isHidden)
{
    Restart();
}

TokenReader::~TokenReader() = default;

bool TokenReader::Read(std::size_t count)
{
    return m_Cursor->Read(count);
}

void TokenReader::Restart()
{
    m_Cursor = std::make_unique<Cursor>(m_List, m_Text, m_FileName, m_Errors, m_IsHidden);
}

std::string escapeString(std::string_view text)
{
    std::string escaped = "\"";
    for (const char c : text) {
        switch (c) {
        case '\n':
            escaped += "\\n";
            break;
        case '\t':
            escaped += "\\t";
            break;
        case '\\':
            escaped += "\\\\";
            break;
        case '"':
            escaped += "\\\"";
            break;
        default:
            escaped += c;
            break;
        }
    }
    escaped += '"';
    return escaped;
}

void TokenList::readfile(std::istream& stream, const std::string& fileName, ErrorList& errors, bool isHidden)
{
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    readtext(bytes, fileName, errors, isHidden);
}

void TokenList::readtext(std::string_view text, const std::string& fileName, ErrorList& errors, bool isHidden)
{
    clear();
    TokenReader(*this, text, fileName, errors, isHidden).Read(std::numeric_limits<std::size_t>::max());
}

} // namespace MacroPreprocessorChecker::internal
