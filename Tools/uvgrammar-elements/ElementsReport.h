// What is told of a language's elements: for programs as JSON, for people as a page.
#pragma once

#include "Tools/uvgrammar-elements/Examples.h"
#include "Tools/uvgrammar-elements/TreeElements.h"

#include <map>
#include <string>

namespace uvelements {

struct SLanguageElements
{
    std::string language;
    STreeElements tree;
    std::map<std::string, SExample> examples; // by element
};

// Documentation/Formats.md tells its members.
std::string ElementsJson(const SLanguageElements& elements);

// Markdown. It holds no numbers of lines, so that it says the same until a tree changes.
std::string ElementsPage(const SLanguageElements& elements);

} // namespace uvelements
