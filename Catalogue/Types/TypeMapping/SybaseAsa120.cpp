// What SQL Anywhere 12 calls the internal types. Its CHAR is a VARCHAR.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  1,      32767,         "VARCHAR"),
    Map(  1, 2147483647,         "LONG VARCHAR"),
    Map(  5, 1073741823,         "LONG NVARCHAR"),
    Map(  7, 2147483647,         "LONG VARCHAR"),
    Map(  8,      32767,         "NCHAR"),
    Map(  9,      32767,         "NVARCHAR"),
    Map(  9, 1073741823,         "LONG NVARCHAR"),
    Map( 10, 1073741823,         "LONG NVARCHAR"),
    Map( 16,      32767,         "BINARY"),
    Map( 17,      32767,         "VARBINARY"),
    Map( 17, 2147483647,         "LONG BINARY"),
    Map( 20, 2147483647,         "LONG BINARY"),
    Map( 23, 2147483647,         "LONG BINARY"),
    Map( 25,        127, 0, 127, "DECIMAL"),
    Map( 26,        127, 0, 127, "NUMERIC"),
    Map( 14,        127, 0, 127, "DECIMAL"),
    Map( 27,          1,         "BIT"),
    Map( 27,      32767,         "VARBIT"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INTEGER"),
    Map( 37,         19,         "BIGINT"),
    Map( 36,         10,         "INTEGER"),
    Map( 38,          3,         "TINYINT"),
    Map( 39,          5,         "UNSIGNED SMALLINT"),
    Map( 40,         10,         "UNSIGNED INT"),
    Map( 41,         20,         "UNSIGNED BIGINT"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE"),
    Map( 46,         53,         "DOUBLE"),
    Map(137,         34,         "DOUBLE"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,         "TIMESTAMP"),
    Map( 49,         16,         "TIME"),
    Map( 50,         15,         "TIME"),
    Map( 51,         26,         "TIMESTAMP"),
    Map( 52,         26,         "TIMESTAMP"),
    Map( 53,         29,         "TIMESTAMP"),
    Map( 54,         35,         "TIMESTAMP WITH TIME ZONE"),
    Map(102,         35,         "TIMESTAMP WITH TIME ZONE"),
    Map( 58,         10, 0,   4, "SMALLMONEY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "MONEY"),
    Map( 60,        127, 0, 127, "DECIMAL"),
    Map(113,          5,         "SMALLINT"),
    Map(129,         10,         "INTEGER"),
    Map(130,         10,         "UNSIGNED INT"),
    Map(132,          3,         "TINYINT"),
    Map(131,          5,         "UNSIGNED SMALLINT"),
    Map(133,          8,         "INTEGER"),
    Map(134,         20,         "UNSIGNED BIGINT"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kSybaseAsa120Mapping = MakeMappingSheaf<kRows>();
