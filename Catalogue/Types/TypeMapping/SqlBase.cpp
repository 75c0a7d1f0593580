// What SQLBase calls the internal types. What outgrows 254 bytes is a LONG VARCHAR.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  0,        254,         "CHAR"),
    Map(  0, 2147483647,         "LONG VARCHAR"),
    Map(  1,        254,         "VARCHAR"),
    Map(  1, 2147483647,         "LONG VARCHAR"),
    Map(  8,        127,         "NCHAR"),
    Map(  8, 2147483647,         "LONG VARCHAR"),
    Map(  9,        127,         "NCHAR VARYING"),
    Map(  9, 2147483647,         "LONG VARCHAR"),
    Map( 16, 2147483647,         "BYTEA"),
    Map( 17, 2147483647,         "BYTEA"),
    Map( 20, 2147483647,         "BYTEA"),
    Map( 23, 2147483647,         "BYTEA"),
    Map( 25,         15,  0, 15, "DECIMAL"),
    Map( 25,         22,  0, 22, "NUMBER"),
    Map( 26,         15,  0, 15, "NUMERIC"),
    Map( 26,         22,  0, 22, "NUMBER"),
    Map( 14,         15,  0, 15, "DECIMAL"),
    Map( 14,         22,  0, 22, "NUMBER"),
    Map( 27,          1,         "BOOLEAN"),
    Map( 27,        254,         "BIT"),
    Map( 28,          1,         "BOOLEAN"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "LARGEINT"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "SMALLINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "LARGEINT"),
    Map( 41,         20,  0,  0, "NUMBER"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE PRECISION"),
    Map( 46,         53,         "DOUBLE PRECISION"),
    Map(137,         22,         "NUMBER"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,  0,  6, "TIMESTAMP"),
    Map( 49,         15,  0,  6, "TIME"),
    Map( 52,         19,  0,  6, "TIMESTAMP"),
    Map( 53,         26,  0,  6, "TIMESTAMP"),
    Map( 54,         32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 56,         21,  0,  6, "TIME() WITH TIME ZONE"),
    Map(102,         32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 58,         10,  0,  4, "DECIMAL"),
    Map( 59,         22,  0, 22, "NUMBER"),
    Map( 60,         22,  0, 22, "NUMBER"),
    Map( 68,         26,         "INTERVAL DAY() TO SECOND"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "LARGEINT"),
    Map(132,          3,         "SMALLINT"),
    Map(131,          5,         "INTEGER"),
    Map(134,         20,  0,  0, "NUMBER"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kSqlBaseMapping = MakeMappingSheaf<kRows>();
