// Paths, files and directories in the system's strings. Texts and paths are UTF-8; a path's bytes reach the
// system as they stand, so names that aren't UTF-8 work too.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace Uve {

namespace Path {

// An empty side gives the other one; a `b` with a root directory gives `b`; otherwise both with a "/"
// between.
U8CString Combine(const U8CString& a, const U8CString& b);
U8CString Combine(const U8CString& a, const U8CString& b, const U8CString& c);

// Absolute and free of "." and "..", by text alone: links aren't followed. A relative `base` counts from the
// working directory, which is the base of the first form.
U8CString GetFullPath(const U8CString& path);
U8CString GetFullPath(const U8CString& path, const U8CString& base);

// Empty if the working directory is gone.
U8CString GetCurrentPath();

// The program that runs; empty if the system doesn't tell.
U8CString GetExePath();

// The parts of a path by its text alone, whether or not there is such a file; empty if there is no such part.
// The directory has no slash at its end, but for the root. The extension begins at the last dot of the name,
// which isn't one at its start: ".profile" is a name without an extension.
U8CString GetDirectory(const U8CString& path);
U8CString GetFileName(const U8CString& path, bool withExtension);
U8CString GetExtension(const U8CString& path, bool withDot);

// A path is absolute if it begins at the root; the empty one is relative.
bool IsAbsolute(const U8CString& path);
bool IsRelative(const U8CString& path);

} // namespace Path

namespace File {

enum Encoding
{
    ENCODING_SYSTEM = 0, // the system's, which is UTF-8: bytes as they stand
    ENCODING_AUTO = 1,   // by the mark, and UTF-8 without one
    ENCODING_UTF8 = 2,
    ENCODING_UTF16LE = 3,
    ENCODING_UTF16BE = 4,
    ENCODING_UTF32LE = 5,
    ENCODING_UTF32BE = 6
};

// True for a regular file.
bool Exists(const U8CString& path);

// True if the file is gone afterwards, one that never was included.
bool Delete(const U8CString& path);

// For its owner, its group and everybody else.
// Returns: false if the mode couldn't be changed.
bool MakeFileExecutable(const U8CString& path);

// Returns: bytes, -1 if there is no such file.
long long GetFileSize(const U8CString& path);

// Writes over the beginning of the file: what a longer file held after `text` stays. A missing file is made.
// Returns: true if all of it was written.
bool WriteAllText(const U8CString& path, std::string_view text);

// The whole file as UTF-8, without its byte order mark. A mark decides over `encoding`. An explicit UTF
// encoding is for files with a mark: without one the bytes in its place are skipped. ENCODING_AUTO and
// ENCODING_UTF8 end the text at a NUL byte.
// Throws: std::runtime_error if the file is missing, can't be read, or `encoding` isn't one.
U8CString ReadAllText(const U8CString& path);
U8CString ReadAllText(const U8CString& path, Encoding encoding);

struct SEncodingMark
{
    int markLength = 0; // bytes to step over
    Encoding encoding = ENCODING_AUTO;
};

// Looks at the first bytes; the stream's position is undefined afterwards. Without a mark: `requested`, and
// the length that its mark would have.
SEncodingMark DetectEncoding(std::istream& stream, Encoding requested);

} // namespace File

namespace Directory {

// True for a directory, links to one included.
bool Exists(const U8CString& path);

// Makes missing parents too. True if the directory exists afterwards.
bool Create(const U8CString& path);

// True if the directory is gone afterwards. Without `recursive` only an empty one goes.
bool Delete(const U8CString& path, bool recursive);

// The paths of the regular files in it, in the order of their bytes; empty if there is no such directory.
// `mask` is tried on the names: "*" stands for any text, "?" for one character.
std::vector<U8CString> GetFiles(const U8CString& path);
std::vector<U8CString> GetFiles(const U8CString& path, const U8CString& mask);

} // namespace Directory

// The directory of the program that runs, without a slash at its end.
U8CString GetPathOfExe();

// The older helpers in plain C strings. A null path is an empty one.

// True if the directory exists afterwards; it is made for its owner alone.
bool UVMakeDir(const char* path);

// The same with all missing parents; both "/" and "\" separate them.
bool UVMakeFullDir(const char* path);

// File::Exists, Path::GetCurrentPath, Compat::GetUserDirectory and Path::Combine.
bool UVFileExists(const char* path);
U8CString UVGetCurrentDir();
U8CString UVGetUserProfileDir();
U8CString UVMakePath(const char* directory, const char* name);

// A name, not a file, and not one that nobody else can guess: use Compat::GetTempFileNameW for a file.
U8CString UVGetTmpFileName();

// Lines that hold something.
int GetScriptQuantityLines(const U8CString& text);

} // namespace Uve
