// Types that SAS programs declare to Teradata, with the limits of Teradata.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape          type                    name                          size or digits, leading digits, scale
    Sized         (Char,                   "CHAR",                        64000),
    Synonym(Sized (Char,                   "CHARACTER",                   64000)),
    Sized         (VarChar,                "VARCHAR",                     64000),
    Synonym(Sized (VarChar,                "CHARACTER VARYING",           64000)),
    Synonym(Sized (VarChar,                "CHAR VARYING",                64000)),
    Plain         (LongVarChar,            "LONG VARCHAR",                64000),
    Sized         (VarBinary,              "VARBYTE",                     64000),
    Sized         (Binary,                 "BYTE",                        64000),
    Sized         (WChar,                  "GRAPHIC",                     32000),
    Sized         (VarWChar,               "VARGRAPHIC",                  32000),
    Plain         (LongVarWChar,           "LONG VARGRAPHIC",             32000),
    Scaled        (Decimal,                "DECIMAL",                        38, 0, 38),
    Synonym(Scaled(Decimal,                "DEC",                            38, 0, 38)),
    Scaled        (Numeric,                "NUMERIC",                        38, 0, 38),
    Whole         (TinyInt,                "BYTEINT",                         3),
    Whole         (SmallInt,               "SMALLINT",                        5),
    Whole         (Integer,                "INTEGER",                        10),
    Synonym(Whole (Integer,                "INT",                            10)),
    Whole         (Double,                 "REAL",                           53),
    Whole         (Float,                  "FLOAT",                          53),
    Whole         (Double,                 "DOUBLE PRECISION",               53),
    Plain         (Date,                   "DATE",                           10),
    Timed         (Timestamp,              "TIMESTAMP",                      26, 0,  6),
    Timed         (TimestampZone,          "TIMESTAMP WITH TIME ZONE",       32, 6,  6, ""),
    Timed         (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",     32, 0,  6),
    Timed         (Time,                   "TIME()",                         15, 0,  6),
    Timed         (TimeZone,               "TIME() WITH TIME ZONE",          21, 0,  6),
    Timed         (Time,                   "TIME",                           15, 6,  6, ""),
    Led           (IntervalYear,           "INTERVAL YEAR()",                 5, 4),
    Led           (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",        8, 4),
    Led           (IntervalMonth,          "INTERVAL MONTH()",                5, 4),
    Led           (IntervalDay,            "INTERVAL DAY()",                  5, 4),
    Led           (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",          8, 4),
    Led           (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",       11, 4),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",       21, 4,  6, 6, "LEADING PRECISION"),
    Led           (IntervalHour,           "INTERVAL HOUR()",                 5, 4),
    Led           (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",       8, 4),
    LedTimed      (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",      18, 4,  6, 6, "LEADING PRECISION"),
    Led           (IntervalMinute,         "INTERVAL MINUTE()",               5, 4),
    LedTimed      (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",    15, 4,  6, 6, "LEADING PRECISION"),
    LedTimed      (IntervalSecond,         "INTERVAL SECOND()",              12, 4,  0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSasDataTypes = MakeDataTypeTable<kRows>();
