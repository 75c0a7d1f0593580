#include "Catalogue/Identifiers/UVDBAsciiCase.h"
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

namespace {

// Order is meaning: the first row that fits decides.
struct STextRow
{
    CKindSet kinds;
    const char* text;
    std::uint64_t subType = kAnySubType;
};

constexpr STextRow kDelimiters[] = {
    {{UVDB_DB_DB2, UVDB_DB_MSSQL_GOOGLE_CLOUD_SQL, UVDB_DB_PERVASIVE, UVDB_DB_HIRDB, UVDB_DB_SAP_HANA}, ""},
    {CKindSet::All(), ";"},
};

constexpr STextRow kVariablePrefixes[] = {
    {{UVDB_DB_MSSQL, UVDB_DB_SYBASE, UVDB_DB_COMMON}, "@"},
    {{UVDB_DB_PERVASIVE}, ":"},
    {CKindSet::All(), ""},
};

constexpr STextRow kDefaultSchemas[] = {
    {{UVDB_DB_MSSQL, UVDB_DB_SYBASE}, "dbo"},
    {{UVDB_DB_INFORMIX}, "informix"},
    {{UVDB_DB_POSTGRESQL, UVDB_DB_PostgresPro}, "public"},
    {CKindSet::All(), ""},
};

// Names that the catalogue lists, but that own nothing of the user's.
constexpr STextRow kNoSchemas[] = {
    {{UVDB_DB_MSSQL}, "guest"},
    {{UVDB_DB_SYBASE}, "guest", UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE},
    {{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_VPOSTGRES}, "public"},
};

// What the drivers call the tables that a user can fill. A sheet of Excel is a system table to its driver,
// only named ranges are tables.
constexpr STextRow kTableTypes[] = {
    {{UVDB_DB_DB2, UVDB_DB_HIRDB}, "TABLE,ALIAS,SYNONYM"},
    {{UVDB_DB_EXCEL}, "TABLE,SYSTEM TABLE"},
    {{UVDB_DB_MySQL, UVDB_DB_MARIADB, UVDB_DB_MySQL_AMAZON_AURORA, UVDB_DB_MySQL_GOOGLE_CLOUD_SQL,
      UVDB_DB_SingleStoreDB, UVDB_DB_SNOWFLAKE},
     "BASE TABLE,TABLE"},
    {{UVDB_DB_SYBASE}, "TABLE", UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE},
    {{UVDB_DB_SYBASE, UVDB_DB_SAP_HANA}, "TABLE,GLOBAL TEMPORARY"},
    {CKindSet::All(), "TABLE"},
};

const STextRow* FindRow(std::span<const STextRow> rows, std::uint64_t db, std::uint64_t subType)
{
    const auto row = std::ranges::find_if(rows, [&](const STextRow& candidate) {
        return candidate.kinds.Has(db) && FitsSubType(candidate.subType, subType);
    });
    return row != rows.end() ? &*row : nullptr;
}

Uve::U8CString TextOf(std::span<const STextRow> rows, const DB_VERSION_INFO& version)
{
    return FindRow(rows, version.db, version.subType)->text;
}

} // namespace

Uve::U8CString GetDBMStatementDelimeter(DB_VERSION_INFO version)
{
    return TextOf(kDelimiters, version);
}

Uve::U8CString DBMSVariablePrefix(DB_VERSION_INFO version)
{
    return TextOf(kVariablePrefixes, version);
}

Uve::U8CString GetDefaultSchema(DB_VERSION_INFO version)
{
    return TextOf(kDefaultSchemas, version);
}

bool UVDBIsValidSchemaName(DB_VERSION_INFO version, const Uve::U8CString& name)
{
    const STextRow* const refused = FindRow(kNoSchemas, version.db, version.subType);
    return !refused || !UVDBEqualNoCase(name, refused->text);
}

Uve::U8CString GetUVDBDBTableType(unsigned long db, unsigned long subType)
{
    return FindRow(kTableTypes, db, subType)->text;
}
