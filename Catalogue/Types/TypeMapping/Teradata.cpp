// What Teradata calls the internal types, with the limits of release 16.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  0,      64000,         "CHAR"),
    Map(  0, 2097088000,         "CLOB"),
    Map(  1,      64000,         "VARCHAR"),
    Map(  1, 2097088000,         "CLOB"),
    Map( 11,      32000,         "CHAR() CHARACTER SET UNICODE"),
    Map( 12,      32000,         "VARCHAR() CHARACTER SET UNICODE"),
    Map(  8,      32000,         "CHAR() CHARACTER SET UNICODE"),
    Map(  9,      32000,         "VARCHAR() CHARACTER SET UNICODE"),
    Map(  9, 1048544000,         "CLOB CHARACTER SET UNICODE"),
    Map( 10, 1048544000,         "CLOB CHARACTER SET UNICODE"),
    Map( 16,      64000,         "BYTE"),
    Map( 17,      64000,         "VARBYTE"),
    Map( 17, 2097088000,         "BLOB"),
    Map( 20, 2097088000,         "BLOB"),
    Map( 23, 2097088000,         "BLOB"),
    Map( 25,         38,  0, 38, "DECIMAL"),
    Map( 26,         38,  0, 38, "NUMERIC"),
    Map( 14,         38,  0, 38, "NUMBER"),
    Map( 27,          1,         "BYTEINT"),
    Map( 27,      64000,         "BYTE"),
    Map( 28,          1,         "BYTEINT"),
    Map( 33,          3,         "BYTEINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "BIGINT"),
    Map( 38,          3,         "SMALLINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "BIGINT"),
    Map( 41,         20,  0,  0, "DECIMAL"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "FLOAT"),
    Map( 46,         53,         "DOUBLE PRECISION"),
    Map(137,         38,         "NUMBER"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,  0,  6, "TIMESTAMP"),
    Map( 49,         15,  0,  6, "TIME()"),
    Map( 51,         26,  0,  6, "TIMESTAMP"),
    Map( 52,         19,  0,  6, "TIMESTAMP"),
    Map( 53,         26,  0,  6, "TIMESTAMP"),
    Map( 54,         32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 56,         21,  0,  6, "TIME() WITH TIME ZONE"),
    Map(102,         32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 58,         10,  0,  4, "DECIMAL"),
    Map( 59,         19,  0,  4, "DECIMAL"),
    Map( 60,         32,  0, 32, "DECIMAL"),
    Map( 62,          8,         "INTERVAL YEAR() TO MONTH"),
    Map( 80,         19,  0,  6, "TIMESTAMP"),
    Map( 87,         26,  0,  6, "TIMESTAMP"),
    Map( 68,         21,         "INTERVAL DAY() TO SECOND"),
    Map(113,          5,         "SMALLINT"),
    Map(110, 2097088000,         "XML"),
    Map(111, 2097088000,         "XML"),
    Map(112,          8,         "BYTE"),
    Map(123,         38,  0, 38, "NUMERIC"),
    Map(127,   16776192,         "JSON"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "BIGINT"),
    Map(132,          3,         "SMALLINT"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 61);

} // namespace

constinit const SMappingSheaf kTeradataMapping = MakeMappingSheaf<kRows>();
