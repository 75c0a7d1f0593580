// What Neoview calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type  size  scale    name
    Map(  0, 32708,          "CHAR"),
    Map(  1, 32708,          "VARCHAR"),
    Map(  8, 16354,          "NCHAR"),
    Map(  9, 16354,          "NCHAR VARYING"),
    Map( 10, 16354,          "NCHAR VARYING"),
    Map( 16, 32708,          "BYTEA"),
    Map( 17, 32708,          "BYTEA"),
    Map( 20, 32708,          "BYTEA"),
    Map( 23, 32708,          "BYTEA"),
    Map( 25,    18,  0,  18, "DECIMAL"),
    Map( 25,   128,  0, 128, "NUMERIC"),
    Map( 26,   128,  0, 128, "NUMERIC"),
    Map( 14,   128,  0, 128, "NUMERIC"),
    Map( 27,     1,          "BOOLEAN"),
    Map( 27, 32708,          "BIT"),
    Map( 28,     1,          "BOOLEAN"),
    Map( 33,     3,          "SMALLINT"),
    Map( 34,     5,          "SMALLINT"),
    Map( 35,    10,          "INTEGER"),
    Map( 37,    19,          "LARGEINT"),
    Map( 36,    10,          "INTEGER"),
    Map( 38,     3,          "SMALLINT"),
    Map( 39,     5,          "SMALLINT UNSIGNED"),
    Map( 40,    10,          "INTEGER UNSIGNED"),
    Map( 41,    20,  0,   0, "NUMERIC"),
    Map( 42,    24,          "REAL"),
    Map( 43,    53,          "DOUBLE PRECISION"),
    Map( 46,    53,          "DOUBLE PRECISION"),
    Map(137,    53,          "DOUBLE PRECISION"),
    Map( 48,    10,          "DATE"),
    Map( 57,    19,  0,   6, "TIMESTAMP"),
    Map( 49,    15,  0,   6, "TIME()"),
    Map( 52,    19,  0,   6, "TIMESTAMP"),
    Map( 53,    26,  0,   6, "TIMESTAMP"),
    Map( 54,    32,  0,   6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 56,    21,  0,   6, "TIME() WITH TIME ZONE"),
    Map(102,    32,  0,   6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 58,    10,  0,   4, "NUMERIC"),
    Map( 59,    19,  0,   4, "NUMERIC"),
    Map( 60,    32,  0,  32, "NUMERIC"),
    Map( 62,    22,          "INTERVAL YEAR() TO MONTH"),
    Map( 80,    19,  0,   6, "TIMESTAMP"),
    Map( 87,    26,  0,   6, "TIMESTAMP"),
    Map( 68,    35,          "INTERVAL DAY() TO SECOND"),
    Map(113,     5,          "SMALLINT"),
    Map(123,   128,  0, 128, "NUMERIC"),
    Map(129,    10,          "INTEGER"),
    Map(130,    10,          "INTEGER UNSIGNED"),
    Map(132,     3,          "SMALLINT"),
    Map(131,     5,          "SMALLINT UNSIGNED"),
    Map(133,     8,          "INTEGER"),
    Map(134,    20,  0,   0, "NUMERIC"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kNeoviewMapping = MakeMappingSheaf<kRows>();
