// Flattened trees against what uvgrammar elements says of their elements.
#pragma once

#include "Tools/uvgrammar-elements/TreeElements.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class CElementTrees
{
public:
    using TPair = std::pair<std::string, std::string>; // an element, and one that stands in it

    explicit CElementTrees(const uvelements::STreeElements& described);

    // `isClean`: the text has no mistake, so that the counts hold, too. What doesn't hold is a failure.
    void Check(std::string_view tree, bool isClean);

    int Trees() const { return m_Trees; }
    // Pairs of the trees that nothing was said of.
    std::set<TPair> Unsaid() const;
    std::size_t Said() const { return m_Said.size(); }
    // Pairs that no tree has had.
    std::set<TPair> Unseen() const;

private:
    void CheckCounts(const std::string& name, const std::map<std::string, int>& counts) const;

    std::map<std::string, std::vector<uvelements::SChild>> m_Children;
    std::set<TPair> m_Said;
    std::set<TPair> m_Seen;
    int m_Trees = 0;
};
