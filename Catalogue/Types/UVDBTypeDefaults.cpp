// What databases assume for the numbers that a type leaves out.
#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

namespace {

constexpr std::uint64_t kAnyDatabase = UVDB_UNKNOWN_DATABASE_KIND;

// A size that is left open: the look-ups read it as "not known".
constexpr unsigned long kOpen = 0;

struct SDefaultSize
{
    std::uint64_t db;
    std::string_view name; // the name in the tables, or how it starts where `isPrefix`
    bool isPrefix;
    unsigned long size;
};

// The first that fits counts. A name without a row here has the largest size that it can be given.
// clang-format off
constexpr SDefaultSize kSizes[] = {
//   database            name                 prefix  size
    {UVDB_DB_DB2,         "CLOB",              false, 1048576},
    {UVDB_DB_DB2,         "BLOB",              false, 1048576},
    {UVDB_DB_DB2,         "DBCLOB",            false, 1048576},
    {UVDB_DB_DB2,         "DECIMAL",           false,       5},
    {UVDB_DB_DB2,         "DEC",               false,       5},
    {UVDB_DB_DB2,         "NUMERIC",           false,       5},
    {UVDB_DB_INFORMIX,    "LVARCHAR",          false,    2048},
    {UVDB_DB_INFORMIX,    "MONEY",             false,      16},
    {UVDB_DB_INFORMIX,    "VARCHAR",           false,       1},
    {UVDB_DB_INFORMIX,    "CHARACTER VARYING", false,       1},
    {UVDB_DB_INFORMIX,    "NVARCHAR",          false,       1},
    {UVDB_DB_MSSQL,       "DEC",               true,       18},
    {UVDB_DB_MSSQL,       "NUMERIC",           false,      18},
    {UVDB_DB_MSSQL,       "VAR",               true,        1},
    {UVDB_DB_MSSQL,       "NVARCHAR",          false,       1},
    {UVDB_DB_SYBASE,      "DEC",               true,       18},
    {UVDB_DB_SYBASE,      "NUMERIC",           true,       18},
    {UVDB_DB_SYBASE,      "VAR",               true,        1},
    {UVDB_DB_SYBASE,      "NVARCHAR",          false,       1},
    {UVDB_DB_SYBASE,      "UNIVARCHAR",        false,       1},
    {UVDB_DB_MySQL,       "DECIMAL",           false,      10},
    {UVDB_DB_MySQL,       "NUMERIC",           false,      10},
    {UVDB_DB_SingleStoreDB, "DECIMAL",         false,      10},
    {UVDB_DB_SingleStoreDB, "NUMERIC",         false,      10},
    {UVDB_DB_GBASE,       "DECIMAL",           false,      10},
    {UVDB_DB_GBASE,       "NUMERIC",           false,      10},
    {UVDB_DB_POSTGRESQL,  "VARCHAR",           false,   kOpen},
    {UVDB_DB_POSTGRESQL,  "CHARACTER VARYING", false,   kOpen},
    {UVDB_DB_REDSHIFT,    "DECIMAL",           false,      18},
    {UVDB_DB_REDSHIFT,    "NUMERIC",           false,      18},
    {UVDB_DB_REDSHIFT,    "VARCHAR",           false,     256},
    {UVDB_DB_REDSHIFT,    "CHARACTER VARYING", false,     256},
    {UVDB_DB_TERADATA,    "DEC",               true,        5},
    {UVDB_DB_TERADATA,    "NUMERIC",           false,       5},
    {UVDB_DB_NETEZZA,     "DECIMAL",           false,      18},
    {UVDB_DB_NETEZZA,     "NUMERIC",           false,      18},
    {UVDB_DB_SPLICE_MACHINE, "DECIMAL",        false,       5},
    {UVDB_DB_SPLICE_MACHINE, "NUMERIC",        false,       5},
    {UVDB_DB_FIREBIRD,    "DECIMAL",           false,       9},
    {UVDB_DB_FIREBIRD,    "NUMERIC",           false,       9},
    {UVDB_DB_INTERBASE,   "DECIMAL",           false,       9},
    {UVDB_DB_INTERBASE,   "NUMERIC",           false,       9},
    {kAnyDatabase,        "CHAR",              false,       1},
    {kAnyDatabase,        "CHARACTER",         false,       1},
    {kAnyDatabase,        "CHAR()",            true,        1},
    {kAnyDatabase,        "CHARACTER()",       true,        1},
    {kAnyDatabase,        "NCHAR",             false,       1},
    {kAnyDatabase,        "NATIONAL CHAR",     false,       1},
    {kAnyDatabase,        "NATIONAL CHARACTER", false,      1},
    {kAnyDatabase,        "UNICHAR",           false,       1},
    {kAnyDatabase,        "GRAPHIC",           false,       1},
    {kAnyDatabase,        "BINARY",            false,       1},
    {kAnyDatabase,        "BIT",               false,       1},
    {kAnyDatabase,        "BIT()",             true,        1},
};
// clang-format on

// Digits after the second, where a time is written without.
struct SDefaultFraction
{
    std::uint64_t db;
    long digits;
};

// The first that fits counts; no type gets more than it can have.
constexpr SDefaultFraction kFractions[] = {
    {UVDB_DB_MSSQL, 7}, {UVDB_DB_SAP_HANA, 7}, {UVDB_DB_MySQL, 0},        {UVDB_DB_SingleStoreDB, 0},
    {UVDB_DB_GBASE, 0}, {UVDB_DB_INFORMIX, 3}, {UVDB_DB_4GL_INFORMIX, 3}, {kAnyDatabase, 6},
};

// Digits after the point of Informix's MONEY.
constexpr long kCents = 2;

// A decimal that floats unless it has a scale.
struct SFloatingDecimal
{
    std::uint64_t db;
    std::string_view name;
    bool isPrecisionAllowed; // it floats with a precision alone as well
};

// clang-format off
constexpr SFloatingDecimal kFloatingDecimals[] = {
//   database               name        precision
    {UVDB_DB_POSTGRESQL,    "DECIMAL",  false},
    {UVDB_DB_POSTGRESQL,    "NUMERIC",  false},
    {UVDB_DB_ENTERPRISEDB,  "DECIMAL",  false},
    {UVDB_DB_ENTERPRISEDB,  "NUMERIC",  false},
    {UVDB_DB_GREENPLUM,     "DECIMAL",  false},
    {UVDB_DB_GREENPLUM,     "NUMERIC",  false},
    {UVDB_DB_VPOSTGRES,     "DECIMAL",  false},
    {UVDB_DB_VPOSTGRES,     "NUMERIC",  false},
    {UVDB_DB_INFORMIX,      "DECIMAL",  true},
    {UVDB_DB_INFORMIX,      "DEC",      true},
    {UVDB_DB_INFORMIX,      "NUMERIC",  true},
    {UVDB_DB_TERADATA,      "NUMBER",   false},
    {UVDB_DB_4GL_INFORMIX,  "DECIMAL",  true},
    {UVDB_DB_4GL_INFORMIX,  "DEC",      true},
};
// clang-format on

// Digits of an interval's first field.
constexpr long kLeadingDigits = 2;
constexpr long kInformixYearDigits = 4;

// Of intervals whose first field isn't limited, more than any target takes.
constexpr long kUnlimitedLeadingDigits = 9;

unsigned long DefaultSize(std::uint64_t db, const SDataTypeParams& row)
{
    const std::string_view name = row.name;
    for (const SDefaultSize& known : kSizes) {
        if ((known.db == db || known.db == kAnyDatabase) &&
            (known.isPrefix ? name.starts_with(known.name) : name == known.name))
            return std::min<unsigned long>(known.size, row.columnSize);
    }
    return row.columnSize;
}

long DefaultFraction(std::uint64_t db)
{
    const auto* const known = std::ranges::find_if(kFractions, [db](const SDefaultFraction& fraction) {
        return fraction.db == db || fraction.db == kAnyDatabase;
    });
    return known->digits;
}

// As zero digits after the point, the fraction of a floating decimal would be lost.
bool FloatsWithoutScale(std::uint64_t db, STypeText& type)
{
    const std::string_view name = type.name.c_str();
    const auto* const found = std::ranges::find_if(kFloatingDecimals, [&](const SFloatingDecimal& decimal) {
        return decimal.db == db && decimal.name == name;
    });
    if (found == std::end(kFloatingDecimals) || type.numbers.hasScale ||
        (type.numbers.hasSize && !found->isPrecisionAllowed))
        return false;
    type.uvdbType = UVDBRows::DecFloat;
    type.numbers = {};
    return true;
}

long DefaultScale(std::uint64_t db, const SDataTypeParams& row)
{
    const bool isInformix = db == UVDB_DB_INFORMIX || db == UVDB_DB_4GL_INFORMIX;
    return isInformix && std::string_view(row.name) == "MONEY" ? kCents : 0;
}

// The rung of the type as it was written: with parameters or without.
const SDataTypeParams& RowOf(std::span<const SDataTypeParams> rows, bool hasParameters)
{
    const std::string_view name = rows.front().name;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (row->name == name && (*row->createParams != '\0') == hasParameters)
            return *row;
    }
    return rows.back();
}

} // namespace

