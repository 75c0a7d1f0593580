// The SQL of NonStop systems and of Neoview. A row takes 32708 bytes at most, and so does a text.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// Types of Neoview.
// clang-format off
constexpr SDataTypeParams kNeoviewRows[] = {
//                 type                    name                            size  scale
    Sized         (Char,                   "CHAR",                        32708),
    Synonym(Sized (Char,                   "CHARACTER",                   32708)),
    Sized         (VarChar,                "VARCHAR",                     32708),
    Synonym(Sized (VarChar,                "CHARACTER VARYING",           32708)),
    Plain         (LongVarBinary,          "BYTEA",                       32708),
    Sized         (WChar,                  "NCHAR",                       16354),
    Synonym(Sized (WChar,                  "NATIONAL CHARACTER",          16354)),
    Synonym(Sized (WChar,                  "NATIONAL CHAR",               16354)),
    Sized         (VarWChar,               "NCHAR VARYING",               16354),
    Synonym(Sized (VarWChar,               "NATIONAL CHARACTER VARYING",  16354)),
    Synonym(Sized (VarWChar,               "NATIONAL CHAR VARYING",       16354)),
    Scaled        (Decimal,                "DECIMAL",                        18,  0,  18),
    Synonym(Scaled(Decimal,                "DEC",                            18,  0,  18)),
    Synonym(Scaled(Decimal,                "DECIMAL() SIGNED",               18,  0,  18)),
    Scaled        (Numeric,                "NUMERIC",                       128,  0, 128),
    Plain         (Boolean,                "BOOLEAN",                         1),
    Synonym(Plain (Boolean,                "BOOL",                            1)),
    Sized         (Bit,                    "BIT",                         32708),
    Sized         (LongVarBit,             "VARBIT",                      32708),
    Synonym(Sized (LongVarBit,             "BIT VARYING",                 32708)),
    Whole         (SmallInt,               "SMALLINT",                        5),
    Whole         (USmallInt,              "SMALLINT UNSIGNED",               5),
    Synonym(Whole (SmallInt,               "SMALLINT SIGNED",                 5)),
    Whole         (Integer,                "INT",                            10),
    Synonym(Whole (Integer,                "INTEGER",                        10)),
    Whole         (UInteger,               "INT UNSIGNED",                   10),
    Synonym(Whole (Integer,                "INT SIGNED",                     10)),
    Synonym(Whole (UInteger,               "INTEGER UNSIGNED",               10)),
    Synonym(Whole (Integer,                "INTEGER SIGNED",                 10)),
    Whole         (BigInt,                 "LARGEINT",                       19),
    Whole         (Real,                   "REAL",                           24),
    Precise       (Real,                   "FLOAT",                          22),
    Precise       (Float,                  "FLOAT",                          54),
    Whole         (Double,                 "DOUBLE PRECISION",               53),
    Fixed         (Money,                  "MONEY",                          19,  4),
    Plain         (Date,                   "DATE",                           10),
    Timed         (TimestampZone,          "TIMESTAMPTZ",                    32,  0,   6),
    Timed         (Timestamp,              "TIMESTAMP",                      26,  0,   6),
    Synonym(Timed (TimestampZone,          "TIMESTAMP WITH TIME ZONE",       32,  6,   6, "")),
    Synonym(Timed (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",     32,  0,   6)),
    Timed         (Time,                   "TIME()",                         15,  0,   6),
    Timed         (TimeZone,               "TIME() WITH TIME ZONE",          21,  0,   6),
    Synonym(Timed (Time,                   "TIME",                            8,  0,   0, "")),
    Synonym(Timed (TimeZone,               "TIMETZ",                         21,  0,   6)),
    Led           (IntervalYear,           "INTERVAL YEAR()",                19, 18),
    Led           (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",       22, 18),
    Led           (IntervalMonth,          "INTERVAL MONTH()",               19, 18),
    Led           (IntervalDay,            "INTERVAL DAY()",                 19, 18),
    Led           (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",         22, 18),
    Led           (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",       25, 18),
    LedTimed      (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",       35, 18,   6, 6, "LEADING PRECISION"),
    Led           (IntervalHour,           "INTERVAL HOUR()",                19, 18),
    Led           (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",      22, 18),
    LedTimed      (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",      32, 18,   6, 6, "LEADING PRECISION"),
    Led           (IntervalMinute,         "INTERVAL MINUTE()",              19, 18),
    LedTimed      (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",    29, 18,   6, 6, "LEADING PRECISION"),
    LedTimed      (IntervalSecond,         "INTERVAL SECOND()",              26, 18,   0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kNeoviewRows) == 57);

// Types of the SQL of NonStop systems.
constexpr std::string_view kHpNonStopGone[] = {"DECIMAL() SIGNED",
                                               "SMALLINT UNSIGNED",
                                               "SMALLINT SIGNED",
                                               "INT UNSIGNED",
                                               "INT SIGNED",
                                               "INTEGER UNSIGNED",
                                               "INTEGER SIGNED",
                                               "REAL",
                                               "FLOAT"};
constexpr auto kHpNonStopRows = NewerTypes<kNeoviewRows, kNoChanges, kHpNonStopGone>();
static_assert(std::size(kHpNonStopRows) == 47);

} // namespace

constinit const SDataTypeTable kNeoviewDataTypes = MakeDataTypeTable<kNeoviewRows>();
constinit const SDataTypeTable kHpNonStopDataTypes = MakeDataTypeTable<kHpNonStopRows>();
