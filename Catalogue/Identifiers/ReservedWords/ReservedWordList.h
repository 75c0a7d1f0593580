// Words that a database or language doesn't take as plain names, as it publishes them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace UVDBRows {

// Upper case, ascending, without repeats: what looking up relies on.
template <std::size_t kCount>
constexpr bool AreReservedWords(const std::string_view (&words)[kCount])
{
    const auto isPlain = [](std::string_view word) {
        return !word.empty() && std::ranges::none_of(word, [](char c) { return c >= 'a' && c <= 'z'; });
    };
    return std::ranges::all_of(words, isPlain) &&
           std::ranges::adjacent_find(words, std::ranges::greater_equal()) == std::ranges::end(words);
}

} // namespace UVDBRows