void CompleteTypeNumbers(DB_VERSION_INFO version, STypeText& type)
{
    if (FloatsWithoutScale(version.db, type))
        return;
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    const STypeNameSpan* const span = table.Find(NormalizeTypeName(type.name.c_str(), version));
    if (!type.error.empty() || !span)
        return;
    STypeNumbers& numbers = type.numbers;
    const SDataTypeParams& row = RowOf(table.rows.subspan(span->first, span->last - span->first + 1),
                                       numbers.hasSize || numbers.hasScale || numbers.hasLeadingPrecision);

    const bool isTime = row.isScaleValid && row.columnSizePurpose == UVDB_SIZE_IS_LENGTH;
    if (!numbers.hasScale && row.isScaleValid) {
        const long digits = isTime ? DefaultFraction(version.db) : DefaultScale(version.db, row);
        numbers.scale = std::clamp<long>(digits, row.minScale, row.maxScale);
    }
    if (!numbers.hasSize) {
        const bool isSizeParameter =
            TakesParameter(row, "LENGTH") || row.columnSizePurpose == UVDB_SIZE_IS_PRECISION;
        numbers.size = isSizeParameter && *row.createParams ? DefaultSize(version.db, row) : row.columnSize;
        // The row's size is that of all digits; without any there is no point either.
        if (isTime && !isSizeParameter && numbers.scale < row.maxScale && row.maxScale > 0) {
            const auto unused =
                static_cast<unsigned long>(row.maxScale - numbers.scale + (numbers.scale == 0));
            numbers.size -= std::min(unused, numbers.size);
        }
    }
    if (numbers.hasLeadingPrecision || !type.name.starts_with("INTERVAL"))
        return;
    if (!row.isLeadingPrecisionValid)
        numbers.leadingPrecision = kUnlimitedLeadingDigits;
    else {
        const bool isYear = version.db == UVDB_DB_INFORMIX && type.name.starts_with("INTERVAL YEAR");
        numbers.leadingPrecision =
            std::min<long>(isYear ? kInformixYearDigits : kLeadingDigits, row.leadingPrecision);
    }
}
