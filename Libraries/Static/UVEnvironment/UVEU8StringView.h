#pragma once

#include "UVEnvironment/UVEUtf8Search.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace Uve {

class u8string;

// UTF-8 text that somebody else owns. Positions and counts are characters, but mind that size() is bytes
// here, as in the standard view, and length() characters; u8string answers characters to both.
//
// Making a view counts its characters, so length() costs nothing afterwards.
class u8string_view : public u8search<u8string_view>
{
public:
    using const_iterator = const char*;

    u8string_view() = default;
    u8string_view(const char* text) : u8string_view(Detail::Utf8Prefix(text, npos)) {}
    u8string_view(const char* text, size_type charCount) : u8string_view(Detail::Utf8Prefix(text, charCount))
    {}
    u8string_view(std::string_view bytes)
        : m_ByteCount(bytes.size()), m_Data(bytes.data() ? bytes.data() : ""), m_CharCount(utf8_strlen(bytes))
    {}

    size_type size() const { return m_ByteCount; }
    size_type length() const { return m_CharCount; }
    const char* data() const { return m_Data; }
    std::string_view raw() const { return {m_Data, m_ByteCount}; }
    // Bytes.
    const_iterator begin() const { return m_Data; }
    const_iterator end() const { return m_Data + m_ByteCount; }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }

    // Throws: std::out_of_range if `charPos` lies past the end.
    u8string_view substr(size_type charPos = 0, size_type charCount = npos) const;

    // Drop characters at either end; all of them if there are fewer.
    void remove_prefix(size_type charCount);
    void remove_suffix(size_type charCount);
    void swap(u8string_view& other);

    // First character that is in `set`, or npos.
    template <class Set>
    size_type find_one_of(const Set& set) const
    {
        return find_first_of(set);
    }

    // Narrow this view by white space (9 to 13, and blanks), or by the characters of `set`.
    u8string_view& trim();
    u8string_view& trim_left();
    u8string_view& trim_right();
    u8string_view& trim(const u8string_view& set);
    u8string_view& trim_left(const u8string_view& set);
    u8string_view& trim_right(const u8string_view& set);

    // Copies: without a character or the characters of `set`, backwards, case-folded.
    u8string remove(char32_t codePoint) const;
    u8string remove(const char* set) const;
    u8string make_reverse() const;
    u8string casefold() const;

    // Does the C string `text` hold `codePoint`? Null holds nothing.
    static bool is_raw_str_contain(const char* text, char32_t codePoint);

private:
    u8string_view(std::string_view bytes, size_type charCount, std::nullptr_t)
        : m_ByteCount(bytes.size()), m_Data(bytes.data()), m_CharCount(charCount)
    {}

    size_type m_ByteCount = 0;
    const char* m_Data = "";
    size_type m_CharCount = 0;
};

} // namespace Uve

template <>
struct std::hash<Uve::u8string_view>
{
    std::size_t operator()(const Uve::u8string_view& text) const noexcept
    {
        return std::hash<std::string_view>{}(text.raw());
    }
};
