#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// Types of Teradata with the limits of release 16. Names without parentheses for intervals and zones have the
// defaults: two leading digits, six after the second.
// clang-format off
constexpr SDataTypeParams kTeradataRows[] = {
//                   type                    name                                     size  scale
    Sized           (Char,                   "CHAR",                                 64000),
    Synonym(Sized   (Char,                   "CHARACTER",                            64000)),
    Sized           (VarChar,                "VARCHAR",                              64000),
    Synonym(Sized   (VarChar,                "CHARACTER VARYING",                    64000)),
    Synonym(Sized   (VarChar,                "CHAR VARYING",                         64000)),
    Plain           (LongVarChar,            "LONG VARCHAR",                         64000),
    Sized           (VarBinary,              "VARBYTE",                              64000),
    Sized           (Binary,                 "BYTE",                                 64000),
    Sized           (WChar,                  "CHAR() CHARACTER SET UNICODE",         32000),
    Sized           (VarWChar,               "VARCHAR() CHARACTER SET UNICODE",      32000),
    Plain           (LongVarWChar,           "CLOB CHARACTER SET UNICODE",      1048544000),
    Sized           (Text,                   "CLOB",                            2097088000),
    Sized           (Blob,                   "BLOB",                            2097088000),
    Sized           (WChar,                  "GRAPHIC",                              32000),
    Sized           (VarWChar,               "VARGRAPHIC",                           32000),
    Plain           (LongVarWChar,           "LONG VARGRAPHIC",                      32000),
    Plain           (Xml,                    "XML",                             2097088000),
    Plain           (Json,                   "JSON",                              16776192),
    Scaled          (Decimal,                "DECIMAL",                                 38, 0, 38),
    Synonym(Scaled  (Decimal,                "DEC",                                     38, 0, 38)),
    Scaled          (Numeric,                "NUMERIC",                                 38, 0, 38),
    Plain           (DecFloat,               "NUMBER"),
    Scaled          (Decimal,                "NUMBER",                                  38, 0, 38),
    Whole           (TinyInt,                "BYTEINT",                                  3),
    Whole           (SmallInt,               "SMALLINT",                                 5),
    Whole           (Integer,                "INTEGER",                                 10),
    Synonym(Whole   (Integer,                "INT",                                     10)),
    Whole           (BigInt,                 "BIGINT",                                  19),
    Whole           (Double,                 "REAL",                                    53),
    Whole           (Float,                  "FLOAT",                                   53),
    Whole           (Float,                  "FLOAT BETWEEN",                           53),
    Whole           (Double,                 "DOUBLE PRECISION",                        53),
    Plain           (Date,                   "DATE",                                    10),
    Timed           (Timestamp,              "TIMESTAMP",                               26, 0,  6),
    Timed           (TimestampZone,          "TIMESTAMP WITH TIME ZONE",                32, 6,  6, ""),
    Timed           (TimestampZone,          "TIMESTAMP() WITH TIME ZONE",              32, 0,  6),
    Timed           (Time,                   "TIME()",                                  15, 0,  6),
    Timed           (TimeZone,               "TIME() WITH TIME ZONE",                   21, 0,  6),
    Timed           (TimeZone,               "TIME WITH TIME ZONE",                     21, 6,  6, ""),
    Timed           (Time,                   "TIME",                                    15, 6,  6, ""),
    Led             (IntervalYear,           "INTERVAL YEAR()",                          5, 4),
    Synonym(Led     (IntervalYear,           "INTERVAL YEAR",                            3, 2, "")),
    Led             (IntervalYearToMonth,    "INTERVAL YEAR() TO MONTH",                 8, 4),
    Synonym(Led     (IntervalYearToMonth,    "INTERVAL YEAR TO MONTH",                   6, 2, "")),
    Led             (IntervalMonth,          "INTERVAL MONTH()",                         5, 4),
    Synonym(Led     (IntervalMonth,          "INTERVAL MONTH",                           3, 2, "")),
    Led             (IntervalDay,            "INTERVAL DAY()",                           5, 4),
    Synonym(Led     (IntervalDay,            "INTERVAL DAY",                             3, 2, "")),
    Led             (IntervalDayToHour,      "INTERVAL DAY() TO HOUR",                   8, 4),
    Synonym(Led     (IntervalDayToHour,      "INTERVAL DAY TO HOUR",                     6, 2, "")),
    Led             (IntervalDayToMinute,    "INTERVAL DAY() TO MINUTE",                11, 4),
    Synonym(Led     (IntervalDayToMinute,    "INTERVAL DAY TO MINUTE",                   9, 2, "")),
    LedTimed        (IntervalDayToFraction,  "INTERVAL DAY() TO SECOND",                21, 4,  6, 6, "LEADING PRECISION"),
    Synonym(LedTimed(IntervalDayToFraction,  "INTERVAL DAY TO SECOND",                  19, 2,  6, 6, "")),
    Led             (IntervalHour,           "INTERVAL HOUR()",                          5, 4),
    Synonym(Led     (IntervalHour,           "INTERVAL HOUR",                            3, 2, "")),
    Led             (IntervalHourToMinute,   "INTERVAL HOUR() TO MINUTE",                8, 4),
    Synonym(Led     (IntervalHourToMinute,   "INTERVAL HOUR TO MINUTE",                  6, 2, "")),
    LedTimed        (IntervalHourToSecond,   "INTERVAL HOUR() TO SECOND",               18, 4,  6, 6, "LEADING PRECISION"),
    Synonym(LedTimed(IntervalHourToSecond,   "INTERVAL HOUR TO SECOND",                 16, 2,  6, 6, "")),
    Led             (IntervalMinute,         "INTERVAL MINUTE()",                        5, 4),
    Synonym(Led     (IntervalMinute,         "INTERVAL MINUTE",                          3, 2, "")),
    LedTimed        (IntervalMinuteToSecond, "INTERVAL MINUTE() TO SECOND",             15, 4,  6, 6, "LEADING PRECISION"),
    Synonym(LedTimed(IntervalMinuteToSecond, "INTERVAL MINUTE TO SECOND",               13, 2,  6, 6, "")),
    LedTimed        (IntervalSecond,         "INTERVAL SECOND()",                       12, 4,  0, 6, "LEADING PRECISION,SCALE"),
    Synonym(LedTimed(IntervalSecond,         "INTERVAL SECOND",                         10, 2,  6, 6, "")),
};
// clang-format on
static_assert(std::size(kTeradataRows) == 66);

