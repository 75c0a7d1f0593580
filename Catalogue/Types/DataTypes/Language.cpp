// Languages that declare no columns themselves: what stands in their SQL, with limits wide enough for any
// database.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                          size or digits, leading digits, scale
    Sized         (  0, "CHAR",                        2147483647),
    Synonym(Sized (  0, "CHARACTER",                   2147483647)),
    Sized         (  1, "VARCHAR",                     2147483647),
    Synonym(Sized (  1, "CHARACTER VARYING",           2147483647)),
    Plain         ( 20, "BYTEA",                       2147483647),
    Sized         (  8, "NCHAR",                       1073741823),
    Synonym(Sized (  8, "NATIONAL CHARACTER",          1073741823)),
    Synonym(Sized (  8, "NATIONAL CHAR",               1073741823)),
    Sized         (  9, "NCHAR VARYING",               1073741823),
    Synonym(Sized (  9, "NATIONAL CHARACTER VARYING",  1073741823)),
    Synonym(Sized (  9, "NATIONAL CHAR VARYING",       1073741823)),
    Scaled        ( 25, "DECIMAL",                           1000, 0, 1000),
    Synonym(Scaled( 25, "DEC",                               1000, 0, 1000)),
    Scaled        ( 26, "NUMERIC",                           1000, 0, 1000),
    Plain         ( 28, "BOOLEAN",                              1),
    Synonym(Plain ( 28, "BOOL",                                 1)),
    Sized         ( 27, "BIT",                         2147483647),
    Sized         ( 22, "VARBIT",                      2147483647),
    Synonym(Sized ( 22, "BIT VARYING",                 2147483647)),
    Whole         ( 34, "SMALLINT",                             5),
    Whole         ( 35, "INT",                                 10),
    Synonym(Whole ( 35, "INTEGER",                             10)),
    Whole         ( 37, "LARGEINT",                            19),
    Whole         ( 46, "DOUBLE PRECISION",                    53),
    Fixed         ( 59, "MONEY",                               19, 4),
    Plain         ( 48, "DATE",                                10),
    Timed         ( 54, "TIMESTAMPTZ",                         35, 0,    9),
    Timed         ( 53, "TIMESTAMP",                           29, 0,    9),
    Synonym(Timed ( 54, "TIMESTAMP WITH TIME ZONE",            32, 6,    6, "")),
    Synonym(Timed ( 54, "TIMESTAMP() WITH TIME ZONE",          35, 0,    9)),
    Timed         ( 49, "TIME()",                              18, 0,    9),
    Timed         ( 56, "TIME() WITH TIME ZONE",               24, 0,    9),
    Synonym(Timed ( 49, "TIME",                                 8, 0,    0, "")),
    Synonym(Timed ( 56, "TIMETZ",                              24, 0,    9)),
    Led           ( 61, "INTERVAL YEAR()",                     10, 9),
    Led           ( 62, "INTERVAL YEAR() TO MONTH",            13, 9),
    Led           ( 63, "INTERVAL MONTH()",                    10, 9),
    Led           ( 64, "INTERVAL DAY()",                      10, 9),
    Led           ( 65, "INTERVAL DAY() TO HOUR",              13, 9),
    Led           ( 66, "INTERVAL DAY() TO MINUTE",            16, 9),
    LedTimed      ( 68, "INTERVAL DAY() TO SECOND",            26, 9,    6, 6, "LEADING PRECISION"),
    Led           ( 69, "INTERVAL HOUR()",                     10, 9),
    Led           ( 70, "INTERVAL HOUR() TO MINUTE",           13, 9),
    LedTimed      ( 71, "INTERVAL HOUR() TO SECOND",           23, 9,    6, 6, "LEADING PRECISION"),
    Led           ( 72, "INTERVAL MINUTE()",                   10, 9),
    LedTimed      ( 73, "INTERVAL MINUTE() TO SECOND",         20, 9,    6, 6, "LEADING PRECISION"),
    LedTimed      ( 74, "INTERVAL SECOND()",                   20, 9,    0, 9, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 47);

} // namespace

constinit const SDataTypeTable kLanguageDataTypes = MakeDataTypeTable<kRows>();
