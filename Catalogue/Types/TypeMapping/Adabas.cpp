// What Adabas files, seen by SQL, call the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//    type       size  scale   name
    Map(  0,        253,         "CHAR"),
    Map(  0,      16381,         "VARCHAR"),
    Map(  1,      16381,         "VARCHAR"),
    Map( 16,        126,         "BINARY"),
    Map( 16, 2147483643,         "LVARBINARY"),
    Map( 17,      16381,         "VARBINARY"),
    Map( 17, 2147483643,         "LVARBINARY"),
    Map( 20, 2147483643,         "LVARBINARY"),
    Map( 23, 2147483643,         "LVARBINARY"),
    Map( 25,         29,  0, 29, "DECIMAL"),
    Map( 26,         29,  0, 29, "NUMERIC"),
    Map( 14,         29,  0, 29, "NUMERIC"),
    Map( 27,          1,         "BIT"),
    Map( 27,      16381,         "VARBINARY"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "TINYINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "DECIMAL"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "SMALLINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "DECIMAL"),
    Map( 41,         20,  0,  0, "DECIMAL"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "FLOAT"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         53,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,  0,  6, "TIMESTAMP"),
    Map( 49,          8,  0,  0, "TIME"),
    Map( 50,          8,  0,  0, "TIME"),
    Map( 51,         26,  0,  6, "TIMESTAMP"),
    Map( 52,         19,  0,  6, "TIMESTAMP"),
    Map( 53,         26,  0,  6, "TIMESTAMP"),
    Map( 54,         26,  0,  6, "TIMESTAMP"),
    Map( 56,          8,  0,  0, "TIME"),
    Map(102,         26,  0,  6, "TIMESTAMP"),
    Map( 58,         10,  0,  4, "DECIMAL"),
    Map( 59,         19,  0,  4, "DECIMAL"),
    Map( 60,         32,  0, 29, "DECIMAL"),
    Map( 80,         19,  0,  6, "TIMESTAMP"),
    Map( 87,         26,  0,  6, "TIMESTAMP"),
    Map(113,          5,         "SMALLINT"),
    Map(123,         29,  0, 29, "NUMERIC"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "DECIMAL"),
    Map(132,          3,         "SMALLINT"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kAdabasMapping = MakeMappingSheaf<kRows>();
