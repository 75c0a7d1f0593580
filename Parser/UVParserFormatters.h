// Which texts are rewritten before they are scanned: by the kind of their language, and by options.
#pragma once

#include "Parser/ScriptFormatter.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>

struct SParseOptions;

struct SFormatterRow
{
    std::uint64_t kind; // a number of the UVDB_DB_ list
    const char* name;
    bool (*isWanted)(const SParseOptions& options);
    const char* unwanted; // why it isn't, as the end of a sentence
    SFormattedText (ScriptFormatter::*format)(const Uve::U8CString& text) const;
};

// Returns: the formatter for texts of this kind, wanted or not; null if there is none.
const SFormatterRow* FindFormatter(std::uint64_t kind);
