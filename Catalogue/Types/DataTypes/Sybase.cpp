// Types of SQL Anywhere 12, and of IQ. DATETIME and SMALLDATETIME are further names of TIMESTAMP, TEXT and
// IMAGE of the long types. TINYINT has no sign.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                             size  scale
    Sized          (  0, "CHAR",                          32767),
    Sized          (  1, "VARCHAR",                       32767),
    Plain          (  4, "LONG VARCHAR",             2147483647),
    Plain          (  7, "TEXT",                     2147483647),
    Plain          (  5, "LONG NVARCHAR",            2147483647),
    Sized          (  8, "NCHAR",                         32767),
    Sized          (  9, "NVARCHAR",                      32767),
    Plain          ( 10, "NTEXT",                    2147483647),
    Sized          ( 16, "BINARY",                        32767),
    Sized          ( 17, "VARBINARY",                     32767),
    Plain          ( 20, "IMAGE",                    2147483647),
    Synonym(Plain  ( 20, "LONG BINARY",              2147483647)),
    Plain          ( 22, "LONG VARBIT",              2147483647),
    Scaled         ( 25, "DECIMAL",                         127, 0, 127),
    Scaled         ( 26, "NUMERIC",                         127, 0, 127),
    Plain          ( 27, "BIT",                               1),
    Sized          ( 27, "VARBIT",                        32767),
    Synonym(Sized  ( 27, "BIT VARYING",                   32767)),
    Whole          ( 38, "TINYINT",                           3),
    Synonym(Whole  ( 38, "UNSIGNED TINYINT",                  3)),
    Whole          ( 34, "SMALLINT",                          5),
    Whole          ( 39, "UNSIGNED SMALLINT",                 5),
    Whole          ( 35, "INT",                              10),
    Synonym(Whole  ( 35, "INTEGER",                          10)),
    Whole          ( 40, "UNSIGNED INT",                     10),
    Synonym(Whole  ( 40, "UNSIGNED INTEGER",                 10)),
    Whole          ( 37, "BIGINT",                           19),
    Whole          ( 41, "UNSIGNED BIGINT",                  20),
    Whole          ( 42, "REAL",                             24),
    Precise        ( 43, "FLOAT",                            53),
    Whole          ( 46, "DOUBLE",                           53),
    Synonym(Whole  ( 46, "DOUBLE PRECISION",                 53)),
    Plain          ( 48, "DATE",                             10),
    Timed          ( 49, "TIME",                             15, 6, 6, ""),
    Timed          ( 53, "SMALLDATETIME",                    26, 6, 6, ""),
    Synonym(Timed  ( 53, "DATETIME",                         26, 6, 6, "")),
    Synonym(Timed  ( 53, "TIMESTAMP",                        26, 6, 6, "")),
    Timed          ( 54, "TIMESTAMP WITH TIME ZONE",         33, 6, 6, ""),
    Fixed          ( 59, "BTIMONEY",                         19, 4),
    Fixed          ( 58, "SMALLMONEY",                       10, 4),
    Synonym(Fixed  ( 59, "MONEY",                            19, 4)),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSybaseDataTypes = MakeDataTypeTable<kRows>();
