// Which data type table belongs to which kind and subtype.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeTable.h"

#include <cstdint>
#include <span>

struct SDataTypeTableKey
{
    std::int64_t db;
    std::int64_t subType; // -1: of the kind as such
    const SDataTypeTable* table;
};

extern const std::span<const SDataTypeTableKey> kDataTypeTables;
