// What of a tree an XPath expression can see. The rest need not be made for a search.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

enum class enPathTexts
{
    None,
    Joined, // as what an element holds, however it is spread over the nodes below it
    Nodes   // each as a node at its place
};

struct SPathNeeds
{
    // Elements of other names are seen only where they are around one of these.
    bool areAllElements = false;
    std::vector<std::string> elements;
    bool areAllAttributes = false;
    std::vector<std::string> attributes;
    enPathTexts texts = enPathTexts::None;
    bool areNamespaces = false;
};

// `expression` is one that XPath 1.0 allows. What it may need, it needs.
SPathNeeds NeedsOfPath(std::string_view expression);

} // namespace uvparse
