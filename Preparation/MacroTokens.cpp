#include "Preparation/MacroTokens.h"

#include "Preparation/MacroCharacters.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace MacroPreprocessorChecker::internal {

namespace {

bool HasQuoted(std::string_view text, char quote)
{
    if (text.size() < 2 || text.back() != quote)
        return false;
    const std::size_t from = text.find(quote);
    if (text.size() < from + 2)
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

// ---- Token ----

void Token::flags()
{
    const char first = str.empty() ? '\0' : str[0];
    const char second = str.size() < 2 ? '\0' : str[1];
    op = str.size() == 1 ? first : '\0';
    comment = first == '/' && (second == '/' || second == '*');
    name = kLetters.Has(first);
    number = IsDigit(first) || (first == '-' && IsDigit(second));
}

// ---- Looking around ----

Token* NextSignificant(const Token* token)
{
    Token* next = token->next;
    while (next != nullptr && next->IsWhite())
        next = next->next;
    return next;
}

Token* PreviousSignificant(const Token* token)
{
    Token* previous = token->previous;
    while (previous != nullptr && previous->IsWhite())
        previous = previous->previous;
    return previous;
}

const Token* NextOnLine(const Token* token)
{
    const Token* const next = NextSignificant(token);
    return next != nullptr && next->sourceLine == token->sourceLine ? next : nullptr;
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

void TokenList::clear()
{
    if (first != nullptr)
        m_Store->pool.Give(first, last);
    first = last = nullptr;
    m_Texts.clear();
}

Token* TokenList::push_back(std::string_view text, const Location& where, bool isHidden)
{
    Token* const token = AppendRaw();
    token->nameNumber = 0;
    token->sourceLine = where.line;
    token->location = where;
    token->kind = TOKEN_INK;
    token->hidden = isHidden;
    token->setstr(text);
    return token;
}

Token* TokenList::push_back(enTokenKind kind, std::string_view text, const Location& where, bool isHidden)
{
    Token* const token = AppendRaw();
    token->str = text;
    token->nameNumber = 0;
    token->sourceLine = where.line;
    token->location = where;
    token->kind = kind;
    token->op = '\0';
    token->comment = token->name = token->number = false;
    token->hidden = isHidden;
    return token;
}

Token* TokenList::push_back(const Token& token)
{
    Token* const copy = AppendRaw();
    Token* const previous = copy->previous;
    *copy = token;
    copy->previous = previous;
    copy->next = nullptr;
    return copy;
}

void TokenList::deleteToken(Token* token)
{
    if (token == nullptr)
        return;
    (token->previous != nullptr ? token->previous->next : first) = token->next;
    (token->next != nullptr ? token->next->previous : last) = token->previous;
    m_Store->pool.Give(token, token);
}

void TokenList::DeleteBefore(Token* token)
{
    if (token == first)
        return;
    m_Store->pool.Give(first, token->previous);
    first = token;
    token->previous = nullptr;
}

std::uint32_t TokenList::fileIndex(const std::string& fileName)
{
    FileNames& files = m_Store->files;
    const auto [at, isNew] = m_FileIndex.try_emplace(fileName, static_cast<std::uint32_t>(files.size()));
    if (isNew)
        files.push_back(fileName);
    return at->second;
}

std::string TokenList::lastLine(std::size_t maxsize) const
{
    std::vector<const Token*> tokens;
    for (const Token* token = last;
         token != nullptr && token->sourceLine == last->sourceLine && tokens.size() < maxsize;
         token = token->previous)
        if (!token->IsWhite())
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
    return writer.TakeText();
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

std::string TokenWriter::TakeText()
{
    Flush();
    return std::move(m_Text);
}

void TokenWriter::StartLine()
{
    if (m_SourceLines != nullptr)
        m_SourceLines->push_back(m_Line);
}

// Lines are counted as they stand in the text that was read, so that a line directive neither joins lines nor
// opens a gap of as many lines as it likes. A continuation is a line end of the source; the line end that it
// becomes in an expansion is one more than the source had.
void TokenWriter::GoToLine(std::uint32_t sourceLine)
{
    Flush();
    while (sourceLine > m_Line) {
        m_Text += '\n';
        ++m_Line;
        StartLine();
    }
}

void TokenWriter::CountLineEnds(std::string_view written)
{
    for (std::size_t end = written.find('\n'); end != written.npos; end = written.find('\n', end + 1)) {
        ++m_Line;
        StartLine();
    }
}

} // namespace MacroPreprocessorChecker::internal
