// Types of Adabas files as SQL sees them: alphanumeric fields of 253 bytes and long ones of 16381, 29 packed
// digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape          type           name                size or digits, leading digits, scale
    Sized         (Char,          "CHAR",                     253),
    Synonym(Sized (Char,          "CHARACTER",                253)),
    Sized         (VarChar,       "VARCHAR",                16381),
    Synonym(Sized (VarChar,       "CHARACTER VARYING",      16381)),
    Sized         (Binary,        "BINARY",                   126),
    Sized         (VarBinary,     "VARBINARY",              16381),
    Sized         (LongVarBinary, "LVARBINARY",        2147483643),
    Scaled        (Decimal,       "DECIMAL",                   29, 0, 29),
    Synonym(Scaled(Decimal,       "DEC",                       29, 0, 29)),
    Scaled        (Numeric,       "NUMERIC",                   29, 0, 29),
    Plain         (Bit,           "BIT",                        1),
    Whole         (TinyInt,       "TINYINT",                    3),
    Whole         (SmallInt,      "SMALLINT",                   5),
    Whole         (Integer,       "INTEGER",                   10),
    Synonym(Whole (Integer,       "INT",                       10)),
    Whole         (Real,          "REAL",                      24),
    Whole         (Float,         "FLOAT",                     53),
    Whole         (Double,        "DOUBLE",                    53),
    Plain         (Date,          "DATE",                      10),
    Plain         (Time,          "TIME",                       8),
    Timed         (Timestamp,     "TIMESTAMP",                 26, 6,  6, ""),
};
// clang-format on
static_assert(std::size(kRows) == 21);

} // namespace

constinit const SDataTypeTable kAdabasDataTypes = MakeDataTypeTable<kRows>();
