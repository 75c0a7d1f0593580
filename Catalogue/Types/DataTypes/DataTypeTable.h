// A data type table: its rows in their order, and where each name's rows begin and end. All of it is made by
// the compiler; nothing is built when the library loads.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeRow.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <stdexcept>
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

// A row of a list of changes, or where in the older table the rows after it stand.
struct SRowChange
{
    constexpr SRowChange(const SDataTypeParams& changed) : row(changed) {}
    constexpr explicit SRowChange(const char* name) : after(name) {}

    SDataTypeParams row;
    const char* after = nullptr;
};

// The rows that follow in the list stand after those of `name`.
constexpr SRowChange After(const char* name)
{
    return SRowChange(name);
}

// Rows while a table is made.
template <std::size_t kLimit>
struct SRowList
{
    std::array<SDataTypeParams, kLimit> rows{};
    std::size_t count = 0;

    // Returns: the index of the name's first row, `count` if it has none.
    constexpr std::size_t FirstOf(std::string_view name) const
    {
        std::size_t row = 0;
        while (row < count && rows[row].name != name)
            ++row;
        return row;
    }

    // Throws: at compile time, if the name has no rows.
    constexpr std::size_t EndOf(std::string_view name) const
    {
        std::size_t row = FirstOf(name);
        if (row == count)
            throw std::invalid_argument("the older table hasn't this name");
        while (row < count && rows[row].name == name)
            ++row;
        return row;
    }

    constexpr void Insert(std::size_t at, const SDataTypeParams& row)
    {
        std::ranges::copy_backward(rows.begin() + at, rows.begin() + count, rows.begin() + count + 1);
        rows[at] = row;
        ++count;
    }

    // Returns: where the rows of the name began.
    constexpr std::size_t Remove(std::string_view name)
    {
        const std::size_t first = FirstOf(name);
        const std::size_t end = EndOf(name);
        std::ranges::copy(rows.begin() + end, rows.begin() + count, rows.begin() + first);
        count -= end - first;
        return first;
    }
};

template <std::size_t kLimit>
constexpr SRowList<kLimit> ChangeRows(std::span<const SDataTypeParams> older,
                                      std::span<const SRowChange> changes,
                                      std::span<const std::string_view> gone)
{
    SRowList<kLimit> list;
    for (const SDataTypeParams& row : older)
        list.Insert(list.count, row);
    for (const std::string_view name : gone)
        list.Remove(name);
    bool isNew = false;
    std::size_t at = 0;
    std::string_view name;
    for (const SRowChange& change : changes) {
        if (change.after != nullptr) {
            at = list.EndOf(change.after);
            isNew = true;
            continue;
        }
        if (name != change.row.name) {
            name = change.row.name;
            if (!isNew)
                at = list.Remove(name);
            else if (list.FirstOf(name) != list.count)
                throw std::invalid_argument("the older table has this name");
        }
        list.Insert(at++, change.row);
    }
    return list;
}

inline constexpr std::array<SRowChange, 0> kNoChanges{};
inline constexpr std::array<std::string_view, 0> kNoNames{};

// The rows of a newer release, or of kin, by those of an older one. The rows of `kChanges` take the places of
// those that their names had, or stand as new ones where After says; the names of `kGone` have no rows, or get
// new ones elsewhere.
template <const auto& kOlder, const auto& kChanges, const auto& kGone = kNoNames>
constexpr auto NewerTypes()
{
    constexpr auto kList = ChangeRows<std::size(kOlder) + std::size(kChanges)>(kOlder, kChanges, kGone);
    std::array<SDataTypeParams, kList.count> rows{};
    std::ranges::copy_n(kList.rows.begin(), kList.count, rows.begin());
    return rows;
}

template <std::size_t kCount>
struct SNameSpans
{
    std::array<STypeNameSpan, kCount> spans{};
    std::size_t count = 0;
};

template <std::size_t kCount>
constexpr SNameSpans<kCount> CollectNameSpans(std::span<const SDataTypeParams, kCount> rows)
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
inline constexpr auto kNameSpans = CollectNameSpans(std::span(kRows));

// The table over `kRows`, an array of rows with static storage.
template <const auto& kRows>
constexpr SDataTypeTable MakeDataTypeTable()
{
    return {.rows = kRows, .names = std::span(kNameSpans<kRows>.spans).first(kNameSpans<kRows>.count)};
}

} // namespace UVDBRows
