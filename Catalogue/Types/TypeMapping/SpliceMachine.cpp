// Splice Machine knows neither zones nor intervals: a time with zone becomes one without, an interval text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale
    Map(Char,                          254,        "CHAR"),
    Map(Char,                        32672,        "VARCHAR"),
    Map(Char,                   2147483647,        "TEXT"),
    Map(VarChar,                     32672,        "VARCHAR"),
    Map(VarChar,                2147483647,        "TEXT"),
    Map(Text,                   2147483647,        "TEXT"),
    Map(LongVarWChar,           2147483647,        "TEXT"),
    Map(Binary,                 2147483647,        "BYTEA"),
    Map(VarBinary,              2147483647,        "BYTEA"),
    Map(LongVarBinary,          2147483647,        "BYTEA"),
    Map(Blob,                   2147483647,        "BYTEA"),
    Map(Decimal,                        38, 0, 38, "DECIMAL"),
    Map(Numeric,                        38, 0, 38, "NUMERIC"),
    Map(Number,                          0,        "DOUBLE PRECISION"),
    Map(Number,                          9,        "INTEGER"),
    Map(Number,                         18,        "BIGINT"),
    Map(Number,                         38, 0, 38, "DECIMAL"),
    Map(Bit,                             1,        "BOOLEAN"),
    Map(Bit,                         32672,        "VARCHAR"),
    Map(Bit,                    2147483647,        "TEXT"),
    Map(Boolean,                         1,        "BOOLEAN"),
    Map(TinyInt,                         3,        "SMALLINT"),
    Map(SmallInt,                        5,        "SMALLINT"),
    Map(Integer,                        10,        "INTEGER"),
    Map(BigInt,                         19,        "BIGINT"),
    Map(Int,                            10,        "INTEGER"),
    Map(UTinyInt,                        3,        "SMALLINT"),
    Map(USmallInt,                       5,        "INTEGER"),
    Map(UInteger,                       10,        "BIGINT"),
    Map(UBigInt,                        20,        "DECIMAL"),
    Map(Real,                           24,        "REAL"),
    Map(Float,                          53,        "DOUBLE PRECISION"),
    Map(FloatBetween,                   53,        "DOUBLE PRECISION"),
    Map(Double,                         53,        "DOUBLE PRECISION"),
    Map(DecFloat,                       53,        "DOUBLE PRECISION"),
    Map(Date,                           10,        "DATE"),
    Map(DateOra,                        19,        "TIMESTAMP"),
    Map(Time,                           15, 0,  6, "TIME"),
    Map(BigTime,                        15, 0,  6, "TIME"),
    Map(BigDateTime,                    26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,        "TIMESTAMP"),
    Map(Timestamp,                      26, 0,  6, "TIMESTAMP"),
    Map(TimestampZone,                  32, 0,  6, "TIMESTAMP"),
    Map(TimeZone,                       21, 0,  6, "TIME"),
    Map(DateTimeOffset,                 32, 0,  6, "TIMESTAMP"),
    Map(SmallMoney,                     10, 0,  4, "DECIMAL"),
    Map(Money,                          19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32, 0, 32, "DECIMAL"),
    Map(DateTimeYearToDay,              10,        "DATE"),
    Map(DateTimeYearToHour,             19,        "TIMESTAMP"),
    Map(DateTimeYearToMinute,           19,        "TIMESTAMP"),
    Map(DateTimeYearToSecond,           19,        "TIMESTAMP"),
    Map(DateTimeHourToMinute,            8,        "TIME"),
    Map(DateTimeHourToSecond,            8,        "TIME"),
    Map(DateTimeYearToFraction,         26, 0,  6, "TIMESTAMP"),
    Map(DateTimeHourToFraction,         15, 0,  6, "TIME"),
    Map(SmallSerial,                     5,        "SMALLINT"),
    Map(Oid,                            10,        "BIGINT"),
    Map(Guid,                           36,        "CHAR"),
    Map(RowVersion,             2147483647,        "BYTEA"),
    Map(NumericIdentity,                38, 0, 38, "DECIMAL"),
    Map(Serial,                         10,        "INTEGER"),
    Map(IntegerUnsigned,                10,        "BIGINT"),
    Map(TinyIntUnsigned,                 3,        "SMALLINT"),
    Map(SmallIntUnsigned,                5,        "INTEGER"),
    Map(MediumIntUnsigned,               8,        "INTEGER"),
    Map(BigIntUnsigned,                 20,        "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 67);

} // namespace

constinit const SMappingSheaf kSpliceMachineMapping = MakeMappingSheaf<kRows>();
