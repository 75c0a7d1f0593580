// What many files came to together.
#pragma once

#include "Tools/uvgrammar-score/Language.h"
#include "Tools/uvgrammar-score/ScoredFile.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace uvscore {

struct STotals
{
    std::size_t files = 0;
    std::size_t statements = 0;
    std::size_t clean = 0;
    std::size_t unexpectedTokens = 0;
    std::size_t lost = 0;
    std::size_t bytes = 0;
    double seconds = 0;

    void Add(const SScoredFile& file);
    std::string Text() const;
};

// The share of `part` in `whole` in percent, never rounded to 100.
std::string ShareText(std::size_t part, std::size_t whole);

// A failure in a few words.
std::string TitleOf(const SFailure& failure);

// Statements that fail in the same way.
struct SFailureGroup
{
    SFailure failure;
    std::size_t count = 0;
    std::size_t files = 0;
    std::string place; // of the shortest statement, file and line
    std::string text;
};

// Most frequent first.
std::vector<SFailureGroup> GroupFailures(const std::vector<SScoredFile>& files);

// The first `most` of them, with the rules that the parser reads there.
std::string GroupsText(const std::vector<SFailureGroup>& groups, std::size_t most,
                       const std::map<int, std::vector<SRuleBeingRead>>& rules);

// A text in one line that a terminal can show, cut if it is long.
std::string OneLine(std::string_view text);

} // namespace uvscore
