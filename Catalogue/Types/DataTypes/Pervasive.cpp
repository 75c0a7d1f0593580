// Types of Pervasive 10. MONEY is a decimal with two digits after the point, CURRENCY a whole number of
// ten-thousandths.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type           name                  size  scale
    Sized         (Char,          "CHAR",                8000),
    Sized         (VarChar,       "VARCHAR",             8000),
    Plain         (LongVarChar,   "LONGVARCHAR",   2147483647),
    Sized         (Binary,        "BINARY",              8000),
    Plain         (LongVarBinary, "LONGVARBINARY", 2147483647),
    Whole         (UBigInt,       "UBIGINT",               20),
    Whole         (BigInt,        "BIGINT",                19),
    Whole         (TinyInt,       "TINYINT",                3),
    Whole         (UTinyInt,      "UTINYINT",               3),
    Whole         (SmallInt,      "SMALLINT",               5),
    Whole         (USmallInt,     "USMALLINT",              5),
    Whole         (Integer,       "INTEGER",               10),
    Whole         (UInteger,      "UINTEGER",              10),
    Whole         (SmallSerial,   "SMALLIDENTITY",          5),
    Whole         (Serial,        "IDENTITY",              10),
    Whole         (Real,          "BFLOAT4",               24),
    Synonym(Whole (Real,          "REAL",                  24)),
    Whole         (Double,        "BFLOAT8",               53),
    Synonym(Whole (Double,        "DOUBLE",                53)),
    Whole         (Float,         "FLOAT",                 53),
    Scaled        (Decimal,       "DECIMAL",               64, 0,  64),
    Scaled        (Numeric,       "NUMERIC",               15, 0,  15),
    Synonym(Scaled(Numeric,       "NUMERICSA",             15, 0,  15)),
    Synonym(Scaled(Numeric,       "NUMERICSTS",            15, 0,  15)),
    Plain         (Bit,           "BIT",                    1),
    Plain         (Date,          "DATE",                  10),
    Plain         (Time,          "TIME",                   8),
    Timed         (Timestamp,     "TIMESTAMP",             27, 7, 7, ""),
    Fixed         (Money,         "MONEY",                 19, 2),
    Fixed         (Money,         "CURRENCY",              19, 4),
};
// clang-format on
static_assert(std::size(kRows) == 30);

} // namespace

constinit const SDataTypeTable kPervasiveDataTypes = MakeDataTypeTable<kRows>();
