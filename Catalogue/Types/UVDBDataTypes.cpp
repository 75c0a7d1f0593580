#include "Catalogue/Types/UVDBDataTypes.h"

#include "Catalogue/Types/DataTypes/DataTypeRegistry.h"
#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/DataTypes/InternalTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEUnicode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <strings.h>

namespace {

constexpr long kSqlVarchar = 12;

constexpr SDataTypeTable kEmptyTable{};

// The tables of one kind: a few entries in a row, for the registry keeps kinds together or nearly so.
struct STablesOfKind
{
    std::size_t first = 0;
    std::size_t end = 0; // equal to `first` for a kind without tables
};

// Kinds are numbers below.
constexpr std::size_t kKindLimit = 256;

std::array<STablesOfKind, kKindLimit> CollectTablesOfKinds()
{
    std::array<STablesOfKind, kKindLimit> kinds{};
    for (std::size_t i = 0; i < kDataTypeTables.size(); ++i) {
        STablesOfKind& kind = kinds.at(kDataTypeTables[i].db);
        if (kind.end == 0)
            kind.first = i;
        kind.end = i + 1;
    }
    return kinds;
}

std::string_view TextOf(const char* name)
{
    return name ? name : "";
}

void MakeUpper(std::string& text)
{
    if (!Uve::utf8_is_ascii(text)) {
        text = Uve::utf8_to_uppercase(text);
        return;
    }
    for (char& letter : text) {
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    }
}

// `params` may be null.
std::string MakeKey(const char* name, std::string* params, std::uint64_t db, long mode)
{
    std::string key(TextOf(name));
    if (mode != UVDB_TYPE_NAME_AS_WRITTEN)
        MakeUpper(key);
    for (std::size_t open = key.find('('); open != std::string::npos; open = key.find('(', open + 2)) {
        const std::size_t close = key.find(')', open);
        if (close == std::string::npos)
            break;
        if (params)
            params->append(key, open + 1, close - open - 1).append(1, ';');
        if (db == UVDB_DB_MSSQL && close + 1 == key.size()) {
            key.erase(open);
            break;
        }
        key.erase(open + 1, close - open - 1);
    }
    return key;
}

// The rows of the name, as indexes into the table.
// Returns: null for an unknown name.
const STypeNameSpan* FindName(const SDataTypeTable& table, DB_VERSION_INFO version, const char* name)
{
    return table.Find(MakeKey(name, nullptr, version.db, -1));
}

// The same as rows.
std::span<const SDataTypeParams> RowsOfName(DB_VERSION_INFO version, const char* name)
{
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    const STypeNameSpan* const found = FindName(table, version, name);
    return found ? table.rows.subspan(found->first, found->last - found->first + 1)
                 : std::span<const SDataTypeParams>{};
}

} // namespace

std::optional<std::size_t> CInternalTypeMap::find(long uvdbType) const
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row ? std::optional(static_cast<std::size_t>(row - g_listUVDBDataTypesParams.data()))
               : std::nullopt;
}

const SDataTypeTable& SetDBMSDataTypeParamsList(DB_VERSION_INFO version)
{
    static const auto kinds = CollectTablesOfKinds();
    const STablesOfKind kind = version.db < kinds.size() ? kinds[version.db] : STablesOfKind{};
    const SDataTypeTable* ofKind = &kEmptyTable;
    for (std::size_t i = kind.first; i < kind.end; ++i) {
        const SDataTypeTableKey& key = kDataTypeTables[i];
        if (key.db != version.db)
            continue;
        if (key.subType == version.subType)
            return *key.table;
        if (key.subType == UVDB_NO_VERSION_WORD)
            ofKind = key.table;
    }
    return *ofKind;
}

std::span<const SDataTypeParams> GetDBMSDataTypeParamsList(DB_VERSION_INFO version)
{
    return SetDBMSDataTypeParamsList(version).rows;
}

CDataTypeNameMap GetDBMSDataTypeParamsMapFirst(DB_VERSION_INFO version)
{
    return {SetDBMSDataTypeParamsList(version), &STypeNameSpan::first};
}

CDataTypeNameMap GetDBMSDataTypeParamsMapLast(DB_VERSION_INFO version)
{
    return {SetDBMSDataTypeParamsList(version), &STypeNameSpan::last};
}

std::span<const SDataTypeParams> GetUVDBDataTypeParamsList()
{
    return g_listUVDBDataTypesParams;
}

CInternalTypeMap GetUVDBDataTypeParamsMap()
{
    return {};
}

long GetUVDBDataType(const char* name)
{
    const auto rows = g_listUVDBDataTypesParams;
    const auto found = std::ranges::find(
        rows, TextOf(name), [](const SDataTypeParams& row) { return std::string_view(row.name); });
    return found != rows.end() ? found->uvdbType : -1;
}

const SDataTypeParams* GetUVDBDataTypeParams(long uvdbType)
{
    return FindInternalType(uvdbType);
}

