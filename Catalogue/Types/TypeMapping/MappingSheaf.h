// What one database, in one version, calls the internal types: rows in their order, and where each type's
// rows begin and end. All of it is made by the compiler.
#pragma once

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// One rung: type and size up to which the target's name serves. The texts are literals.
struct SUVDBToDBMSDataType
{
    std::int64_t uvdbType = 0;         // internal type number
    std::uint64_t columnSize = 0;      // largest length or precision that fits
    std::int64_t leadingPrecision = 0; // carried, not tested
    std::int64_t minScale = 0;
    std::int64_t maxScale = 0;
    const char* name = ""; // the target's; "()" marks where parameters go
};

struct STypeRungs
{
    static constexpr std::int16_t kNone = -1;
    std::int16_t first = kNone;
    std::int16_t last = kNone;
};

struct SMappingSheaf
{
    std::span<const SUVDBToDBMSDataType> rows;
    std::span<const STypeRungs, kInternalTypeLimit> rungs; // by internal type

    // Returns: null if no row serves the type.
    constexpr const STypeRungs* Find(std::int64_t uvdbType) const
    {
        if (uvdbType < 0 || uvdbType >= static_cast<std::int64_t>(kInternalTypeLimit))
            return nullptr;
        const STypeRungs& found = rungs[static_cast<std::size_t>(uvdbType)];
        return found.first != STypeRungs::kNone ? &found : nullptr;
    }
};

namespace UVDBRows {

// `size`: the largest length or precision that the name takes for this type.
constexpr SUVDBToDBMSDataType Map(enInternalType type, std::uint64_t size, const char* name)
{
    return {.uvdbType = type, .columnSize = size, .name = name};
}

// The same for a scale within bounds.
constexpr SUVDBToDBMSDataType Map(enInternalType type, std::uint64_t size, std::int64_t minScale,
                                  std::int64_t maxScale, const char* name)
{
    return {.uvdbType = type, .columnSize = size, .minScale = minScale, .maxScale = maxScale, .name = name};
}

// Where each internal type stands in their list.
constexpr std::array<std::int16_t, kInternalTypeLimit> CollectListPositions()
{
    std::array<std::int16_t, kInternalTypeLimit> positions{};
    std::int16_t position = 0;
#define UVDB_TYPE(name, number, row, meaning) positions.at(number) = position++;
#define UVDB_TYPE_AGAIN(name, row)
#include "Catalogue/Types/DataTypes/InternalTypes.inc"
#undef UVDB_TYPE_AGAIN
#undef UVDB_TYPE
    return positions;
}

inline constexpr auto kListPositions = CollectListPositions();

constexpr std::int16_t ListPosition(const SUVDBToDBMSDataType& row)
{
    return kListPositions.at(static_cast<std::size_t>(row.uvdbType));
}

using TMappingRows = std::span<const SUVDBToDBMSDataType>;

constexpr bool HasType(TMappingRows rows, std::int64_t type)
{
    return std::ranges::find(rows, type, &SUVDBToDBMSDataType::uvdbType) != rows.end();
}

inline constexpr std::array<SUVDBToDBMSDataType, 0> kNoRows{};
inline constexpr std::array<enInternalType, 0> kNoTypes{};

// The rows of a newer release, or of kin, by those of an older one: a type that `kChanges` has rows for has
// these and no others, and the types of `kGone` have none.
template <const auto& kOlder, const auto& kChanges, const auto& kGone = kNoTypes>
constexpr auto Newer()
{
    static_assert(std::ranges::all_of(kGone, [](enInternalType type) { return HasType(kOlder, type); }));
    static_assert(std::ranges::none_of(kGone, [](enInternalType type) { return HasType(kChanges, type); }));

    constexpr auto isKept = [](const SUVDBToDBMSDataType& row) {
        return !HasType(kChanges, row.uvdbType) &&
               std::ranges::find(kGone, row.uvdbType) == std::ranges::end(kGone);
    };
    constexpr auto kKept = static_cast<std::size_t>(std::ranges::count_if(kOlder, isKept));
    std::array<SUVDBToDBMSDataType, kKept> kept{};
    std::ranges::copy_if(kOlder, kept.begin(), isKept);
    std::array<SUVDBToDBMSDataType, kKept + std::size(kChanges)> rows{};
    std::ranges::merge(kept, kChanges, rows.begin(), {}, ListPosition, ListPosition);
    return rows;
}

constexpr std::array<STypeRungs, kInternalTypeLimit> CollectRungs(TMappingRows rows)
{
    std::array<STypeRungs, kInternalTypeLimit> rungs{};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        STypeRungs& of = rungs[static_cast<std::size_t>(rows[row].uvdbType)];
        if (of.first == STypeRungs::kNone)
            of.first = static_cast<std::int16_t>(row);
        of.last = static_cast<std::int16_t>(row);
    }
    return rungs;
}

template <const auto& kRows>
inline constexpr auto kRungs = CollectRungs(kRows);

// The sheaf over `kRows`, an array of rows with static storage, in the order of the internal types.
template <const auto& kRows>
constexpr SMappingSheaf MakeMappingSheaf()
{
    static_assert(std::ranges::is_sorted(kRows, {}, ListPosition));
    return {.rows = kRows, .rungs = kRungs<kRows>};
}

} // namespace UVDBRows
