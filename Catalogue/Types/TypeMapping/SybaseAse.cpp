// What Adaptive Server Enterprise calls the internal types. BIGDATETIME takes what is too early or too fine
// for DATETIME. TINYINT has no sign: signed bytes go to SMALLINT.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//     type        size  scale   name
    Map(  0,      16384,         "CHAR"),
    Map(  0, 2147483647,         "TEXT"),
    Map(  1,      16384,         "VARCHAR"),
    Map(  1, 2147483647,         "TEXT"),
    Map(  7, 2147483647,         "TEXT"),
    Map( 11,       8192,         "UNICHAR"),
    Map( 12,       8192,         "UNIVARCHAR"),
    Map( 13, 1073741823,         "UNITEXT"),
    Map(  8,       8192,         "UNICHAR"),
    Map(  8, 1073741823,         "UNITEXT"),
    Map(  9,       8192,         "UNIVARCHAR"),
    Map(  9, 1073741823,         "UNITEXT"),
    Map( 10, 1073741823,         "UNITEXT"),
    Map( 16,      16384,         "BINARY"),
    Map( 16, 2147483647,         "IMAGE"),
    Map( 17,      16384,         "VARBINARY"),
    Map( 17, 2147483647,         "IMAGE"),
    Map( 20, 2147483647,         "IMAGE"),
    Map( 23, 2147483647,         "IMAGE"),
    Map( 24, 2147483647,         "IMAGE"),
    Map( 25,         38, 0,  38, "DECIMAL"),
    Map( 26,         38, 0,  38, "NUMERIC"),
    Map( 14,         38, 0,  38, "DECIMAL"),
    Map( 27,          1,         "BIT"),
    Map( 27,      16384,         "BINARY"),
    Map( 28,          1,         "BIT"),
    Map( 33,          3,         "SMALLINT"),
    Map( 34,          5,         "SMALLINT"),
    Map( 35,         10,         "INT"),
    Map( 37,         19,         "BIGINT"),
    Map( 36,         10,         "INT"),
    Map( 38,          3,         "TINYINT"),
    Map( 39,          5,         "UNSIGNED SMALLINT"),
    Map( 40,         10,         "UNSIGNED INT"),
    Map( 41,         20,         "NUMERIC"),
    Map( 42,         24,         "REAL"),
    Map( 43,         53,         "DOUBLE PRECISION"),
    Map( 44,         53,         "DOUBLE PRECISION"),
    Map( 46,         53,         "DOUBLE PRECISION"),
    Map(137,         34,         "DOUBLE PRECISION"),
    Map( 48,         10,         "DATE"),
    Map( 57,         19,         "BIGDATETIME"),
    Map( 49,         16,         "BIGTIME"),
    Map( 50,         15,         "BIGTIME"),
    Map( 51,         26,         "BIGDATETIME"),
    Map( 52,         16,         "SMALLDATETIME"),
    Map( 52,         19,         "BIGDATETIME"),
    Map( 53,         29,         "BIGDATETIME"),
    Map( 54,         35,         "BIGDATETIME"),
    Map( 56,         21,         "BIGTIME"),
    Map(102,         35,         "BIGDATETIME"),
    Map( 58,         10, 0,   4, "SMALLMONEY"),
    Map( 59,         19, 2,   2, "DECIMAL"),
    Map( 59,         19, 0,   4, "MONEY"),
    Map( 60,         38, 0,  38, "DECIMAL"),
    Map( 77,         10,         "DATE"),
    Map( 80,         19,         "BIGDATETIME"),
    Map( 84,          8,         "BIGTIME"),
    Map( 87,         25,         "BIGDATETIME"),
    Map( 96,         14,         "BIGTIME"),
    Map(113,          5,         "SMALLINT"),
    Map(104,         10,         "UNSIGNED INT"),
    Map(112,          8,         "TIMESTAMP"),
    Map(123,         18, 0,  38, "NUMERIC IDENTITY"),
    Map(129,         10,         "INT"),
    Map(130,         10,         "UNSIGNED INT"),
    Map(132,          3,         "TINYINT"),
    Map(131,          5,         "UNSIGNED SMALLINT"),
    Map(133,          8,         "INT"),
    Map(134,         20,         "NUMERIC"),
    Map(138, 2147483647,         "TEXT"),
};
// clang-format on
static_assert(std::size(kRows) == 71);

} // namespace

constinit const SMappingSheaf kSybaseAseMapping = MakeMappingSheaf<kRows>();
