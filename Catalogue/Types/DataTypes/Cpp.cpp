// Types of C and C++. One CHAR is a character, an array of them a text.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type      name            size or digits, leading digits, scale
    Plain(Char,     "CHAR",                   1),
    Plain(VarChar,  "CHAR",          2147483647),
    Whole(SmallInt, "SHORT",                  5),
    Whole(Int,      "int",                   10),
    Whole(Int,      "INT",                   10),
    Whole(Double,   "DOUBLE",                53),
    Whole(BigInt,   "LONG",                  19),
    Whole(UBigInt,  "UNSIGNED LONG",         20),
    Plain(Float,    "double"),
    Whole(Double,   "double",                53),
    Whole(Real,     "float",                 24),
    Plain(Boolean,  "bool",                   1),
};
// clang-format on
static_assert(std::size(kRows) == 12);

} // namespace

constinit const SDataTypeTable kCppDataTypes = MakeDataTypeTable<kRows>();
