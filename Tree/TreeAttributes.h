// The attributes of a tree's elements, for those tags that don't come out as they went in.
#pragma once

#include "Tree/TextBlock.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Names, slices of the tag, with their values as plain characters.
using TreeAttributes = std::vector<std::pair<std::string_view, std::string>>;

// Of a start tag, or an empty one, that CTextEvents has accepted. Borrows the names.
TreeAttributes ReadAttributes(std::string_view tag);

// What a macro's placeholder becomes: `text` is what stands between its braces.
void AddMacroAttributes(const std::string& text, TreeAttributes& attributes);

// As a serialiser does, each after a blank.
void WriteAttributes(const TreeAttributes& attributes, CTextBlock& out);
