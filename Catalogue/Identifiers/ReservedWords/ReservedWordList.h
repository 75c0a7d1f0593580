// Words that a database or language doesn't take as plain names, as it publishes them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace UVDBRows {

using TWords = std::span<const std::string_view>;

// Upper case, ascending, without repeats: what looking up relies on.
constexpr bool AreReservedWords(TWords words)
{
    const auto isPlain = [](std::string_view word) {
        return !word.empty() && std::ranges::none_of(word, [](char c) { return c >= 'a' && c <= 'z'; });
    };
    return std::ranges::all_of(words, isPlain) &&
           std::ranges::adjacent_find(words, std::ranges::greater_equal()) == words.end();
}

inline constexpr std::array<std::string_view, 0> kNoWords{};

// The words of kin: those of `kOlder` without `kGone`, and `kAdded`. All three ascend.
template <const auto& kOlder, const auto& kAdded, const auto& kGone = kNoWords>
constexpr auto NewerWords()
{
    static_assert(AreReservedWords(kOlder) && AreReservedWords(kAdded) && AreReservedWords(kGone));
    static_assert(std::ranges::includes(kOlder, kGone), "what goes must have been there");
    static_assert(std::ranges::none_of(
                      kAdded, [](std::string_view word) { return std::ranges::binary_search(kOlder, word); }),
                  "what is added mustn't have been there");

    std::array<std::string_view, std::size(kOlder) - std::size(kGone)> kept{};
    std::ranges::set_difference(kOlder, kGone, kept.begin());
    std::array<std::string_view, std::size(kept) + std::size(kAdded)> words{};
    std::ranges::merge(kept, kAdded, words.begin());
    return words;
}

} // namespace UVDBRows
