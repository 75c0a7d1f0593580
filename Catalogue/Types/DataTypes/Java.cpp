// Classes of Java that carry column values. Short arrays of bytes are binaries, longer ones large objects.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape  type           name           size or digits, leading digits, scale
    Plain (Char,          "CHARACTER",             1),
    Plain (VarChar,       "String",       2147483647),
    Plain (Text,          "StringBuffer", 2147483647),
    Whole (TinyInt,       "Byte",                  3),
    Whole (SmallInt,      "Short",                 5),
    Whole (Integer,       "Integer",              10),
    Whole (BigInt,        "Long",                 19),
    Whole (Double,        "Double",               53),
    Whole (Real,          "Float",                24),
    Scaled(Numeric,       "BigDecimal",           38, 0,         38, ""),
    Scaled(Decimal,       "BigDecimal",   2147483647, 0, 2147483647, ""),
    Plain (Boolean,       "Boolean",               1),
    Plain (VarBinary,     "byte[]",            32767),
    Plain (LongVarBinary, "byte[]",       2147483647),
    Plain (Date,          "Date",                 10),
    Timed (Timestamp,     "Timestamp",            29, 9,          9, ""),
    Plain (Time,          "Time",                  8),
};
// clang-format on
static_assert(std::size(kRows) == 17);

} // namespace

constinit const SDataTypeTable kJavaDataTypes = MakeDataTypeTable<kRows>();
