#pragma once

#include <compare>
#include <cstdarg>
#include <string>
#include <string_view>
#include <utility>

namespace Uve {

// A small convenience string. Unlike its siblings it counts bytes everywhere and knows letters of ASCII
// alone, so it is for keys, numbers and file suffixes. A null pointer is an empty text.
class UVEstring : public std::string
{
public:
    UVEstring() = default;
    UVEstring(const char* text) : std::string(text ? text : "") {}
    UVEstring(const std::string& text) : std::string(text) {}
    UVEstring(std::string&& text) noexcept : std::string(std::move(text)) {}

    UVEstring& operator=(const char* text);
    UVEstring& operator=(const std::string& text);
    UVEstring& operator=(char character);

    // Remove every leading or trailing `character`.
    UVEstring& TrimLeft(char character = ' ');
    UVEstring& TrimRight(char character = ' ');
    UVEstring& Trim(char character = ' ');

    UVEstring& ToUpper();
    UVEstring& ToLower();

    // Replace every, the first or the last occurrence. What was put in isn't searched again; an empty `from`
    // replaces nothing.
    UVEstring& Replace(std::string_view from, std::string_view to);
    UVEstring& ReplaceFirst(std::string_view from, std::string_view to);
    UVEstring& ReplaceLast(std::string_view from, std::string_view to);

    bool Contains(std::string_view text) const;
    bool EqualNoCase(std::string_view text) const;

    // Takes the digits of `value` with a minus sign if negative; lower case letters above 9.
    // A `radix` outside 2 to 36 gives the empty text.
    UVEstring& itoa(long long value, int radix = 10);

    // The decimal number that the text starts with; 0 if none, the nearest limit if it doesn't fit.
    int atoi() const;

    // printf into this string. Arguments may point into it.
    UVEstring& Format(const char* format, ...) __attribute__((format(printf, 2, 3)));
    UVEstring& FormatArgs(const char* format, va_list arguments) __attribute__((format(printf, 2, 0)));
};

} // namespace Uve
