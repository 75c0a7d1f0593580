// The SQL of NonStop systems, and Neoview.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What the SQL of NonStop systems calls the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kHpNonStopRows[] = {
//      type                  size  scale    name
    Map(Char,                  32708,          "CHAR"),
    Map(VarChar,               32708,          "VARCHAR"),
    Map(WChar,                 16354,          "NCHAR"),
    Map(VarWChar,              16354,          "NCHAR VARYING"),
    Map(LongVarWChar,          16354,          "NCHAR VARYING"),
    Map(Binary,                32708,          "BYTEA"),
    Map(VarBinary,             32708,          "BYTEA"),
    Map(LongVarBinary,         32708,          "BYTEA"),
    Map(Blob,                  32708,          "BYTEA"),
    Map(Decimal,                  18,  0,  18, "DECIMAL"),
    Map(Decimal,                 128,  0, 128, "NUMERIC"),
    Map(Numeric,                 128,  0, 128, "NUMERIC"),
    Map(Number,                  128,  0, 128, "NUMERIC"),
    Map(Bit,                       1,          "BOOLEAN"),
    Map(Bit,                   32708,          "BIT"),
    Map(Boolean,                   1,          "BOOLEAN"),
    Map(TinyInt,                   3,          "SMALLINT"),
    Map(SmallInt,                  5,          "SMALLINT"),
    Map(Integer,                  10,          "INTEGER"),
    Map(BigInt,                   19,          "LARGEINT"),
    Map(Int,                      10,          "INTEGER"),
    Map(UTinyInt,                  3,          "SMALLINT"),
    Map(USmallInt,                 5,          "INTEGER"),
    Map(UInteger,                 10,          "LARGEINT"),
    Map(UBigInt,                  20,  0,   0, "NUMERIC"),
    Map(Real,                     24,          "DOUBLE PRECISION"),
    Map(Float,                    53,          "DOUBLE PRECISION"),
    Map(Double,                   53,          "DOUBLE PRECISION"),
    Map(DecFloat,                 53,          "DOUBLE PRECISION"),
    Map(Date,                     10,          "DATE"),
    Map(DateOra,                  19,  0,   6, "TIMESTAMP"),
    Map(Time,                     15,  0,   6, "TIME()"),
    Map(SmallTimestamp,           19,  0,   6, "TIMESTAMP"),
    Map(Timestamp,                26,  0,   6, "TIMESTAMP"),
    Map(TimestampZone,            32,  0,   6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                 21,  0,   6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,           32,  0,   6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,               10,  0,   4, "NUMERIC"),
    Map(Money,                    19,  0,   4, "NUMERIC"),
    Map(MoneyScaled,              32,  0,  32, "NUMERIC"),
    Map(IntervalYearToMonth,      22,          "INTERVAL YEAR() TO MONTH"),
    Map(IntervalDayToFraction,    35,          "INTERVAL DAY() TO SECOND"),
    Map(SmallSerial,               5,          "SMALLINT"),
    Map(Serial,                   10,          "INTEGER"),
    Map(IntegerUnsigned,          10,          "LARGEINT"),
    Map(TinyIntUnsigned,           3,          "SMALLINT"),
    Map(SmallIntUnsigned,          5,          "INTEGER"),
    Map(BigIntUnsigned,           20,  0,   0, "NUMERIC"),
};
// clang-format on
static_assert(std::size(kHpNonStopRows) == 48);

// What Neoview calls the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kNeoviewChanges[] = {
//      type                   size  scale    name
    Map(USmallInt,                  5,          "SMALLINT UNSIGNED"),
    Map(UInteger,                  10,          "INTEGER UNSIGNED"),
    Map(Real,                      24,          "REAL"),
    Map(DateTimeYearToSecond,      19,  0,   6, "TIMESTAMP"),
    Map(DateTimeYearToFraction,    26,  0,   6, "TIMESTAMP"),
    Map(NumericIdentity,          128,  0, 128, "NUMERIC"),
    Map(IntegerUnsigned,           10,          "INTEGER UNSIGNED"),
    Map(SmallIntUnsigned,           5,          "SMALLINT UNSIGNED"),
    Map(MediumIntUnsigned,          8,          "INTEGER"),
};
// clang-format on
constexpr auto kNeoviewRows = Newer<kHpNonStopRows, kNeoviewChanges>();
static_assert(std::size(kNeoviewRows) == 52);

} // namespace

constinit const SMappingSheaf kHpNonStopMapping = MakeMappingSheaf<kHpNonStopRows>();
constinit const SMappingSheaf kNeoviewMapping = MakeMappingSheaf<kNeoviewRows>();
