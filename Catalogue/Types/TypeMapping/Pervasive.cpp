// What Pervasive calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  0,       8000,         "CHAR"),
    Map(  0, 2147483647,         "LONGVARCHAR"),
    Map(  1,       8000,         "VARCHAR"),
    Map(  1, 2147483647,         "LONGVARCHAR"),
    Map(  7, 2147483647,         "LONGVARCHAR"),
    Map( 16,       8000,         "BINARY"),
    Map( 16, 2147483647,         "LONGVARBINARY"),
    Map( 17,       8000,         "BINARY"),
    Map( 17, 2147483647,         "LONGVARBINARY"),
    Map( 20, 2147483647,         "LONGVARBINARY"),
    Map( 23, 2147483647,         "LONGVARBINARY"),
    Map( 25,         64, 0,  64, "DECIMAL"),
    Map( 26,         15, 0,  15, "NUMERIC"),
    Map( 26,         64, 0,  64, "DECIMAL"),
    Map( 14,         64, 0,  64, "DECIMAL"),
    Map( 27,          1,         "BIT"),
    Map( 27,       8000,         "BINARY"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "TINYINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "BIGINT"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "UTINYINT"),
    Map( 39,          5,         "USMALLINT"),
    Map( 40,         10,         "UINTEGER"),
    Map( 41,         20,         "UBIGINT"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         34,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,         "TIMESTAMP"),
    Map( 49,         16,         "TIME"),
    Map( 52,         27,         "TIMESTAMP"),
    Map( 53,         29,         "TIMESTAMP"),
    Map( 54,         35,         "TIMESTAMP"),
    Map(102,         35,         "TIMESTAMP"),
    Map( 58,         10, 0,   4, "CURRENCY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "CURRENCY"),
    Map( 60,         64, 0,  64, "DECIMAL"),
    Map( 80,         19,         "TIMESTAMP"),
    Map( 87,         25,         "TIMESTAMP"),
    Map(113,          5,         "SMALLIDENTITY"),
    Map(123,         64, 0,  64, "DECIMAL"),
    Map(129,         10,         "IDENTITY"),
    Map(130,         10,         "UINTEGER"),
    Map(132,          3,         "UTINYINT"),
    Map(131,          5,         "USMALLINT"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,         "UBIGINT"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kPervasiveMapping = MakeMappingSheaf<kRows>();
