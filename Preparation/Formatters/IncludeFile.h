// Files that a source takes in.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

enum class enIncludeFile
{
    read,
    missing,    // also a path with a NUL byte
    unreadable, // a directory or a device among them
    tooLong,
    outside, // of the folder that it has to lie below
    binary   // a NUL byte stands in it, where a text would end
};

// The folder that the include files of a foreign text have to lie below. What lies outside counts as not
// found.
class CIncludeRoot
{
public:
    // Empty: files may lie anywhere. A relative path is one of the working directory.
    explicit CIncludeRoot(const std::string& folder = {});

    // Looks through links and "..", whether or not there is such a file.
    bool Holds(const std::string& path) const;

private:
    std::filesystem::path m_Folder; // empty: no bound
};

// The file's bytes, without a byte order mark; UTF-16 and UTF-32 with a mark come as UTF-8. Empty unless it
// was read. `limit`: bytes; a longer file isn't opened.
enIncludeFile ReadIncludeFile(const Uve::U8CString& path, std::size_t limit, std::string& text,
                              const CIncludeRoot& root = CIncludeRoot());

// The note about a file that `state` doesn't let be taken in: one that is missing or counts as that.
std::string MissingIncludeText(enIncludeFile state, std::string_view name);

// What tells two spellings of one file's path to be the same: the path without links, "." and "..".
std::string RealIncludePath(const std::string& path);
