// Netezza. VARCHAR holds Latin-9, so national characters become NVARCHAR. Its TIMESTAMP has no zone.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                     size  scale
    Map(Char,                   64000,        "CHAR"),
    Map(VarChar,                64000,        "VARCHAR"),
    Map(LongNVarChar,           16000,        "NVARCHAR"),
    Map(UniChar,                16000,        "NVARCHAR"),
    Map(UniVarChar,             16000,        "NVARCHAR"),
    Map(UniText,                16000,        "NVARCHAR"),
    Map(WChar,                  16000,        "NVARCHAR"),
    Map(VarWChar,               16000,        "NVARCHAR"),
    Map(LongVarWChar,           16000,        "NVARCHAR"),
    Map(Binary,                 64000,        "BYTEA"),
    Map(VarBinary,              64000,        "BYTEA"),
    Map(LongVarBinary,          64000,        "BYTEA"),
    Map(Blob,                   64000,        "BYTEA"),
    Map(Decimal,                   38, 0, 38, "DECIMAL"),
    Map(Numeric,                   38, 0, 38, "NUMERIC"),
    Map(Number,                    38, 0, 38, "DECIMAL"),
    Map(Bit,                        1,        "BOOLEAN"),
    Map(Bit,                    64000,        "VARCHAR"),
    Map(Boolean,                    1,        "BOOLEAN"),
    Map(TinyInt,                    3,        "SMALLINT"),
    Map(SmallInt,                   5,        "SMALLINT"),
    Map(Integer,                   10,        "INTEGER"),
    Map(BigInt,                    19,        "BIGINT"),
    Map(Int,                       10,        "INTEGER"),
    Map(UTinyInt,                   3,        "SMALLINT"),
    Map(USmallInt,                  5,        "INTEGER"),
    Map(UInteger,                  10,        "BIGINT"),
    Map(UBigInt,                   20,        "DECIMAL"),
    Map(Real,                      24,        "REAL"),
    Map(Float,                     53,        "DOUBLE PRECISION"),
    Map(FloatBetween,              53,        "DOUBLE PRECISION"),
    Map(Double,                    53,        "DOUBLE PRECISION"),
    Map(DecFloat,                  53,        "DOUBLE PRECISION"),
    Map(Date,                      10,        "DATE"),
    Map(DateOra,                   19,        "TIMESTAMP"),
    Map(Time,                      15, 0,  6, "TIME()"),
    Map(BigTime,                   15, 0,  6, "TIME()"),
    Map(BigDateTime,               26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,            19,        "TIMESTAMP"),
    Map(Timestamp,                 26, 0,  6, "TIMESTAMP"),
    Map(TimestampZone,             32, 0,  6, "TIMESTAMP"),
    Map(TimeZone,                  21, 0,  6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,            32, 0,  6, "TIMESTAMP"),
    Map(SmallMoney,                10, 0,  4, "DECIMAL"),
    Map(Money,                     19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,               32, 0, 32, "DECIMAL"),
    Map(IntervalYearToMonth,       49,        "INTERVAL()"),
    Map(IntervalDayToSecond,       49, 0,  6, "INTERVAL()"),
    Map(DateTimeYearToDay,         10,        "DATE"),
    Map(DateTimeYearToSecond,      19,        "TIMESTAMP"),
    Map(DateTimeHourToSecond,       8,        "TIME()"),
    Map(DateTimeYearToFraction,    26, 0,  6, "TIMESTAMP"),
    Map(IntervalDayToFraction,     49, 0,  6, "INTERVAL()"),
    Map(SmallSerial,                5,        "SMALLINT"),
    Map(RowVersion,             64000,        "BYTEA"),
    Map(NumericIdentity,           38, 0, 38, "NUMERIC"),
    Map(Serial,                    10,        "INTEGER"),
    Map(IntegerUnsigned,           10,        "BIGINT"),
    Map(TinyIntUnsigned,            3,        "SMALLINT"),
    Map(SmallIntUnsigned,           5,        "INTEGER"),
    Map(MediumIntUnsigned,          8,        "INTEGER"),
    Map(BigIntUnsigned,            20,        "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 62);

} // namespace

constinit const SMappingSheaf kNetezzaMapping = MakeMappingSheaf<kRows>();
