// Redshift. Its CHAR holds single bytes, so national characters become VARCHAR. It has no interval column
// with the one parameter of INTERVAL(), so intervals become text.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                       size  scale
    Map(Char,                      4096,        "CHAR"),
    Map(Char,                     65535,        "VARCHAR"),
    Map(VarChar,                  65535,        "VARCHAR"),
    Map(LongVarChar,              65535,        "VARCHAR"),
    Map(Text,                     65535,        "VARCHAR"),
    Map(UniChar,                  65535,        "VARCHAR"),
    Map(WChar,                    65535,        "VARCHAR"),
    Map(VarWChar,                 65535,        "VARCHAR"),
    Map(LongVarWChar,             65535,        "VARCHAR"),
    Map(Binary,                 1024000,        "BYTEA"),
    Map(VarBinary,              1024000,        "BYTEA"),
    Map(LongVarBinary,          1024000,        "BYTEA"),
    Map(LongVarBit,               65535,        "VARCHAR"),
    Map(Blob,                   1024000,        "BYTEA"),
    Map(Decimal,                     38, 0, 37, "DECIMAL"),
    Map(Numeric,                     38, 0, 37, "NUMERIC"),
    Map(Number,                       0,        "DOUBLE PRECISION"),
    Map(Number,                       4,        "SMALLINT"),
    Map(Number,                       9,        "INTEGER"),
    Map(Number,                      18,        "BIGINT"),
    Map(Number,                      38, 0, 37, "DECIMAL"),
    Map(Bit,                          1,        "BOOLEAN"),
    Map(Bit,                      65535,        "VARCHAR"),
    Map(Boolean,                      1,        "BOOLEAN"),
    Map(TinyInt,                      3,        "SMALLINT"),
    Map(SmallInt,                     5,        "SMALLINT"),
    Map(Integer,                     10,        "INTEGER"),
    Map(BigInt,                      19,        "BIGINT"),
    Map(Int,                         10,        "INTEGER"),
    Map(UTinyInt,                     3,        "SMALLINT"),
    Map(USmallInt,                    5,        "INTEGER"),
    Map(UInteger,                    10,        "BIGINT"),
    Map(UBigInt,                     20,        "DECIMAL"),
    Map(Real,                        24,        "REAL"),
    Map(Float,                       53,        "DOUBLE PRECISION"),
    Map(FloatBetween,                53,        "DOUBLE PRECISION"),
    Map(Double,                      53,        "DOUBLE PRECISION"),
    Map(DecFloat,                    53,        "DOUBLE PRECISION"),
    Map(Date,                        10,        "DATE"),
    Map(DateOra,                     19,        "TIMESTAMP"),
    Map(Time,                        15, 0,  6, "TIME"),
    Map(BigTime,                     15, 0,  6, "TIME"),
    Map(BigDateTime,                 26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,              19,        "TIMESTAMP"),
    Map(Timestamp,                   26, 0,  6, "TIMESTAMP"),
    Map(TimestampZone,               32, 0,  6, "TIMESTAMP WITH TIME ZONE"),
    Map(TimeZone,                    21, 0,  6, "TIMETZ"),
    Map(DateTimeOffset,              32, 0,  6, "TIMESTAMP WITH TIME ZONE"),
    Map(SmallMoney,                  10, 0,  4, "DECIMAL"),
    Map(Money,                       19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                 32, 0, 32, "DECIMAL"),
    Map(DateTimeYearToDay,           10,        "DATE"),
    Map(DateTimeYearToHour,          19,        "TIMESTAMP"),
    Map(DateTimeYearToMinute,        19,        "TIMESTAMP"),
    Map(DateTimeYearToSecond,        19,        "TIMESTAMP"),
    Map(DateTimeHour,                 8,        "TIME"),
    Map(DateTimeHourToMinute,         8,        "TIME"),
    Map(DateTimeHourToSecond,         8,        "TIME"),
    Map(DateTimeYearToFraction,      26, 0,  6, "TIMESTAMP"),
    Map(DateTimeHourToFraction,      15, 0,  6, "TIME"),
    Map(SmallSerial,                  5,        "SMALLINT"),
    Map(Oid,                         10,        "BIGINT"),
    Map(Guid,                        36,        "CHAR"),
    Map(RowVersion,             1024000,        "BYTEA"),
    Map(NumericIdentity,             38, 0, 37, "DECIMAL"),
    Map(CharForBitData,         1024000,        "BYTEA"),
    Map(VarCharForBitData,      1024000,        "BYTEA"),
    Map(Serial,                      10,        "INTEGER"),
    Map(IntegerUnsigned,             10,        "BIGINT"),
    Map(TinyIntUnsigned,              3,        "SMALLINT"),
    Map(SmallIntUnsigned,             5,        "INTEGER"),
    Map(MediumIntUnsigned,            8,        "INTEGER"),
    Map(BigIntUnsigned,              20,        "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 73);

} // namespace

constinit const SMappingSheaf kRedshiftMapping = MakeMappingSheaf<kRows>();
