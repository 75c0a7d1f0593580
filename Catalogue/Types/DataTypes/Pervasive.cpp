// Types of Pervasive 10. MONEY is a decimal with two digits behind the point, CURRENCY a whole number of
// ten-thousandths.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                  size  scale
    Sized          (  0, "CHAR",                8000),
    Sized          (  1, "VARCHAR",             8000),
    Plain          (  4, "LONGVARCHAR",   2147483647),
    Sized          ( 16, "BINARY",              8000),
    Plain          ( 20, "LONGVARBINARY", 2147483647),
    Whole          ( 41, "UBIGINT",               20),
    Whole          ( 37, "BIGINT",                19),
    Whole          ( 33, "TINYINT",                3),
    Whole          ( 38, "UTINYINT",               3),
    Whole          ( 34, "SMALLINT",               5),
    Whole          ( 39, "USMALLINT",              5),
    Whole          ( 35, "INTEGER",               10),
    Whole          ( 40, "UINTEGER",              10),
    Whole          (113, "SMALLIDENTITY",          5),
    Whole          (129, "IDENTITY",              10),
    Whole          ( 42, "BFLOAT4",               24),
    Synonym(Whole  ( 42, "REAL",                  24)),
    Whole          ( 46, "BFLOAT8",               53),
    Synonym(Whole  ( 46, "DOUBLE",                53)),
    Whole          ( 43, "FLOAT",                 53),
    Scaled         ( 25, "DECIMAL",               64, 0,  64),
    Scaled         ( 26, "NUMERIC",               15, 0,  15),
    Synonym(Scaled ( 26, "NUMERICSA",             15, 0,  15)),
    Synonym(Scaled ( 26, "NUMERICSTS",            15, 0,  15)),
    Plain          ( 27, "BIT",                    1),
    Plain          ( 48, "DATE",                  10),
    Plain          ( 49, "TIME",                   8),
    Timed          ( 53, "TIMESTAMP",             27, 7, 7, ""),
    Fixed          ( 59, "MONEY",                 19, 2),
    Fixed          ( 59, "CURRENCY",              19, 4),
};
// clang-format on
static_assert(std::size(kRows) == 30);

} // namespace

constinit const SDataTypeTable kPervasiveDataTypes = MakeDataTypeTable<kRows>();
