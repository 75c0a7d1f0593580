// HiRDB. It has no large text, which becomes BLOB, no 64-bit integer, which becomes DEC, and no intervals
// with a fraction.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale  name
    Map(  0,      30000,        "CHARACTER"),
    Map(  0,      32000,        "CHARACTER VARYING"),
    Map(  0, 2147483647,        "BLOB"),
    Map(  1,      32000,        "CHARACTER VARYING"),
    Map(  1, 2147483647,        "BLOB"),
    Map( 11,      30000,        "MCHAR"),
    Map( 12,      32000,        "MVARCHAR"),
    Map(  8,      30000,        "MCHAR"),
    Map(  8,      32000,        "MVARCHAR"),
    Map(  8, 2147483647,        "BLOB"),
    Map(  9,      32000,        "MVARCHAR"),
    Map(  9, 2147483647,        "BLOB"),
    Map( 16, 2147483647,        "BINARY"),
    Map( 17, 2147483647,        "BINARY"),
    Map( 20, 2147483647,        "BLOB"),
    Map( 23, 2147483647,        "BLOB"),
    Map( 25,         38, 0, 38, "DEC"),
    Map( 26,         38, 0, 38, "NUMERIC"),
    Map( 14,         38, 0, 38, "DEC"),
    Map( 27,          1,        "SMALLINT"),
    Map( 27, 2147483647,        "BINARY"),
    Map( 28,          1,        "SMALLINT"),
    Map( 33,          3,        "SMALLINT"),
    Map( 34,          5,        "SMALLINT"),
    Map( 35,         10,        "INTEGER"),
    Map( 37,         19, 0,  0, "DEC"),
    Map( 36,         10,        "INTEGER"),
    Map( 38,          3,        "SMALLINT"),
    Map( 39,          5,        "INTEGER"),
    Map( 40,         10, 0,  0, "DEC"),
    Map( 41,         20, 0,  0, "DEC"),
    Map( 42,         24,        "SMALLFLT"),
    Map( 43,         53,        "FLOAT"),
    Map( 44,         53,        "FLOAT"),
    Map( 46,         53,        "FLOAT"),
    Map(137,         34,        "FLOAT"),
    Map( 48,         10,        "DATE"),
    Map( 57,         19,        "TIMESTAMP"),
    Map( 49,         18,        "TIME"),
    Map( 49,         18, 1,  6, "TIMESTAMP"),
    Map( 51,         26, 0,  6, "TIMESTAMP"),
    Map( 52,         19,        "TIMESTAMP"),
    Map( 53,         26, 0,  6, "TIMESTAMP"),
    Map( 54,         26, 0,  6, "TIMESTAMP"),
    Map(102,         26, 0,  6, "TIMESTAMP"),
    Map( 58,         10, 4,  4, "DEC"),
    Map( 59,         19, 0,  4, "DEC"),
    Map( 60,         32, 0, 32, "DEC"),
    Map( 61,         11,        "INTERVAL YEAR TO DAY"),
    Map( 62,         11,        "INTERVAL YEAR TO DAY"),
    Map( 70,          9,        "INTERVAL HOUR TO SECOND"),
    Map( 71,         32,        "INTERVAL HOUR TO SECOND"),
    Map( 71,         32, 1,  9, "CHARACTER VARYING"),
    Map( 77,         10,        "DATE"),
    Map( 80,         19,        "TIMESTAMP"),
    Map( 87,         25, 0,  5, "TIMESTAMP"),
    Map(113,          5,        "SMALLINT"),
    Map(104,         10, 0,  0, "DEC"),
    Map(110, 2147483647,        "XML"),
    Map(111, 2147483647,        "XML"),
    Map(112,          8,        "BINARY"),
    Map(123,         38, 0, 38, "NUMERIC"),
    Map(129,         10,        "INTEGER"),
    Map(130,         10, 0,  0, "DEC"),
    Map(132,          3,        "SMALLINT"),
    Map(131,          5,        "INTEGER"),
    Map(133,          8,        "INTEGER"),
    Map(134,         20, 0,  0, "DEC"),
};
// clang-format on
static_assert(std::size(kRows) == 68);

} // namespace

constinit const SMappingSheaf kHiRdbMapping = MakeMappingSheaf<kRows>();
