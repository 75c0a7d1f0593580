// Calls that the code base knows from another platform, on top of POSIX. Sizes of buffers are bytes and count
// the terminating NUL. The bounded copies answer 0, EINVAL for a null argument or ERANGE for a text that
// doesn't fit; the target is then an empty text.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <cstdio>
#include <ctime>

namespace Uve::Compat {

// Empty if the system doesn't tell.
U8CString GetCurrentProcessExePath();

// errno, and the system's text for it.
int GetLastError();
U8CString GetLastErrorMessage();

// By ASCII letters. A null text is an empty one.
int stricmp(const char* a, const char* b);
int _strnicmp(const char* a, const char* b, std::size_t count);

// The bounded copies. `size` is that of the whole target; strcat_s appends to the text that is there,
// strncpy_s copies `count` bytes at most. memcpy_s fills the target with zeros where it fails.
int strcpy_s(char* target, std::size_t size, const char* source);
int strcat_s(char* target, std::size_t size, const char* source);
int strncpy_s(char* target, std::size_t size, const char* source, std::size_t count);
int memcpy_s(void* target, std::size_t size, const void* source, std::size_t count);

// Upper case for the letters of ASCII, in place.
// Returns: 0; EINVAL for a null text or one without a NUL among its `size` bytes, which is emptied.
int _strupr_s(char* text, std::size_t size);

// Local time. They answer 0, or EINVAL for a null argument or a time that has no date; ctime_s also ERANGE.
int ctime_s(char* target, std::size_t size, const std::time_t* time);
int localtime_s(std::tm* target, const std::time_t* time);

// Paths are UTF-8.
// Returns: fopen_s 0, EINVAL for a null argument, or errno with a null `*file`; fopen null with errno set.
// Owner:   the caller, fclose.
int fopen_s(std::FILE** file, const char* path, const char* mode);
std::FILE* fopen(const char* path, const char* mode);

// As strtoull, strtoll and their like of the C library. _atoi64 reads base 10 and asks for no end.
unsigned long long _strtoui64(const char* text, char** end, int base);
long long _strtoi64(const char* text, char** end, int base);
unsigned long strtoul(const char* text, char** end, int base);
long strtol(const char* text, char** end, int base);
long long _atoi64(const char* text);

// `target` has room for 34 bytes. A base outside 2 to 36 gives an empty text. Only base 10 has a sign.
char* itoa(int value, char* target, int base);

// Makes an empty file with a name of its own in the directory `path` and puts that name into `out`. The name
// holds at most three characters of `prefix`, and `unique` if it isn't 0.
// Returns: 1, or 0 with `out` empty.
unsigned int GetTempFileNameW(const U8CString& path, const U8CString& prefix, unsigned int unique,
                              U8CString& out);

// Paths of the system: its folder for scratch files, a name in it, the home of the user that runs the
// process, and the folder that all users share.
// Returns: 1, or 0 with `out` empty.
int GetTempPathW(U8CString& out);
int GetTemporaryFilePath(const U8CString& name, U8CString& out);
int GetUserDirectory(U8CString& out);
int GetPublicDirectory(U8CString& out);

// Each target that isn't null has room for kSplitPathSize bytes; what doesn't fit is cut. There are no drives
// here. `directory` keeps its slash, `extension` its dot.
inline constexpr std::size_t kSplitPathSize = 4096;
void _splitpath(const char* path, char* drive, char* directory, char* name, char* extension);

// Letters and digits of ASCII.
bool IsCharAlphaNumeric(char character);

// 1 if the descriptor is a terminal, otherwise 0; the descriptor of a stream, -1 for null.
int _isatty(int file);
int _fileno(std::FILE* file);

// The number of the active code page: that of UTF-8, 65001.
unsigned int GetACP();

// Does nothing: files here have no such flag.
void ClearReadOnlyFlag(const U8CString& path);

// INI files, in any encoding that a byte order mark tells:
//     ; a comment line
//     [section]
//     key = value
// Sections and keys are compared without regard to case, the first match counts, blanks around keys and
// values don't. A value loses one pair of quotes around it, single or double. After a value there are no
// comments.
// Returns: the length of `result` in bytes. A missing file, section or key gives `defaultValue`.
std::size_t GetPrivateProfileString(const U8CString& section, const U8CString& key,
                                    const U8CString& defaultValue, U8CString& result, const U8CString& path);

// Decimal, or hexadecimal after "0x", up to the first character that doesn't belong to it; 0 for a value
// that isn't a number.
int GetPrivateProfileInt(const U8CString& section, const U8CString& key, int defaultValue,
                         const U8CString& path);

} // namespace Uve::Compat
