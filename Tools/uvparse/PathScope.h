// What an XPath expression looks at, so that a large tree need not stand in memory as a whole.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

// What is asked of the nodes that a path selects.
enum class enPathAnswer
{
    Nodes,
    Count,
    Numbered, // the one of a number
    Last,
    Any, // whether there is one
    None // whether there is none
};

// What everything that a path selects is, or is around. It tells what of a tree can stay away.
struct SPathTarget
{
    bool isText = false;             // a text node; otherwise an element
    std::string element;             // its name; empty: any
    std::string predicates;          // of the element, about nothing but its name and attributes; empty: none
    std::optional<std::string> text; // that it has,
    bool isAllText = false;          // and nothing else, or within it
};

// A tree may be asked part by part: a part has the elements that are open where it begins, without what was
// in them before, and what follows up to where it ends. An element that is open at such a place is divided:
// it stands in several parts, and no part has all of it.
struct SPathScope
{
    // The nodes that the path selects in the parts are those that it selects in the whole, provided that
    bool isDivisible = false;
    std::vector<std::string> undivided;        // - no element of these names is divided,
    std::vector<std::string> undividedParents; // - nor the parent of an element of these names;
    // - divided elements, and the document, are selected from a tree that has them alone, with all of the text
    // that is in them, instead of the parts.
    bool areDividedApart = false;
    // Nothing is selected in a part that stands before what was selected in the parts before it.
    bool isInOrder = false;

    std::string path; // the expression, or what stands in it between the brackets of what is asked
    enPathAnswer answer = enPathAnswer::Nodes;
    std::size_t number = 0; // from 1

    // In parts and in the whole alike.
    std::optional<SPathTarget> target;
};

// `expression` is one that XPath 1.0 allows. What isn't surely divisible is not.
SPathScope ScopeOfPath(std::string_view expression);

} // namespace uvparse
