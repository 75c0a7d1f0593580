// Firebird: long text is a BLOB with a sub type. Zones and intervals have no name here.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//  type           size  scale
    Map(  0,      32767,        "CHAR"),
    Map(  0, 2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(  1,      32765,        "VARCHAR"),
    Map(  1, 2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(  7, 2147483647,        "BLOB SUB_TYPE TEXT"),
    Map( 16, 2147483647,        "BLOB"),
    Map( 17, 2147483647,        "BLOB"),
    Map( 20, 2147483647,        "BLOB"),
    Map( 23, 2147483647,        "BLOB"),
    Map( 25,         38, 0, 38, "DECIMAL"),
    Map( 26,         38, 0, 38, "NUMERIC"),
    Map( 14,         38, 0, 38, "DECIMAL"),
    Map( 27,          1,        "BOOLEAN"),
    Map( 27,      32765,        "VARCHAR"),
    Map( 27, 2147483647,        "BLOB SUB_TYPE TEXT"),
    Map( 28,          1,        "BOOLEAN"),
    Map( 33,          3,        "SMALLINT"),
    Map( 34,          5,        "SMALLINT"),
    Map( 35,         10,        "INTEGER"),
    Map( 37,         19,        "BIGINT"),
    Map( 36,         10,        "INTEGER"),
    Map( 38,          3,        "SMALLINT"),
    Map( 39,          5,        "INTEGER"),
    Map( 40,         10,        "BIGINT"),
    Map( 41,         20,        "NUMERIC"),
    Map( 42,         24,        "FLOAT"),
    Map( 43,         53,        "DOUBLE PRECISION"),
    Map( 44,         53,        "DOUBLE PRECISION"),
    Map( 46,         53,        "DOUBLE PRECISION"),
    Map(137,         53,        "DOUBLE PRECISION"),
    Map( 48,         10,        "DATE"),
    Map( 57,         19,        "TIMESTAMP"),
    Map( 49,         13, 0,  4, "TIME"),
    Map( 50,         13, 0,  4, "TIME"),
    Map( 51,         24, 0,  4, "TIMESTAMP"),
    Map( 52,         19,        "TIMESTAMP"),
    Map( 53,         24, 0,  4, "TIMESTAMP"),
    Map( 54,         24, 0,  4, "TIMESTAMP"),
    Map( 56,         13, 0,  4, "TIME"),
    Map(102,         24, 0,  4, "TIMESTAMP"),
    Map( 58,         10, 0,  4, "DECIMAL"),
    Map( 59,         19, 0,  4, "DECIMAL"),
    Map( 60,         32, 0, 32, "DECIMAL"),
    Map( 77,         10,        "DATE"),
    Map( 80,         19,        "TIMESTAMP"),
    Map( 84,          8,        "TIME"),
    Map( 87,         24, 0,  4, "TIMESTAMP"),
    Map( 96,         13, 0,  4, "TIME"),
    Map(113,          5,        "SMALLINT"),
    Map(112, 2147483647,        "BLOB"),
    Map(123,         38, 0, 38, "NUMERIC"),
    Map(129,         10,        "INTEGER"),
    Map(130,         10,        "BIGINT"),
    Map(132,          3,        "SMALLINT"),
    Map(131,          5,        "INTEGER"),
    Map(133,          8,        "INTEGER"),
    Map(134,         20,        "NUMERIC"),
};
// clang-format on
static_assert(std::size(kRows) == 57);

} // namespace

constinit const SMappingSheaf kFirebirdMapping = MakeMappingSheaf<kRows>();
