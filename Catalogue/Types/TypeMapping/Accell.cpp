// What Accell programs and forms call the internal types, in Informix's terms. Times with digits behind the
// second are written TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one.
// Intervals, and moments without a full date or time, become texts.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//  type            size  scale  name
    Map(  0,         32767,        "CHAR"),
    Map(  0, 4398046511104,        "CLOB"),
    Map(  1,           255,        "VARCHAR"),
    Map(  1,         32739,        "LVARCHAR"),
    Map(  1, 4398046511104,        "CLOB"),
    Map(  7, 4398046511104,        "CLOB"),
    Map(  8,         32767,        "NCHAR"),
    Map(  9,           255,        "NVARCHAR"),
    Map(  9,         32739,        "LVARCHAR"),
    Map(  9, 4398046511104,        "CLOB"),
    Map( 16,    2147483647,        "BYTE"),
    Map( 17,    2147483647,        "BYTE"),
    Map( 20,    2147483647,        "BYTE"),
    Map( 23, 4398046511104,        "BLOB"),
    Map( 25,            32, 0, 32, "DECIMAL"),
    Map( 26,            32, 0, 32, "NUMERIC"),
    Map( 14,            32, 0, 32, "DECIMAL"),
    Map( 27,             1,        "BOOLEAN"),
    Map( 27,   17179869176,        "BYTE"),
    Map( 28,             1,        "BOOLEAN"),
    Map( 33,             3,        "SMALLINT"),
    Map( 34,             5,        "SMALLINT"),
    Map( 35,            10,        "INTEGER"),
    Map( 37,            19,        "INT8"),
    Map( 38,             3,        "SMALLINT"),
    Map( 39,             5,        "INTEGER"),
    Map( 40,            10,        "INT8"),
    Map( 41,            20, 0,  0, "DECIMAL"),
    Map( 42,            24,        "SMALLFLOAT"),
    Map( 43,            53,        "FLOAT"),
    Map( 46,            53,        "DOUBLE PRECISION"),
    Map(137,            34,        "DECIMAL"),
    Map( 48,            10,        "DATE"),
    Map( 57,            19,        "DATETIME YEAR TO SECOND"),
    Map( 49,            18, 0,  0, "DATETIME HOUR TO SECOND"),
    Map( 49,            18, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map( 50,            15, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map( 51,            26, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map( 52,            19, 0,  0, "DATETIME YEAR TO SECOND"),
    Map( 53,            35, 0,  0, "DATETIME YEAR TO SECOND"),
    Map( 53,            35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map( 54,            35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map( 56,            24, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(102,            35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map( 58,            19, 0,  4, "MONEY"),
    Map( 59,            19, 0,  4, "MONEY"),
    Map( 60,            32, 0, 32, "MONEY"),
    Map( 77,            10,        "DATETIME YEAR TO DAY"),
    Map( 79,            16,        "DATETIME YEAR TO MINUTE"),
    Map( 80,            19,        "DATETIME YEAR TO SECOND"),
    Map( 84,             8,        "DATETIME HOUR TO SECOND"),
    Map( 87,            25, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(113,             5,        "SMALLINT"),
    Map(129,            10,        "SERIAL"),
    Map(130,            10,        "INT8"),
    Map(132,             3,        "SMALLINT"),
    Map(131,             5,        "INTEGER"),
    Map(133,             8,        "INTEGER"),
    Map(134,            20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 59);

} // namespace

constinit const SMappingSheaf kAccellMapping = MakeMappingSheaf<kRows>();
