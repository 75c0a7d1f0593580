// Types of Snowflake. Its integers are all numbers of 38 digits and its floats all doubles, whatever their
// names say. TEXT without a length is the longest text; with one it is a VARCHAR.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                   size  scale
    Sized          (  0, "CHAR",             16777216),
    Sized          (  1, "VARCHAR",          16777216),
    Synonym(Sized  (  1, "TEXT",             16777215)),
    Sized          (  7, "TEXT",             16777216),
    Plain          (109, "HIERARCHYID",           892),
    Plain          (110, "XML",              16777216),
    Plain          (108, "GEOGRAPHY",         8388608),
    Sized          (  8, "NCHAR",            16777216),
    Sized          (  9, "NVARCHAR",         16777216),
    Plain          ( 10, "NTEXT",            16777216),
    Timed          ( 53, "TIMESTAMP",              29, 0, 9),
    Sized          ( 16, "BINARY",            8388608),
    Sized          ( 17, "VARBINARY",         8388608),
    Plain          ( 20, "IMAGE",             8388608),
    Scaled         ( 25, "DECIMAL",                38, 0,  37),
    Synonym(Scaled ( 25, "DEC",                    38, 0,  37)),
    Scaled         ( 26, "NUMERIC",                38, 0,  37),
    Synonym(Scaled ( 25, "NUMBER",                 38, 0,  37)),
    Plain          ( 27, "BIT",                     1),
    Fixed          ( 25, "INT",                    38, 0),
    Synonym(Fixed  ( 25, "INTEGER",                38, 0)),
    Synonym(Fixed  ( 25, "BIGINT",                 38, 0)),
    Synonym(Fixed  ( 25, "SMALLINT",               38, 0)),
    Synonym(Fixed  ( 25, "TINYINT",                38, 0)),
    Whole          ( 46, "REAL",                   53),
    Synonym(Whole  ( 46, "FLOAT",                  53)),
    Synonym(Whole  ( 46, "DOUBLE PRECISION",       53)),
    Plain          ( 52, "SMALLDATETIME",          16),
    Timed          ( 49, "TIME",                   18, 0, 9),
    Plain          ( 48, "DATE",                   10),
    Timed          ( 54, "TIMESTAMP_TZ",           35, 0, 9),
    Synonym(Timed  ( 53, "TIMESTAMP_NTZ",          29, 0, 9)),
    Fixed          ( 58, "SMALLMONEY",             10, 4),
    Fixed          ( 59, "MONEY",                  19, 4),
    Plain          (103, "UNIQUEIDENTIFIER",       36),
    Plain          (105, "SQL_VARIANT",      16777216),
    Plain          (127, "VARIANT",          16777216),
    Plain          (  9, "SYSNAME",               128),
    Plain          (112, "ROWVERSION",              8),
    Plain          (107, "GEOMETRY",          8388608),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kSnowflakeDataTypes = MakeDataTypeTable<kRows>();
