// What SQL Anywhere 9 calls the internal types, for a server of the family whose product isn't known.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
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
static_assert(std::size(kRows) == 66);

} // namespace

constinit const SMappingSheaf kSybase90Mapping = MakeMappingSheaf<kRows>();
