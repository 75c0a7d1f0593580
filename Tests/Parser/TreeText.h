#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

// The text of a tree: what stands between its tags. The line feeds around the root aren't part of it.
inline std::string TreeText(std::string_view tree)
{
    if (tree.starts_with("<?xml"))
        tree.remove_prefix(std::min(tree.find("?>") + 2, tree.size()));
    tree = tree.substr(0, tree.find_last_not_of('\n') + 1);
    tree.remove_prefix(std::min(tree.find_first_not_of('\n'), tree.size()));
    Uve::U8CString text;
    while (!tree.empty()) {
        const std::size_t tag = std::min(tree.find('<'), tree.size());
        text.append(tree.substr(0, tag));
        tree.remove_prefix(std::min(tree.find('>', tag), tree.size() - 1) + 1);
    }
    for (const auto& [entity, meaning] :
         {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&apos;", "'"}, {"&quot;", "\""}, {"&amp;", "&"}})
        text.Replace(entity, meaning);
    return text;
}
