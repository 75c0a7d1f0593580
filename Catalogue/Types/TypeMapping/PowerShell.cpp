// Which types of .NET stand for the internal types in its scripts and on phones; the rest travels as text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  1, 2147483647,         "String"),
    Map( 25,         28,  0, 28, "decimal"),
    Map( 26,         28,  0, 28, "decimal"),
    Map( 14,         28,  0, 28, "decimal"),
    Map( 27,          1,         "bool"),
    Map( 27, 2147483647,         "String"),
    Map( 28,          1,         "bool"),
    Map( 33,          3,         "int"),
    Map( 34,          5,         "int"),
    Map( 35,         10,         "int"),
    Map( 37,         19,         "decimal"),
    Map( 36,         10,         "int"),
    Map( 38,          3,         "int"),
    Map( 42,         24,         "float"),
    Map( 43,         53,         "double"),
    Map( 46,         53,         "double"),
    Map( 59,         28,  0, 28, "decimal"),
};
// clang-format on
static_assert(std::size(kRows) == 17);

} // namespace

constinit const SMappingSheaf kPowerShellMapping = MakeMappingSheaf<kRows>();
