// The sheaves with the databases that they are declared for.
#pragma once

#include "Catalogue/Types/TypeMapping/MappingSheaf.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstdint>
#include <span>

struct SMappingSheafKey
{
    std::uint64_t db = UVDB_UNKNOWN_DATABASE_KIND;
    std::uint64_t subType = UVDB_NO_VERSION_WORD; // this one: of the kind as such
    std::uint64_t major = 0;
    std::uint64_t minor = 0;
    const SMappingSheaf* sheaf = nullptr;

    constexpr DB_VERSION_INFO Version() const
    {
        return {.db = db, .subType = subType, .major = major, .minor = minor};
    }
};

// In the order of declaration, by which the choice among versions goes.
extern const std::span<const SMappingSheafKey> kMappingSheaves;
