#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// What the text getters of metadata interfaces and error records do with a caller's buffer of `size` bytes.
// `*length` is the text's length in bytes. `size` 0 copies nothing: that is how a caller asks for the length.
// A buffer too small gets the first `size` - 1 bytes and a terminator, and `*length` becomes `size` - 1.
// Returns: UVDB_OK; UVDB_ERROR for a null `length`; UVDB_INVALID_ARGUMENT for a null `dst` of another size
//          than 0.
int UVDBCopyTextToBuffer(const Uve::U8CString& text, char* dst, unsigned long size, unsigned long* length);

// Overwrites the first byte of four Cyrillic letters by the Latin letter that looks like them: "A", "C", "a",
// "c". The byte after it stays where it is, so the text keeps its length, and is no valid UTF-8 any more.
void ReplaceRussSym(Uve::U8CString& text);
