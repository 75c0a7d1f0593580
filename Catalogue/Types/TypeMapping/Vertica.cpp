// Vertica. Any integer has 64 bits, any float 53; the database is UTF-8.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                        size  scale
    Map(Char,                      65000,          "CHAR"),
    Map(Char,                   32000000,          "LONG VARCHAR"),
    Map(VarChar,                   65000,          "VARCHAR"),
    Map(VarChar,                32000000,          "LONG VARCHAR"),
    Map(Binary,                    65000,          "VARBINARY"),
    Map(Binary,                 32000000,          "LONG VARBINARY"),
    Map(VarBinary,                 65000,          "VARBINARY"),
    Map(VarBinary,              32000000,          "LONG VARBINARY"),
    Map(LongVarBinary,          32000000,          "LONG VARBINARY"),
    Map(Blob,                   32000000,          "LONG VARBINARY"),
    Map(Decimal,                    1024, 0, 1024, "DECIMAL"),
    Map(Numeric,                    1024, 0, 1024, "NUMERIC"),
    Map(Number,                     1024, 0, 1024, "DECIMAL"),
    Map(Bit,                           1,          "BOOLEAN"),
    Map(Bit,                       65000,          "VARCHAR"),
    Map(Bit,                    32000000,          "LONG VARCHAR"),
    Map(Boolean,                       1,          "BOOLEAN"),
    Map(TinyInt,                       3,          "SMALLINT"),
    Map(SmallInt,                      5,          "SMALLINT"),
    Map(Integer,                      10,          "INTEGER"),
    Map(BigInt,                       19,          "INTEGER"),
    Map(Int,                          10,          "INTEGER"),
    Map(UTinyInt,                      3,          "SMALLINT"),
    Map(USmallInt,                     5,          "INTEGER"),
    Map(UInteger,                     10,          "INTEGER"),
    Map(UBigInt,                      20,          "DECIMAL"),
    Map(Real,                         24,          "DOUBLE PRECISION"),
    Map(Float,                        53,          "DOUBLE PRECISION"),
    Map(FloatBetween,                 53,          "DOUBLE PRECISION"),
    Map(Double,                       53,          "DOUBLE PRECISION"),
    Map(DecFloat,                     53,          "DOUBLE PRECISION"),
    Map(Date,                         10,          "DATE"),
    Map(DateOra,                      19,          "TIMESTAMP"),
    Map(Time,                         15, 0,    6, "TIME()"),
    Map(BigTime,                      15, 0,    6, "TIME()"),
    Map(BigDateTime,                  26, 0,    6, "TIMESTAMP"),
    Map(SmallTimestamp,               19,          "TIMESTAMP"),
    Map(Timestamp,                    26, 0,    6, "TIMESTAMP"),
    Map(TimestampZone,                32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                     21, 0,    6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,               32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                   10, 0,    4, "DECIMAL"),
    Map(Money,                        19, 0,    4, "DECIMAL"),
    Map(MoneyScaled,                  32, 0,   32, "DECIMAL"),
    Map(IntervalYearToMonth,          13,          "INTERVAL YEAR() TO MONTH"),
    Map(IntervalDay,                  10,          "INTERVAL DAY()"),
    Map(IntervalDayToSecond,          26,          "INTERVAL DAY() TO SECOND"),
    Map(IntervalHourToMinute,         13,          "INTERVAL HOUR() TO MINUTE"),
    Map(IntervalHourToSecond,         23,          "INTERVAL HOUR() TO SECOND"),
    Map(DateTimeYearToDay,            10,          "DATE"),
    Map(DateTimeYearToSecond,         19,          "TIMESTAMP"),
    Map(DateTimeYearToFraction,       26, 0,    6, "TIMESTAMP"),
    Map(IntervalDayToFraction,        26, 0,    6, "INTERVAL DAY() TO SECOND()"),
    Map(SmallSerial,                   5,          "SMALLINT"),
    Map(RowVersion,                65000,          "VARBINARY"),
    Map(NumericIdentity,              38, 0,   38, "NUMERIC"),
    Map(Serial,                       10,          "INTEGER"),
    Map(IntegerUnsigned,              10,          "INTEGER"),
    Map(TinyIntUnsigned,               3,          "SMALLINT"),
    Map(SmallIntUnsigned,              5,          "INTEGER"),
    Map(MediumIntUnsigned,             8,          "INTEGER"),
    Map(BigIntUnsigned,               20,          "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 62);

} // namespace

constinit const SMappingSheaf kVerticaMapping = MakeMappingSheaf<kRows>();
