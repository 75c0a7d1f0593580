// What Access calls the internal types. All its texts are national. DATETIME takes dates and times; whole
// numbers that LONG can't hold are decimals.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  1,        255,         "TEXT"),
    Map(  1, 1073741823,         "MEMO"),
    Map(  7, 2147483647,         "MEMO"),
    Map( 16,        510,         "BINARY"),
    Map( 16, 2147483647,         "LONGBINARY"),
    Map( 17,        510,         "VARBINARY"),
    Map( 17, 2147483647,         "LONGBINARY"),
    Map( 20, 2147483647,         "LONGBINARY"),
    Map( 23, 2147483647,         "LONGBINARY"),
    Map( 25,         28, 0,  28, "DECIMAL"),
    Map( 26,         28, 0,  28, "DECIMAL"),
    Map( 14,         28, 0,  28, "DECIMAL"),
    Map( 27,          1,         "BIT"),
    Map( 27,        510,         "BINARY"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "DECIMAL"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "BYTE"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "DECIMAL"),
    Map( 41,         20,         "DECIMAL"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE"),
    Map( 44,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         34,         "DOUBLE"),
    Map( 48,         10,         "DATETIME"),
    Map( 57,         19,         "DATETIME"),
    Map( 49,         16,         "DATETIME"),
    Map( 52,         19,         "DATETIME"),
    Map( 53,         29,         "DATETIME"),
    Map( 54,         35,         "DATETIME"),
    Map( 56,         21,         "DATETIME"),
    Map(102,         35,         "DATETIME"),
    Map( 58,         10, 0,   4, "MONEY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "MONEY"),
    Map( 60,         28, 0,  28, "DECIMAL"),
    Map( 80,         19,         "DATETIME"),
    Map( 87,         25,         "DATETIME"),
    Map(113,          5,         "SMALLINT"),
    Map(103,         36,         "GUID"),
    Map(123,         28, 0,  28, "DECIMAL"),
    Map(129,         10,         "COUNTER"),
    Map(130,         10,         "DECIMAL"),
    Map(132,          3,         "BYTE"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,         "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kAccessMapping = MakeMappingSheaf<kRows>();
