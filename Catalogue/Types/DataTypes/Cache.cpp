// Types of Cache with long strings switched on. The names are those of SQL Server, but TIMESTAMP is a time
// and TINYINT has a sign. FLOAT without a precision is a double: hence its first rung.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type            name                      size  scale
    Sized         (Char,           "CHAR",                 3641144),
    Sized         (VarChar,        "VARCHAR",              3641144),
    Plain         (Text,           "TEXT",              2147483647),
    Plain         (HierarchyId,    "HIERARCHYID",              892),
    Plain         (Xml,            "XML",               2147483647),
    Plain         (Geography,      "GEOGRAPHY",         2147483647),
    Sized         (WChar,          "NCHAR",                3641144),
    Sized         (VarWChar,       "NVARCHAR",             3641144),
    Plain         (LongVarWChar,   "NTEXT",             2147483647),
    Timed         (Timestamp,      "TIMESTAMP",                 29, 0, 9, ""),
    Sized         (Binary,         "BINARY",               3641144),
    Sized         (VarBinary,      "VARBINARY",            3641144),
    Plain         (LongVarBinary,  "IMAGE",             2147483647),
    Scaled        (Decimal,        "DECIMAL",                   18, 0,  18),
    Synonym(Scaled(Decimal,        "DEC",                       18, 0,  18)),
    Scaled        (Numeric,        "NUMERIC",                   18, 0,  18),
    Plain         (Bit,            "BIT",                        1),
    Whole         (TinyInt,        "TINYINT",                    3),
    Whole         (SmallInt,       "SMALLINT",                   5),
    Whole         (SmallSerial,    "SMALLINT IDENTITY",          5),
    Whole         (Integer,        "INT",                       10),
    Synonym(Whole (Integer,        "INTEGER",                   10)),
    Whole         (BigInt,         "BIGINT",                    19),
    Whole         (Real,           "REAL",                      24),
    Whole         (Float,          "FLOAT",                      0),
    Precise       (Real,           "FLOAT",                     24),
    Whole         (Float,          "FLOAT",                     53),
    Whole         (Double,         "DOUBLE PRECISION",          53),
    Plain         (SmallTimestamp, "SMALLDATETIME",             19),
    Synonym(Timed (Timestamp,      "DATETIME",                  29, 0, 9, "")),
    Synonym(Timed (Timestamp,      "DATETIME2",                 29, 0, 9, "")),
    Timed         (Time,           "TIME",                      18, 0, 9),
    Plain         (Date,           "DATE",                      10),
    Fixed         (SmallMoney,     "SMALLMONEY",                10, 4),
    Fixed         (Money,          "MONEY",                     19, 4),
    Plain         (Guid,           "UNIQUEIDENTIFIER",          36),
    Plain         (Variant,        "SQL_VARIANT",             8000),
    Plain         (VarWChar,       "SYSNAME",                  128),
};
// clang-format on
static_assert(std::size(kRows) == 38);

} // namespace

constinit const SDataTypeTable kCacheDataTypes = MakeDataTypeTable<kRows>();
