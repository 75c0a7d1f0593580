// What a database of which only the standard is known calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  0, 2147483647,         "CHAR"),
    Map(  1, 2147483647,         "VARCHAR"),
    Map(  7, 2147483647,         "TEXT"),
    Map(  8, 2147483647,         "NCHAR"),
    Map(  9, 2147483647,         "NATIONAL CHARACTER VARYING"),
    Map( 10, 1073741823,         "NTEXT"),
    Map( 16, 2147483647,         "BINARY"),
    Map( 17, 2147483647,         "VARBINARY"),
    Map( 20, 2147483647,         "LONGBINARY"),
    Map( 23, 2147483647,         "LONGBINARY"),
    Map( 25,         38, 0,  38, "DECIMAL"),
    Map( 26,         38, 0,  38, "NUMERIC"),
    Map( 14,         38, 0,  38, "NUMBER"),
    Map( 27,          1,         "BIT"),
    Map( 27, 2147483647,         "BIT VARYING"),
    Map( 28,          1,         "BOOLEAN"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "NUMERIC"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "SMALLINT"),
    Map( 39,          5,         "INTEGER"),
    Map( 40,         10,         "NUMERIC"),
    Map( 41,         20,         "NUMERIC"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         34,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,         "DATETIME"),
    Map( 49,         16,         "TIME"),
    Map( 52,         19,         "DATETIME"),
    Map( 53,         29,         "DATETIME"),
    Map( 54,         35,         "DATETIME"),
    Map(102,         35,         "DATETIME"),
    Map( 58,         10, 0,   4, "MONEY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "MONEY"),
    Map( 60,         38, 0,  38, "DECIMAL"),
    Map( 80,         19,         "DATETIME"),
    Map( 87,         25,         "DATETIME"),
    Map(113,          5,         "SMALLINT"),
    Map(103,         36,         "UNIQUEIDENTIFIER"),
    Map(123,         38, 0,  38, "NUMERIC"),
    Map(129,         10,         "COUNTER"),
    Map(130,         10,         "NUMERIC"),
    Map(132,          3,         "SMALLINT"),
    Map(131,          5,         "INTEGER"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,         "NUMERIC"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kAnsiMapping = MakeMappingSheaf<kRows>();
