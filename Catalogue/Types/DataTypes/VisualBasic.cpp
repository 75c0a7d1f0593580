#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// Types of Visual Basic.
// clang-format off
constexpr SDataTypeParams kVisualBasicRows[] = {
//        type      name               size
    Plain(Char,     "CHARACTER",          1),
    Plain(VarChar,  "String",    2147483647),
    Whole(SmallInt, "SHORT",              5),
    Whole(Integer,  "INTEGER",           10),
    Plain(Float,    "DOUBLE"),
    Whole(Real,     "DOUBLE",            24),
    Whole(Double,   "DOUBLE",            53),
    Plain(Boolean,  "BOOLEAN",            1),
};
// clang-format on
static_assert(std::size(kVisualBasicRows) == 8);

// Types of Visual Basic for .NET.
// clang-format off
constexpr SRowChange kVbNetChanges[] = {
//        type      name               size
    After("SHORT"),
    Whole(Integer,  "Integer",           10),
};
// clang-format on
constexpr std::string_view kVbNetGone[] = {"INTEGER"};
constexpr auto kVbNetRows = NewerTypes<kVisualBasicRows, kVbNetChanges, kVbNetGone>();
static_assert(std::size(kVbNetRows) == 8);

} // namespace

constinit const SDataTypeTable kVisualBasicDataTypes = MakeDataTypeTable<kVisualBasicRows>();
constinit const SDataTypeTable kVbNetDataTypes = MakeDataTypeTable<kVbNetRows>();
