// NuoDB. It has one type of text and one of bytes for all that is long, and no intervals.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale  name
    Map(  0,      32767,        "CHAR"),
    Map(  0, 2147483647,        "CLOB"),
    Map(  1,      32767,        "VARCHAR"),
    Map(  1, 2147483647,        "CLOB"),
    Map(  7, 2147483647,        "CLOB"),
    Map( 11,      32767,        "NCHAR"),
    Map( 11, 2147483647,        "CLOB"),
    Map( 12,      32767,        "NVARCHAR"),
    Map( 12, 2147483647,        "CLOB"),
    Map(  8,      32767,        "NCHAR"),
    Map(  8, 2147483647,        "CLOB"),
    Map(  9,      32767,        "NVARCHAR"),
    Map(  9, 2147483647,        "CLOB"),
    Map( 16,      32767,        "BINARY"),
    Map( 16, 2147483647,        "BLOB"),
    Map( 17,      32767,        "VARBINARY"),
    Map( 17, 2147483647,        "BLOB"),
    Map( 20, 2147483647,        "BLOB"),
    Map( 23, 2147483647,        "BLOB"),
    Map( 25,         38, 0, 38, "DECIMAL"),
    Map( 26,         38, 0, 38, "NUMERIC"),
    Map( 14,         38, 0, 38, "DECIMAL"),
    Map( 27,          1,        "SMALLINT"),
    Map( 27,      32767,        "VARBINARY"),
    Map( 27, 2147483647,        "BLOB"),
    Map( 28,          1,        "SMALLINT"),
    Map( 33,          3,        "SMALLINT"),
    Map( 34,          5,        "SMALLINT"),
    Map( 35,         10,        "INTEGER"),
    Map( 37,         19,        "BIGINT"),
    Map( 36,         10,        "INTEGER"),
    Map( 38,          3,        "SMALLINT"),
    Map( 39,          5,        "INTEGER"),
    Map( 40,         10,        "BIGINT"),
    Map( 41,         20, 0,  0, "DECIMAL"),
    Map( 42,         24,        "REAL"),
    Map( 43,         53,        "DOUBLE"),
    Map( 44,         53,        "DOUBLE"),
    Map( 46,         53,        "DOUBLE"),
    Map(137,         34,        "DOUBLE"),
    Map( 48,         10,        "DATE"),
    Map( 57,         19,        "TIMESTAMP"),
    Map( 49,         18, 0,  9, "TIME"),
    Map( 50,         15, 0,  6, "TIME"),
    Map( 51,         26, 0,  6, "TIMESTAMP"),
    Map( 52,         19,        "TIMESTAMP"),
    Map( 53,         29, 0,  9, "TIMESTAMP"),
    Map( 54,         29, 0,  9, "TIMESTAMP"),
    Map(102,         29, 0,  9, "TIMESTAMP"),
    Map( 58,         10, 4,  4, "DECIMAL"),
    Map( 59,         19, 0,  4, "DECIMAL"),
    Map( 60,         32, 0, 32, "DECIMAL"),
    Map( 77,         10,        "DATE"),
    Map( 80,         19,        "TIMESTAMP"),
    Map( 87,         25, 0,  5, "TIMESTAMP"),
    Map(113,          5,        "SMALLINT"),
    Map(104,         10,        "BIGINT"),
    Map(110, 2147483647,        "XML"),
    Map(111, 2147483647,        "XML"),
    Map(103,         36,        "CHAR"),
    Map(112,          8,        "BINARY"),
    Map(123,         38, 0, 38, "NUMERIC"),
    Map(129,         10,        "INTEGER"),
    Map(130,         10,        "BIGINT"),
    Map(132,          3,        "SMALLINT"),
    Map(131,          5,        "INTEGER"),
    Map(133,          8,        "INTEGER"),
    Map(134,         20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 68);

} // namespace

constinit const SMappingSheaf kNuoDbMapping = MakeMappingSheaf<kRows>();
