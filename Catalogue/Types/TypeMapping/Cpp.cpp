// Which types of C and C++ carry the internal types; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  1, 2147483647,         "CHAR"),
    Map( 25,         15,  0, 15, "double"),
    Map( 26,         15,  0, 15, "double"),
    Map( 28,          1,         "bool"),
    Map( 34,          5,         "SHORT"),
    Map( 35,         10,         "int"),
    Map( 37,         19,         "LONG"),
    Map( 42,         24,         "float"),
    Map( 43,         53,         "double"),
    Map( 46,         53,         "double"),
};
// clang-format on
static_assert(std::size(kRows) == 10);

} // namespace

constinit const SMappingSheaf kCppMapping = MakeMappingSheaf<kRows>();
