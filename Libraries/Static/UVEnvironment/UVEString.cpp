#include "UVEnvironment/UVEString.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdio>
#include <cstdlib>

namespace Uve {

namespace {

char ToLowerByte(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

char ToUpperByte(char byte)
{
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

} // namespace

UVEstring& UVEstring::operator=(const char* text)
{
    assign(text ? text : "");
    return *this;
}

UVEstring& UVEstring::operator=(const std::string& text)
{
    assign(text);
    return *this;
}

UVEstring& UVEstring::operator=(char character)
{
    assign(1, character);
    return *this;
}

UVEstring& UVEstring::TrimLeft(char character)
{
    erase(0, find_first_not_of(character));
    return *this;
}

UVEstring& UVEstring::TrimRight(char character)
{
    erase(find_last_not_of(character) + 1); // nothing else in it: npos + 1 is 0
    return *this;
}

UVEstring& UVEstring::Trim(char character)
{
    return TrimRight(character).TrimLeft(character);
}

UVEstring& UVEstring::ToUpper()
{
    std::ranges::transform(*this, begin(), ToUpperByte);
    return *this;
}

UVEstring& UVEstring::ToLower()
{
    std::ranges::transform(*this, begin(), ToLowerByte);
    return *this;
}

UVEstring& UVEstring::Replace(std::string_view from, std::string_view to)
{
    if (from.empty())
        return *this;
    std::string result;
    size_type copied = 0;
    for (size_type hit; (hit = find(from, copied)) != npos; copied = hit + from.size())
        result.append(*this, copied, hit - copied).append(to);
    result.append(*this, copied);
    swap(result);
    return *this;
}

UVEstring& UVEstring::ReplaceFirst(std::string_view from, std::string_view to)
{
    const size_type hit = from.empty() ? npos : find(from);
    if (hit != npos)
        replace(hit, from.size(), to);
    return *this;
}

UVEstring& UVEstring::ReplaceLast(std::string_view from, std::string_view to)
{
    const size_type hit = from.empty() ? npos : rfind(from);
    if (hit != npos)
        replace(hit, from.size(), to);
    return *this;
}

bool UVEstring::Contains(std::string_view text) const
{
    return find(text) != npos;
}

bool UVEstring::EqualNoCase(std::string_view text) const
{
    return std::ranges::equal(*this, text, {}, ToLowerByte, ToLowerByte);
}

UVEstring& UVEstring::itoa(long long value, int radix)
{
    clear();
    if (radix < 2 || radix > 36)
        return *this;
    char digits[sizeof(value) * CHAR_BIT + 1];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value, radix).ptr;
    assign(digits, end);
    return *this;
}

int UVEstring::atoi() const
{
    const long value = std::strtol(c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

UVEstring& UVEstring::Format(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatArgs(format, arguments);
    va_end(arguments);
    return *this;
}

UVEstring& UVEstring::FormatArgs(const char* format, va_list arguments)
{
    va_list measuring;
    va_copy(measuring, arguments);
    const int byteCount = std::vsnprintf(nullptr, 0, format, measuring);
    va_end(measuring);

    std::string result(byteCount > 0 ? static_cast<size_type>(byteCount) : 0, '\0');
    if (!result.empty())
        std::vsnprintf(result.data(), result.size() + 1, format, arguments);
    swap(result);
    return *this;
}

} // namespace Uve
