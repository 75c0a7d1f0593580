// What stands in an element, over all rules that it may be made by.
//
// Note: the calculation
// Each rule is a sum over its symbols, each symbol a choice between what its rules make. A node that dissolves stands for
// what is in it, so the sums refer to each other; they are repeated until nothing changes. A count is none, one or many,
// and only ever widens, so this ends.
#pragma once

#include "Tools/uvgrammar-elements/NodeRules.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace uvelements {

// How the name of a child is written in the flattened tree; empty: it isn't there.
using TShownName = std::function<std::string(const std::string& name)>;

// Rules that an element may be made by, and what becomes of what they hold.
struct SContentSource
{
    std::vector<std::size_t> rules = {}; // none: nothing but `before` and `after`
    std::set<std::string> opened = {};   // nodes that dissolve
    std::set<std::string> barred = {};   // nodes that don't occur
    TShownName show = {};
    std::vector<std::string> before = {}; // children that flattening adds, as they are written
    std::vector<std::string> after = {};
};

// How often one of `names` occurs. Several names are a choice.
struct SChild
{
    std::vector<std::string> names;
    bool isOptional = false;
    bool isRepeated = false;
    bool isOfErrors = false; // only where text couldn't be read

    bool operator==(const SChild&) const = default;
};

// In the order of the text where the rules have one order. Counts don't heed rules over `error`, unless there are no
// others.
std::vector<SChild> ContentOf(const SNodeRules& rules, const std::vector<SContentSource>& sources);

// A symbol is one of these: a rule that makes a node, or a token.
struct SPiece
{
    bool isToken = false;
    std::size_t index = 0; // of the rule, or the symbol
};
std::vector<SPiece> PiecesOf(const SNodeRules& rules, std::size_t symbol);

const std::string& NameOf(const SNodeRules& rules, const SPiece& piece);

} // namespace uvelements
