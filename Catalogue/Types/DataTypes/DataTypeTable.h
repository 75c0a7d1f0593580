// A data type table: its rows in their order, and where each name's rows begin and end. All of it is made by
// the compiler; nothing is built when the library loads.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeRow.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// The rows of one name: the indexes of its first and its last one. Rows of other names may stand between.
struct STypeNameSpan
{
    std::string_view name;
    std::size_t first = 0;
    std::size_t last = 0;
};

struct SDataTypeTable
{
    std::span<const SDataTypeParams> rows;
    std::span<const STypeNameSpan> names; // ascending

    // Returns: null if no row has the name.
    constexpr const STypeNameSpan* Find(std::string_view name) const
    {
        const auto found = std::lower_bound(
            names.begin(), names.end(), name,
            [](const STypeNameSpan& span, std::string_view wanted) { return span.name < wanted; });
        return found != names.end() && found->name == name ? &*found : nullptr;
    }
};

namespace UVDBRows {

template <std::size_t kCount>
struct SNameSpans
{
    std::array<STypeNameSpan, kCount> spans{};
    std::size_t count = 0;
};

template <std::size_t kCount>
constexpr SNameSpans<kCount> CollectNameSpans(const SDataTypeParams (&rows)[kCount])
{
    SNameSpans<kCount> names;
    for (std::size_t row = 0; row < kCount; ++row) {
        const std::string_view name = rows[row].name;
        std::size_t at = 0;
        while (at < names.count && names.spans[at].name < name)
            ++at;
        if (at < names.count && names.spans[at].name == name) {
            names.spans[at].last = row;
            continue;
        }
        for (std::size_t moved = names.count; moved > at; --moved)
            names.spans[moved] = names.spans[moved - 1];
        names.spans[at] = {name, row, row};
        ++names.count;
    }
    return names;
}

template <const auto& kRows>
inline constexpr auto kNameSpans = CollectNameSpans(kRows);

// The table over `kRows`, an array of rows with static storage.
template <const auto& kRows>
constexpr SDataTypeTable MakeDataTypeTable()
{
    return {.rows = kRows, .names = std::span(kNameSpans<kRows>.spans).first(kNameSpans<kRows>.count)};
}

} // namespace UVDBRows
