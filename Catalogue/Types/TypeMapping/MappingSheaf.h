// What one database, in one version, calls the internal types: rows in their order, and where each type's
// rows begin and end. All of it is made by the compiler.
#pragma once

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"

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

template <std::size_t kCount>
constexpr std::array<STypeRungs, kInternalTypeLimit> CollectRungs(const SUVDBToDBMSDataType (&rows)[kCount])
{
    std::array<STypeRungs, kInternalTypeLimit> rungs{};
    for (std::size_t row = 0; row < kCount; ++row) {
        STypeRungs& of = rungs[static_cast<std::size_t>(rows[row].uvdbType)];
        if (of.first == STypeRungs::kNone)
            of.first = static_cast<std::int16_t>(row);
        of.last = static_cast<std::int16_t>(row);
    }
    return rungs;
}

template <const auto& kRows>
inline constexpr auto kRungs = CollectRungs(kRows);

// The sheaf over `kRows`, an array of rows with static storage.
template <const auto& kRows>
constexpr SMappingSheaf MakeMappingSheaf()
{
    return {.rows = kRows, .rungs = kRungs<kRows>};
}

} // namespace UVDBRows
