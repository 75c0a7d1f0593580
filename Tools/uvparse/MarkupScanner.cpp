#include "Tools/uvparse/MarkupScanner.h"

#include <algorithm>

namespace uvparse {

namespace {

bool EndsName(char c)
{
    return c == '>' || c == ' ' || c == '/' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

bool CMarkupScanner::Next(SMarkup& markup)
{
    if (IsAtEnd())
        return false;
    if (m_Tree[m_Offset] == '<') {
        const std::string_view rest = m_Tree.substr(m_Offset);
        if (rest.starts_with("<!--"))
            return ReadUpTo("-->", enMarkup::Other, markup);
        if (rest.starts_with("<?"))
            return ReadUpTo("?>", enMarkup::Other, markup);
        if (rest.starts_with("<![CDATA["))
            return ReadUpTo("]]>", enMarkup::Text, markup);
        return ReadTag(markup);
    }
    const std::size_t end = std::min(m_Tree.find('<', m_Offset), m_Tree.size());
    markup = {enMarkup::Text, m_Tree.substr(m_Offset, end - m_Offset), {}};
    m_Offset = end;
    return true;
}

bool CMarkupScanner::ReadUpTo(std::string_view close, enMarkup kind, SMarkup& markup)
{
    const std::size_t end = m_Tree.find(close, m_Offset);
    if (end == std::string_view::npos)
        return false;
    markup = {kind, m_Tree.substr(m_Offset, end + close.size() - m_Offset), {}};
    m_Offset = end + close.size();
    return true;
}

bool CMarkupScanner::ReadTag(SMarkup& markup)
{
    const std::size_t end = FindTagEnd();
    if (end == std::string_view::npos)
        return false;
    const std::string_view text = m_Tree.substr(m_Offset, end + 1 - m_Offset);
    const bool isEnd = text[1] == '/';
    const std::size_t nameBegin = isEnd ? 2 : 1;
    std::size_t nameEnd = nameBegin;
    while (!EndsName(text[nameEnd]))
        ++nameEnd;
    if (nameEnd == nameBegin)
        return false;
    markup.kind = isEnd ? enMarkup::End : text[text.size() - 2] == '/' ? enMarkup::Empty : enMarkup::Start;
    markup.text = text;
    markup.name = text.substr(nameBegin, nameEnd - nameBegin);
    m_Offset = end + 1;
    return true;
}

// The bracket may also stand in an attribute's value.
std::size_t CMarkupScanner::FindTagEnd() const
{
    for (std::size_t at = m_Offset + 1; at < m_Tree.size(); ++at) {
        const char c = m_Tree[at];
        if (c == '>')
            return at;
        if (c == '<')
            break;
        if (c == '"' || c == '\'') {
            at = m_Tree.find(c, at + 1);
            if (at == std::string_view::npos)
                break;
        }
    }
    return std::string_view::npos;
}

} // namespace uvparse
