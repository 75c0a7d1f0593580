// Types of C#, which scripts of .NET and of browsers share. A decimal has 28 digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape  type     name      size or digits, leading digits, scale
    Plain (Char,    "CHAR",             1),
    Plain (VarChar, "String",  2147483647),
    Whole (Int,     "int",             10),
    Plain (Float,   "double"),
    Whole (Double,  "double",          53),
    Whole (Real,    "float",           24),
    Plain (Numeric, "decimal"),
    Scaled(Decimal, "decimal",         28, 0, 28, ""),
    Plain (Boolean, "bool",             1),
};
// clang-format on
static_assert(std::size(kRows) == 9);

} // namespace

constinit const SDataTypeTable kCSharpDataTypes = MakeDataTypeTable<kRows>();
