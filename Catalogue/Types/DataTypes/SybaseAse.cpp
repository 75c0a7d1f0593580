// Types of Adaptive Server Enterprise 15.7 with pages of 16 KB. TIMESTAMP is a row version here and no time;
// TINYINT has no sign. FLOAT without a precision is a double: hence its first rung; 43,
// because a 46 without a size would be Oracle's NUMBER.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                      size  scale
    Sized          (  0, "CHAR",                   16384),
    Sized          (  1, "VARCHAR",                16384),
    Plain          (  7, "TEXT",              2147483647),
    Sized          ( 11, "UNICHAR",                 8192),
    Sized          ( 12, "UNIVARCHAR",              8192),
    Plain          ( 13, "UNITEXT",           1073741823),
    Sized          (  8, "NCHAR",                  16384),
    Sized          (  9, "NVARCHAR",               16384),
    Plain          ( 10, "NTEXT",             1073741823),
    Plain          (112, "TIMESTAMP",                  8),
    Sized          ( 16, "BINARY",                 16384),
    Sized          ( 17, "VARBINARY",              16384),
    Plain          ( 20, "IMAGE",             2147483647),
    Synonym(Plain  ( 20, "LONG BINARY",       2147483647)),
    Scaled         ( 25, "DECIMAL",                   38, 0,  38),
    Scaled         ( 26, "NUMERIC",                   38, 0,  38),
    Plain          ( 27, "BIT",                        1),
    Whole          ( 38, "TINYINT",                    3),
    Synonym(Whole  ( 38, "UNSIGNED TINYINT",           3)),
    Whole          ( 34, "SMALLINT",                   5),
    Whole          ( 39, "UNSIGNED SMALLINT",          5),
    Whole          ( 35, "INT",                       10),
    Synonym(Whole  ( 35, "INTEGER",                   10)),
    Whole          ( 40, "UNSIGNED INT",              10),
    Synonym(Whole  ( 40, "UNSIGNED INTEGER",          10)),
    Whole          ( 37, "BIGINT",                    19),
    Whole          ( 42, "REAL",                      24),
    Whole          ( 43, "FLOAT",                      0),
    Precise        ( 43, "FLOAT",                     48),
    Whole          ( 46, "DOUBLE",                    53),
    Synonym(Whole  ( 46, "DOUBLE PRECISION",          53)),
    Plain          ( 48, "DATE",                      10),
    Timed          ( 49, "TIME",                      12, 3, 3, ""),
    Timed          ( 50, "BIGTIME",                   15, 6, 6, ""),
    Timed          ( 51, "BIGDATETIME",               26, 6, 6, ""),
    Plain          ( 52, "SMALLDATETIME",             16),
    Timed          ( 53, "DATETIME",                  23, 3, 3, ""),
    Fixed          ( 58, "SMALLMONEY",                10, 4),
    Fixed          ( 59, "MONEY",                     19, 4),
    Whole          (123, "NUMERIC IDENTITY",          18),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kSybaseAseDataTypes = MakeDataTypeTable<kRows>();
