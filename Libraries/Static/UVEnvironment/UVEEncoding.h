// Conversions between the system's UTF-8 and the encodings at its edges: UTF-16 and UTF-32 files, wchar_t,
// the 16-bit text of ODBC, and code pages. Sizes of buffers are bytes (of 16-bit text: units), whatever the
// encoding.
//
// What can't be converted: a lone surrogate, a number above 0x10FFFF and a byte that isn't part of
// well-formed UTF-8 become U+FFFD, so that results are always well-formed. A sequence cut off by the end of
// the input ends the conversion. Only the converters in libxml2's argument form report such input.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Uve {

class u8string;

namespace Encoding::UTF8 {

// Writes the one to four bytes of `codePoint` to `out`.
// Returns: how many.
int cp2UTF8(unsigned int codePoint, char* out);

// Buffer to buffer. A code point that doesn't fit into `output` whole ends the conversion.
// Returns: the bytes written; no terminator is added.
std::size_t UTF16LEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize);
std::size_t UTF16BEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize);
std::size_t UTF32LEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize);
std::size_t UTF32BEToUTF8(const unsigned char* input, std::size_t inputSize, unsigned char* output,
                          std::size_t outputSize);

// A byte order mark is text like any other here: the caller steps over it.
U8CString FromUTF16LE(const char* bytes, std::size_t size);
U8CString FromUTF16BE(const char* bytes, std::size_t size);
U8CString FromUTF32LE(const char* bytes, std::size_t size);
U8CString FromUTF32BE(const char* bytes, std::size_t size);

// The system encoding is UTF-8: the bytes as they stand.
U8CString FromSystem(const char* bytes, std::size_t size);

} // namespace Encoding::UTF8

U8CString SystemToUTF8(std::string_view text);
std::string UTF8ToSystem(std::string_view text);

// One wchar_t is one code point.
std::wstring UTF8ToWide(std::string_view text);
U8CString WideToUTF8(std::wstring_view text);

// ODBC's text: UTF-16 in the byte order of the machine.
using SqlWchar = unsigned short;

// `length` in units; a negative one ends the text at its first 0. A null text is an empty one.
U8CString SqlWcharToUTF8String(const SqlWchar* text, long length = -1);

// Into the `outSize` bytes at `out`, cut at a whole code point, with a terminating 0 (unless `outSize` is 0).
// Returns: the bytes written without the terminator.
std::size_t SqlWcharToUTF8Char(const SqlWchar* text, long length, char* out, std::size_t outSize);

// Returns: the units, with one 0 after them.
std::vector<SqlWchar> UTF8StringToSqlWchar(std::string_view text);

} // namespace Uve

namespace UVDB {

// In the form of libxml2's converters: `*outSize` and `*inSize` hold what there is on entry, and what was
// written and consumed on return.
// Returns: the bytes written; -1 for a null argument; -2 for malformed input, with the sizes telling what was
//          done before it. A sequence cut off by the end of the input isn't consumed and is no failure.
int UTF16LEToUTF8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize);
int UTF16BEToUTF8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize);
int UTF8ToUTF16LE(unsigned char* out, int* outSize, const unsigned char* in, int* inSize);

// True if `text` begins with the byte order mark of UTF-8.
bool IsUtf8(std::string_view text);

// True if `text` is well-formed: whole sequences in their shortest form, no surrogates, nothing above
// 0x10FFFF.
bool IsValidUTF8(std::string_view text);

// Returns: the byte offset of the first sequence that isn't well-formed, std::string_view::npos if there is
//          none.
std::size_t FindInvalidUTF8(std::string_view text);

// Copies: the system encoding is UTF-8, so the single-byte side of these holds the same bytes. Appends
// nothing, replaces `out`.
void UTF8Toisolat1(std::string_view text, std::string& out);
void isolat1ToUTF8(std::string_view text, std::string& out);
void isolat1ToUTF8(std::string_view text, Uve::u8string& out);

std::wstring s2ws(std::string_view text);
std::string ws2s(std::wstring_view text);
std::string WCSToMBS(const wchar_t* text); // null gives an empty text
std::string WideToMultibyteUTF8(std::wstring_view text);

unsigned int GetACP();

// True if texts of the active code page can't be shown as they stand: the East Asian code pages and 850. The
// caller decides for 1251 by `for1251`.
bool DoesCodePageRequireUnicode(bool for1251);
bool DoesCodePageRequireUnicode(unsigned int codePage, bool for1251);

// 128 to 159 by the table of Windows-1252, 0 where the table has no character; other numbers are unchanged.
int CP1252ToUnicode(int character);

// "~u" and the code point in upper case hexadecimal, filled on the left up to `width` digits.
std::string CP1252ToUnicode(unsigned char character, char fill, int width);
std::wstring UTF8ToUnicode(int codePoint, wchar_t fill, int width);

// The code points of a text as a list of numbers with a comma after each, hexadecimal for `base` 16 and
// decimal for any other. Back again with the base given; empty pieces are passed over, the narrow form gives
// UTF-8.
std::wstring GetUTF8ListFromString(const std::wstring& text, int base);
std::wstring ConvertUTF8ListToString(const std::wstring& list, int base);
std::string ConvertUTF8ListToString(const std::string& list, int base);

// Bytes that a character of the MySQL character set takes at most; 1 for a name that isn't known.
int GetMySQLCharsetMaxSize(const char* name);

// Generated source can't hold some control characters inside a literal. A literal holds a placeholder for one
// instead, and this turns it into a concatenation with the constant of the target code:
//     "aORVANTA_REPLACE_ESCAPEb"  ->  "a" + Sep.E + "b"
// Placeholders outside literals stay.
void HandleOrvantaReplaceSymbols(std::string& text);

} // namespace UVDB
