// Which types of C and C++ carry the internal types; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type          size  scale   name
    Map(VarChar,  2147483647,         "CHAR"),
    Map(Decimal,          15,  0, 15, "double"),
    Map(Numeric,          15,  0, 15, "double"),
    Map(Boolean,           1,         "bool"),
    Map(SmallInt,          5,         "SHORT"),
    Map(Integer,          10,         "int"),
    Map(BigInt,           19,         "LONG"),
    Map(Real,             24,         "float"),
    Map(Float,            53,         "double"),
    Map(Double,           53,         "double"),
};
// clang-format on
static_assert(std::size(kRows) == 10);

} // namespace

constinit const SMappingSheaf kCppMapping = MakeMappingSheaf<kRows>();
