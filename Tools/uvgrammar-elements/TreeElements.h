// The elements of a language's flattened trees, as its rules make them.
#pragma once

#include "Tools/uvgrammar-elements/Content.h"
#include "Tools/uvgrammar-elements/NodeRules.h"

#include <string>
#include <utility>
#include <vector>

namespace uvelements {

struct SRulePlace
{
    std::string file; // relative to the language's folder
    int line = 0;

    bool operator==(const SRulePlace&) const = default;
};

struct STreeElement
{
    std::string name;
    std::vector<SRulePlace>
        places; // of the rules that make it, in the order of the sources; none: flattening makes it
    bool isList = false;
    bool isOfErrors = false; // nothing but text that can't be read makes it
    std::vector<SChild> children;
    std::vector<std::string> parents; // sorted
};

// Several elements that one symbol of the grammar stands for.
struct SElementClass
{
    std::string symbol;
    std::vector<std::string> names; // in the order of the rules
};

struct STreeElements
{
    std::vector<STreeElement> elements; // in the order of the sources; tokens aren't among them
    std::vector<SElementClass> classes; // likewise
};

// What Documentation/FlattenedTree.md tells is done here with sets: T__SPACE, which may stand anywhere, is left out.
STreeElements DescribeElements(const SNodeRules& rules);

} // namespace uvelements
