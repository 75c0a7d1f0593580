// Types of SQL Server 2012. TIMESTAMP is a row version here and no time; TINYINT has no sign; a MAX type is
// found under its plain name. FLOAT without a precision is a double: hence its first rung.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type            name                      size  scale
    Sized         (Char,           "CHAR",                    8000),
    Sized         (VarChar,        "VARCHAR",                 8000),
    Plain         (Text,           "TEXT",              2147483647),
    Plain         (HierarchyId,    "HIERARCHYID",              892),
    Plain         (Xml,            "XML",               2147483647),
    Plain         (Geography,      "GEOGRAPHY",         2147483647),
    Sized         (WChar,          "NCHAR",                   4000),
    Sized         (VarWChar,       "NVARCHAR",                4000),
    Plain         (LongVarWChar,   "NTEXT",             1073741823),
    Plain         (RowVersion,     "TIMESTAMP",                  8),
    Sized         (Binary,         "BINARY",                  8000),
    Sized         (VarBinary,      "VARBINARY",               8000),
    Plain         (LongVarBinary,  "IMAGE",             2147483647),
    Scaled        (Decimal,        "DECIMAL",                   38, 0,  38),
    Synonym(Scaled(Decimal,        "DEC",                       38, 0,  38)),
    Scaled        (Numeric,        "NUMERIC",                   38, 0,  38),
    Plain         (Bit,            "BIT",                        1),
    Whole         (UTinyInt,       "TINYINT",                    3),
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
    Plain         (SmallTimestamp, "SMALLDATETIME",             16),
    Timed         (Timestamp,      "DATETIME",                  23, 3, 3, ""),
    Timed         (DateTimeOffset, "DATETIMEOFFSET",            34, 0, 7),
    Timed         (Timestamp,      "DATETIME2",                 27, 0, 7),
    Timed         (Time,           "TIME",                      16, 0, 7),
    Plain         (Date,           "DATE",                      10),
    Fixed         (SmallMoney,     "SMALLMONEY",                10, 4),
    Fixed         (Money,          "MONEY",                     19, 4),
    Plain         (Guid,           "UNIQUEIDENTIFIER",          36),
    Plain         (Variant,        "SQL_VARIANT",             8000),
    Plain         (VarWChar,       "SYSNAME",                  128),
    Synonym(Plain (RowVersion,     "ROWVERSION",                 8)),
    Plain         (Geometry,       "GEOMETRY",          2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSqlServerDataTypes = MakeDataTypeTable<kRows>();
