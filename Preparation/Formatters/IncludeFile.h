// Files that a source takes in.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string>

enum class enIncludeFile
{
    read,
    missing,
    unreadable, // a directory or a device among them
    tooLong
};

// The file's bytes, without a byte order mark; UTF-16 and UTF-32 with a mark come as UTF-8. Empty unless it
// was read. `limit`: bytes; a longer file isn't opened.
enIncludeFile ReadIncludeFile(const Uve::U8CString& path, std::size_t limit, std::string& text);
