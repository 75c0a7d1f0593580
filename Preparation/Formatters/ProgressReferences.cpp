#include "Preparation/Formatters/ProgressReferences.h"

#include "Preparation/Formatters/SourceLines.h"

namespace {

bool IsSpace(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool IsBrace(char byte)
{
    return byte == '{' || byte == '}';
}

template <class Class>
std::size_t SkipWhile(std::string_view text, std::size_t at, Class isIn)
{
    while (at < text.size() && isIn(text[at]))
        ++at;
    return at;
}

bool IsBlank(char byte)
{
    return byte == ' ';
}

} // namespace

std::optional<SProgressReference> FindProgressReference(std::string_view text, std::size_t from)
{
    for (std::size_t open = text.find('{', from); open != text.npos; open = text.find('{', open + 1)) {
        const std::size_t begin = SkipWhile(text, open + 1, IsSpace);
        const std::size_t wordEnd =
            SkipWhile(text, begin, [](char byte) { return !IsSpace(byte) && !IsBrace(byte); });
        const std::string_view word = text.substr(begin, wordEnd - begin);
        std::size_t nameEnd = word.size();
        while (nameEnd >= 2 && !(word[nameEnd - 2] == '.' && (word[nameEnd - 1] | 0x20) == 'i'))
            --nameEnd;
        if (nameEnd < 2)
            continue;
        const std::size_t close = SkipWhile(text, wordEnd, [](char byte) { return !IsBrace(byte); });
        if (close == text.size() || text[close] != '}')
            continue;
        return SProgressReference{open, close + 1, word.substr(0, nameEnd),
                                  text.substr(begin + nameEnd, close - begin - nameEnd)};
    }
    return std::nullopt;
}

bool IsProgressReferenceTo(std::string_view reference, std::string_view name)
{
    return reference.substr(SkipWhile(reference, 1, IsSpace)).starts_with(name);
}

std::optional<SProgressArgument> CProgressArguments::Next()
{
    SProgressArgument argument;
    m_Rest = WithoutOuterBlanks(m_Rest);
    if (m_Rest.empty())
        return std::nullopt;
    if (m_Rest.front() == '&') {
        const std::size_t equals = m_Rest.find('=');
        if (equals == m_Rest.npos) {
            m_Rest = {};
            return std::nullopt;
        }
        argument.name = WithoutOuterBlanks(m_Rest.substr(0, equals));
        m_Rest = WithoutLeadingBlanks(m_Rest.substr(equals + 1));
    }
    if (!m_Rest.empty() && m_Rest.front() == '"') {
        const std::size_t close = m_Rest.find('"', 1);
        if (close == m_Rest.npos) {
            m_Rest = {};
            return std::nullopt;
        }
        argument.value = m_Rest.substr(1, close - 1);
        m_Rest.remove_prefix(close + 1);
    } else {
        argument.value = m_Rest.substr(0, SkipWhile(m_Rest, 0, [](char byte) { return !IsSpace(byte); }));
        m_Rest.remove_prefix(argument.value.size());
    }
    return argument;
}

std::size_t FindNamedPlaceholder(std::string_view text, std::string_view name)
{
    for (std::size_t open = text.find('{'); open != text.npos; open = text.find('{', open + 1)) {
        const std::size_t begin = SkipWhile(text, open + 1, IsBlank);
        if (!text.substr(begin).starts_with(name))
            continue;
        const std::size_t close = SkipWhile(text, begin + name.size(), IsBlank);
        if (close < text.size() && text[close] == '}')
            return open;
    }
    return text.npos;
}

std::size_t FindAnyPlaceholder(std::string_view text)
{
    for (std::size_t open = text.find('{'); open != text.npos; open = text.find('{', open + 1)) {
        const std::size_t begin = SkipWhile(text, open + 1, IsBlank);
        if (begin == text.size() || text[begin] != '&')
            continue;
        const std::size_t close = SkipWhile(
            text, begin + 1, [](char byte) { return !IsBrace(byte) && byte != '&' && byte != '.'; });
        if (close < text.size() && text[close] == '}')
            return open;
    }
    return text.npos;
}

std::size_t FirstBrace(std::string_view text)
{
    const std::size_t at = SkipWhile(text, 0, [](char byte) { return !IsBrace(byte); });
    return at == text.size() ? text.npos : at;
}

std::size_t LastBrace(std::string_view text)
{
    for (std::size_t at = text.size(); at != 0; --at)
        if (IsBrace(text[at - 1]))
            return at - 1;
    return text.npos;
}
