// What a preparation pass makes of a source text before the scanner sees it.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <vector>

struct SPreparedText
{
    Uve::U8CString text;
    // For each line of `text` the line of the source where it begins, both counted from 1. Empty if the pass
    // doesn't keep it.
    std::vector<std::uint32_t> sourceLines;
};
