#pragma once

#include "UVEnvironment/UVEU8StringView.h"
#include "UVEnvironment/UVEUtf8Search.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Uve {

// The standard library's string over UTF-8: positions, counts and both size() and length() are characters,
// bytes() is the number of bytes. Nothing is remembered between calls, so a position costs a walk from the
// front; for scans take U8CString.
//
// Where a text is taken, it may be a u8string, a view, a C string (null is empty), a code point or a char; a
// C string with its number of characters; a u8string with position and count; a count with a code point or
// char. Positions past the end throw std::out_of_range where text is changed or cut out, and find nothing in
// searches.
class u8string : public u8search<u8string>
{
public:
    using iterator = std::string::iterator;
    using const_iterator = std::string::const_iterator;

    u8string() = default;
    u8string(const char* text) { assign(text); }
    u8string(const char* text, size_type charCount) { assign(text, charCount); }
    u8string(const u8string& other, size_type charPos, size_type charCount = npos)
    {
        assign(other, charPos, charCount);
    }
    u8string(size_type count, char32_t codePoint) { assign(count, codePoint); }
    u8string(size_type count, char character) { assign(count, character); }
    u8string(const u8string_view& text) : m_Text(text.raw()) {}
    u8string(std::string bytes) noexcept : m_Text(std::move(bytes)) {}

    operator u8string_view() const { return raw(); }

    size_type size() const { return utf8_strlen(m_Text); }
    size_type length() const { return size(); }
    size_type bytes() const { return m_Text.size(); }
    // Of bytes.
    size_type capacity() const { return m_Text.capacity(); }
    size_type max_size() const { return 0x3fffffffffffffff; }
    void reserve(size_type byteCount) { m_Text.reserve(byteCount); }

    void clear() { m_Text.clear(); }
    const char* data() const { return m_Text.data(); }
    const char* c_str() const { return m_Text.c_str(); }
    std::string_view raw() const { return m_Text; }
    // Bytes.
    iterator begin() { return m_Text.begin(); }
    iterator end() { return m_Text.end(); }
    const_iterator begin() const { return m_Text.begin(); }
    const_iterator end() const { return m_Text.end(); }
    const_iterator cbegin() const { return m_Text.cbegin(); }
    const_iterator cend() const { return m_Text.cend(); }

    template <class... Text>
    u8string& assign(const Text&... text)
    {
        m_Text.assign(Detail::CUtf8Argument(text...).raw());
        return *this;
    }
    template <class... Text>
    u8string& append(const Text&... text)
    {
        m_Text.append(Detail::CUtf8Argument(text...).raw());
        return *this;
    }
    template <class... Text>
    u8string& insert(size_type charPos, const Text&... text)
    {
        return Splice(charPos, 0, Detail::CUtf8Argument(text...).raw());
    }
    template <class... Text>
    u8string& replace(size_type charPos, size_type charCount, const Text&... text)
    {
        return Splice(charPos, charCount, Detail::CUtf8Argument(text...).raw());
    }
    u8string& erase(size_type charPos = 0, size_type charCount = npos)
    {
        return Splice(charPos, charCount, {});
    }
    template <class Text>
    u8string& operator+=(const Text& text)
    {
        return append(text);
    }
    u8string substr(size_type charPos = 0, size_type charCount = npos) const
    {
        return {*this, charPos, charCount};
    }
    void swap(u8string& other) noexcept { m_Text.swap(other.m_Text); }

    // Copies in another form; see UVEUnicode.h.
    u8string uppercase() const;
    u8string lowercase() const;
    u8string casefold() const;
    u8string normalize(NormalizeMode mode = NormalizeMode::CanonicalComposition) const;

    // printf into this string. Arguments may point into it.
    u8string& printf(const char* format, ...) __attribute__((format(printf, 2, 3)));

    friend u8string operator+(u8string left, const u8string& right) { return std::move(left.append(right)); }

private:
    u8string& Splice(size_type charPos, size_type charCount, std::string_view text);

    std::string m_Text;
};

} // namespace Uve

template <>
struct std::hash<Uve::u8string>
{
    std::size_t operator()(const Uve::u8string& text) const noexcept
    {
        return std::hash<std::string_view>{}(text.raw());
    }
};
