// Informix, and those who write types in its terms.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What Informix calls the internal types. Times with digits after the second are written TO FRACTION, those
// without TO SECOND. Unsigned integers take the next larger one. Moments without a year or a full day, such
// as MONTH TO HOUR, become texts.
// clang-format off
constexpr SUVDBToDBMSDataType kInformixRows[] = {
//      type                           size  scale  name
    Map(Char,                           32767,        "CHAR"),
    Map(Char,                   4398046511104,        "CLOB"),
    Map(VarChar,                          255,        "VARCHAR"),
    Map(VarChar,                        32739,        "LVARCHAR"),
    Map(VarChar,                4398046511104,        "CLOB"),
    Map(Text,                      2147483647,        "TEXT"),
    Map(Text,                   4398046511104,        "CLOB"),
    Map(UniChar,                        32767,        "NCHAR"),
    Map(WChar,                          32767,        "NCHAR"),
    Map(VarWChar,                         255,        "NVARCHAR"),
    Map(VarWChar,                       32739,        "LVARCHAR"),
    Map(VarWChar,               4398046511104,        "CLOB"),
    Map(Binary,                    2147483647,        "BYTE"),
    Map(VarBinary,                 2147483647,        "BYTE"),
    Map(LongVarBinary,             2147483647,        "BYTE"),
    Map(LongVarBit,               17179869176,        "BYTE"),
    Map(Blob,                   4398046511104,        "BLOB"),
    Map(Decimal,                           32, 0, 32, "DECIMAL"),
    Map(Numeric,                           32, 0, 32, "NUMERIC"),
    Map(Number,                            32, 0, 32, "DECIMAL"),
    Map(Bit,                                1,        "BOOLEAN"),
    Map(Bit,                      17179869176,        "BYTE"),
    Map(Boolean,                            1,        "BOOLEAN"),
    Map(TinyInt,                            3,        "SMALLINT"),
    Map(SmallInt,                           5,        "SMALLINT"),
    Map(Integer,                           10,        "INTEGER"),
    Map(BigInt,                            19,        "BIGINT"),
    Map(Int,                               10,        "INTEGER"),
    Map(UTinyInt,                           3,        "SMALLINT"),
    Map(USmallInt,                          5,        "INTEGER"),
    Map(UInteger,                          10,        "BIGINT"),
    Map(UBigInt,                           20, 0,  0, "DECIMAL"),
    Map(Real,                              24,        "SMALLFLOAT"),
    Map(Float,                             53,        "FLOAT"),
    Map(FloatBetween,                      53,        "FLOAT"),
    Map(Double,                            53,        "DOUBLE PRECISION"),
    Map(DecFloat,                          34,        "DECIMAL"),
    Map(Date,                              10,        "DATE"),
    Map(DateOra,                           19,        "DATETIME YEAR TO SECOND"),
    Map(Time,                              18, 0,  0, "DATETIME HOUR TO SECOND"),
    Map(Time,                              18, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(BigTime,                           15, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(BigDateTime,                       26, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(SmallTimestamp,                    19, 0,  0, "DATETIME YEAR TO SECOND"),
    Map(Timestamp,                         35, 0,  0, "DATETIME YEAR TO SECOND"),
    Map(Timestamp,                         35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(TimestampZone,                     35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(TimeZone,                          24, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(DateTimeOffset,                    35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(SmallMoney,                        19, 0,  4, "MONEY"),
    Map(Money,                             19, 0,  4, "MONEY"),
    Map(MoneyScaled,                       32, 0, 32, "MONEY"),
    Map(IntervalYear,                      10,        "INTERVAL YEAR() TO YEAR"),
    Map(IntervalYearToMonth,               13,        "INTERVAL YEAR() TO MONTH"),
    Map(IntervalMonth,                     10,        "INTERVAL MONTH() TO MONTH"),
    Map(IntervalDay,                       10,        "INTERVAL DAY() TO DAY"),
    Map(IntervalDayToHour,                 13,        "INTERVAL DAY() TO HOUR"),
    Map(IntervalDayToMinute,               16,        "INTERVAL DAY() TO MINUTE"),
    Map(IntervalDayToSecond,               19,        "INTERVAL DAY() TO SECOND"),
    Map(IntervalHour,                      10,        "INTERVAL HOUR() TO HOUR"),
    Map(IntervalHourToMinute,              13,        "INTERVAL HOUR() TO MINUTE"),
    Map(IntervalHourToSecond,              28, 0,  0, "INTERVAL HOUR() TO SECOND"),
    Map(IntervalHourToSecond,              28, 0,  5, "INTERVAL HOUR() TO FRACTION()"),
    Map(IntervalMinute,                    10,        "INTERVAL MINUTE() TO MINUTE"),
    Map(IntervalMinuteToSecond,            28, 0,  0, "INTERVAL MINUTE() TO SECOND"),
    Map(IntervalMinuteToSecond,            28, 0,  5, "INTERVAL MINUTE() TO FRACTION()"),
    Map(IntervalSecond,                    28, 0,  0, "INTERVAL SECOND() TO SECOND"),
    Map(IntervalSecond,                    28, 0,  5, "INTERVAL SECOND() TO FRACTION()"),
    Map(DateTimeYear,                       4,        "DATETIME YEAR TO YEAR"),
    Map(DateTimeYearToMonth,                7,        "DATETIME YEAR TO MONTH"),
    Map(DateTimeYearToDay,                 10,        "DATETIME YEAR TO DAY"),
    Map(DateTimeYearToHour,                13,        "DATETIME YEAR TO HOUR"),
    Map(DateTimeYearToMinute,              16,        "DATETIME YEAR TO MINUTE"),
    Map(DateTimeYearToSecond,              19,        "DATETIME YEAR TO SECOND"),
    Map(DateTimeHour,                       2,        "DATETIME HOUR TO HOUR"),
    Map(DateTimeHourToMinute,               5,        "DATETIME HOUR TO MINUTE"),
    Map(DateTimeHourToSecond,               8,        "DATETIME HOUR TO SECOND"),
    Map(DateTimeYearToFraction,            25, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(DateTimeHourToFraction,            14, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(IntervalDayToFraction,             28, 0,  5, "INTERVAL DAY() TO FRACTION()"),
    Map(SmallSerial,                        5,        "SMALLINT"),
    Map(RowVersion,                         8,        "BYTE"),
    Map(NumericIdentity,                   32, 0,  0, "NUMERIC"),
    Map(Json,                      2147483647,        "JSON"),
    Map(Serial,                            10,        "SERIAL"),
    Map(IntegerUnsigned,                   10,        "BIGINT"),
    Map(TinyIntUnsigned,                    3,        "SMALLINT"),
    Map(SmallIntUnsigned,                   5,        "INTEGER"),
    Map(MediumIntUnsigned,                  8,        "INTEGER"),
    Map(BigIntUnsigned,                    20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kInformixRows) == 90);

// What SeaBase calls the internal types, in Informix's terms. Times with digits after the second are written
// TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one. Moments without a year or
// a full day, such as MONTH TO HOUR, become texts, and so does JSON.
constexpr enInternalType kSeaBaseGone[] = {UniChar, LongVarBit, FloatBetween, Json};
constexpr auto kSeaBaseRows = Newer<kInformixRows, kNoRows, kSeaBaseGone>();
static_assert(std::size(kSeaBaseRows) == 86);

// What variables of Informix 4GL are declared with for the internal types. Times with digits after the
// second are written TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one.
// Intervals, and moments without a full date or time, become texts.
// clang-format off
constexpr SUVDBToDBMSDataType kInformix4GlChanges[] = {
//      type                           size  scale  name
    Map(BigInt,                            19,        "INT8"),
    Map(UInteger,                          10,        "INT8"),
    Map(IntegerUnsigned,                   10,        "INT8"),
};
constexpr enInternalType kInformix4GlGone[] = {
    UniChar, LongVarBit, Int, FloatBetween, IntervalYear, IntervalYearToMonth, IntervalMonth, IntervalDay,
    IntervalDayToHour, IntervalDayToMinute, IntervalDayToSecond, IntervalHour, IntervalHourToMinute,
    IntervalHourToSecond, IntervalMinute, IntervalMinuteToSecond, IntervalSecond, DateTimeYear,
    DateTimeYearToMonth, DateTimeYearToHour, DateTimeHour, DateTimeHourToMinute, IntervalDayToFraction,
    RowVersion, NumericIdentity, Json,
};
// clang-format on
constexpr auto kInformix4GlRows = Newer<kInformixRows, kInformix4GlChanges, kInformix4GlGone>();
static_assert(std::size(kInformix4GlRows) == 61);

// What Accell programs and forms call the internal types, in Informix's terms. Times with digits after the
// second are written TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one.
// Intervals, and moments without a full date or time, become texts.
// clang-format off
constexpr SUVDBToDBMSDataType kAccellChanges[] = {
//      type                           size  scale  name
    Map(Text,                   4398046511104,        "CLOB"),
};
// clang-format on
constexpr enInternalType kAccellGone[] = {DateTimeHourToFraction};
constexpr auto kAccellRows = Newer<kInformix4GlRows, kAccellChanges, kAccellGone>();
static_assert(std::size(kAccellRows) == 59);

// What programs in 4GL and SAL call the internal types, in Informix's terms. Times with digits after the
// second are written TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one.
// Intervals, and moments without a full date or time, become texts.
constexpr enInternalType kGuptaSalGone[] = {DateTimeYearToMinute};
constexpr auto kGuptaSalRows = Newer<kAccellRows, kNoRows, kGuptaSalGone>();
static_assert(std::size(kGuptaSalRows) == 58);

} // namespace

constinit const SMappingSheaf kInformixMapping = MakeMappingSheaf<kInformixRows>();
constinit const SMappingSheaf kSeaBaseMapping = MakeMappingSheaf<kSeaBaseRows>();
constinit const SMappingSheaf kInformix4GlMapping = MakeMappingSheaf<kInformix4GlRows>();
constinit const SMappingSheaf kAccellMapping = MakeMappingSheaf<kAccellRows>();
constinit const SMappingSheaf kGuptaSalMapping = MakeMappingSheaf<kGuptaSalRows>();
