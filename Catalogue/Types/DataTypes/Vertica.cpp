// Vertica. Lengths are bytes; every integer has 64 bits, whatever its name.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type                    name                             size  scale
    Sized         (Char,                   "CHAR",                           65000),
    Synonym(Sized (Char,                   "CHARACTER",                      65000)),
    Sized         (VarChar,                "VARCHAR",                        65000),
    Synonym(Sized (VarChar,                "CHARACTER VARYING",              65000)),
    Sized         (LongVarChar,            "LONG VARCHAR",                32000000),
    Sized         (VarBinary,              "VARBINARY",                      65000),
    Synonym(Sized (VarBinary,              "BYTEA",                          65000)),
    Sized         (LongVarBinary,          "LONG VARBINARY",              32000000),
    Sized         (WChar,                  "NCHAR",                          65000),
    Synonym(Sized (WChar,                  "NATIONAL CHARACTER",             65000)),
    Synonym(Sized (WChar,                  "NATIONAL CHAR",                  65000)),
    Sized         (VarWChar,               "NCHAR VARYING",                  65000),
    Synonym(Sized (VarWChar,               "NATIONAL CHARACTER VARYING",     65000)),
    Synonym(Sized (VarWChar,               "NATIONAL CHAR VARYING",          65000)),
    Scaled        (Decimal,                "DECIMAL",                         1024,    0, 1024),
    Synonym(Scaled(Decimal,                "DEC",                             1024,    0, 1024)),
    Scaled        (Numeric,                "NUMERIC",                         1024,    0, 1024),
    Plain         (Boolean,                "BOOLEAN",                            1),
    Synonym(Plain (Boolean,                "BOOL",                               1)),
    Sized         (Bit,                    "BIT",                            65000),
    Sized         (LongVarBit,             "VARBIT",                         65000),
    Synonym(Sized (LongVarBit,             "BIT VARYING",                    65000)),
    Whole         (BigInt,                 "SMALLINT",                          19),
    Whole         (BigInt,                 "INT",                               19),
    Synonym(Whole (BigInt,                 "INTEGER",                           19)),
    Synonym(Whole (BigInt,                 "LARGEINT",                          19)),
    Whole         (Double,                 "DOUBLE PRECISION",                  53),
    Fixed         (Money,                  "MONEY",                             18,    4),
    Plain         (Date,                   "DATE",                              10),
    Timed         (TimestampZone,          "TIMESTAMPTZ",                       32,    0,    6),
    Timed         (Timestamp,              "TIMESTAMP",                         26,    0,    6),
    Synonym(Timed (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",        32,    0,    6)),
    Timed         (Time,                   "TIME()",                            15,    0,    6),
    Timed         (TimeZone,               "TIME() WITH TIME ZONE",             21,    0,    6),
    Timed         (Time,                   "TIME",                              15,    0,    6),
    Timed         (TimeZone,               "TIMETZ",                            21,    0,    6),
    Led           (IntervalYear,           "INTERVAL YEAR()",                   10,    9),
    Led           (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",          13,    9),
    Led           (IntervalMonth,          "INTERVAL MONTH()",                  10,    9),
    Led           (IntervalDay,            "INTERVAL DAY()",                    10,    9),
    Led           (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",            13,    9),
    Led           (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",          16,    9),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",          26,    9,    6,    6, "LEADING PRECISION"),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND()",        26,    9,    0,    6),
    Led           (IntervalHour,           "INTERVAL HOUR()",                   10,    9),
    Led           (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",         13,    9),
    LedTimed      (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",         23,    9,    6,    6, "LEADING PRECISION"),
    Led           (IntervalMinute,         "INTERVAL MINUTE()",                 10,    9),
    LedTimed      (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",       20,    9,    6,    6, "LEADING PRECISION"),
    LedTimed      (IntervalSecond,         "INTERVAL SECOND()",                 17,    9,    6,    6, "LEADING PRECISION"),
};
// clang-format on
static_assert(std::size(kRows) == 50);

} // namespace

constinit const SDataTypeTable kVerticaDataTypes = MakeDataTypeTable<kRows>();
