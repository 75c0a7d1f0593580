// Languages that declare no columns themselves: what stands in their SQL, with limits wide enough for any
// database.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape          type                    name                          size or digits, leading digits, scale
    Sized         (Char,                   "CHAR",                        2147483647),
    Synonym(Sized (Char,                   "CHARACTER",                   2147483647)),
    Sized         (VarChar,                "VARCHAR",                     2147483647),
    Synonym(Sized (VarChar,                "CHARACTER VARYING",           2147483647)),
    Plain         (LongVarBinary,          "BYTEA",                       2147483647),
    Sized         (WChar,                  "NCHAR",                       1073741823),
    Synonym(Sized (WChar,                  "NATIONAL CHARACTER",          1073741823)),
    Synonym(Sized (WChar,                  "NATIONAL CHAR",               1073741823)),
    Sized         (VarWChar,               "NCHAR VARYING",               1073741823),
    Synonym(Sized (VarWChar,               "NATIONAL CHARACTER VARYING",  1073741823)),
    Synonym(Sized (VarWChar,               "NATIONAL CHAR VARYING",       1073741823)),
    Scaled        (Decimal,                "DECIMAL",                           1000, 0, 1000),
    Synonym(Scaled(Decimal,                "DEC",                               1000, 0, 1000)),
    Scaled        (Numeric,                "NUMERIC",                           1000, 0, 1000),
    Plain         (Boolean,                "BOOLEAN",                              1),
    Synonym(Plain (Boolean,                "BOOL",                                 1)),
    Sized         (Bit,                    "BIT",                         2147483647),
    Sized         (LongVarBit,             "VARBIT",                      2147483647),
    Synonym(Sized (LongVarBit,             "BIT VARYING",                 2147483647)),
    Whole         (SmallInt,               "SMALLINT",                             5),
    Whole         (Integer,                "INT",                                 10),
    Synonym(Whole (Integer,                "INTEGER",                             10)),
    Whole         (BigInt,                 "LARGEINT",                            19),
    Whole         (Double,                 "DOUBLE PRECISION",                    53),
    Fixed         (Money,                  "MONEY",                               19, 4),
    Plain         (Date,                   "DATE",                                10),
    Timed         (TimestampZone,          "TIMESTAMPTZ",                         35, 0,    9),
    Timed         (Timestamp,              "TIMESTAMP",                           29, 0,    9),
    Synonym(Timed (TimestampZone,          "TIMESTAMP WITH TIME ZONE",            32, 6,    6, "")),
    Synonym(Timed (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",          35, 0,    9)),
    Timed         (Time,                   "TIME()",                              18, 0,    9),
    Timed         (TimeZone,               "TIME() WITH TIME ZONE",               24, 0,    9),
    Synonym(Timed (Time,                   "TIME",                                 8, 0,    0, "")),
    Synonym(Timed (TimeZone,               "TIMETZ",                              24, 0,    9)),
    Led           (IntervalYear,           "INTERVAL YEAR()",                     10, 9),
    Led           (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",            13, 9),
    Led           (IntervalMonth,          "INTERVAL MONTH()",                    10, 9),
    Led           (IntervalDay,            "INTERVAL DAY()",                      10, 9),
    Led           (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",              13, 9),
    Led           (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",            16, 9),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",            26, 9,    6, 6, "LEADING PRECISION"),
    Led           (IntervalHour,           "INTERVAL HOUR()",                     10, 9),
    Led           (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",           13, 9),
    LedTimed      (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",           23, 9,    6, 6, "LEADING PRECISION"),
    Led           (IntervalMinute,         "INTERVAL MINUTE()",                   10, 9),
    LedTimed      (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",         20, 9,    6, 6, "LEADING PRECISION"),
    LedTimed      (IntervalSecond,         "INTERVAL SECOND()",                   20, 9,    0, 9, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 47);

} // namespace

constinit const SDataTypeTable kLanguageDataTypes = MakeDataTypeTable<kRows>();
