// Which types of Visual Basic for .NET carry the internal types; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type          size  scale   name
    Map(VarChar,  2147483647,         "String"),
    Map(Decimal,          15,  0, 15, "DOUBLE"),
    Map(Numeric,          15,  0, 15, "DOUBLE"),
    Map(Boolean,           1,         "BOOLEAN"),
    Map(SmallInt,          5,         "SHORT"),
    Map(Integer,          10,         "Integer"),
    Map(BigInt,           15,         "DOUBLE"),
    Map(Float,            53,         "DOUBLE"),
    Map(Double,           53,         "DOUBLE"),
};
// clang-format on
static_assert(std::size(kRows) == 9);

} // namespace

constinit const SMappingSheaf kVbNetMapping = MakeMappingSheaf<kRows>();
