// Types of SQL Server 2012. TIMESTAMP is a row version here and no time; TINYINT has no sign; a MAX type is
// found under its plain name. FLOAT without a precision is a double: hence its first rung.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                      size  scale
    Sized          (  0, "CHAR",                    8000),
    Sized          (  1, "VARCHAR",                 8000),
    Plain          (  7, "TEXT",              2147483647),
    Plain          (109, "HIERARCHYID",              892),
    Plain          (110, "XML",               2147483647),
    Plain          (108, "GEOGRAPHY",         2147483647),
    Sized          (  8, "NCHAR",                   4000),
    Sized          (  9, "NVARCHAR",                4000),
    Plain          ( 10, "NTEXT",             1073741823),
    Plain          (112, "TIMESTAMP",                  8),
    Sized          ( 16, "BINARY",                  8000),
    Sized          ( 17, "VARBINARY",               8000),
    Plain          ( 20, "IMAGE",             2147483647),
    Scaled         ( 25, "DECIMAL",                   38, 0,  38),
    Synonym(Scaled ( 25, "DEC",                       38, 0,  38)),
    Scaled         ( 26, "NUMERIC",                   38, 0,  38),
    Plain          ( 27, "BIT",                        1),
    Whole          ( 38, "TINYINT",                    3),
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
    Plain          ( 52, "SMALLDATETIME",             16),
    Timed          ( 53, "DATETIME",                  23, 3, 3, ""),
    Timed          (102, "DATETIMEOFFSET",            34, 0, 7),
    Timed          ( 53, "DATETIME2",                 27, 0, 7),
    Timed          ( 49, "TIME",                      16, 0, 7),
    Plain          ( 48, "DATE",                      10),
    Fixed          ( 58, "SMALLMONEY",                10, 4),
    Fixed          ( 59, "MONEY",                     19, 4),
    Plain          (103, "UNIQUEIDENTIFIER",          36),
    Plain          (105, "SQL_VARIANT",             8000),
    Plain          (  9, "SYSNAME",                  128),
    Synonym(Plain  (112, "ROWVERSION",                 8)),
    Plain          (107, "GEOMETRY",          2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSqlServerDataTypes = MakeDataTypeTable<kRows>();
