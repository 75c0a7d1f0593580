// What bison's report says of conflicts: where a grammar has two meanings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// A pair of ways to go on, and the tokens before which both are open.
struct SConflict
{
    std::string reduced;             // the symbol that may be complete
    std::string other;               // another one that may be; empty: what is read may go on
    std::vector<std::string> tokens; // ascending
    // The rules that are being read in the first such state, the complete ones first; a dot shows how far.
    std::vector<std::string> items;
    std::size_t states = 0;
};

// Of a report that has the states, those with the most states first.
std::vector<SConflict> ReadConflicts(std::string_view report);

// In several lines: the pair, the tokens and the items, a few of each.
std::string ConflictText(const SConflict& conflict);
