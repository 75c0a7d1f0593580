// The internal types, which stand between the types of all databases, and what ODBC calls them.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeRow.h"

#include <cstdint>
#include <span>

// In the order of the list. The numbers are contract; two names and one number stand twice.
extern const std::span<const SDataTypeParams> g_listUVDBDataTypesParams;

// Returns: the number's first row, null if no row has it.
const SDataTypeParams* FindInternalType(std::int64_t uvdbType);

struct SODBCToUVDBDataType
{
    std::int64_t odbcType;
    std::int64_t uvdbType;
};

// The first of several ODBC numbers for one internal type is the one that is answered with.
extern const std::span<const SODBCToUVDBDataType> g_ODBCToUVDBDataType;
