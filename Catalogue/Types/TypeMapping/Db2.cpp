// DB2 for Linux, Unix and Windows. Times with a fraction become timestamps; what DECIMAL can't hold is
// DECFLOAT, and so is Oracle's NUMBER without a precision, which is known by its size of 0.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale  name
    Map(  0,        254,        "CHAR"),
    Map(  0,      32672,        "VARCHAR"),
    Map(  0, 2147483647,        "CLOB"),
    Map(  1,      32672,        "VARCHAR"),
    Map(  1, 2147483647,        "CLOB"),
    Map(  7, 2147483647,        "CLOB"),
    Map( 11,      16336,        "VARGRAPHIC"),
    Map( 12,      16336,        "VARGRAPHIC"),
    Map( 13, 1073741823,        "DBCLOB"),
    Map(  8,      16336,        "VARGRAPHIC"),
    Map(  8, 1073741823,        "DBCLOB"),
    Map(  9,      16336,        "VARGRAPHIC"),
    Map(  9, 1073741823,        "DBCLOB"),
    Map( 10, 1073741823,        "DBCLOB"),
    Map( 16,        254,        "CHAR() FOR BIT DATA"),
    Map( 16,      32672,        "VARCHAR() FOR BIT DATA"),
    Map( 16, 2147483647,        "BLOB"),
    Map( 17,      32672,        "VARCHAR() FOR BIT DATA"),
    Map( 17, 2147483647,        "BLOB"),
    Map( 20, 2147483647,        "BLOB"),
    Map( 23, 2147483647,        "BLOB"),
    Map( 25,         31, 0, 31, "DECIMAL"),
    Map( 25,         34,        "DECFLOAT"),
    Map( 26,         31, 0, 31, "NUMERIC"),
    Map( 26,         34,        "DECFLOAT"),
    Map( 14,         31, 0, 31, "DECIMAL"),
    Map( 14,         34,        "DECFLOAT"),
    Map( 27,          1,        "BOOLEAN"),
    Map( 27,      32672,        "VARCHAR() FOR BIT DATA"),
    Map( 28,          1,        "BOOLEAN"),
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
    Map( 46,          0,        "DECFLOAT"),
    Map( 46,         53,        "DOUBLE"),
    Map(137,         34,        "DECFLOAT"),
    Map( 48,         10,        "DATE"),
    Map( 57,         19,        "TIMESTAMP"),
    Map( 49,         18,        "TIME"),
    Map( 49,         18, 1, 12, "TIMESTAMP"),
    Map( 51,         26, 0,  6, "TIMESTAMP"),
    Map( 52,         19,        "TIMESTAMP"),
    Map( 53,         32, 0, 12, "TIMESTAMP"),
    Map( 54,         32, 0, 12, "TIMESTAMP"),
    Map(102,         32, 0, 12, "TIMESTAMP"),
    Map( 58,         10, 4,  4, "DECIMAL"),
    Map( 59,         19, 0,  4, "DECIMAL"),
    Map( 60,         31, 0, 31, "DECIMAL"),
    Map( 77,         10,        "DATE"),
    Map( 80,         19,        "TIMESTAMP"),
    Map( 87,         25, 0,  5, "TIMESTAMP"),
    Map(113,          5,        "SMALLINT"),
    Map(110, 2147483647,        "XML"),
    Map(111, 2147483647,        "XML"),
    Map(112,          8,        "CHAR() FOR BIT DATA"),
    Map(123,         31, 0, 31, "NUMERIC"),
    Map(129,         10,        "INTEGER"),
    Map(130,         10,        "BIGINT"),
    Map(132,          3,        "SMALLINT"),
    Map(131,          5,        "INTEGER"),
    Map(133,          8,        "INTEGER"),
    Map(134,         20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 70);

} // namespace

constinit const SMappingSheaf kDb2Mapping = MakeMappingSheaf<kRows>();
