#include "UVEnvironment/UVEUnicodeString.h"

#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEUnicode.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Uve {

namespace {

constexpr std::uint64_t kMaximalLength = std::numeric_limits<std::int32_t>::max();

// Walks from `at` to the character that holds `target`, adding the characters passed to `charIndex`.
// Returns: the start of that character.
const char* WalkTo(const char* at, const char* target, const char* end, std::uint64_t& charIndex)
{
    while (at < target) {
        if (target - at >= 8 && utf8_is_ascii_run(at)) {
            at += 8;
            charIndex += 8;
            continue;
        }
        const char* const next = at + utf8_width(at, end);
        if (next > target)
            break; // malformed text: the target isn't the start of a character
        at = next;
        ++charIndex;
    }
    return at;
}

// The character before `at`, as long as a walk from the front is sure to pass both of them.
// Returns: its start; null where malformed bytes nearby might lead such a walk past it.
const char* WalkBack(const char* begin, const char* at)
{
    const auto width = [](const char* lead) { return utf8_skip_data[static_cast<unsigned char>(*lead)]; };
    const char* const previous = utf8_previous(begin, at);
    if (at - previous != width(previous))
        return nullptr;
    for (const char* lead = previous; lead > begin && previous - lead < 5;)
        if (--lead; width(lead) > previous - lead)
            return nullptr;
    return previous;
}

} // namespace

U8CString::U8CString(U8CString&& other) noexcept
    : std::string(std::move(static_cast<std::string&>(other))), cached_char_index(other.cached_char_index),
      cached_byte_offset(other.cached_byte_offset), cached_length(other.cached_length)
{
    other.ForgetPosition();
}

U8CString::U8CString(const wchar_t* text) : U8CString(text ? WideToUTF8(text) : U8CString()) {}

U8CString::U8CString(const std::wstring& text) : U8CString(WideToUTF8(text)) {}

U8CString& U8CString::operator=(U8CString&& other) noexcept
{
    if (this != &other) {
        std::string::operator=(std::move(static_cast<std::string&>(other)));
        cached_char_index = other.cached_char_index;
        cached_byte_offset = other.cached_byte_offset;
        cached_length = other.cached_length;
        other.ForgetPosition();
    }
    return *this;
}

void U8CString::swap(U8CString& other) noexcept
{
    std::string::swap(other);
    std::swap(cached_char_index, other.cached_char_index);
    std::swap(cached_byte_offset, other.cached_byte_offset);
    std::swap(cached_length, other.cached_length);
}

std::wstring U8CString::toWide() const
{
    return UTF8ToWide(*this);
}

// ---- Positions ----

// A pair beyond the end belongs to an older text: somebody shortened the string unseen.
bool U8CString::IsPositionKnown() const noexcept
{
    return cached_char_index != 0 && cached_byte_offset <= size();
}

void U8CString::RememberPosition(std::uint64_t charIndex, std::size_t byteOffset) const noexcept
{
    cached_char_index = charIndex;
    cached_byte_offset = byteOffset;
}

void U8CString::RememberLength(std::uint64_t charCount) const noexcept
{
    if (charCount <= kMaximalLength)
        cached_length = static_cast<std::int32_t>(charCount);
}

// The byte offset at which character `charIndex` starts, which may be the length; nothing if it lies beyond.
std::optional<std::size_t> U8CString::ByteOffsetOf(std::uint64_t charIndex) const noexcept
{
    if (cached_length && charIndex > static_cast<std::uint64_t>(*cached_length))
        return std::nullopt;

    const char* const begin = std::string::data();
    const char* const end = begin + size();
    const char* from = begin;
    std::size_t steps = charIndex;
    if (IsPositionKnown()) {
        const char* const known = begin + cached_byte_offset;
        if (charIndex >= cached_char_index) {
            if (charIndex - cached_char_index < charIndex) {
                from = known;
                steps = charIndex - cached_char_index;
            }
        } else if (cached_char_index - charIndex < charIndex) {
            const char* at = known;
            for (std::uint64_t back = cached_char_index - charIndex; back > 0 && at; --back)
                at = at > begin ? WalkBack(begin, at) : nullptr;
            if (at) {
                from = at;
                steps = 0;
            }
        }
    }

    const char* const at = utf8_advance(from, end, steps);
    if (at == end)
        RememberLength(charIndex - steps);
    if (steps > 0)
        return std::nullopt;
    const auto byteOffset = static_cast<std::size_t>(at - begin);
    RememberPosition(charIndex, byteOffset);
    return byteOffset;
}

