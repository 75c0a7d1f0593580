// Types of Visual Basic for .NET.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type      name        size or digits, leading digits, scale
    Plain(Char,     "CHARACTER",          1),
    Plain(VarChar,  "String",    2147483647),
    Whole(SmallInt, "SHORT",              5),
    Whole(Integer,  "Integer",           10),
    Plain(Float,    "DOUBLE"),
    Whole(Real,     "DOUBLE",            24),
    Whole(Double,   "DOUBLE",            53),
    Plain(Boolean,  "BOOLEAN",            1),
};
// clang-format on
static_assert(std::size(kRows) == 8);

} // namespace

constinit const SDataTypeTable kVbNetDataTypes = MakeDataTypeTable<kRows>();
