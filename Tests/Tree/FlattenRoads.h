// The roads by which a tree is flattened, for comparing.
#pragma once

#include "Tree/FragmentTree.h"

#include <optional>
#include <string>
#include <string_view>

// All give the flattened text with its declaration. Nothing: the stylesheet can't make one of it, or the
// native flattener leaves it to the stylesheet.
std::optional<std::string> FlattenByStylesheet(std::string_view tree);
std::optional<std::string> FlattenNatively(std::string_view tree);
// Uses the fragments up, unless it gives nothing.
std::optional<std::string> FlattenFragments(const SFragmentTree& tree);

// How the text of every flattened tree begins.
inline constexpr std::string_view kFlatHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
