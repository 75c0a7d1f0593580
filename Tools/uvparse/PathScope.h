// What an XPath expression looks at, so that a large tree need not stand in memory as a whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

// A tree may be asked part by part: a part has the elements that are open where it begins, without what was
// in them before, and what follows up to where it ends. An element that is open at such a place is divided:
// it stands in several parts, and no part has all of it.
struct SPathScope
{
    // The nodes that the expression selects in the parts are those that it selects in the whole, provided
    // that
    bool isDivisible = false;
    std::vector<std::string> undivided;        // - no element of these names is divided,
    std::vector<std::string> undividedParents; // - nor the parent of an element of these names.
    // It asks for the number of the nodes that this expression selects, and all of the above is about them.
    std::string counted;
};

// `expression` is one that XPath 1.0 allows. What isn't surely divisible is not.
SPathScope ScopeOfPath(std::string_view expression);

} // namespace uvparse
