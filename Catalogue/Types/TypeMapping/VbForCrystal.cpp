// Which types of the Visual Basic of reports carry the internal types; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  1, 2147483647,         "String"),
    Map( 25,         15,  0, 15, "DOUBLE"),
    Map( 26,         15,  0, 15, "DOUBLE"),
    Map( 28,          1,         "BOOLEAN"),
    Map( 34,          5,         "SHORT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         15,         "DOUBLE"),
    Map( 43,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
};
// clang-format on
static_assert(std::size(kRows) == 9);

} // namespace

constinit const SMappingSheaf kVbForCrystalMapping = MakeMappingSheaf<kRows>();
