// Which data type table belongs to which kind and subtype.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeTable.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstdint>
#include <span>

struct SDataTypeTableKey
{
    std::uint64_t db = UVDB_UNKNOWN_DATABASE_KIND;
    std::uint64_t subType = UVDB_NO_VERSION_WORD; // this one: of the kind as such
    const SDataTypeTable* table = nullptr;

    constexpr DB_VERSION_INFO Version() const { return {.db = db, .subType = subType}; }
};

extern const std::span<const SDataTypeTableKey> kDataTypeTables;
