#include "Catalogue/Types/UVDBTypeMapping.h"

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/LogSystem.h"

#include <array>

namespace {

constexpr std::array<STypeRungs, kInternalTypeLimit> kNoRungs{};
constexpr SMappingSheaf kEmptySheaf{.rows = {}, .rungs = kNoRungs};

const SMappingSheaf& SheafOf(DB_VERSION_INFO version)
{
    const long index = GetIndex(version);
    return index >= 0 ? *kMappingSheaves[static_cast<std::size_t>(index)].sheaf : kEmptySheaf;
}

// The choice among the sheaves of one kind.
// Returns: -1 if it has none.
long ChooseOfKind(std::span<const SMappingSheafKey> keys, const DB_VERSION_INFO& version)
{
    long chosen = -1;
    // From the newest version of a kind back to its oldest.
    for (std::size_t i = keys.size(); i-- > 0;) {
        const SMappingSheafKey& key = keys[i];
        if (key.db != version.db)
            continue;
        if (chosen >= 0) {
            const SMappingSheafKey& candidate = keys[static_cast<std::size_t>(chosen)];
            if (key.subType != version.subType)
                continue;
            if (candidate.subType == version.subType) {
                if (key.major < version.major)
                    continue;
                // Under the asked major only the very minor takes the place of another.
                if (candidate.major == version.major &&
                    (key.minor != version.minor || candidate.minor == version.minor))
                    continue;
            }
        }
        chosen = static_cast<long>(i);
    }
    return chosen;
}

// The type's rows, ended by its catch-all. Rows of other types don't stand between.
std::span<const SUVDBToDBMSDataType> RowsOfType(const SMappingSheaf& sheaf, long uvdbType)
{
    const STypeRungs* const rungs = sheaf.Find(uvdbType);
    if (!rungs)
        return {};
    const auto first = static_cast<std::size_t>(rungs->first);
    return sheaf.rows.subspan(first, static_cast<std::size_t>(rungs->last) - first + 1);
}

bool IsFitting(const SUVDBToDBMSDataType& row, unsigned long size, long scale)
{
    return row.columnSize >= size && row.minScale <= scale && scale <= row.maxScale;
}

const SUVDBToDBMSDataType* FindFitting(std::span<const SUVDBToDBMSDataType> rows, unsigned long size,
                                       long scale)
{
    for (const SUVDBToDBMSDataType& row : rows) {
        if (&row == &rows.back() || IsFitting(row, size, scale))
            return &row;
    }
    return nullptr;
}

} // namespace

long ChooseMappingSheaf(std::span<const SMappingSheafKey> keys, DB_VERSION_INFO version)
{
    const long ofKind = ChooseOfKind(keys, version);
    return ofKind >= 0 ? ofKind : ChooseOfKind(keys, {.db = UVDB_DB_COMMON});
}

long GetIndex(DB_VERSION_INFO version)
{
    return ChooseMappingSheaf(kMappingSheaves, version);
}

std::span<const SUVDBToDBMSDataType> GetUVDBToDBMSDataTypeList(DB_VERSION_INFO version)
{
    return SheafOf(version).rows;
}

CMappingTypeMap GetUVDBToDBMSDataTypeMapFirst(DB_VERSION_INFO version)
{
    return {SheafOf(version), &STypeRungs::first};
}

CMappingTypeMap GetUVDBToDBMSDataTypeMapLast(DB_VERSION_INFO version)
{
    return {SheafOf(version), &STypeRungs::last};
}

void UVDBToDBMSDataTypesRange(DB_VERSION_INFO version, long uvdbType, unsigned long size, long, long scale,
                              UVDB::CArray<const SUVDBToDBMSDataType*>& rows, bool smaller)
{
    const auto ofType = RowsOfType(SheafOf(version), uvdbType);
    for (const SUVDBToDBMSDataType& row : ofType) {
        const bool isLast = &row == &ofType.back();
        if (smaller ? !isLast && row.columnSize < size : isLast || IsFitting(row, size, scale))
            rows.push_back(&row);
    }
}

const SUVDBToDBMSDataType* FindMappingRow(DB_VERSION_INFO version, long uvdbType, unsigned long size,
                                          long scale)
{
    const SMappingSheaf& sheaf = SheafOf(version);
    const SUVDBToDBMSDataType* const row = FindFitting(RowsOfType(sheaf, uvdbType), size, scale);
    return row ? row : FindFitting(RowsOfType(sheaf, UVDBRows::VarChar), size, 0);
}

const char* UVDBToDBMSDataType2(DB_VERSION_INFO version, long uvdbType, unsigned long size, long, long scale)
{
    const SUVDBToDBMSDataType* const row = FindMappingRow(version, uvdbType, size, scale);
    if (!row)
        return "UNKNOWN";
    CLogWrapper::WriteTraceF("\nDatatype mapping: %s, %d, %d, %d", row->name,
                             static_cast<int>(row->columnSize), static_cast<int>(row->minScale),
                             static_cast<int>(row->maxScale));
    return row->name;
}

const char* UVDBToDBMSDataType(DB_VERSION_INFO version, long uvdbType, unsigned long size, long precision,
                               long scale, bool identity)
{
    if (identity && version.db == UVDB_DB_PERVASIVE)
        return uvdbType == UVDBRows::SmallInt ? "SMALLIDENTITY" : "IDENTITY";
    if (identity && version.db == UVDB_DB_SYBASE)
        return "NUMERIC";
    return UVDBToDBMSDataType2(version, uvdbType, size, precision, scale);
}

const char* GetDefaultDBMSDataType(DB_VERSION_INFO version, long& uvdbType, unsigned long& size,
                                   long& precision, long& scale)
{
    uvdbType = UVDBRows::VarChar;
    size = 255;
    precision = 0;
    scale = 0;
    return UVDBToDBMSDataType2(version, uvdbType, size, precision, scale);
}
