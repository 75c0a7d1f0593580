// Comparing words of the system without regard to case. They are ASCII; other bytes compare exactly.
#pragma once

#include <algorithm>
#include <string_view>

constexpr char UVDBAsciiUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool UVDBEqualNoCase(std::string_view left, std::string_view right)
{
    return std::ranges::equal(left, right, {}, UVDBAsciiUpper, UVDBAsciiUpper);
}
