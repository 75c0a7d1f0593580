// Types of SQLBase: short texts take 254 bytes, DECIMAL 15 digits. NUMBER has 22 digits wherever its point
// stands.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                          size or digits, leading digits, scale
    Sized         (  0, "CHAR",                               254),
    Synonym(Sized (  0, "CHARACTER",                          254)),
    Sized         (  1, "VARCHAR",                            254),
    Synonym(Sized (  1, "CHARACTER VARYING",                  254)),
    Plain         (  4, "LONG VARCHAR",                2147483647),
    Synonym(Plain (  4, "LONG",                        2147483647)),
    Synonym(Plain (  4, "LONGVAR",                     2147483647)),
    Plain         ( 20, "BYTEA",                       2147483647),
    Sized         (  8, "NCHAR",                              127),
    Synonym(Sized (  8, "NATIONAL CHARACTER",                 127)),
    Synonym(Sized (  8, "NATIONAL CHAR",                      127)),
    Sized         (  9, "NCHAR VARYING",                      127),
    Synonym(Sized (  9, "NATIONAL CHARACTER VARYING",         127)),
    Synonym(Sized (  9, "NATIONAL CHAR VARYING",              127)),
    Scaled        ( 25, "DECIMAL",                             15, 0, 15),
    Synonym(Scaled( 25, "DEC",                                 15, 0, 15)),
    Scaled        ( 26, "NUMERIC",                             15, 0, 15),
    Plain         ( 28, "BOOLEAN",                              1),
    Synonym(Plain ( 28, "BOOL",                                 1)),
    Sized         ( 27, "BIT",                                254),
    Sized         ( 22, "VARBIT",                             254),
    Synonym(Sized ( 22, "BIT VARYING",                        254)),
    Whole         ( 34, "SMALLINT",                             5),
    Whole         ( 35, "INT",                                 10),
    Synonym(Whole ( 35, "INTEGER",                             10)),
    Whole         (137, "NUMBER",                              22),
    Whole         ( 37, "LARGEINT",                            19),
    Whole         ( 46, "DOUBLE PRECISION",                    53),
    Fixed         ( 59, "MONEY",                               19, 4),
    Precise       ( 43, "FLOAT",                               53),
    Whole         ( 42, "REAL",                                24),
    Plain         ( 48, "DATE",                                10),
    Timed         ( 53, "DATETIME",                            26, 6,  6, ""),
    Synonym(Timed ( 53, "TIMESTAMP",                           26, 6,  6, "")),
    Timed         ( 54, "TIMESTAMPTZ",                         32, 0,  6),
    Synonym(Timed ( 54, "TIMESTAMP WITH TIME ZONE",            32, 6,  6, "")),
    Synonym(Timed ( 54, "TIMESTAMP() WITH TIME ZONE",          32, 0,  6)),
    Timed         ( 49, "TIME()",                              15, 0,  6),
    Timed         ( 56, "TIME() WITH TIME ZONE",               21, 0,  6),
    Synonym(Timed ( 49, "TIME",                                15, 6,  6, "")),
    Synonym(Timed ( 56, "TIMETZ",                              21, 0,  6)),
    Led           ( 61, "INTERVAL YEAR()",                     10, 9),
    Led           ( 62, "INTERVAL YEAR() TO MONTH",            13, 9),
    Led           ( 63, "INTERVAL MONTH()",                    10, 9),
    Led           ( 64, "INTERVAL DAY()",                      10, 9),
    Led           ( 65, "INTERVAL DAY() TO HOUR",              13, 9),
    Led           ( 66, "INTERVAL DAY() TO MINUTE",            16, 9),
    LedTimed      ( 68, "INTERVAL DAY() TO SECOND",            26, 9,  6, 6, "LEADING PRECISION"),
    Led           ( 69, "INTERVAL HOUR()",                     10, 9),
    Led           ( 70, "INTERVAL HOUR() TO MINUTE",           13, 9),
    LedTimed      ( 71, "INTERVAL HOUR() TO SECOND",           23, 9,  6, 6, "LEADING PRECISION"),
    Led           ( 72, "INTERVAL MINUTE()",                   10, 9),
    LedTimed      ( 73, "INTERVAL MINUTE() TO SECOND",         20, 9,  6, 6, "LEADING PRECISION"),
    LedTimed      ( 74, "INTERVAL SECOND()",                   17, 9,  0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 54);

} // namespace

constinit const SDataTypeTable kSqlBaseDataTypes = MakeDataTypeTable<kRows>();
