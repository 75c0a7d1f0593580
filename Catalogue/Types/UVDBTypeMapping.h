// From internal types to what a target database calls them.
//
// The data of one target, in one version, is a sheaf: rows of internal type, size and scale range, and the
// target's name. A type's rows stand together with rising sizes; the last of them takes what the others
// refuse. An internal type without rows is served as VARCHAR. Texts and rows live as long as the library;
// every function here may be called from any thread at any time.
#pragma once

#include "Catalogue/Types/TypeMapping/MappingRegistry.h"
#include "Catalogue/Types/TypeMapping/MappingSheaf.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// From internal type numbers to the indexes of their first or of their last rows in one sheaf.
class CMappingTypeMap
{
public:
    constexpr CMappingTypeMap(const SMappingSheaf& sheaf, std::int16_t STypeRungs::*row)
        : m_Sheaf(&sheaf), m_Row(row)
    {}

    // Returns: the index of the row.
    constexpr std::optional<std::size_t> find(long uvdbType) const
    {
        const STypeRungs* const rungs = m_Sheaf->Find(uvdbType);
        return rungs ? std::optional(static_cast<std::size_t>(rungs->*m_Row)) : std::nullopt;
    }

private:
    const SMappingSheaf* m_Sheaf;
    std::int16_t STypeRungs::*m_Row;
};

// ---- Choosing a sheaf ----

// The position of the sheaf that serves a version: the database's own, or COMMON's if it has none. Among
// versions it is the oldest major that isn't below the asked one, the newest if all are below; of the very
// major the asked minor, the newest if that isn't there. An unknown version (all ones) is served by the
// newest. A subtype's own sheaves come before the kind's; a subtype that has none gets the kind's last, in
// any version.
// Returns: -1 if `keys` has neither; over kMappingSheaves that doesn't happen.
long ChooseMappingSheaf(std::span<const SMappingSheafKey> keys, DB_VERSION_INFO version);

long GetIndex(DB_VERSION_INFO version);

// The sheaf's rows in their order, and where the rows of its types begin and end.
std::span<const SUVDBToDBMSDataType> GetUVDBToDBMSDataTypeList(DB_VERSION_INFO version);
CMappingTypeMap GetUVDBToDBMSDataTypeMapFirst(DB_VERSION_INFO version);
CMappingTypeMap GetUVDBToDBMSDataTypeMapLast(DB_VERSION_INFO version);

// ---- From internal types to names ----

// Appends the type's rows that take size and scale, and its last one in any case; with `smaller` instead all
// those that are too small, the last one never. `precision` isn't read.
void UVDBToDBMSDataTypesRange(DB_VERSION_INFO version, long uvdbType, unsigned long size, long precision,
                              long scale, UVDB::CArray<const SUVDBToDBMSDataType*>& rows, bool smaller);

// The first row that takes size and scale. Its type isn't the asked one where that is served as VARCHAR.
// Returns: null if the sheaf hasn't even VARCHAR; that doesn't happen.
const SUVDBToDBMSDataType* FindMappingRow(DB_VERSION_INFO version, long uvdbType, unsigned long size,
                                          long scale);

// That row's name, "UNKNOWN" without one. The choice is traced.
const char* UVDBToDBMSDataType2(DB_VERSION_INFO version, long uvdbType, unsigned long size, long precision,
                                long scale);

// The same with the names that identity columns have instead in Pervasive and Sybase.
const char* UVDBToDBMSDataType(DB_VERSION_INFO version, long uvdbType, unsigned long size, long precision,
                               long scale, bool identity);

// What stands for a type of which nothing is known: a VARCHAR of 255. Sets the arguments to it.
// Returns: its name.
const char* GetDefaultDBMSDataType(DB_VERSION_INFO version, long& uvdbType, unsigned long& size,
                                   long& precision, long& scale);
