#include "UVEnvironment/UVECharacter.h"
#include "UVEnvironment/UVEUnicode.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <array>
#include <cstring>
#include <span>
#include <stdexcept>

// Searches for members of a set of characters, and what is made of them: tokens and trimmed text.
namespace Uve {

namespace {

// The matchers by the byte that a character begins with, so that most characters are answered by one look.
class CMatcherSet
{
public:
    CMatcherSet(const UTF8CodepointMatcher* matchers, std::size_t count) : m_Matchers(matchers, count)
    {
        for (const auto& matcher : m_Matchers) {
            if (matcher.length == 0)
                m_MatchesAll = true;
            else
                m_Leads[static_cast<unsigned char>(*matcher.text)] = true;
        }
    }

    bool Matches(const char* character, std::size_t width) const
    {
        if (m_MatchesAll)
            return true;
        if (!m_Leads[static_cast<unsigned char>(*character)])
            return false;
        for (const auto& matcher : m_Matchers)
            if (matcher.length == width && std::memcmp(matcher.text, character, width) == 0)
                return true;
        return false;
    }

private:
    std::span<const UTF8CodepointMatcher> m_Matchers;
    std::array<bool, 256> m_Leads{};
    bool m_MatchesAll = false;
};

// The first character at or after byte `start` for which membership is `member`, or the end of `text`.
// `charIndex` grows by the characters passed.
std::size_t Scan(std::string_view text, std::size_t start, const CMatcherSet& set, bool member,
                 std::uint64_t& charIndex)
{
    const char* const end = text.data() + text.size();
    const char* at = text.data() + start;
    while (at < end) {
        const std::size_t width = utf8_width(at, end);
        if (set.Matches(at, width) == member)
            break;
        at += width;
        ++charIndex;
    }
    return static_cast<std::size_t>(at - text.data());
}

struct SByteRange
{
    std::size_t first;
    std::size_t end;
};

// The last character at or before byte `start` for which membership is `member`.
std::optional<SByteRange> ScanBackwards(std::string_view text, std::size_t start, const CMatcherSet& set,
                                        bool member)
{
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    if (begin == end)
        return std::nullopt;
    const char* at = start < text.size() ? begin + start : end - 1;
    while (at > begin && utf8_is_continuation(*at))
        --at;
    const char* next = start < text.size() ? at + utf8_width(at, end) : end;
    while (set.Matches(at, static_cast<std::size_t>(next - at)) != member) {
        if (at == begin)
            return std::nullopt;
        next = at;
        at = utf8_previous(begin, at);
    }
    return SByteRange{static_cast<std::size_t>(at - begin), static_cast<std::size_t>(next - begin)};
}

bool IsSpaceByte(char byte)
{
    return UChar::isspace(static_cast<unsigned char>(byte));
}

CMatcherSet SetOf(const std::vector<UTF8CodepointMatcher>& matchers)
{
    return {matchers.data(), matchers.size()};
}

} // namespace

std::vector<UTF8CodepointMatcher> BuildCodepointMatchers(const char* set)
{
    std::vector<UTF8CodepointMatcher> matchers;
    if (set) {
        const char* const end = set + std::strlen(set);
        for (const char* at = set; at < end; at += matchers.back().length)
            matchers.push_back({at, utf8_width(at, end)});
    }
    return matchers;
}

int U8CString::FindOneOf(const char* set) const noexcept
{
    if (!set || !*set)
        return -1;
    const auto matchers = BuildCodepointMatchers(set);
    std::uint64_t charIndex = 0;
    const std::size_t hit = Scan(Bytes(), 0, SetOf(matchers), true, charIndex);
    if (hit == size()) {
        RememberLength(charIndex);
        return -1;
    }
    RememberPosition(charIndex, hit);
    return static_cast<int>(charIndex);
}

int U8CString::ReverseFindOneOf(const char* set, int start) const noexcept
{
    if (!set || !*set || empty())
        return -1;
    const std::size_t from =
        start < 0 ? npos : ByteOffsetOf(static_cast<std::uint64_t>(start)).value_or(npos);
    const auto matchers = BuildCodepointMatchers(set);
    const auto hit = ScanBackwards(Bytes(), from, SetOf(matchers), true);
    return hit ? CharIndexOf(hit->first) : -1;
}

std::optional<std::size_t> U8CString::FindNonSpace(std::size_t start) const noexcept
{
    for (std::size_t at = start; at < size(); ++at)
        if (!IsSpaceByte(std::string::operator[](at)))
            return at;
    return std::nullopt;
}

std::optional<std::size_t> U8CString::FindNonSpaceBackwards(std::size_t start) const noexcept
{
    std::size_t at = start < size() ? start + 1 : size();
    while (at > 0 && IsSpaceByte(std::string::operator[](at - 1)))
        --at;
    if (at == 0)
        return std::nullopt;
    --at;
    while (at > 0 && utf8_is_continuation(std::string::operator[](at)))
        --at;
    return at;
}

std::optional<std::size_t> U8CString::FindMatching(const UTF8CodepointMatcher* matchers, std::size_t count,
                                                   std::size_t start) const noexcept
{
    std::uint64_t charIndex = 0;
    const std::size_t hit =
        start < size() ? Scan(Bytes(), start, CMatcherSet(matchers, count), true, charIndex) : size();
    return hit < size() ? std::optional(hit) : std::nullopt;
}

std::optional<std::size_t> U8CString::FindNotMatching(const UTF8CodepointMatcher* matchers, std::size_t count,
                                                      std::size_t start) const noexcept
{
    std::uint64_t charIndex = 0;
    const std::size_t hit =
        start < size() ? Scan(Bytes(), start, CMatcherSet(matchers, count), false, charIndex) : size();
    return hit < size() ? std::optional(hit) : std::nullopt;
}

std::optional<std::size_t> U8CString::FindNotMatchingBackwards(const UTF8CodepointMatcher* matchers,
                                                               std::size_t count,
                                                               std::size_t start) const noexcept
{
    const auto hit = ScanBackwards(Bytes(), start, CMatcherSet(matchers, count), false);
    return hit ? std::optional(hit->first) : std::nullopt;
}

U8CString U8CString::Tokenize(const char* delimiters, int& position) const
{
    if (position < 0)
        throw std::out_of_range("Invalid position (negative)");
    const auto start = ByteOffsetOf(static_cast<std::uint64_t>(position));
    if (!start || *start == size()) {
        position = -1;
        return {};
    }
    if (!delimiters || !*delimiters)
        return U8CString(Bytes().substr(*start));

    const auto matchers = BuildCodepointMatchers(delimiters);
    const CMatcherSet set = SetOf(matchers);
    auto charIndex = static_cast<std::uint64_t>(position);
    const std::size_t first = Scan(Bytes(), *start, set, false, charIndex);
    if (first == size()) {
        RememberLength(charIndex);
        position = -1;
        return {};
    }
    const std::size_t last = Scan(Bytes(), first, set, true, charIndex);
    if (last == size())
        RememberLength(charIndex);
    else
        RememberPosition(charIndex, last);
    position = static_cast<int>(charIndex + 1);
    return U8CString(Bytes().substr(first, last - first));
}

// Keeps the bytes [first, end) alone.
U8CString& U8CString::KeepBytes(std::size_t first, std::size_t end) noexcept
{
    ForgetPosition();
    std::string::resize(end);
    std::string::erase(0, first);
    return *this;
}

U8CString& U8CString::Trim() noexcept
{
    return TrimRight().TrimLeft();
}

U8CString& U8CString::TrimLeft() noexcept
{
    return KeepBytes(FindNonSpace().value_or(size()), size());
}

U8CString& U8CString::TrimRight() noexcept
{
    std::size_t end = size();
    while (end > 0 && IsSpaceByte(std::string::operator[](end - 1)))
        --end;
    return KeepBytes(0, end);
}

U8CString& U8CString::Trim(const char* set) noexcept
{
    const std::string own(set ? set : ""); // the set may be a part of this text
    return TrimRight(own.c_str()).TrimLeft(own.c_str());
}

U8CString& U8CString::TrimLeft(const char* set) noexcept
{
    const auto matchers = BuildCodepointMatchers(set);
    return KeepBytes(FindNotMatching(matchers.data(), matchers.size()).value_or(size()), size());
}

U8CString& U8CString::TrimRight(const char* set) noexcept
{
    const auto matchers = BuildCodepointMatchers(set);
    const auto last = ScanBackwards(Bytes(), npos, SetOf(matchers), false);
    return KeepBytes(0, last ? last->end : 0);
}

} // namespace Uve
