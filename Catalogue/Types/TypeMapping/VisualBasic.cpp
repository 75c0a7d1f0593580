// Which types of Visual Basic carry the internal types; the rest travels as text.
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
    Map(Integer,          10,         "INTEGER"),
    Map(BigInt,           15,         "DOUBLE"),
    Map(Real,             24,         "DOUBLE"),
    Map(Float,            53,         "DOUBLE"),
    Map(Double,           53,         "DOUBLE"),
};
// clang-format on
static_assert(std::size(kRows) == 10);

} // namespace

constinit const SMappingSheaf kVisualBasicMapping = MakeMappingSheaf<kRows>();
