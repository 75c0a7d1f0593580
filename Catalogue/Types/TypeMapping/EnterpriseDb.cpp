// EnterpriseDB, by the names that it shares with PostgreSQL.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale
    Map(Char,                     10485760,          "CHAR"),
    Map(VarChar,                  10485760,          "VARCHAR"),
    Map(VarChar,                2147483647,          "TEXT"),
    Map(Text,                   1073741823,          "TEXT"),
    Map(Binary,                 1073741823,          "BYTEA"),
    Map(VarBinary,              1073741823,          "BYTEA"),
    Map(LongVarBinary,          1073741823,          "BYTEA"),
    Map(LongVarBit,               83886080,          "BIT VARYING"),
    Map(Blob,                   1073741823,          "BYTEA"),
    Map(Decimal,                      1000, 0, 1000, "DECIMAL"),
    Map(Numeric,                      1000, 0, 1000, "NUMERIC"),
    Map(Number,                       1000, 0, 1000, "DECIMAL"),
    Map(Bit,                             1,          "BOOLEAN"),
    Map(Bit,                            64,          "BIT"),
    Map(Boolean,                         1,          "BOOLEAN"),
    Map(TinyInt,                         3,          "SMALLINT"),
    Map(SmallInt,                        5,          "SMALLINT"),
    Map(Integer,                        10,          "INTEGER"),
    Map(BigInt,                         19,          "BIGINT"),
    Map(Int,                            10,          "INTEGER"),
    Map(UTinyInt,                        3,          "SMALLINT"),
    Map(USmallInt,                       5,          "INTEGER"),
    Map(UInteger,                       10,          "BIGINT"),
    Map(UBigInt,                        20,          "DECIMAL"),
    Map(Real,                           24,          "REAL"),
    Map(Float,                          53,          "DOUBLE PRECISION"),
    Map(FloatBetween,                   53,          "DOUBLE PRECISION"),
    Map(Double,                         53,          "DOUBLE PRECISION"),
    Map(DecFloat,                       53,          "DOUBLE PRECISION"),
    Map(Date,                           10,          "DATE"),
    Map(DateOra,                        19,          "TIMESTAMP()"),
    Map(Time,                           15, 0,    6, "TIME()"),
    Map(BigTime,                        15, 0,    6, "TIME()"),
    Map(BigDateTime,                    26, 0,    6, "TIMESTAMP()"),
    Map(SmallTimestamp,                 19,          "TIMESTAMP()"),
    Map(Timestamp,                      26, 0,    6, "TIMESTAMP()"),
    Map(TimestampZone,                  32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                       21, 0,    6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,                 32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                     10, 0,    4, "DECIMAL"),
    Map(Money,                          19, 0,    4, "DECIMAL"),
    Map(MoneyScaled,                    32, 0,   32, "DECIMAL"),
    Map(IntervalYearToMonth,            49,          "INTERVAL()"),
    Map(IntervalDayToSecond,            49, 0,    6, "INTERVAL()"),
    Map(DateTimeYearToSecond,           19,          "TIMESTAMP()"),
    Map(DateTimeYearToFraction,         26, 0,    6, "TIMESTAMP()"),
    Map(IntervalDayToFraction,          49, 0,    6, "INTERVAL()"),
    Map(SmallSerial,                    10,          "SERIAL"),
    Map(Guid,                           36,          "UUID"),
    Map(RowVersion,             1073741823,          "BYTEA"),
    Map(NumericIdentity,                38, 0,   38, "NUMERIC"),
    Map(Serial,                         10,          "SERIAL"),
    Map(IntegerUnsigned,                10,          "BIGINT"),
    Map(TinyIntUnsigned,                 3,          "SMALLINT"),
    Map(SmallIntUnsigned,                5,          "INTEGER"),
    Map(MediumIntUnsigned,               8,          "INTEGER"),
    Map(BigIntUnsigned,                 20,          "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 57);

} // namespace

constinit const SMappingSheaf kEnterpriseDbMapping = MakeMappingSheaf<kRows>();
