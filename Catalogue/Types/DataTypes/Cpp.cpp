// Types of C and C++. One CHAR is a character, an array of them a text.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type  name            size or digits, leading digits, scale
    Plain(  0, "CHAR",                   1),
    Plain(  1, "CHAR",          2147483647),
    Whole( 34, "SHORT",                  5),
    Whole( 36, "int",                   10),
    Whole( 36, "INT",                   10),
    Whole( 46, "DOUBLE",                53),
    Whole( 37, "LONG",                  19),
    Whole( 41, "UNSIGNED LONG",         20),
    Plain( 43, "double"),
    Whole( 46, "double",                53),
    Whole( 42, "float",                 24),
    Plain( 28, "bool",                   1),
};
// clang-format on
static_assert(std::size(kRows) == 12);

} // namespace

constinit const SDataTypeTable kCppDataTypes = MakeDataTypeTable<kRows>();
