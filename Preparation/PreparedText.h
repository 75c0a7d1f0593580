// What a preparation pass makes of a source text before the scanner sees it.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <string>
#include <vector>

// What a pass has to say of a source to whoever wrote it. The text is prepared all the same, as far as it can
// be.
struct SPreparationNote
{
    bool isError = false;   // the pass refused the text, or a part of it; otherwise a warning
    std::uint32_t line = 0; // of `file`, from 1; 0: of none
    std::string file;       // the included file that it is about; empty: the text itself
    std::string text;       // UTF-8, without a line feed at its end
};

struct SPreparedText
{
    Uve::U8CString text;
    // For each line of `text` the line of the source where it begins, both counted from 1. Empty if the pass
    // doesn't keep it.
    std::vector<std::uint32_t> sourceLines;
    std::vector<SPreparationNote> notes; // in order of their finding
};
