// Which types of C# carry the internal types; the rest travels as text.
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
    Map( 58,         28,  0, 28, "decimal"),
    Map( 59,         28,  0, 28, "decimal"),
    Map(113,          5,         "int"),
    Map(129,         10,         "int"),
};
// clang-format on
static_assert(std::size(kRows) == 20);

} // namespace

constinit const SMappingSheaf kCSharpMapping = MakeMappingSheaf<kRows>();
