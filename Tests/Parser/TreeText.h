#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

// The text of a tree: what stands between its tags. The line feeds around the root aren't part of it.
inline std::string TreeText(std::string_view tree)
{
    if (tree.starts_with("<?xml"))
        tree.remove_prefix(std::min(tree.find("?>") + 2, tree.size()));
    while (tree.starts_with('\n'))
        tree.remove_prefix(1);
    while (tree.ends_with('\n'))
        tree.remove_suffix(1);
    constexpr std::pair<std::string_view, char> kEntities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&apos;", '\''}, {"&quot;", '"'}, {"&amp;", '&'}};
    std::string text;
    while (!tree.empty()) {
        std::size_t length = 1;
        if (tree.front() == '<') {
            length = std::min(tree.find('>'), tree.size() - 1) + 1;
        } else {
            char character = tree.front();
            for (const auto& [entity, meaning] : kEntities) {
                if (tree.starts_with(entity)) {
                    character = meaning;
                    length = entity.size();
                }
            }
            text += character;
        }
        tree.remove_prefix(length);
    }
    return text;
}
