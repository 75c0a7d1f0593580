#include "Tools/uvgrammar/BisonReader.h"

#include <algorithm>

namespace {

bool IsNameByte(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '.' || c == '-';
}

} // namespace

std::size_t CBisonReader::EndOfQuoted(std::size_t at) const
{
    const char quote = m_Text[at];
    for (++at; at < m_Text.size() && m_Text[at] != '\n'; ++at) {
        if (m_Text[at] == '\\')
            ++at;
        else if (m_Text[at] == quote)
            return at + 1;
    }
    return std::min(at, m_Text.size());
}

// `at` itself if no comment begins there.
std::size_t CBisonReader::EndOfComment(std::size_t at) const
{
    if (m_Text.compare(at, 2, "//") == 0)
        return std::min(m_Text.find('\n', at), m_Text.size());
    if (m_Text.compare(at, 2, "/*") != 0)
        return at;
    const std::size_t close = m_Text.find("*/", at + 2);
    return close == std::string_view::npos ? m_Text.size() : close + 2;
}

std::size_t CBisonReader::EndOfBraces(std::size_t at) const
{
    int depth = 0;
    while (at < m_Text.size()) {
        const char c = m_Text[at];
        const std::size_t comment = EndOfComment(at);
        if (comment != at)
            at = comment;
        else if (c == '"' || c == '\'')
            at = EndOfQuoted(at);
        else {
            ++at;
            depth += c == '{' ? 1 : c == '}' ? -1 : 0;
            if (depth == 0)
                break;
        }
    }
    return at;
}

void CBisonReader::SkipSpace()
{
    while (m_At < m_Text.size()) {
        const std::size_t comment = EndOfComment(m_At);
        if (comment != m_At)
            m_At = comment;
        else if (std::string_view(" \t\r\n\f\v").find(m_Text[m_At]) != std::string_view::npos)
            ++m_At;
        else
            break;
    }
}

SBisonWord CBisonReader::Peek() const
{
    return CBisonReader(*this).Next();
}

SBisonWord CBisonReader::Next()
{
    SkipSpace();
    SBisonWord word{enBisonWord::End, m_At, m_At};
    if (m_At == m_Text.size())
        return word;
    const char c = m_Text[m_At];
    const char after = m_At + 1 < m_Text.size() ? m_Text[m_At + 1] : '\0';
    word.kind = enBisonWord::Other;
    word.end = m_At + 1;
    if (c == '%' && after == '%') {
        word.kind = enBisonWord::Sections;
        word.end = m_At + 2;
    } else if (c == '%' && after == '{') {
        const std::size_t close = m_Text.find("%}", m_At);
        word.kind = enBisonWord::Code;
        word.end = close == std::string_view::npos ? m_Text.size() : close + 2;
    } else if (IsNameByte(c) || (c == '%' && IsNameByte(after))) {
        word.kind = c == '%' ? enBisonWord::Directive : enBisonWord::Name;
        while (word.end < m_Text.size() && IsNameByte(m_Text[word.end]))
            ++word.end;
    } else if (c == '"' || c == '\'') {
        word.kind = enBisonWord::Text;
        word.end = EndOfQuoted(m_At);
    } else if (c == '{') {
        word.kind = enBisonWord::Code;
        word.end = EndOfBraces(m_At);
    } else if (c == '<' || c == '[') {
        const std::size_t close = m_Text.find(c == '<' ? '>' : ']', m_At);
        word.kind = enBisonWord::Tag;
        word.end = close == std::string_view::npos ? m_Text.size() : close + 1;
    } else if (c == ':')
        word.kind = enBisonWord::Colon;
    else if (c == '|')
        word.kind = enBisonWord::Bar;
    else if (c == ';')
        word.kind = enBisonWord::Semicolon;
    m_At = word.end;
    return word;
}
