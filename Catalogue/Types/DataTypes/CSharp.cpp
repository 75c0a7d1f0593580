// Types of C#, which scripts of .NET and of browsers share. A decimal has 28 digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type  name      size or digits, leading digits, scale
    Plain (  0, "CHAR",             1),
    Plain (  1, "String",  2147483647),
    Whole ( 36, "int",             10),
    Plain ( 43, "double"),
    Whole ( 46, "double",          53),
    Whole ( 42, "float",           24),
    Plain ( 26, "decimal"),
    Scaled( 25, "decimal",         28, 0, 28, ""),
    Plain ( 28, "bool",             1),
};
// clang-format on
static_assert(std::size(kRows) == 9);

} // namespace

constinit const SDataTypeTable kCSharpDataTypes = MakeDataTypeTable<kRows>();
