// What the rows of constant tables hold for, beside the kinds of databases.
#pragma once

#include "Catalogue/UVDBVersionRange.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstdint>

// A row for every subtype of its kinds.
inline constexpr std::uint64_t kAnySubType = Ver::kAnySubType;

constexpr bool FitsSubType(std::uint64_t ofRow, std::uint64_t subType)
{
    return ofRow == kAnySubType || ofRow == subType;
}

// A row for a version and all newer ones; an unknown version is newer than any. The default holds for all.
struct SFromVersion
{
    std::uint64_t major = 0;
    std::uint64_t minor = 0;

    constexpr bool Holds(const DB_VERSION_INFO& version) const
    {
        return version.major > major || (version.major == major && version.minor >= minor);
    }
};
