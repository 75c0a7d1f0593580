// Which types stand for the internal types in scripts of browsers; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type            size  scale   name
    Map(VarChar,    2147483647,         "String"),
    Map(Decimal,            28,  0, 28, "decimal"),
    Map(Numeric,            28,  0, 28, "decimal"),
    Map(Number,             28,  0, 28, "decimal"),
    Map(Bit,                 1,         "bool"),
    Map(Bit,        2147483647,         "String"),
    Map(Boolean,             1,         "bool"),
    Map(TinyInt,             3,         "int"),
    Map(SmallInt,            5,         "int"),
    Map(Integer,            10,         "int"),
    Map(BigInt,             19,         "decimal"),
    Map(Int,                10,         "int"),
    Map(UTinyInt,            3,         "int"),
    Map(Real,               24,         "float"),
    Map(Float,              53,         "double"),
    Map(Double,             53,         "double"),
    Map(SmallMoney,         28,  0, 28, "decimal"),
    Map(Money,              28,  0, 28, "decimal"),
    Map(Serial,             10,         "int"),
};
// clang-format on
static_assert(std::size(kRows) == 19);

} // namespace

constinit const SMappingSheaf kJavaScriptMapping = MakeMappingSheaf<kRows>();
