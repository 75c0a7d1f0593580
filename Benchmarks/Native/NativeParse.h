#pragma once

#include "Grammar/ParserNode.h"

#include <cstddef>
#include <string>

// The PostgreSQL grammar as flex and bison compile it, as a measure for the table-driven engine: the same
// sources, the same fragments, the same final pass into one string. What differs is that tables and actions
// are code.
//
// One text at a time.

struct SNativeResult
{
    bool isParsed = false;
    std::size_t tokens = 0;
    std::size_t errors = 0;
    std::string xml;
};

SNativeResult NativeParse(const std::string& text);

// Returns: the number of tokens.
std::size_t NativeScan(const std::string& text);
