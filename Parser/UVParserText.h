// Work on texts that can be hundreds of megabytes long: each operation is one pass and counts bytes.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// What stands after the last "." of `path`; nothing if there is no dot.
std::optional<Uve::U8CString> TextAfterLastDot(const Uve::U8CString& path);

// Puts a blank in the place of each zero-width space. Needs no memory.
void ReplaceZeroWidthSpaces(Uve::U8CString& text);

// The lines of `text` around line `lineNumber` (from 1), between markers: the line before, the line and the
// line after it, as far as they exist. A text that ends in a line feed has an empty last line.
// Returns: nothing if there is no such line.
std::optional<std::string> QuoteLinesAround(unsigned long lineNumber, std::string_view text);

// The source lines of a prepared text in runs, one a line: the first prepared line, the source line where it
// begins, and how many lines go on likewise, separated by tabs. Lines count from 1.
Uve::U8CString FormatPreparedLines(const std::vector<std::uint32_t>& sourceLines);
