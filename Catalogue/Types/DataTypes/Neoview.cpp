// Types of Neoview. A row takes 32708 bytes at most, and so does a text.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                          size or digits, leading digits, scale
    Sized         (  0, "CHAR",                        32708),
    Synonym(Sized (  0, "CHARACTER",                   32708)),
    Sized         (  1, "VARCHAR",                     32708),
    Synonym(Sized (  1, "CHARACTER VARYING",           32708)),
    Plain         ( 20, "BYTEA",                       32708),
    Sized         (  8, "NCHAR",                       16354),
    Synonym(Sized (  8, "NATIONAL CHARACTER",          16354)),
    Synonym(Sized (  8, "NATIONAL CHAR",               16354)),
    Sized         (  9, "NCHAR VARYING",               16354),
    Synonym(Sized (  9, "NATIONAL CHARACTER VARYING",  16354)),
    Synonym(Sized (  9, "NATIONAL CHAR VARYING",       16354)),
    Scaled        ( 25, "DECIMAL",                        18,  0,  18),
    Synonym(Scaled( 25, "DEC",                            18,  0,  18)),
    Synonym(Scaled( 25, "DECIMAL() SIGNED",               18,  0,  18)),
    Scaled        ( 26, "NUMERIC",                       128,  0, 128),
    Plain         ( 28, "BOOLEAN",                         1),
    Synonym(Plain ( 28, "BOOL",                            1)),
    Sized         ( 27, "BIT",                         32708),
    Sized         ( 22, "VARBIT",                      32708),
    Synonym(Sized ( 22, "BIT VARYING",                 32708)),
    Whole         ( 34, "SMALLINT",                        5),
    Whole         ( 39, "SMALLINT UNSIGNED",               5),
    Synonym(Whole ( 34, "SMALLINT SIGNED",                 5)),
    Whole         ( 35, "INT",                            10),
    Synonym(Whole ( 35, "INTEGER",                        10)),
    Whole         ( 40, "INT UNSIGNED",                   10),
    Synonym(Whole ( 35, "INT SIGNED",                     10)),
    Synonym(Whole ( 40, "INTEGER UNSIGNED",               10)),
    Synonym(Whole ( 35, "INTEGER SIGNED",                 10)),
    Whole         ( 37, "LARGEINT",                       19),
    Whole         ( 42, "REAL",                           24),
    Precise       ( 42, "FLOAT",                          22),
    Precise       ( 43, "FLOAT",                          54),
    Whole         ( 46, "DOUBLE PRECISION",               53),
    Fixed         ( 59, "MONEY",                          19,  4),
    Plain         ( 48, "DATE",                           10),
    Timed         ( 54, "TIMESTAMPTZ",                    32,  0,   6),
    Timed         ( 53, "TIMESTAMP",                      26,  0,   6),
    Synonym(Timed ( 54, "TIMESTAMP WITH TIME ZONE",       32,  6,   6, "")),
    Synonym(Timed ( 54, "TIMESTAMP() WITH TIME ZONE",     32,  0,   6)),
    Timed         ( 49, "TIME()",                         15,  0,   6),
    Timed         ( 56, "TIME() WITH TIME ZONE",          21,  0,   6),
    Synonym(Timed ( 49, "TIME",                            8,  0,   0, "")),
    Synonym(Timed ( 56, "TIMETZ",                         21,  0,   6)),
    Led           ( 61, "INTERVAL YEAR()",                19, 18),
    Led           ( 62, "INTERVAL YEAR() TO MONTH",       22, 18),
    Led           ( 63, "INTERVAL MONTH()",               19, 18),
    Led           ( 64, "INTERVAL DAY()",                 19, 18),
    Led           ( 65, "INTERVAL DAY() TO HOUR",         22, 18),
    Led           ( 66, "INTERVAL DAY() TO MINUTE",       25, 18),
    LedTimed      ( 68, "INTERVAL DAY() TO SECOND",       35, 18,   6, 6, "LEADING PRECISION"),
    Led           ( 69, "INTERVAL HOUR()",                19, 18),
    Led           ( 70, "INTERVAL HOUR() TO MINUTE",      22, 18),
    LedTimed      ( 71, "INTERVAL HOUR() TO SECOND",      32, 18,   6, 6, "LEADING PRECISION"),
    Led           ( 72, "INTERVAL MINUTE()",              19, 18),
    LedTimed      ( 73, "INTERVAL MINUTE() TO SECOND",    29, 18,   6, 6, "LEADING PRECISION"),
    LedTimed      ( 74, "INTERVAL SECOND()",              26, 18,   0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 57);

} // namespace

constinit const SDataTypeTable kNeoviewDataTypes = MakeDataTypeTable<kRows>();
