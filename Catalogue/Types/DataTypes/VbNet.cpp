// Types of Visual Basic for .NET.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type  name        size or digits, leading digits, scale
    Plain(  0, "CHARACTER",          1),
    Plain(  1, "String",    2147483647),
    Whole( 34, "SHORT",              5),
    Whole( 35, "Integer",           10),
    Plain( 43, "DOUBLE"),
    Whole( 42, "DOUBLE",            24),
    Whole( 46, "DOUBLE",            53),
    Plain( 28, "BOOLEAN",            1),
};
// clang-format on
static_assert(std::size(kRows) == 8);

} // namespace

constinit const SDataTypeTable kVbNetDataTypes = MakeDataTypeTable<kRows>();
