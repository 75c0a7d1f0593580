// Which classes of Java carry the internal types on mobile devices and in embedded libraries.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale           name
    Map(  1, 2147483647,                 "String"),
    Map( 16, 2147483647,                 "byte[]"),
    Map( 17, 2147483647,                 "byte[]"),
    Map( 20, 2147483647,                 "byte[]"),
    Map( 23, 2147483647,                 "byte[]"),
    Map( 25, 2147483647,  0, 2147483647, "BigDecimal"),
    Map( 26, 2147483647,  0, 2147483647, "BigDecimal"),
    Map( 14, 2147483647,  0, 2147483647, "BigDecimal"),
    Map( 27,          1,                 "Boolean"),
    Map( 27, 2147483647,                 "byte[]"),
    Map( 28,          1,                 "Boolean"),
    Map( 33,          3,                 "Byte"),
    Map( 34,          5,                 "Short"),
    Map( 35,         10,                 "Integer"),
    Map( 37,         19,                 "Long"),
    Map( 36,         10,                 "Integer"),
    Map( 38,          3,                 "Short"),
    Map( 39,          5,                 "Integer"),
    Map( 42,         24,                 "Float"),
    Map( 43,         53,                 "Double"),
    Map( 46,         53,                 "Double"),
    Map(137, 2147483647,  0, 2147483647, "BigDecimal"),
    Map( 48,         10,                 "Date"),
    Map( 57,         19,  0,          9, "Timestamp"),
    Map( 49,          8,  0,          0, "Time"),
    Map( 52,         19,  0,          9, "Timestamp"),
    Map( 53,         29,  0,          9, "Timestamp"),
    Map( 54,         29,  0,          9, "Timestamp"),
    Map( 56,          8,  0,          0, "Time"),
    Map(102,         29,  0,          9, "Timestamp"),
    Map( 59, 2147483647,  0, 2147483647, "BigDecimal"),
    Map(129,         10,                 "Integer"),
    Map(130,         10,                 "Long"),
    Map(132,          3,                 "Short"),
    Map(131,          5,                 "Integer"),
    Map(134,         20,  0,          0, "BigDecimal"),
};
// clang-format on
static_assert(std::size(kRows) == 36);

} // namespace

constinit const SMappingSheaf kAndroidMapping = MakeMappingSheaf<kRows>();
