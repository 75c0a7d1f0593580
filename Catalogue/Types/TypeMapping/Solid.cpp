// Solid has no BOOLEAN and no zones: a truth value is a SMALLINT, a time with zone one without.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//  type           size  scale
    Map(  0,       8000,        "CHAR"),
    Map(  0, 2147483647,        "TEXT"),
    Map(  1,       8000,        "VARCHAR"),
    Map(  1, 2147483647,        "TEXT"),
    Map( 16, 2147483647,        "BYTEA"),
    Map( 17, 2147483647,        "BYTEA"),
    Map( 20, 2147483647,        "BYTEA"),
    Map( 23, 2147483647,        "BYTEA"),
    Map( 25,         38, 0, 38, "DECIMAL"),
    Map( 26,         38, 0, 38, "NUMERIC"),
    Map( 14,         38, 0, 38, "DECIMAL"),
    Map( 27,          1,        "SMALLINT"),
    Map( 27,       8000,        "VARCHAR"),
    Map( 28,          1,        "SMALLINT"),
    Map( 33,          3,        "SMALLINT"),
    Map( 34,          5,        "SMALLINT"),
    Map( 35,         10,        "INTEGER"),
    Map( 37,         19,        "BIGINT"),
    Map( 36,         10,        "INTEGER"),
    Map( 38,          3,        "SMALLINT"),
    Map( 39,          5,        "INTEGER"),
    Map( 40,         10,        "BIGINT"),
    Map( 41,         20,        "DECIMAL"),
    Map( 42,         24,        "REAL"),
    Map( 43,         53,        "DOUBLE PRECISION"),
    Map( 46,         53,        "DOUBLE PRECISION"),
    Map(137,         53,        "DOUBLE PRECISION"),
    Map( 48,         10,        "DATE"),
    Map( 57,         19,        "TIMESTAMP"),
    Map( 49,         15, 0,  6, "TIME()"),
    Map( 51,         26, 0,  6, "TIMESTAMP"),
    Map( 52,         19,        "TIMESTAMP"),
    Map( 53,         26, 0,  6, "TIMESTAMP"),
    Map( 54,         32, 0,  6, "TIMESTAMP"),
    Map(102,         32, 0,  6, "TIMESTAMP"),
    Map( 58,         10, 0,  4, "DECIMAL"),
    Map( 59,         19, 0,  4, "DECIMAL"),
    Map( 60,         32, 0, 32, "DECIMAL"),
    Map(113,          5,        "SMALLINT"),
    Map(112, 2147483647,        "BYTEA"),
    Map(123,         38, 0, 38, "NUMERIC"),
    Map(129,         10,        "INTEGER"),
    Map(130,         10,        "BIGINT"),
    Map(132,          3,        "SMALLINT"),
    Map(131,          5,        "INTEGER"),
    Map(133,          8,        "INTEGER"),
    Map(134,         20,        "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 47);

} // namespace

constinit const SMappingSheaf kSolidMapping = MakeMappingSheaf<kRows>();
