#pragma once

#include <cstddef>

namespace Uve {

// A growable C buffer: what is built here can be handed to code that calls free() on it. All sizes and
// positions are bytes. The text is always closed by a NUL that `len` doesn't count; it may hold others.
struct raw_string
{
    char* str;                 // malloc
    std::size_t len;           // bytes of text
    std::size_t allocated_len; // bytes of memory, a power of two
};

// Each function that takes a raw_string returns it. When memory runs out they throw std::bad_alloc and leave
// the text as it was.

// Owner: the caller, raw_string_free. Null `text` is empty.
raw_string* raw_string_new(const char* text);
// Empty, with room for `byteCount` bytes.
raw_string* raw_string_sized_new(std::size_t byteCount);

raw_string* raw_string_append(raw_string* string, const char* text);
// `byteCount` of -1: up to the NUL.
raw_string* g_string_append_len(raw_string* string, const char* text, std::ptrdiff_t byteCount);
// Inserts at byte `position`; -1, or beyond the end: appends. `text` may lie inside the string.
raw_string* raw_string_insert_len(raw_string* string, std::ptrdiff_t position, const char* text,
                                  std::ptrdiff_t byteCount);
raw_string* raw_string_append_unichar(raw_string* string, char32_t codePoint);
raw_string* raw_string_insert_unichar(raw_string* string, std::ptrdiff_t position, char32_t codePoint);

// Frees the record, and with `freeText` the text.
// Returns: null, or without `freeText` the text.
// Owner:   the caller, free().
char* raw_string_free(raw_string* string, bool freeText);

} // namespace Uve
