#pragma once

#include "UVEnvironment/UVEUnicode.h"

#include <compare>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

// What u8string and u8string_view have in common: every question that can be asked of UTF-8 text by character
// position. Positions, counts and results are characters; the not-found result is ~0, and so is a count that
// runs to the end.
namespace Uve {

namespace Detail {

inline constexpr std::size_t kNoPosition = ~static_cast<std::size_t>(0);

// Byte offset of character `charPos`; the size of `text` if that lies at or past the end.
std::size_t Utf8ByteOffset(std::string_view text, std::size_t charPos);

// The first `charCount` characters of a C string; null is empty.
std::string_view Utf8Prefix(const char* text, std::size_t charCount);

// The characters [charPos, charPos + charCount) of `text`.
// Throws: std::out_of_range if `charPos` lies past the end.
std::string_view Utf8Part(std::string_view text, std::size_t charPos, std::size_t charCount);

char32_t Utf8At(std::string_view text, std::size_t charPos);
std::size_t Utf8Find(std::string_view text, std::string_view wanted, std::size_t charPos);
std::size_t Utf8FindLast(std::string_view text, std::string_view wanted, std::size_t charPos);
std::size_t Utf8FindIn(std::string_view text, std::string_view set, std::size_t charPos, bool member);
std::size_t Utf8FindLastIn(std::string_view text, std::string_view set, std::size_t charPos, bool member);
std::string Utf8Without(std::string_view text, std::string_view set);
std::string Utf8Reversed(std::string_view text);

// Anything that a string operation takes as text, for the length of one call. Borrows what it is given.
class CUtf8Argument
{
public:
    CUtf8Argument(std::string_view text) : m_Text(text) {}
    CUtf8Argument(const char* text) : m_Text(Utf8Prefix(text, kNoPosition)) {}
    CUtf8Argument(const char* text, std::size_t charCount) : m_Text(Utf8Prefix(text, charCount)) {}
    CUtf8Argument(char32_t codePoint) : m_Text(m_Bytes, utf8_from_codepoint(codePoint, m_Bytes)) {}
    CUtf8Argument(char character) : m_Bytes{character}, m_Text(m_Bytes, 1) {}
    CUtf8Argument(std::size_t count, char32_t codePoint);
    CUtf8Argument(std::size_t count, char character) : m_Repeated(count, character), m_Text(m_Repeated) {}
    // A whole u8string or view, or the characters from `charPos` on.
    // Throws: std::out_of_range if `charPos` lies past its end.
    template <class Text>
    requires requires(const Text& text) { text.raw(); }
    CUtf8Argument(const Text& text) : m_Text(text.raw()) {}
    template <class Text>
    requires requires(const Text& text) { text.raw(); }
    CUtf8Argument(const Text& text, std::size_t charPos, std::size_t charCount = kNoPosition)
        : m_Text(Utf8Part(text.raw(), charPos, charCount))
    {}
    CUtf8Argument(const CUtf8Argument&) = delete;
    CUtf8Argument& operator=(const CUtf8Argument&) = delete;

    std::string_view raw() const { return m_Text; }

private:
    char m_Bytes[6] = {};
    std::string m_Repeated;
    std::string_view m_Text;
};

} // namespace Detail

// `Text` derives from this and offers `std::string_view raw() const`, its bytes.
//
// Searches start at `charPos`: forward ones find nothing beyond the end, backward ones then start at the end.
template <class Text>
class u8search
{
public:
    using size_type = std::size_t;
    static constexpr size_type npos = Detail::kNoPosition;

    bool empty() const { return Raw().empty(); }

    // The code point at `charPos`; 0 at and past the end.
    char32_t operator[](size_type charPos) const { return Detail::Utf8At(Raw(), charPos); }

