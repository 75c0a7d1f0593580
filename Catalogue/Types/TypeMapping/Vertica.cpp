// Vertica. Any integer has 64 bits, any float 53; the database is UTF-8.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//  type         size  scale
    Map(  0,    65000,          "CHAR"),
    Map(  0, 32000000,          "LONG VARCHAR"),
    Map(  1,    65000,          "VARCHAR"),
    Map(  1, 32000000,          "LONG VARCHAR"),
    Map( 16,    65000,          "VARBINARY"),
    Map( 16, 32000000,          "LONG VARBINARY"),
    Map( 17,    65000,          "VARBINARY"),
    Map( 17, 32000000,          "LONG VARBINARY"),
    Map( 20, 32000000,          "LONG VARBINARY"),
    Map( 23, 32000000,          "LONG VARBINARY"),
    Map( 25,     1024, 0, 1024, "DECIMAL"),
    Map( 26,     1024, 0, 1024, "NUMERIC"),
    Map( 14,     1024, 0, 1024, "DECIMAL"),
    Map( 27,        1,          "BOOLEAN"),
    Map( 27,    65000,          "VARCHAR"),
    Map( 27, 32000000,          "LONG VARCHAR"),
    Map( 28,        1,          "BOOLEAN"),
    Map( 33,        3,          "SMALLINT"),
    Map( 34,        5,          "SMALLINT"),
    Map( 35,       10,          "INTEGER"),
    Map( 37,       19,          "INTEGER"),
    Map( 36,       10,          "INTEGER"),
    Map( 38,        3,          "SMALLINT"),
    Map( 39,        5,          "INTEGER"),
    Map( 40,       10,          "INTEGER"),
    Map( 41,       20,          "DECIMAL"),
    Map( 42,       24,          "DOUBLE PRECISION"),
    Map( 43,       53,          "DOUBLE PRECISION"),
    Map( 44,       53,          "DOUBLE PRECISION"),
    Map( 46,       53,          "DOUBLE PRECISION"),
    Map(137,       53,          "DOUBLE PRECISION"),
    Map( 48,       10,          "DATE"),
    Map( 57,       19,          "TIMESTAMP"),
    Map( 49,       15, 0,    6, "TIME()"),
    Map( 50,       15, 0,    6, "TIME()"),
    Map( 51,       26, 0,    6, "TIMESTAMP"),
    Map( 52,       19,          "TIMESTAMP"),
    Map( 53,       26, 0,    6, "TIMESTAMP"),
    Map( 54,       32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 56,       21, 0,    6, "TIME() WITH TIME ZONE"),
    Map(102,       32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map( 58,       10, 0,    4, "DECIMAL"),
    Map( 59,       19, 0,    4, "DECIMAL"),
    Map( 60,       32, 0,   32, "DECIMAL"),
    Map( 62,       13,          "INTERVAL YEAR() TO MONTH"),
    Map( 64,       10,          "INTERVAL DAY()"),
    Map( 67,       26,          "INTERVAL DAY() TO SECOND"),
    Map( 70,       13,          "INTERVAL HOUR() TO MINUTE"),
    Map( 71,       23,          "INTERVAL HOUR() TO SECOND"),
    Map( 77,       10,          "DATE"),
    Map( 80,       19,          "TIMESTAMP"),
    Map( 87,       26, 0,    6, "TIMESTAMP"),
    Map( 68,       26, 0,    6, "INTERVAL DAY() TO SECOND()"),
    Map(113,        5,          "SMALLINT"),
    Map(112,    65000,          "VARBINARY"),
    Map(123,       38, 0,   38, "NUMERIC"),
    Map(129,       10,          "INTEGER"),
    Map(130,       10,          "INTEGER"),
    Map(132,        3,          "SMALLINT"),
    Map(131,        5,          "INTEGER"),
    Map(133,        8,          "INTEGER"),
    Map(134,       20,          "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 62);

} // namespace

constinit const SMappingSheaf kVerticaMapping = MakeMappingSheaf<kRows>();
