// Informix, and those who write types in its terms. The limits are those of Informix 14.10, sizes in bytes.
// DECIMAL without a precision is a decimal floating point number of 16 digits. Intervals have up to nine
// digits in front, fractions of a second one to five.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// Informix's types.
// clang-format off
constexpr SDataTypeParams kInformixRows[] = {
//                type                      name                                          size  scale
    Sized        (Char,                     "CHAR",                                      32767),
    Synonym(Sized(Char,                     "CHARACTER",                                 32767)),
    Sized        (VarChar,                  "VARCHAR",                                     255),
    Synonym(Sized(VarChar,                  "CHARACTER VARYING",                           255)),
    Sized        (LVarChar,                 "LVARCHAR",                                  32739),
    Plain        (Text,                     "TEXT",                                 2147483647),
    Plain        (Text,                     "CLOB",                              4398046511104),
    Sized        (WChar,                    "NCHAR",                                     32767),
    Sized        (VarWChar,                 "NVARCHAR",                                    255),
    Plain        (LongVarBinary,            "BYTE",                                 2147483647),
    Plain        (Blob,                     "BLOB",                              4398046511104),
    Scaled       (Decimal,                  "DEC",                                          32, 0, 32),
    Whole        (DecFloat,                 "DECIMAL",                                       0),
    Scaled       (Decimal,                  "DECIMAL",                                      32, 0, 32),
    Scaled       (Numeric,                  "NUMERIC",                                      32, 0, 32),
    Plain        (Boolean,                  "BOOLEAN",                                       1),
    Whole        (SmallInt,                 "SMALLINT",                                      5),
    Whole        (Integer,                  "INT",                                          10),
    Synonym(Whole(Integer,                  "INTEGER",                                      10)),
    Whole        (Serial,                   "SERIAL",                                       10),
    Whole        (BigInt,                   "INT8",                                         19),
    Whole        (BigInt,                   "SERIAL8",                                      19),
    Synonym(Whole(BigInt,                   "BIGINT",                                       19)),
    Whole        (Real,                     "REAL",                                         24),
    Synonym(Whole(Real,                     "SMALLFLOAT",                                   24)),
    Whole        (Float,                    "FLOAT",                                        53),
    Whole        (Double,                   "DOUBLE PRECISION",                             53),
    Scaled       (MoneyScaled,              "MONEY",                                        32, 0, 32),
    Plain        (Date,                     "DATE",                                         10),
    Plain        (DateTimeYear,             "DATETIME YEAR TO YEAR",                         4),
    Plain        (DateTimeYearToMonth,      "DATETIME YEAR TO MONTH",                        7),
    Plain        (DateTimeYearToDay,        "DATETIME YEAR TO DAY",                         10),
    Plain        (DateTimeYearToHour,       "DATETIME YEAR TO HOUR",                        13),
    Plain        (DateTimeYearToMinute,     "DATETIME YEAR TO MINUTE",                      16),
    Plain        (DateTimeYearToSecond,     "DATETIME YEAR TO SECOND",                      19),
    Timed        (DateTimeYearToFraction,   "DATETIME YEAR TO FRACTION()",                  25, 1,  5),
    Plain        (DateTimeMonth,            "DATETIME MONTH TO MONTH",                       2),
    Plain        (DateTimeMonthToDay,       "DATETIME MONTH TO DAY",                         5),
    Plain        (DateTimeMonthToHour,      "DATETIME MONTH TO HOUR",                        8),
    Plain        (DateTimeMonthToMinute,    "DATETIME MONTH TO MINUTE",                     11),
    Plain        (DateTimeMonthToSecond,    "DATETIME MONTH TO SECOND",                     14),
    Timed        (DateTimeMonthToFraction,  "DATETIME MONTH TO FRACTION()",                 20, 1,  5),
    Plain        (DateTimeDay,              "DATETIME DAY TO DAY",                           2),
    Plain        (DateTimeDayToHour,        "DATETIME DAY TO HOUR",                          5),
    Plain        (DateTimeDayToMinute,      "DATETIME DAY TO MINUTE",                        8),
    Plain        (DateTimeDayToSecond,      "DATETIME DAY TO SECOND",                       11),
    Timed        (DateTimeDayToFraction,    "DATETIME DAY TO FRACTION()",                   17, 1,  5),
    Plain        (DateTimeHour,             "DATETIME HOUR TO HOUR",                         2),
    Plain        (DateTimeHourToMinute,     "DATETIME HOUR TO MINUTE",                       5),
    Plain        (DateTimeHourToSecond,     "DATETIME HOUR TO SECOND",                       8),
    Timed        (DateTimeHourToFraction,   "DATETIME HOUR TO FRACTION()",                  14, 1,  5),
    Plain        (DateTimeMinute,           "DATETIME MINUTE TO MINUTE",                     2),
    Plain        (DateTimeMinuteToSecond,   "DATETIME MINUTE TO SECOND",                     5),
    Timed        (DateTimeMinuteToFraction, "DATETIME MINUTE TO FRACTION()",                11, 1,  5),
    Plain        (DateTimeSecond,           "DATETIME SECOND TO SECOND",                     2),
    Timed        (DateTimeSecondToFraction, "DATETIME SECOND TO FRACTION()",                 8, 1,  5),
    Timed        (DateTimeSecondToFraction, "DATETIME FRACTION TO FRACTION()",               6, 1,  5),
    Led          (IntervalYear,             "INTERVAL YEAR() TO YEAR",                      10, 9),
    Led          (IntervalYearToMonth,      "INTERVAL YEAR() TO MONTH",                     13, 9),
    Led          (IntervalMonth,            "INTERVAL MONTH() TO MONTH",                    10, 9),
    Led          (IntervalDay,              "INTERVAL DAY() TO DAY",                        10, 9),
    Led          (IntervalDayToHour,        "INTERVAL DAY() TO HOUR",                       13, 9),
    Led          (IntervalDayToMinute,      "INTERVAL DAY() TO MINUTE",                     16, 9),
    Led          (IntervalDayToSecond,      "INTERVAL DAY() TO SECOND",                     19, 9),
    LedTimed     (IntervalDayToFraction,    "INTERVAL DAY() TO FRACTION()",                 25, 9,  1, 5),
    Led          (IntervalHour,             "INTERVAL HOUR() TO HOUR",                      10, 9),
    Led          (IntervalHourToMinute,     "INTERVAL HOUR() TO MINUTE",                    13, 9),
    Led          (IntervalHourToSecond,     "INTERVAL HOUR() TO SECOND",                    16, 9),
    LedTimed     (IntervalHourToSecond,     "INTERVAL HOUR() TO FRACTION()",                22, 9,  1, 5),
    Led          (IntervalMinute,           "INTERVAL MINUTE() TO MINUTE",                  10, 9),
    Led          (IntervalMinuteToSecond,   "INTERVAL MINUTE() TO SECOND",                  13, 9),
    LedTimed     (IntervalMinuteToSecond,   "INTERVAL MINUTE() TO FRACTION()",              19, 9,  1, 5),
    Led          (IntervalSecond,           "INTERVAL SECOND() TO SECOND",                  10, 9),
    LedTimed     (IntervalSecond,           "INTERVAL SECOND() TO FRACTION()",              16, 9,  1, 5),
    LedTimed     (IntervalSecond,           "INTERVAL FRACTION() TO FRACTION()",             7, 5,  1, 5),
    Plain        (Json,                     "JSON",                                 2147483647),
};
// clang-format on
static_assert(std::size(kInformixRows) == 76);

