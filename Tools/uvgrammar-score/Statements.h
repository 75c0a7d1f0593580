// A text cut into its statements, by the tree that was made of it.
#pragma once

#include "Tools/uvparse/Findings.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace uvscore {

// Offsets are bytes of the prepared text, as those of findings.
struct SStatement
{
    std::size_t begin = 0;             // of its first token, or of what was skipped
    std::size_t end = 0;               // of its last one, the delimiter
    bool isRead = false;               // false: it is text that was lost
    std::vector<std::size_t> findings; // indices
    std::string_view tree;             // its element; empty: there is none

    bool IsClean() const { return isRead && findings.empty(); }
};

// The outermost statements of a flattened tree, and those of which nothing but the delimiter was read. A text without
// statements, and one whose tree is of another text, is one statement; a blank one has none.
// `tree` is empty if the parse failed.
std::vector<SStatement> FindStatements(std::string_view tree, std::string_view prepared,
                                       const std::vector<uvparse::SFinding>& findings);

// A token of a tree, in a text.
struct STokenPlace
{
    std::string_view name;
    std::size_t begin = 0;
    std::size_t end = 0;
};

// The tokens of the tree in their order, with their places in the text that the tree was made of; none if it is of another
// text. Spaces are no tokens.
std::vector<STokenPlace> FindTokens(std::string_view tree, std::string_view prepared);

} // namespace uvscore
