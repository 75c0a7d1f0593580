#include "UVEnvironment/UVERawString.h"

#include "UVEnvironment/UVEUnicode.h"

#include <bit>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <string>

namespace Uve {

namespace {

// Makes room for `byteCount` bytes of text and their NUL.
void Reserve(raw_string* string, std::size_t byteCount)
{
    if (byteCount < string->allocated_len)
        return;
    const std::size_t size = std::bit_ceil(byteCount + 1);
    auto* const text = static_cast<char*>(std::realloc(string->str, size));
    if (!text)
        throw std::bad_alloc();
    string->str = text;
    string->allocated_len = size;
}

} // namespace

raw_string* raw_string_new(const char* text)
{
    raw_string* const string = raw_string_sized_new(text ? std::strlen(text) : 0);
    return text ? raw_string_append(string, text) : string;
}

raw_string* raw_string_sized_new(std::size_t byteCount)
{
    auto* const string = static_cast<raw_string*>(std::calloc(1, sizeof(raw_string)));
    if (!string)
        throw std::bad_alloc();
    try {
        Reserve(string, byteCount);
    } catch (...) {
        std::free(string);
        throw;
    }
    string->str[0] = '\0';
    return string;
}

raw_string* raw_string_append(raw_string* string, const char* text)
{
    return raw_string_insert_len(string, -1, text, -1);
}

raw_string* g_string_append_len(raw_string* string, const char* text, std::ptrdiff_t byteCount)
{
    return raw_string_insert_len(string, -1, text, byteCount);
}

raw_string* raw_string_insert_len(raw_string* string, std::ptrdiff_t position, const char* text,
                                  std::ptrdiff_t byteCount)
{
    if (!text)
        return string;
    const std::size_t count = byteCount < 0 ? std::strlen(text) : static_cast<std::size_t>(byteCount);
    const std::size_t place = position < 0 || static_cast<std::size_t>(position) > string->len
                                  ? string->len
                                  : static_cast<std::size_t>(position);

    // Both growing and making way would move a text that lies inside the string.
    std::string own;
    if (!std::less<const char*>{}(text, string->str) &&
        std::less<const char*>{}(text, string->str + string->len)) {
        own.assign(text, count);
        text = own.data();
    }
    Reserve(string, string->len + count);
    std::memmove(string->str + place + count, string->str + place, string->len - place);
    std::memcpy(string->str + place, text, count);
    string->len += count;
    string->str[string->len] = '\0';
    return string;
}

raw_string* raw_string_append_unichar(raw_string* string, char32_t codePoint)
{
    return raw_string_insert_unichar(string, -1, codePoint);
}

raw_string* raw_string_insert_unichar(raw_string* string, std::ptrdiff_t position, char32_t codePoint)
{
    char bytes[6];
    return raw_string_insert_len(string, position, bytes, utf8_from_codepoint(codePoint, bytes));
}

char* raw_string_free(raw_string* string, bool freeText)
{
    char* text = string->str;
    std::free(string);
    if (freeText) {
        std::free(text);
        text = nullptr;
    }
    return text;
}

} // namespace Uve
