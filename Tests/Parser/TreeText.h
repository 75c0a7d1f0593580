#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

// The text of a tree: what stands between its tags.
inline std::string TreeText(std::string_view tree)
{
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