    // `wanted` is a u8string or view, a C string, a code point or a char; the third form takes the first
    // characters of a C string.
    template <class Wanted>
    size_type find(const Wanted& wanted, size_type charPos = 0) const
    {
        return Detail::Utf8Find(Raw(), Detail::CUtf8Argument(wanted).raw(), charPos);
    }
    size_type find(const char* wanted, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8Find(Raw(), Detail::Utf8Prefix(wanted, charCount), charPos);
    }
    template <class Wanted>
    size_type rfind(const Wanted& wanted, size_type charPos = npos) const
    {
        return Detail::Utf8FindLast(Raw(), Detail::CUtf8Argument(wanted).raw(), charPos);
    }
    size_type rfind(const char* wanted, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8FindLast(Raw(), Detail::Utf8Prefix(wanted, charCount), charPos);
    }
    template <class Set>
    size_type find_first_of(const Set& set, size_type charPos = 0) const
    {
        return Detail::Utf8FindIn(Raw(), Detail::CUtf8Argument(set).raw(), charPos, true);
    }
    size_type find_first_of(const char* set, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8FindIn(Raw(), Detail::Utf8Prefix(set, charCount), charPos, true);
    }
    template <class Set>
    size_type find_last_of(const Set& set, size_type charPos = npos) const
    {
        return Detail::Utf8FindLastIn(Raw(), Detail::CUtf8Argument(set).raw(), charPos, true);
    }
    size_type find_last_of(const char* set, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8FindLastIn(Raw(), Detail::Utf8Prefix(set, charCount), charPos, true);
    }
    template <class Set>
    size_type find_first_not_of(const Set& set, size_type charPos = 0) const
    {
        return Detail::Utf8FindIn(Raw(), Detail::CUtf8Argument(set).raw(), charPos, false);
    }
    size_type find_first_not_of(const char* set, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8FindIn(Raw(), Detail::Utf8Prefix(set, charCount), charPos, false);
    }
    template <class Set>
    size_type find_last_not_of(const Set& set, size_type charPos = npos) const
    {
        return Detail::Utf8FindLastIn(Raw(), Detail::CUtf8Argument(set).raw(), charPos, false);
    }
    size_type find_last_not_of(const char* set, size_type charPos, size_type charCount) const
    {
        return Detail::Utf8FindLastIn(Raw(), Detail::Utf8Prefix(set, charCount), charPos, false);
    }

    // Byte order, which is code point order. Negative, 0 or positive.
    template <class Other>
    int compare(const Other& other) const
    {
        return Raw().compare(Detail::CUtf8Argument(other).raw());
    }
    // The same for a part of this text, and a part of `other`.
    // Throws: std::out_of_range if a position lies past the end.
    template <class Other>
    int compare(size_type charPos, size_type charCount, const Other& other) const
    {
        return Detail::Utf8Part(Raw(), charPos, charCount).compare(Detail::CUtf8Argument(other).raw());
    }
    template <class Other>
    int compare(size_type charPos, size_type charCount, const Other& other, size_type otherPos,
                size_type otherCount) const
    {
        return Detail::Utf8Part(Raw(), charPos, charCount)
            .compare(Detail::Utf8Part(Detail::CUtf8Argument(other).raw(), otherPos, otherCount));
    }
    int compare(size_type charPos, size_type charCount, const char* other, size_type otherCount) const
    {
        return Detail::Utf8Part(Raw(), charPos, charCount).compare(Detail::Utf8Prefix(other, otherCount));
    }
    // Compares the case-folded texts.
    template <class Other>
    int compare_nocase(const Other& other) const
    {
        return utf8_casefold(Raw()).compare(utf8_casefold(Detail::CUtf8Argument(other).raw()));
    }

private:
    std::string_view Raw() const { return static_cast<const Text&>(*this).raw(); }
};

template <class Text>
concept U8Text = std::derived_from<Text, u8search<Text>>;

// One of them with whatever a search takes as text, in code point order.
template <class Left, class Right>
requires U8Text<Left> || U8Text<Right>
bool operator==(const Left& left, const Right& right)
{
    return Detail::CUtf8Argument(left).raw() == Detail::CUtf8Argument(right).raw();
}

template <class Left, class Right>
requires U8Text<Left> || U8Text<Right> std::strong_ordering operator<=>(const Left& left, const Right& right)
{
    return Detail::CUtf8Argument(left).raw() <=> Detail::CUtf8Argument(right).raw();
}

} // namespace Uve
