// Redshift. Its CHAR holds single bytes, so national characters become VARCHAR. It has no interval column
// with the one parameter of INTERVAL(), so intervals become text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//  type        size  scale
    Map(  0,    4096,        "CHAR"),
    Map(  0,   65535,        "VARCHAR"),
    Map(  1,   65535,        "VARCHAR"),
    Map(  4,   65535,        "VARCHAR"),
    Map(  7,   65535,        "VARCHAR"),
    Map( 11,   65535,        "VARCHAR"),
    Map(  8,   65535,        "VARCHAR"),
    Map(  9,   65535,        "VARCHAR"),
    Map( 10,   65535,        "VARCHAR"),
    Map( 16, 1024000,        "BYTEA"),
    Map( 17, 1024000,        "BYTEA"),
    Map( 20, 1024000,        "BYTEA"),
    Map( 22,   65535,        "VARCHAR"),
    Map( 23, 1024000,        "BYTEA"),
    Map( 25,      38, 0, 37, "DECIMAL"),
    Map( 26,      38, 0, 37, "NUMERIC"),
    Map( 14,       0,        "DOUBLE PRECISION"),
    Map( 14,       4,        "SMALLINT"),
    Map( 14,       9,        "INTEGER"),
    Map( 14,      18,        "BIGINT"),
    Map( 14,      38, 0, 37, "DECIMAL"),
    Map( 27,       1,        "BOOLEAN"),
    Map( 27,   65535,        "VARCHAR"),
    Map( 28,       1,        "BOOLEAN"),
    Map( 33,       3,        "SMALLINT"),
    Map( 34,       5,        "SMALLINT"),
    Map( 35,      10,        "INTEGER"),
    Map( 37,      19,        "BIGINT"),
    Map( 36,      10,        "INTEGER"),
    Map( 38,       3,        "SMALLINT"),
    Map( 39,       5,        "INTEGER"),
    Map( 40,      10,        "BIGINT"),
    Map( 41,      20,        "DECIMAL"),
    Map( 42,      24,        "REAL"),
    Map( 43,      53,        "DOUBLE PRECISION"),
    Map( 44,      53,        "DOUBLE PRECISION"),
    Map( 46,      53,        "DOUBLE PRECISION"),
    Map(137,      53,        "DOUBLE PRECISION"),
    Map( 48,      10,        "DATE"),
    Map( 57,      19,        "TIMESTAMP"),
    Map( 49,      15, 0,  6, "TIME"),
    Map( 50,      15, 0,  6, "TIME"),
    Map( 51,      26, 0,  6, "TIMESTAMP"),
    Map( 52,      19,        "TIMESTAMP"),
    Map( 53,      26, 0,  6, "TIMESTAMP"),
    Map( 54,      32, 0,  6, "TIMESTAMP WITH TIME ZONE"),
    Map( 56,      21, 0,  6, "TIMETZ"),
    Map(102,      32, 0,  6, "TIMESTAMP WITH TIME ZONE"),
    Map( 58,      10, 0,  4, "DECIMAL"),
    Map( 59,      19, 0,  4, "DECIMAL"),
    Map( 60,      32, 0, 32, "DECIMAL"),
    Map( 77,      10,        "DATE"),
    Map( 78,      19,        "TIMESTAMP"),
    Map( 79,      19,        "TIMESTAMP"),
    Map( 80,      19,        "TIMESTAMP"),
    Map( 82,       8,        "TIME"),
    Map( 83,       8,        "TIME"),
    Map( 84,       8,        "TIME"),
    Map( 87,      26, 0,  6, "TIMESTAMP"),
    Map( 96,      15, 0,  6, "TIME"),
    Map(113,       5,        "SMALLINT"),
    Map(104,      10,        "BIGINT"),
    Map(103,      36,        "CHAR"),
    Map(112, 1024000,        "BYTEA"),
    Map(123,      38, 0, 37, "DECIMAL"),
    Map(125, 1024000,        "BYTEA"),
    Map(126, 1024000,        "BYTEA"),
    Map(129,      10,        "INTEGER"),
    Map(130,      10,        "BIGINT"),
    Map(132,       3,        "SMALLINT"),
    Map(131,       5,        "INTEGER"),
    Map(133,       8,        "INTEGER"),
    Map(134,      20,        "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 73);

} // namespace

constinit const SMappingSheaf kRedshiftMapping = MakeMappingSheaf<kRows>();
