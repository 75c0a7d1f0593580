// What stands in a tree, read without the house's own readers.
#pragma once

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

// Appends `text` with its entities undone.
inline void AppendPlain(std::string_view text, std::string& plain)
{
    constexpr std::pair<std::string_view, char> kEntities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&apos;", '\''}, {"&quot;", '"'}, {"&amp;", '&'}};
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&')) {
        plain += text.substr(0, at);
        text.remove_prefix(at);
        const auto* const entity =
            std::find_if(std::begin(kEntities), std::end(kEntities),
                         [&](const auto& candidate) { return text.starts_with(candidate.first); });
        if (entity == std::end(kEntities))
            throw std::runtime_error("the tree holds a bare &");
        plain += entity->second;
        text.remove_prefix(entity->first.size());
    }
    plain += text;
}

// Calls visit with the name of each tag ("/name" for an end tag) and the text after it, as it stands. The
// trees hold no other markup.
template <class Visit>
void ForEachTag(std::string_view tree, const Visit& visit)
{
    while (!tree.empty()) {
        const std::size_t end = tree.find('>');
        const std::size_t next = std::min(tree.find('<', 1), tree.size());
        if (tree.front() != '<' || end == std::string_view::npos || end > next)
            throw std::runtime_error("the tree is broken before " + std::string(tree.substr(0, 40)));
        visit(tree.substr(1, std::min(tree.find(' '), end) - 1), tree.substr(end + 1, next - end - 1));
        tree.remove_prefix(next);
    }
}

// The text of a tree, entities undone: what stands between its tags. The line feeds around the root aren't
// part of it.
inline std::string TextOfTree(std::string_view tree)
{
    if (tree.starts_with("<?xml"))
        tree.remove_prefix(std::min(tree.find("?>") + 2, tree.size()));
    tree = tree.substr(0, tree.find_last_not_of('\n') + 1);
    tree.remove_prefix(std::min(tree.find_first_not_of('\n'), tree.size()));
    std::string text;
    ForEachTag(tree, [&](std::string_view, std::string_view escaped) { AppendPlain(escaped, text); });
    return text;
}
