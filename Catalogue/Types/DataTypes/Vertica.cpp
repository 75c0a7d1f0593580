// Vertica. Lengths are bytes; every integer has 64 bits, whatever its name.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type  name                             size  scale
    Sized           (  0, "CHAR",                           65000),
    Synonym(Sized   (  0, "CHARACTER",                      65000)),
    Sized           (  1, "VARCHAR",                        65000),
    Synonym(Sized   (  1, "CHARACTER VARYING",              65000)),
    Sized           (  4, "LONG VARCHAR",                32000000),
    Sized           ( 17, "VARBINARY",                      65000),
    Synonym(Sized   ( 17, "BYTEA",                          65000)),
    Sized           ( 20, "LONG VARBINARY",              32000000),
    Sized           (  8, "NCHAR",                          65000),
    Synonym(Sized   (  8, "NATIONAL CHARACTER",             65000)),
    Synonym(Sized   (  8, "NATIONAL CHAR",                  65000)),
    Sized           (  9, "NCHAR VARYING",                  65000),
    Synonym(Sized   (  9, "NATIONAL CHARACTER VARYING",     65000)),
    Synonym(Sized   (  9, "NATIONAL CHAR VARYING",          65000)),
    Scaled          ( 25, "DECIMAL",                         1024,    0, 1024),
    Synonym(Scaled  ( 25, "DEC",                             1024,    0, 1024)),
    Scaled          ( 26, "NUMERIC",                         1024,    0, 1024),
    Plain           ( 28, "BOOLEAN",                            1),
    Synonym(Plain   ( 28, "BOOL",                               1)),
    Sized           ( 27, "BIT",                            65000),
    Sized           ( 22, "VARBIT",                         65000),
    Synonym(Sized   ( 22, "BIT VARYING",                    65000)),
    Whole           ( 37, "SMALLINT",                          19),
    Whole           ( 37, "INT",                               19),
    Synonym(Whole   ( 37, "INTEGER",                           19)),
    Synonym(Whole   ( 37, "LARGEINT",                          19)),
    Whole           ( 46, "DOUBLE PRECISION",                  53),
    Fixed           ( 59, "MONEY",                             18,    4),
    Plain           ( 48, "DATE",                              10),
    Timed           ( 54, "TIMESTAMPTZ",                       32,    0,    6),
    Timed           ( 53, "TIMESTAMP",                         26,    0,    6),
    Synonym(Timed   ( 54, "TIMESTAMP() WITH TIME ZONE",        32,    0,    6)),
    Timed           ( 49, "TIME()",                            15,    0,    6),
    Timed           ( 56, "TIME() WITH TIME ZONE",             21,    0,    6),
    Timed           ( 49, "TIME",                              15,    0,    6),
    Timed           ( 56, "TIMETZ",                            21,    0,    6),
    Led             ( 61, "INTERVAL YEAR()",                   10,    9),
    Led             ( 62, "INTERVAL YEAR() TO MONTH",          13,    9),
    Led             ( 63, "INTERVAL MONTH()",                  10,    9),
    Led             ( 64, "INTERVAL DAY()",                    10,    9),
    Led             ( 65, "INTERVAL DAY() TO HOUR",            13,    9),
    Led             ( 66, "INTERVAL DAY() TO MINUTE",          16,    9),
    LedTimed        ( 68, "INTERVAL DAY() TO SECOND",          26,    9,    6,    6, "LEADING PRECISION"),
    LedTimed        ( 68, "INTERVAL DAY() TO SECOND()",        26,    9,    0,    6),
    Led             ( 69, "INTERVAL HOUR()",                   10,    9),
    Led             ( 70, "INTERVAL HOUR() TO MINUTE",         13,    9),
    LedTimed        ( 71, "INTERVAL HOUR() TO SECOND",         23,    9,    6,    6, "LEADING PRECISION"),
    Led             ( 72, "INTERVAL MINUTE()",                 10,    9),
    LedTimed        ( 73, "INTERVAL MINUTE() TO SECOND",       20,    9,    6,    6, "LEADING PRECISION"),
    LedTimed        ( 74, "INTERVAL SECOND()",                 17,    9,    6,    6, "LEADING PRECISION"),
};
// clang-format on
static_assert(std::size(kRows) == 50);

} // namespace

constinit const SDataTypeTable kVerticaDataTypes = MakeDataTypeTable<kRows>();
