// SQL Anywhere and IQ, by release.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What SQL Anywhere 9 calls the internal types, for a server of the family whose product isn't known.
// clang-format off
constexpr SUVDBToDBMSDataType kSybase90Rows[] = {
//      type                          size  scale   name
    Map(Char,                        32767,         "CHAR"),
    Map(Char,                   2147483647,         "LONG VARCHAR"),
    Map(VarChar,                     32767,         "VARCHAR"),
    Map(VarChar,                2147483647,         "LONG VARCHAR"),
    Map(Text,                   2147483647,         "LONG VARCHAR"),
    Map(Binary,                      32767,         "BINARY"),
    Map(Binary,                 2147483647,         "LONG BINARY"),
    Map(VarBinary,                   32767,         "VARBINARY"),
    Map(VarBinary,              2147483647,         "LONG BINARY"),
    Map(LongVarBinary,          2147483647,         "LONG BINARY"),
    Map(LongVarBit,                  32767,         "VARBINARY"),
    Map(LongVarBit,             2147483647,         "LONG BINARY"),
    Map(Blob,                   2147483647,         "LONG BINARY"),
    Map(Decimal,                       127, 0, 127, "DECIMAL"),
    Map(Numeric,                       127, 0, 127, "NUMERIC"),
    Map(Number,                        127, 0, 127, "DECIMAL"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                         32767,         "VARBINARY"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "SMALLINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "TINYINT"),
    Map(USmallInt,                       5,         "UNSIGNED SMALLINT"),
    Map(UInteger,                       10,         "UNSIGNED INT"),
    Map(UBigInt,                        20,         "UNSIGNED BIGINT"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "DOUBLE"),
    Map(FloatBetween,                   53,         "DOUBLE"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       34,         "DOUBLE"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,         "TIMESTAMP"),
    Map(Time,                           16,         "TIME"),
    Map(BigTime,                        15,         "TIME"),
    Map(BigDateTime,                    26,         "TIMESTAMP"),
    Map(SmallTimestamp,                 26,         "TIMESTAMP"),
    Map(Timestamp,                      29,         "TIMESTAMP"),
    Map(TimestampZone,                  35,         "TIMESTAMP"),
    Map(TimeZone,                       21,         "TIME"),
    Map(DateTimeOffset,                 35,         "TIMESTAMP"),
    Map(SmallMoney,                     10, 0,   4, "SMALLMONEY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "MONEY"),
    Map(MoneyScaled,                   127, 0, 127, "DECIMAL"),
    Map(DateTimeYearToDay,              10,         "DATE"),
    Map(DateTimeYearToHour,             19,         "TIMESTAMP"),
    Map(DateTimeYearToMinute,           19,         "TIMESTAMP"),
    Map(DateTimeYearToSecond,           19,         "TIMESTAMP"),
    Map(DateTimeHour,                    8,         "TIME"),
    Map(DateTimeHourToMinute,            8,         "TIME"),
    Map(DateTimeHourToSecond,            8,         "TIME"),
    Map(DateTimeYearToFraction,         25,         "TIMESTAMP"),
    Map(DateTimeHourToFraction,         14,         "TIME"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(Oid,                            10,         "UNSIGNED INT"),
    Map(RowVersion,                      8,         "BINARY"),
    Map(NumericIdentity,                18, 0, 127, "NUMERIC"),
    Map(Serial,                         10,         "INTEGER"),
    Map(IntegerUnsigned,                10,         "UNSIGNED INT"),
    Map(TinyIntUnsigned,                 3,         "TINYINT"),
    Map(SmallIntUnsigned,                5,         "UNSIGNED SMALLINT"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,         "UNSIGNED BIGINT"),
};
// clang-format on
static_assert(std::size(kSybase90Rows) == 66);

// What SQL Anywhere 12 calls the internal types, for a server of the family whose product isn't known.
// clang-format off
constexpr SUVDBToDBMSDataType kSybase125Changes[] = {
//      type                     size  scale   name
    Map(LongNVarChar,      1073741823,         "LONG NVARCHAR"),
    Map(UniChar,                32767,         "NCHAR"),
    Map(UniVarChar,             32767,         "NVARCHAR"),
    Map(UniText,           1073741823,         "LONG NVARCHAR"),
    Map(WChar,                  32767,         "NCHAR"),
    Map(WChar,             1073741823,         "LONG NVARCHAR"),
    Map(VarWChar,               32767,         "NVARCHAR"),
    Map(VarWChar,          1073741823,         "LONG NVARCHAR"),
    Map(LongVarWChar,      1073741823,         "LONG NVARCHAR"),
    Map(LongVarBit,             32767,         "VARBIT"),
    Map(LongVarBit,        2147483647,         "LONG VARBIT"),
    Map(Bit,                        1,         "BIT"),
    Map(Bit,                    32767,         "VARBIT"),
    Map(TimestampZone,             35,         "TIMESTAMP WITH TIME ZONE"),
    Map(TimeZone,                  21,         "TIMESTAMP WITH TIME ZONE"),
    Map(DateTimeOffset,            35,         "TIMESTAMP WITH TIME ZONE"),
};
constexpr enInternalType kSybase125Gone[] = {
    DateTimeYearToDay, DateTimeYearToHour, DateTimeYearToMinute, DateTimeYearToSecond, DateTimeHour,
    DateTimeHourToMinute, DateTimeHourToSecond, DateTimeYearToFraction, DateTimeHourToFraction,
};
// clang-format on
constexpr auto kSybase125Rows = Newer<kSybase90Rows, kSybase125Changes, kSybase125Gone>();
static_assert(std::size(kSybase125Rows) == 66);

// What SQL Anywhere 9 calls the internal types. It has neither national types nor time zones; its CHAR is a
// VARCHAR.
// clang-format off
constexpr SUVDBToDBMSDataType kSybaseAsa90Changes[] = {
//      type                     size  scale   name
    Map(Binary,                 32767,         "BINARY"),
    Map(NumericIdentity,          127, 0, 127, "NUMERIC"),
};
constexpr enInternalType kSybaseAsa90Gone[] = {
    Char, DateTimeYearToDay, DateTimeYearToHour, DateTimeYearToMinute, DateTimeYearToSecond, DateTimeHour,
    DateTimeHourToMinute, DateTimeHourToSecond, DateTimeYearToFraction, DateTimeHourToFraction, RowVersion,
};
// clang-format on
constexpr auto kSybaseAsa90Rows = Newer<kSybase90Rows, kSybaseAsa90Changes, kSybaseAsa90Gone>();
static_assert(std::size(kSybaseAsa90Rows) == 53);

// What SQL Anywhere 12 calls the internal types. Its CHAR is a VARCHAR.
// clang-format off
constexpr SUVDBToDBMSDataType kSybaseAsa120Changes[] = {
//      type                     size  scale   name
    Map(WChar,                  32767,         "NCHAR"),
    Map(Binary,                 32767,         "BINARY"),
};
constexpr enInternalType kSybaseAsa120Gone[] = {
    Char, UniChar, UniVarChar, UniText, LongVarBit, FloatBetween, TimeZone, Oid, RowVersion,
    NumericIdentity,
};
// clang-format on
constexpr auto kSybaseAsa120Rows = Newer<kSybase125Rows, kSybaseAsa120Changes, kSybaseAsa120Gone>();
static_assert(std::size(kSybaseAsa120Rows) == 52);

// What IQ calls the internal types. It has no national types and no unsigned SMALLINT.
// clang-format off
constexpr SUVDBToDBMSDataType kSybaseIqChanges[] = {
//      type                          size  scale   name
    Map(Decimal,                       126, 0, 126, "DECIMAL"),
    Map(Numeric,                       126, 0, 126, "NUMERIC"),
    Map(Number,                        126, 0, 126, "DECIMAL"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(MoneyScaled,                   126, 0, 126, "DECIMAL"),
    Map(NumericIdentity,                18, 0, 126, "NUMERIC"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
};
// clang-format on
constexpr enInternalType kSybaseIqGone[] = {DateTimeYearToHour, DateTimeYearToMinute, DateTimeHour};
constexpr auto kSybaseIqRows = Newer<kSybase90Rows, kSybaseIqChanges, kSybaseIqGone>();
static_assert(std::size(kSybaseIqRows) == 63);

} // namespace

constinit const SMappingSheaf kSybase90Mapping = MakeMappingSheaf<kSybase90Rows>();
constinit const SMappingSheaf kSybase125Mapping = MakeMappingSheaf<kSybase125Rows>();
constinit const SMappingSheaf kSybaseAsa90Mapping = MakeMappingSheaf<kSybaseAsa90Rows>();
constinit const SMappingSheaf kSybaseAsa120Mapping = MakeMappingSheaf<kSybaseAsa120Rows>();
constinit const SMappingSheaf kSybaseIqMapping = MakeMappingSheaf<kSybaseIqRows>();