// Types that SAS programs declare to Teradata, with the limits of Teradata.
constexpr std::string_view kSasGone[] = {"CHAR() CHARACTER SET UNICODE",
                                         "VARCHAR() CHARACTER SET UNICODE",
                                         "CLOB CHARACTER SET UNICODE",
                                         "CLOB",
                                         "BLOB",
                                         "XML",
                                         "JSON",
                                         "NUMBER",
                                         "BIGINT",
                                         "FLOAT BETWEEN",
                                         "TIME WITH TIME ZONE",
                                         "INTERVAL YEAR",
                                         "INTERVAL YEAR TO MONTH",
                                         "INTERVAL MONTH",
                                         "INTERVAL DAY",
                                         "INTERVAL DAY TO HOUR",
                                         "INTERVAL DAY TO MINUTE",
                                         "INTERVAL DAY TO SECOND",
                                         "INTERVAL HOUR",
                                         "INTERVAL HOUR TO MINUTE",
                                         "INTERVAL HOUR TO SECOND",
                                         "INTERVAL MINUTE",
                                         "INTERVAL MINUTE TO SECOND",
                                         "INTERVAL SECOND"};
constexpr auto kSasRows = NewerTypes<kTeradataRows, kNoChanges, kSasGone>();
static_assert(std::size(kSasRows) == 41);

} // namespace

constinit const SDataTypeTable kTeradataDataTypes = MakeDataTypeTable<kTeradataRows>();
constinit const SDataTypeTable kSasDataTypes = MakeDataTypeTable<kSasRows>();
