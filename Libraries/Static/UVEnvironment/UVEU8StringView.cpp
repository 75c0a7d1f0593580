#include "UVEnvironment/UVEU8StringView.h"

#include "UVEnvironment/UVEU8String.h"

#include <algorithm>
#include <utility>

namespace Uve {

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

} // namespace

u8string_view u8string_view::substr(size_type charPos, size_type charCount) const
{
    const std::string_view part = Detail::Utf8Part(raw(), charPos, charCount);
    return {part, std::min(charCount, m_CharCount - charPos), nullptr};
}

void u8string_view::remove_prefix(size_type charCount)
{
    const size_type dropped = std::min(charCount, m_CharCount);
    *this = {raw().substr(Detail::Utf8ByteOffset(raw(), dropped)), m_CharCount - dropped, nullptr};
}

void u8string_view::remove_suffix(size_type charCount)
{
    const size_type kept = m_CharCount - std::min(charCount, m_CharCount);
    *this = {raw().substr(0, Detail::Utf8ByteOffset(raw(), kept)), kept, nullptr};
}

void u8string_view::swap(u8string_view& other)
{
    std::swap(*this, other);
}

u8string_view& u8string_view::trim()
{
    return trim_right().trim_left();
}

u8string_view& u8string_view::trim_left()
{
    return trim_left(kWhiteSpace);
}

u8string_view& u8string_view::trim_right()
{
    return trim_right(kWhiteSpace);
}

u8string_view& u8string_view::trim(const u8string_view& set)
{
    return trim_right(set).trim_left(set);
}

u8string_view& u8string_view::trim_left(const u8string_view& set)
{
    remove_prefix(find_first_not_of(set));
    return *this;
}

u8string_view& u8string_view::trim_right(const u8string_view& set)
{
    remove_suffix(m_CharCount - (find_last_not_of(set) + 1)); // nothing else in it: npos + 1 is 0
    return *this;
}

u8string u8string_view::remove(char32_t codePoint) const
{
    return Detail::Utf8Without(raw(), utf8_from_codepoint(codePoint));
}

u8string u8string_view::remove(const char* set) const
{
    return Detail::Utf8Without(raw(), Detail::Utf8Prefix(set, npos));
}

u8string u8string_view::make_reverse() const
{
    return Detail::Utf8Reversed(raw());
}

u8string u8string_view::casefold() const
{
    return utf8_casefold(raw());
}

bool u8string_view::is_raw_str_contain(const char* text, char32_t codePoint)
{
    return Detail::Utf8FindIn(Detail::Utf8Prefix(text, npos), utf8_from_codepoint(codePoint), 0, true) !=
           npos;
}

} // namespace Uve