// The character that holds the byte at `byteOffset`.
int U8CString::CharIndexOf(std::size_t byteOffset) const noexcept
{
    const char* const begin = std::string::data();
    const char* const target = begin + byteOffset;
    const char* at = begin;
    std::uint64_t charIndex = 0;
    if (IsPositionKnown()) {
        if (byteOffset >= cached_byte_offset) {
            at = begin + cached_byte_offset;
            charIndex = cached_char_index;
        } else if (cached_byte_offset - byteOffset < byteOffset) {
            const char* back = begin + cached_byte_offset;
            std::uint64_t backIndex = cached_char_index;
            for (; back && back > target; --backIndex)
                back = WalkBack(begin, back);
            if (back) {
                at = back;
                charIndex = backIndex;
            }
        }
    }
    at = WalkTo(at, target, begin + size(), charIndex);
    RememberPosition(charIndex, static_cast<std::size_t>(at - begin));
    return static_cast<int>(charIndex);
}

int U8CString::GetLength() const noexcept
{
    if (cached_length)
        return *cached_length;
    std::uint64_t charCount = 0;
    std::size_t byteOffset = 0;
    if (IsPositionKnown()) {
        charCount = cached_char_index;
        byteOffset = cached_byte_offset;
    }
    charCount += utf8_strlen(Bytes().substr(byteOffset));
    RememberLength(charCount);
    return static_cast<int>(charCount);
}

// ---- Text in text ----

int U8CString::Find(const char* text, int start) const noexcept
{
    if (!text || !*text)
        return 0;
    if (empty())
        return -1;
    const std::uint64_t charIndex = start < 1 ? 0 : static_cast<std::uint64_t>(start);
    const auto byteOffset = ByteOffsetOf(charIndex);
    if (!byteOffset)
        return -1;

    const char* const begin = std::string::data();
    const char* const from = begin + *byteOffset;
    const auto* const hit =
        static_cast<const char*>(memmem(from, size() - *byteOffset, text, std::strlen(text)));
    if (!hit)
        return -1;
    std::uint64_t found = charIndex;
    const char* const at = WalkTo(from, hit, begin + size(), found);
    RememberPosition(found, static_cast<std::size_t>(at - begin));
    return static_cast<int>(found);
}

int U8CString::ReverseFind(const char* text) const noexcept
{
    if (!text || !*text || empty())
        return -1;
    const std::string_view character(text, utf8_width(text, text + strnlen(text, 6)));
    const std::size_t hit = Bytes().rfind(character);
    return hit == npos ? -1 : CharIndexOf(hit);
}

// ---- Parts ----

U8CString U8CString::Left(int count) const noexcept
{
    return Mid(0, count);
}

U8CString U8CString::Right(int count) const noexcept
{
    const char* const begin = std::string::data();
    const char* at = begin + size();
    for (; count > 0 && at > begin; --count)
        at = utf8_previous(begin, at);
    return U8CString(Bytes().substr(static_cast<std::size_t>(at - begin)));
}

U8CString U8CString::Mid(int first, int count) const noexcept
{
    if (count <= 0)
        return {};
    const std::uint64_t firstIndex = first < 0 ? 0 : static_cast<std::uint64_t>(first);
    const auto from = ByteOffsetOf(firstIndex);
    if (!from || *from == size())
        return {};
    const std::size_t to = ByteOffsetOf(firstIndex + static_cast<std::uint64_t>(count)).value_or(size());
    return U8CString(Bytes().substr(*from, to - *from));
}

// ---- Comparing ----

int U8CString::Collate(const char* text) const noexcept
{
    if (!text || !*text)
        return empty() ? 0 : 1;
    return empty() ? -1 : utf8_collate(c_str(), text);
}

int U8CString::CollateNoCase(const char* text) const noexcept
{
    if (!text || !*text)
        return empty() ? 0 : 1;
    return empty() ? -1 : utf8_collate(utf8_casefold(*this).c_str(), utf8_casefold(text).c_str());
}

} // namespace Uve
