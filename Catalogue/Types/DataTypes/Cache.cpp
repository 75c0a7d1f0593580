// Types of Cache with long strings switched on. The names are those of SQL Server, but TIMESTAMP is a time
// and TINYINT has a sign. FLOAT without a precision is a double: hence its first rung.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                      size  scale
    Sized          (  0, "CHAR",                 3641144),
    Sized          (  1, "VARCHAR",              3641144),
    Plain          (  7, "TEXT",              2147483647),
    Plain          (109, "HIERARCHYID",              892),
    Plain          (110, "XML",               2147483647),
    Plain          (108, "GEOGRAPHY",         2147483647),
    Sized          (  8, "NCHAR",                3641144),
    Sized          (  9, "NVARCHAR",             3641144),
    Plain          ( 10, "NTEXT",             2147483647),
    Timed          ( 53, "TIMESTAMP",                 29, 0, 9, ""),
    Sized          ( 16, "BINARY",               3641144),
    Sized          ( 17, "VARBINARY",            3641144),
    Plain          ( 20, "IMAGE",             2147483647),
    Scaled         ( 25, "DECIMAL",                   18, 0,  18),
    Synonym(Scaled ( 25, "DEC",                       18, 0,  18)),
    Scaled         ( 26, "NUMERIC",                   18, 0,  18),
    Plain          ( 27, "BIT",                        1),
    Whole          ( 33, "TINYINT",                    3),
    Whole          ( 34, "SMALLINT",                   5),
    Whole          (113, "SMALLINT IDENTITY",          5),
    Whole          ( 35, "INT",                       10),
    Synonym(Whole  ( 35, "INTEGER",                   10)),
    Whole          ( 37, "BIGINT",                    19),
    Whole          ( 42, "REAL",                      24),
    Whole          ( 43, "FLOAT",                      0),
    Precise        ( 42, "FLOAT",                     24),
    Whole          ( 43, "FLOAT",                     53),
    Whole          ( 46, "DOUBLE PRECISION",          53),
    Plain          ( 52, "SMALLDATETIME",             19),
    Synonym(Timed  ( 53, "DATETIME",                  29, 0, 9, "")),
    Synonym(Timed  ( 53, "DATETIME2",                 29, 0, 9, "")),
    Timed          ( 49, "TIME",                      18, 0, 9),
    Plain          ( 48, "DATE",                      10),
    Fixed          ( 58, "SMALLMONEY",                10, 4),
    Fixed          ( 59, "MONEY",                     19, 4),
    Plain          (103, "UNIQUEIDENTIFIER",          36),
    Plain          (105, "SQL_VARIANT",             8000),
    Plain          (  9, "SYSNAME",                  128),
};
// clang-format on
static_assert(std::size(kRows) == 38);

} // namespace

constinit const SDataTypeTable kCacheDataTypes = MakeDataTypeTable<kRows>();
