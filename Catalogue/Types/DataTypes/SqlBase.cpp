// Types of SQLBase: short texts take 254 bytes, DECIMAL 15 digits. NUMBER has 22 digits wherever its point
// stands.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape          type                    name                          size or digits, leading digits, scale
    Sized         (Char,                   "CHAR",                               254),
    Synonym(Sized (Char,                   "CHARACTER",                          254)),
    Sized         (VarChar,                "VARCHAR",                            254),
    Synonym(Sized (VarChar,                "CHARACTER VARYING",                  254)),
    Plain         (LongVarChar,            "LONG VARCHAR",                2147483647),
    Synonym(Plain (LongVarChar,            "LONG",                        2147483647)),
    Synonym(Plain (LongVarChar,            "LONGVAR",                     2147483647)),
    Plain         (LongVarBinary,          "BYTEA",                       2147483647),
    Sized         (WChar,                  "NCHAR",                              127),
    Synonym(Sized (WChar,                  "NATIONAL CHARACTER",                 127)),
    Synonym(Sized (WChar,                  "NATIONAL CHAR",                      127)),
    Sized         (VarWChar,               "NCHAR VARYING",                      127),
    Synonym(Sized (VarWChar,               "NATIONAL CHARACTER VARYING",         127)),
    Synonym(Sized (VarWChar,               "NATIONAL CHAR VARYING",              127)),
    Scaled        (Decimal,                "DECIMAL",                             15, 0, 15),
    Synonym(Scaled(Decimal,                "DEC",                                 15, 0, 15)),
    Scaled        (Numeric,                "NUMERIC",                             15, 0, 15),
    Plain         (Boolean,                "BOOLEAN",                              1),
    Synonym(Plain (Boolean,                "BOOL",                                 1)),
    Sized         (Bit,                    "BIT",                                254),
    Sized         (LongVarBit,             "VARBIT",                             254),
    Synonym(Sized (LongVarBit,             "BIT VARYING",                        254)),
    Whole         (SmallInt,               "SMALLINT",                             5),
    Whole         (Integer,                "INT",                                 10),
    Synonym(Whole (Integer,                "INTEGER",                             10)),
    Whole         (DecFloat,               "NUMBER",                              22),
    Whole         (BigInt,                 "LARGEINT",                            19),
    Whole         (Double,                 "DOUBLE PRECISION",                    53),
    Fixed         (Money,                  "MONEY",                               19, 4),
    Precise       (Float,                  "FLOAT",                               53),
    Whole         (Real,                   "REAL",                                24),
    Plain         (Date,                   "DATE",                                10),
    Timed         (Timestamp,              "DATETIME",                            26, 6,  6, ""),
    Synonym(Timed (Timestamp,              "TIMESTAMP",                           26, 6,  6, "")),
    Timed         (TimestampZone,          "TIMESTAMPTZ",                         32, 0,  6),
    Synonym(Timed (TimestampZone,          "TIMESTAMP WITH TIME ZONE",            32, 6,  6, "")),
    Synonym(Timed (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",          32, 0,  6)),
    Timed         (Time,                   "TIME()",                              15, 0,  6),
    Timed         (TimeZone,               "TIME() WITH TIME ZONE",               21, 0,  6),
    Synonym(Timed (Time,                   "TIME",                                15, 6,  6, "")),
    Synonym(Timed (TimeZone,               "TIMETZ",                              21, 0,  6)),
    Led           (IntervalYear,           "INTERVAL YEAR()",                     10, 9),
    Led           (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",            13, 9),
    Led           (IntervalMonth,          "INTERVAL MONTH()",                    10, 9),
    Led           (IntervalDay,            "INTERVAL DAY()",                      10, 9),
    Led           (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",              13, 9),
    Led           (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",            16, 9),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",            26, 9,  6, 6, "LEADING PRECISION"),
    Led           (IntervalHour,           "INTERVAL HOUR()",                     10, 9),
    Led           (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",           13, 9),
    LedTimed      (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",           23, 9,  6, 6, "LEADING PRECISION"),
    Led           (IntervalMinute,         "INTERVAL MINUTE()",                   10, 9),
    LedTimed      (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",         20, 9,  6, 6, "LEADING PRECISION"),
    LedTimed      (IntervalSecond,         "INTERVAL SECOND()",                   17, 9,  0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 54);

} // namespace

constinit const SDataTypeTable kSqlBaseDataTypes = MakeDataTypeTable<kRows>();
