// Alternatives with parts that may be left out and with choices in brackets:
//
//     alternative = { part }
//     part        = ( symbol | "(" alternative { "|" alternative } ")" ) [ "?" ]
#pragma once

#include <string>
#include <vector>

struct SAlternativePart;
using AlternativeParts = std::vector<SAlternativePart>;

struct SAlternativePart
{
    std::string symbol;                    // empty for brackets
    std::vector<AlternativeParts> choices; // what stands in them
    bool isOptional = false;
};

using SymbolSequences = std::vector<std::vector<std::string>>;

// All that an alternative stands for, what leaves parts out before what has them.
// Returns: no more than `limit` + 1 sequences.
SymbolSequences WrittenOut(const AlternativeParts& parts, std::size_t limit);
