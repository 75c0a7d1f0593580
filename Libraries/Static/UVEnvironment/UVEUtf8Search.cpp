#include "UVEnvironment/UVEUtf8Search.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace Uve::Detail {

namespace {

// The characters of `set`, asked in constant time for all that begin with a byte that no member begins with.
class CCharacterSet
{
public:
    explicit CCharacterSet(std::string_view set) : m_Set(set)
    {
        const char* const end = set.data() + set.size();
        for (const char* at = set.data(); at < end; at += utf8_width(at, end))
            m_Leads[static_cast<unsigned char>(*at)] = true;
    }

    bool Holds(std::string_view character) const
    {
        if (!m_Leads[static_cast<unsigned char>(character.front())])
            return false;
        const char* const end = m_Set.data() + m_Set.size();
        for (const char* at = m_Set.data(); at < end;) {
            const std::string_view member(at, utf8_width(at, end));
            if (member == character)
                return true;
            at += member.size();
        }
        return false;
    }

private:
    std::string_view m_Set;
    std::array<bool, 256> m_Leads{};
};

// Calls `visit` with each character of `text` in order until it answers true.
template <class Visit>
void ForEachCharacter(std::string_view text, Visit&& visit)
{
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const std::string_view character(at, utf8_width(at, end));
        if (visit(character))
            return;
        at += character.size();
    }
}

} // namespace

CUtf8Argument::CUtf8Argument(std::size_t count, char32_t codePoint)
{
    const std::string character = utf8_from_codepoint(codePoint);
    m_Repeated.reserve(count * character.size());
    for (; count > 0; --count)
        m_Repeated += character;
    m_Text = m_Repeated;
}

std::size_t Utf8ByteOffset(std::string_view text, std::size_t charPos)
{
    return static_cast<std::size_t>(utf8_advance(text.data(), text.data() + text.size(), charPos) -
                                    text.data());
}

std::string_view Utf8Prefix(const char* text, std::size_t charCount)
{
    if (!text)
        return {};
    if (charCount == kNoPosition)
        return text;
    // No further than needed: the text after the prefix may be long.
    const std::size_t byteLimit = charCount > kNoPosition / 6 ? kNoPosition : charCount * 6;
    const std::string_view available(text, strnlen(text, byteLimit));
    return available.substr(0, Utf8ByteOffset(available, charCount));
}

std::string_view Utf8Part(std::string_view text, std::size_t charPos, std::size_t charCount)
{
    const char* const end = text.data() + text.size();
    const char* const first = utf8_advance(text.data(), end, charPos);
    if (charPos > 0)
        throw std::out_of_range("Position past the end of the text");
    const char* const last = charCount == kNoPosition ? end : utf8_advance(first, end, charCount);
    return {first, static_cast<std::size_t>(last - first)};
}

char32_t Utf8At(std::string_view text, std::size_t charPos)
{
    const std::size_t byteOffset = Utf8ByteOffset(text, charPos);
    return byteOffset < text.size()
               ? utf8_decode(text.data() + byteOffset, text.data() + text.size()).codePoint
               : 0;
}

std::size_t Utf8Find(std::string_view text, std::string_view wanted, std::size_t charPos)
{
    std::size_t beyond = charPos;
    const char* const from = utf8_advance(text.data(), text.data() + text.size(), beyond);
    if (beyond > 0)
        return kNoPosition;
    const std::string_view rest(from, static_cast<std::size_t>(text.data() + text.size() - from));
    if (wanted.empty())
        return charPos;
    const void* const hit = memmem(rest.data(), rest.size(), wanted.data(), wanted.size());
    if (!hit)
        return kNoPosition;
    return charPos +
           utf8_strlen(rest.substr(0, static_cast<std::size_t>(static_cast<const char*>(hit) - from)));
}

std::size_t Utf8FindLast(std::string_view text, std::string_view wanted, std::size_t charPos)
{
    const std::size_t hit = text.rfind(wanted, Utf8ByteOffset(text, charPos));
    return hit == std::string_view::npos ? kNoPosition : utf8_strlen(text.substr(0, hit));
}

std::size_t Utf8FindIn(std::string_view text, std::string_view set, std::size_t charPos, bool member)
{
    const CCharacterSet characters(set);
    std::size_t found = kNoPosition;
    std::size_t index = charPos;
    ForEachCharacter(text.substr(Utf8ByteOffset(text, charPos)), [&](std::string_view character) {
        if (characters.Holds(character) == member)
            found = index;
        ++index;
        return found != kNoPosition;
    });
    return found;
}

std::size_t Utf8FindLastIn(std::string_view text, std::string_view set, std::size_t charPos, bool member)
{
    const CCharacterSet characters(set);
    std::size_t found = kNoPosition;
    std::size_t index = 0;
    ForEachCharacter(text, [&](std::string_view character) {
        if (characters.Holds(character) == member)
            found = index;
        return index++ >= charPos;
    });
    return found;
}

std::string Utf8Without(std::string_view text, std::string_view set)
{
    const CCharacterSet characters(set);
    std::string result;
    result.reserve(text.size());
    ForEachCharacter(text, [&](std::string_view character) {
        if (!characters.Holds(character))
            result += character;
        return false;
    });
    return result;
}

std::string Utf8Reversed(std::string_view text)
{
    std::string result(text);
    char* const end = result.data() + result.size();
    for (char* at = result.data(); at < end;) {
        char* const next = at + utf8_width(at, end);
        std::reverse(at, next);
        at = next;
    }
    std::reverse(result.begin(), result.end());
    return result;
}

} // namespace Uve::Detail