const char* GetUVDBDataTypeName(long uvdbType)
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row ? row->name : "";
}

const char* GetUVDBDataTypeCreateParams(long uvdbType)
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row ? row->createParams : "";
}

unsigned long GetUVDBDataTypeColumnSizePurpose(long uvdbType)
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row ? row->columnSizePurpose : 0;
}

bool IsUVDBDataTypeScaleValid(long uvdbType)
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row && row->isScaleValid;
}

bool IsUVDBDataTypePrecScaleFixed(long uvdbType)
{
    const SDataTypeParams* const row = FindInternalType(uvdbType);
    return row && row->isPrecScaleFixed;
}

Uve::U8CString NormalizeTypeName(const char* name, Uve::U8CString& params, DB_VERSION_INFO version, long mode)
{
    std::string found;
    Uve::U8CString key = MakeKey(name, &found, version.db, mode);
    params = std::move(found); // after the key is made: `name` may point into it
    return key;
}

Uve::U8CString NormalizeTypeName(const char* name, DB_VERSION_INFO version)
{
    return MakeKey(name, nullptr, version.db, -1);
}

long DBMSToUVDBDataType(DB_VERSION_INFO version, const char* name)
{
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    const STypeNameSpan* const found = FindName(table, version, name);
    return found ? table.rows[found->last].uvdbType : -1;
}

long DBMSToUVDBDataType(DB_VERSION_INFO version, const char* name, unsigned long size, long, long scale)
{
    const SDataTypeParams* const row = FindDBMSDataTypeRow(version, name, size, scale);
    return row ? row->uvdbType : -1;
}

const SDataTypeParams* FindDBMSDataTypeRow(DB_VERSION_INFO version, const char* name, unsigned long size,
                                           long scale)
{
    const SDataTypeParams* chosen = nullptr;
    // Rows of other names between first and last rung compete too; the tables are laid out for it.
    for (const SDataTypeParams& row : RowsOfName(version, name)) {
        CLogWrapper::WriteTraceF("SourceDataType: %d, %s, %d, %d, %d", static_cast<int>(row.uvdbType),
                                 row.name, static_cast<int>(row.columnSize), static_cast<int>(row.minScale),
                                 static_cast<int>(row.maxScale));
        chosen = &row;
        if (row.columnSize >= size && (!row.isScaleValid || (row.minScale <= scale && scale <= row.maxScale)))
            break;
    }
    return chosen;
}

void DBMSToUVDBDataTypeRange(DB_VERSION_INFO version, const char* name,
                             UVDB::CArray<const SDataTypeParams*>& rows)
{
    for (const SDataTypeParams& row : RowsOfName(version, name))
        rows.push_back(&row);
}

const SDataTypeParams& GetDBMSDataTypeParams(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    const auto rows = RowsOfName(version, name);
    if (rows.empty())
        return kNullSDataTypeParams;
    const auto found = std::ranges::find(rows, uvdbType, &SDataTypeParams::uvdbType);
    return found != rows.end() ? *found : rows.back();
}

const char* GetDBMSDataTypeCreateParams(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    return GetDBMSDataTypeParams(version, name, uvdbType).createParams;
}

unsigned long GetDBMSDataTypeColumnSizePurpose(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    return GetDBMSDataTypeParams(version, name, uvdbType).columnSizePurpose;
}

bool IsDBMSDataTypeScaleValid(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    return GetDBMSDataTypeParams(version, name, uvdbType).isScaleValid;
}

bool IsDBMSDataTypeLeadingPrecisionValid(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    return GetDBMSDataTypeParams(version, name, uvdbType).isLeadingPrecisionValid;
}

bool IsDBMSDataTypePrecScaleFixed(DB_VERSION_INFO version, const char* name, long uvdbType)
{
    return GetDBMSDataTypeParams(version, name, uvdbType).isPrecScaleFixed;
}

long ODBCToUVDBDataType(DB_VERSION_INFO version, long odbcType, const char* name, unsigned long size,
                        long precision, long scale)
{
    const long byName = DBMSToUVDBDataType(version, name, size, precision, scale);
    if (byName != -1)
        return byName;
    const char* const text = name ? name : "";
    if (strcasecmp(text, "SMALLMONEY") == 0)
        return UVDBRows::SmallMoney;
    if (strcasecmp(text, "MONEY") == 0)
        return UVDBRows::Money;
    const auto found = std::ranges::find(g_ODBCToUVDBDataType, odbcType, &SODBCToUVDBDataType::odbcType);
    return found != g_ODBCToUVDBDataType.end() ? found->uvdbType : -1;
}

long UVDBToODBCDataType(DB_VERSION_INFO, long uvdbType)
{
    const auto found = std::ranges::find(g_ODBCToUVDBDataType, uvdbType, &SODBCToUVDBDataType::uvdbType);
    return found != g_ODBCToUVDBDataType.end() ? found->odbcType : kSqlVarchar;
}
