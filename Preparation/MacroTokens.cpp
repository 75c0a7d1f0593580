#include "Preparation/MacroTokens.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace MacroPreprocessorChecker::internal {

namespace {

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// What lies between two locations, printed: a line end for each line, then `blank` up to the column.
std::string PrintedGap(const Location& start, const Location& end, char blank)
{
    std::string printed;
    if (end.line > start.line) {
        for (std::uint32_t line = start.line; line < end.line; ++line)
            printed += "\r\n";
        printed.append(end.col > 1 ? end.col - 1 : 0, blank);
    } else if (end.line == start.line && end.col > start.col) {
        printed.append(end.col - start.col, blank);
    }
    return printed;
}

bool HasQuoted(std::string_view text, char quote)
{
    const std::size_t from = text.find(quote);
    if (from == text.npos || text.size() < from + 2 || text.back() != quote)
        return false;
    const std::string_view prefix = text.substr(0, from);
    return prefix.empty() || prefix == "u" || prefix == "U" || prefix == "L" || prefix == "u8";
}

} // namespace

// ---- Location ----

void Location::adjust(std::string_view text)
{
    const std::size_t lastEnd = text.find_last_of("\r\n");
    if (lastEnd == text.npos) {
        col += static_cast<std::uint32_t>(text.size());
        return;
    }
    for (std::size_t at = 0; at <= lastEnd; ++at)
        line += text[at] == '\n' || (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
    col = static_cast<std::uint32_t>(text.size() - lastEnd);
}

const std::string& Location::file() const
{
    static const std::string none;
    return fileIndex < m_Names->size() ? (*m_Names)[fileIndex] : none;
}

// ---- Token ----

Token::Token(std::string text, const Location& where, bool isHidden)
    : sourceLine(where.line), location(where), hidden(isHidden), str(std::move(text))
{
    flags();
}

Token::Token(const Token& other)
    : op(other.op), comment(other.comment), name(other.name), number(other.number),
      sourceLine(other.sourceLine), location(other.location), hidden(other.hidden), str(other.str)
{}

Token* Token::getCopy() const
{
    return new Token(*this);
}

std::string Token::strToFile() const
{
    return str;
}

void Token::flags()
{
    const char first = str.empty() ? '\0' : str[0];
    const char second = str.size() < 2 ? '\0' : str[1];
    op = str.size() == 1 ? first : '\0';
    comment = first == '/' && (second == '/' || second == '*');
    name = IsLetter(first);
    number = IsDigit(first) || (first == '-' && IsDigit(second));
}

void Token::setstr(std::string text)
{
    str = std::move(text);
    flags();
}

// ---- White space ----

TokenSpaces::TokenSpaces(const char* text, std::string printed, const Location& start, bool isHidden)
    : Token(text, start, isHidden), raw(std::move(printed))
{
    name = false; // the text only says what it is
}

TokenSpaces::TokenSpaces(const Location& start, const Location& end, bool isHidden)
    : TokenSpaces("_SPACE_", PrintedGap(start, end, ' '), start, isHidden)
{}

Token* TokenSpaces::getCopy() const
{
    return new TokenSpaces(*this);
}

Location TokenSpaces::GapEnd() const
{
    Location end = location;
    end.adjust(raw);
    return end;
}

std::uint32_t TokenSpaces::Lines() const
{
    return GapEnd().line - location.line;
}

std::uint32_t TokenSpaces::Columns() const
{
    const Location end = GapEnd();
    return end.line == location.line ? end.col - location.col : end.col - 1;
}

TokenTabs::TokenTabs(const Location& start, const Location& end, bool isHidden)
    : TokenSpaces("_TABS_", PrintedGap(start, end, '\t'), start, isHidden)
{}

Token* TokenTabs::getCopy() const
{
    return new TokenTabs(*this);
}

TokenSlash::TokenSlash(const Location& start, bool isHidden) : TokenSpaces("_SLASH_", "\\\n", start, isHidden)
{}

Token* TokenSlash::getCopy() const
{
    return new TokenSlash(*this);
}

TokenNewString::TokenNewString(const Location& start, bool isHidden)
    : TokenSpaces("_NewString_", "\n", start, isHidden)
{}

Token* TokenNewString::getCopy() const
{
    return new TokenNewString(*this);
}

// ---- Looking around ----

Token* NextSignificant(const Token* token)
{
    Token* next = token->next;
    while (next != nullptr && (next->comment || next->SkipWhenNextOrPrev()))
        next = next->next;
    return next;
}

Token* PreviousSignificant(const Token* token)
{
    Token* previous = token->previous;
    while (previous != nullptr && (previous->comment || previous->SkipWhenNextOrPrev()))
        previous = previous->previous;
    return previous;
}

bool StartsDirective(const Token* token)
{
    if (token->op != '#')
        return false;
    const Token* const previous = PreviousSignificant(token);
    return previous == nullptr || previous->sourceLine != token->sourceLine;
}

bool IsStringText(std::string_view text)
{
    return HasQuoted(text, '"');
}

bool IsCharacterText(std::string_view text)
{
    return HasQuoted(text, '\'');
}

// ---- TokenList ----

TokenList::TokenList(FileNames& names) : m_Names(&names) {}

TokenList::TokenList(const TokenList& other) : m_Names(other.m_Names), m_FileIndex(other.m_FileIndex)
{
    for (const Token* token = other.first; token != nullptr; token = token->next)
        push_back(token->getCopy());
}

TokenList::TokenList(TokenList&& other) noexcept
    : first(std::exchange(other.first, nullptr)), last(std::exchange(other.last, nullptr)),
      m_Names(other.m_Names), m_FileIndex(std::move(other.m_FileIndex))
{}

TokenList& TokenList::operator=(const TokenList& other)
{
    if (this != &other)
        *this = TokenList(other);
    return *this;
}

TokenList& TokenList::operator=(TokenList&& other) noexcept
{
    if (this != &other) {
        clear();
        first = std::exchange(other.first, nullptr);
        last = std::exchange(other.last, nullptr);
        m_Names = other.m_Names;
        m_FileIndex = std::move(other.m_FileIndex);
    }
    return *this;
}

TokenList::~TokenList()
{
    clear();
}

void TokenList::clear()
{
    while (first != nullptr)
        delete std::exchange(first, first->next);
    last = nullptr;
}

void TokenList::push_back(Token* token)
{
    token->previous = last;
    token->next = nullptr;
    (last != nullptr ? last->next : first) = token;
    last = token;
}

Token* TokenList::release(Token* token)
{
    (token->previous != nullptr ? token->previous->next : first) = token->next;
    (token->next != nullptr ? token->next->previous : last) = token->previous;
    token->previous = token->next = nullptr;
    return token;
}

void TokenList::deleteToken(Token* token)
{
    if (token != nullptr)
        delete release(token);
}

std::uint32_t TokenList::fileIndex(const std::string& fileName)
{
    const auto [at, isNew] = m_FileIndex.try_emplace(fileName, static_cast<std::uint32_t>(m_Names->size()));
    if (isNew)
        m_Names->push_back(fileName);
    return at->second;
}

std::string TokenList::lastLine(std::size_t maxsize) const
{
    std::vector<const Token*> tokens;
    for (const Token* token = last;
         token != nullptr && token->sourceLine == last->sourceLine && tokens.size() < maxsize;
         token = token->previous)
        if (!token->comment && !token->SkipWhenNextOrPrev())
            tokens.push_back(token);
    std::string line;
    for (std::size_t at = tokens.size(); at-- > 0;) {
        if (!line.empty())
            line += ' ';
        const Token& token = *tokens[at];
        if (IsStringText(token.str))
            line += "%str%";
        else
            line += token.number ? "%num%" : token.str;
    }
    return line;
}

void TokenList::lineDirective(std::uint32_t fileIndex, std::uint32_t line, Location& location)
{
    const bool isMarker =
        fileIndex == location.fileIndex && line > location.line && line - location.line <= 2;
    if (isMarker) {
        while (last != nullptr && last->op != '#')
            deleteToken(last);
        deleteToken(last);
    }
    location.fileIndex = fileIndex;
    location.line = line;
    location.col = 1;
}

std::string TokenList::ToText(std::vector<std::uint32_t>* sourceLines) const
{
    TokenWriter writer(sourceLines);
    for (const Token* token = first; token != nullptr; token = token->next)
        writer.Write(*token);
    return std::move(writer.Text());
}

void TokenList::ToFile(std::ostream& stream, std::vector<std::uint32_t>* sourceLines) const
{
    const std::string text = ToText(sourceLines);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
}

// ---- TokenWriter ----

TokenWriter::TokenWriter(std::vector<std::uint32_t>* sourceLines) : m_SourceLines(sourceLines)
{
    if (m_SourceLines != nullptr)
        m_SourceLines->assign(1, m_Line);
}

void TokenWriter::StartLine()
{
    if (m_SourceLines != nullptr)
        m_SourceLines->push_back(m_Line);
}

// Lines are counted as they stand in the text that was read, so that a line directive neither joins lines nor
// opens a gap of as many lines as it likes. A continuation is a line end of the source; the line end that it
// becomes in an expansion is one more than the source had.
void TokenWriter::Write(const Token& token)
{
    if (token.hidden)
        return;
    while (token.sourceLine > m_Line) {
        m_Text += '\n';
        ++m_Line;
        StartLine();
    }
    const std::string printed = token.strToFile();
    m_Text += printed;
    const bool isSourceLine = !token.IsNextLineToken() || token.IsHidenForHuman();
    for (std::size_t end = printed.find('\n'); end != printed.npos; end = printed.find('\n', end + 1)) {
        m_Line += isSourceLine;
        StartLine();
    }
}

} // namespace MacroPreprocessorChecker::internal
