// The rules of a grammar as far as they make trees.
#pragma once

#include "Tools/uvgrammar-score/Language.h"

#include <cstddef>
#include <string>
#include <vector>

namespace uvelements {

// One rule. Symbols are indices of SNodeRules::symbols; those without an element of their own and `error` are left out.
struct SNodeRule
{
    std::size_t left = 0;
    std::vector<std::size_t> right;
    std::string node;      // empty: the rule passes its only symbol on
    bool hasError = false; // it takes text that no other rule takes
    bool isOfList = false; // it was written as %list
    std::string file = {}; // relative to the language's folder
    int line = 0;
};

struct SNodeRules
{
    std::size_t start = 0;
    std::vector<std::string> symbols;
    std::vector<SNodeRule> rules;                  // in the order of the sources
    std::vector<std::vector<std::size_t>> rulesOf; // by symbol; a token has none

    bool IsToken(std::size_t symbol) const { return rulesOf[symbol].empty(); }
};

// What bison understands of the sources.
// Returns: nothing in `rules`, and the reasons in `messages`, if they are refused.
// Throws:  CToolFailure.
void ReadNodeRules(const uvscore::SLanguageSources& sources, CToolMessages& messages, SNodeRules& rules);

} // namespace uvelements