// The database types that programs in 4GL and SAL use, and those of Accell.
// clang-format off
constexpr SRowChange kGuptaSalChanges[] = {
//                type                      name                                          size  scale
    Whole        (DecFloat,                 "DEC",                                           0),
    Scaled       (Decimal,                  "DEC",                                          32, 0, 32),
};
// clang-format on
constexpr std::string_view kGuptaSalGone[] = {"BIGINT", "JSON"};
constexpr auto kGuptaSalRows = NewerTypes<kInformixRows, kGuptaSalChanges, kGuptaSalGone>();
static_assert(std::size(kGuptaSalRows) == 75);

// SeaBase's types.
// clang-format off
constexpr SRowChange kSeaBaseChanges[] = {
//                type                      name                                          size  scale
    After("SERIAL8"),
    Synonym(Whole(BigInt,                   "BIGINT",                                       19)),
};
// clang-format on
constexpr auto kSeaBaseRows = NewerTypes<kGuptaSalRows, kSeaBaseChanges>();
static_assert(std::size(kSeaBaseRows) == 76);

// What variables of Informix 4GL are declared with.
// clang-format off
constexpr SRowChange kInformix4GlChanges[] = {
//                type                      name                                          size  scale
    After("DATETIME YEAR TO DAY"),
    Timed        (Timestamp,                "DATETIME",                                     25, 0,  5, ""),
    After("INTERVAL FRACTION() TO FRACTION()"),
    Plain        (SmallIntArray,            "ARRAY[] OF SMALLINT",                    10485760),
    Plain        (RecordIdSmallInt,         "RECORD ID SMALLINT END RECORD",               255),
};
// clang-format on
constexpr auto kInformix4GlRows = NewerTypes<kGuptaSalRows, kInformix4GlChanges>();
static_assert(std::size(kInformix4GlRows) == 78);

} // namespace

constinit const SDataTypeTable kInformixDataTypes = MakeDataTypeTable<kInformixRows>();
constinit const SDataTypeTable kGuptaSalDataTypes = MakeDataTypeTable<kGuptaSalRows>();
constinit const SDataTypeTable kSeaBaseDataTypes = MakeDataTypeTable<kSeaBaseRows>();
constinit const SDataTypeTable kInformix4GlDataTypes = MakeDataTypeTable<kInformix4GlRows>();
