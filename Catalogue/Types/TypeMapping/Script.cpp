// What scripting languages without types of columns write for the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale     name
    Map(  0, 2147483647,           "CHAR"),
    Map(  1, 2147483647,           "VARCHAR"),
    Map(  8, 1073741823,           "NCHAR"),
    Map(  9, 1073741823,           "NCHAR VARYING"),
    Map( 10, 1073741823,           "NCHAR VARYING"),
    Map( 16, 2147483647,           "BYTEA"),
    Map( 17, 2147483647,           "BYTEA"),
    Map( 20, 2147483647,           "BYTEA"),
    Map( 23, 2147483647,           "BYTEA"),
    Map( 25,       1000,  0, 1000, "DECIMAL"),
    Map( 26,       1000,  0, 1000, "NUMERIC"),
    Map( 14,       1000,  0, 1000, "NUMERIC"),
    Map( 27,          1,           "BOOLEAN"),
    Map( 27, 2147483647,           "BIT"),
    Map( 28,          1,           "BOOLEAN"),
    Map( 33,          3,           "SMALLINT"),
    Map( 34,          5,           "SMALLINT"),
    Map( 35,         10,           "INTEGER"),
    Map( 37,         19,           "LARGEINT"),
    Map( 36,         10,           "INT"),
    Map( 38,          3,           "SMALLINT"),
    Map( 39,          5,           "INTEGER"),
    Map( 40,         10,           "LARGEINT"),
    Map( 41,         20,  0,    0, "NUMERIC"),
    Map( 42,         53,           "DOUBLE PRECISION"),
    Map( 43,         53,           "DOUBLE PRECISION"),
    Map( 46,         53,           "DOUBLE PRECISION"),
    Map(137,         53,           "DOUBLE PRECISION"),
    Map( 48,         10,           "DATE"),
    Map( 57,         19,  0,    9, "TIMESTAMP"),
    Map( 49,         18,  0,    9, "TIME()"),
    Map( 52,         19,  0,    9, "TIMESTAMP"),
    Map( 53,         29,  0,    9, "TIMESTAMP"),
    Map( 54,         35,  0,    9, "TIMESTAMP() WITH TIME ZONE"),
    Map( 56,         24,  0,    9, "TIME() WITH TIME ZONE"),
    Map(102,         35,  0,    9, "TIMESTAMP() WITH TIME ZONE"),
    Map( 58,         19,  0,    4, "MONEY"),
    Map( 59,         19,  0,    4, "NUMERIC"),
    Map( 60,       1000,  0, 1000, "NUMERIC"),
    Map( 62,         13,           "INTERVAL YEAR() TO MONTH"),
    Map( 68,         26,           "INTERVAL DAY() TO SECOND"),
    Map(113,          5,           "SMALLINT"),
    Map(129,         10,           "INTEGER"),
    Map(130,         10,           "LARGEINT"),
    Map(132,          3,           "SMALLINT"),
    Map(131,          5,           "INTEGER"),
    Map(134,         20,  0,    0, "NUMERIC"),
};
// clang-format on
static_assert(std::size(kRows) == 47);

} // namespace

constinit const SMappingSheaf kScriptMapping = MakeMappingSheaf<kRows>();
