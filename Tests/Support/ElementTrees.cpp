#include "Tests/Support/ElementTrees.h"

#include "Tools/uvparse/MarkupScanner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

CElementTrees::CElementTrees(const uvelements::STreeElements& described)
{
    for (const uvelements::STreeElement& element : described.elements) {
        m_Children.emplace(element.name, element.children);
        for (const uvelements::SChild& child : element.children)
            for (const std::string& name : child.names)
                m_Said.emplace(element.name, name);
    }
}

void CElementTrees::Check(std::string_view tree, bool isClean)
{
    std::vector<std::pair<std::string, std::map<std::string, int>>> open;
    uvparse::CMarkupScanner scanner(tree);
    for (uvparse::SMarkup markup; scanner.Next(markup);) {
        const std::string name(markup.name);
        const bool isEmpty = markup.kind == uvparse::enMarkup::Empty;
        if (markup.kind == uvparse::enMarkup::Start || isEmpty) {
            if (!open.empty() && name != "T__SPACE") {
                ++open.back().second[name];
                m_Seen.emplace(open.back().first, name);
            }
            open.emplace_back(name, std::map<std::string, int>());
        }
        if (markup.kind == uvparse::enMarkup::End || isEmpty) {
            ASSERT_FALSE(open.empty());
            if (isClean && !name.starts_with("T__"))
                CheckCounts(open.back().first, open.back().second);
            open.pop_back();
        }
    }
    ++m_Trees;
}

std::set<CElementTrees::TPair> CElementTrees::Unsaid() const
{
    std::set<TPair> pairs;
    std::ranges::set_difference(m_Seen, m_Said, std::inserter(pairs, pairs.end()));
    return pairs;
}

std::set<CElementTrees::TPair> CElementTrees::Unseen() const
{
    std::set<TPair> pairs;
    std::ranges::set_difference(m_Said, m_Seen, std::inserter(pairs, pairs.end()));
    return pairs;
}

void CElementTrees::CheckCounts(const std::string& name, const std::map<std::string, int>& counts) const
{
    const auto children = m_Children.find(name);
    if (children == m_Children.end()) {
        ADD_FAILURE() << "nothing is said of " << name;
        return;
    }
    for (const uvelements::SChild& child : children->second) {
        int count = 0;
        for (const std::string& one : child.names)
            if (const auto found = counts.find(one); found != counts.end())
                count += found->second;
        const std::string what = child.names.front() + " in " + name + ": " + std::to_string(count);
        EXPECT_TRUE(count > 0 || child.isOptional) << what;
        EXPECT_TRUE(count < 2 || child.isRepeated) << what;
        EXPECT_TRUE(count == 0 || !child.isOfErrors) << what;
    }
}
