// What IQ calls the internal types. It has no national types and no unsigned SMALLINT.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  0,      32767,         "CHAR"),
    Map(  0, 2147483647,         "LONG VARCHAR"),
    Map(  1,      32767,         "VARCHAR"),
    Map(  1, 2147483647,         "LONG VARCHAR"),
    Map(  7, 2147483647,         "LONG VARCHAR"),
    Map( 16,      32767,         "BINARY"),
    Map( 16, 2147483647,         "LONG BINARY"),
    Map( 17,      32767,         "VARBINARY"),
    Map( 17, 2147483647,         "LONG BINARY"),
    Map( 20, 2147483647,         "LONG BINARY"),
    Map( 22,      32767,         "VARBINARY"),
    Map( 22, 2147483647,         "LONG BINARY"),
    Map( 23, 2147483647,         "LONG BINARY"),
    Map( 25,        126, 0, 126, "DECIMAL"),
    Map( 26,        126, 0, 126, "NUMERIC"),
    Map( 14,        126, 0, 126, "DECIMAL"),
    Map( 27,          1,         "BIT"),
    Map( 27,      32767,         "VARBINARY"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "BIGINT"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "TINYINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "UNSIGNED INT"),
    Map( 41,         20,         "UNSIGNED BIGINT"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE"),
    Map( 44,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         34,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,         "TIMESTAMP"),
    Map( 49,         16,         "TIME"),
    Map( 50,         15,         "TIME"),
    Map( 51,         26,         "TIMESTAMP"),
    Map( 52,         26,         "TIMESTAMP"),
    Map( 53,         29,         "TIMESTAMP"),
    Map( 54,         35,         "TIMESTAMP"),
    Map( 56,         21,         "TIME"),
    Map(102,         35,         "TIMESTAMP"),
    Map( 58,         10, 0,   4, "SMALLMONEY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "MONEY"),
    Map( 60,        126, 0, 126, "DECIMAL"),
    Map( 77,         10,         "DATE"),
    Map( 80,         19,         "TIMESTAMP"),
    Map( 83,          8,         "TIME"),
    Map( 84,          8,         "TIME"),
    Map( 87,         25,         "TIMESTAMP"),
    Map( 96,         14,         "TIME"),
    Map(113,          5,         "SMALLINT"),
    Map(104,         10,         "UNSIGNED INT"),
    Map(112,          8,         "BINARY"),
    Map(123,         18, 0, 126, "NUMERIC"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "UNSIGNED INT"),
    Map(132,          3,         "TINYINT"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,         "UNSIGNED BIGINT"),
};
// clang-format on
static_assert(std::size(kRows) == 63);

} // namespace

constinit const SMappingSheaf kSybaseIqMapping = MakeMappingSheaf<kRows>();
