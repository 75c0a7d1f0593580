// The sheaves with the databases that they are declared for.
#pragma once

#include "Catalogue/Types/TypeMapping/MappingSheaf.h"

#include <cstdint>
#include <span>

struct SMappingSheafKey
{
    std::int64_t db;
    std::int64_t subType; // -1: of the kind as such
    std::int64_t major;
    std::int64_t minor;
    const SMappingSheaf* sheaf;
};

// In the order of declaration, by which the choice among versions goes.
extern const std::span<const SMappingSheafKey> kMappingSheaves;
