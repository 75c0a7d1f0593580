// What the SQL side of Progress databases calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  0,       2000,         "CHAR"),
    Map(  0,      31995,         "VARCHAR"),
    Map(  1,      31995,         "VARCHAR"),
    Map( 16,       2000,         "BINARY"),
    Map( 16, 1073741823,         "LVARBINARY"),
    Map( 17,      31982,         "VARBINARY"),
    Map( 17, 1073741823,         "LVARBINARY"),
    Map( 20, 1073741823,         "LVARBINARY"),
    Map( 23, 1073741823,         "LVARBINARY"),
    Map( 25,         50,  0, 10, "DECIMAL"),
    Map( 26,         50,  0, 10, "NUMERIC"),
    Map( 14,         50,  0, 10, "NUMERIC"),
    Map( 27,          1,         "BIT"),
    Map( 27,      31982,         "VARBINARY"),
    Map( 28,          1,         "LOGICAL"),
    Map( 33,          3,         "TINYINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "BIGINT"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "SMALLINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "BIGINT"),
    Map( 41,         20,  0,  0, "DECIMAL"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "FLOAT"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         53,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,  0,  3, "TIMESTAMP"),
    Map( 49,         12,  0,  3, "TIME"),
    Map( 50,         12,  0,  3, "TIME"),
    Map( 51,         23,  0,  3, "TIMESTAMP"),
    Map( 52,         19,  0,  3, "TIMESTAMP"),
    Map( 53,         23,  0,  3, "TIMESTAMP"),
    Map( 54,         29,  0,  3, "TIMESTAMP_TIMEZONE"),
    Map( 56,         12,  0,  3, "TIME"),
    Map(102,         29,  0,  3, "TIMESTAMP_TIMEZONE"),
    Map( 58,         10,  0,  4, "DECIMAL"),
    Map( 59,         19,  0,  4, "DECIMAL"),
    Map( 60,         32,  0, 10, "DECIMAL"),
    Map( 80,         19,  0,  3, "TIMESTAMP"),
    Map( 87,         23,  0,  3, "TIMESTAMP"),
    Map(113,          5,         "SMALLINT"),
    Map(112,       2000,         "BINARY"),
    Map(123,         50,  0, 10, "NUMERIC"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "BIGINT"),
    Map(132,          3,         "SMALLINT"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kProgressMapping = MakeMappingSheaf<kRows>();
