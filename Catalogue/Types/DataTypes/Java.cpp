// Classes of Java that carry column values. Short arrays of bytes are binaries, longer ones large objects.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape type  name           size or digits, leading digits, scale
    Plain (  0, "CHARACTER",             1),
    Plain (  1, "String",       2147483647),
    Plain (  7, "StringBuffer", 2147483647),
    Whole ( 33, "Byte",                  3),
    Whole ( 34, "Short",                 5),
    Whole ( 35, "Integer",              10),
    Whole ( 37, "Long",                 19),
    Whole ( 46, "Double",               53),
    Whole ( 42, "Float",                24),
    Scaled( 26, "BigDecimal",           38, 0,         38, ""),
    Scaled( 25, "BigDecimal",   2147483647, 0, 2147483647, ""),
    Plain ( 28, "Boolean",               1),
    Plain ( 17, "byte[]",            32767),
    Plain ( 20, "byte[]",       2147483647),
    Plain ( 48, "Date",                 10),
    Timed ( 53, "Timestamp",            29, 9,          9, ""),
    Plain ( 49, "Time",                  8),
};
// clang-format on
static_assert(std::size(kRows) == 17);

} // namespace

constinit const SDataTypeTable kJavaDataTypes = MakeDataTypeTable<kRows>();
