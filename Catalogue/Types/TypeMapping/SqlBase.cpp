// What SQLBase calls the internal types. What outgrows 254 bytes is a LONG VARCHAR.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                       size  scale   name
    Map(Char,                         254,         "CHAR"),
    Map(Char,                  2147483647,         "LONG VARCHAR"),
    Map(VarChar,                      254,         "VARCHAR"),
    Map(VarChar,               2147483647,         "LONG VARCHAR"),
    Map(WChar,                        127,         "NCHAR"),
    Map(WChar,                 2147483647,         "LONG VARCHAR"),
    Map(VarWChar,                     127,         "NCHAR VARYING"),
    Map(VarWChar,              2147483647,         "LONG VARCHAR"),
    Map(Binary,                2147483647,         "BYTEA"),
    Map(VarBinary,             2147483647,         "BYTEA"),
    Map(LongVarBinary,         2147483647,         "BYTEA"),
    Map(Blob,                  2147483647,         "BYTEA"),
    Map(Decimal,                       15,  0, 15, "DECIMAL"),
    Map(Decimal,                       22,  0, 22, "NUMBER"),
    Map(Numeric,                       15,  0, 15, "NUMERIC"),
    Map(Numeric,                       22,  0, 22, "NUMBER"),
    Map(Number,                        15,  0, 15, "DECIMAL"),
    Map(Number,                        22,  0, 22, "NUMBER"),
    Map(Bit,                            1,         "BOOLEAN"),
    Map(Bit,                          254,         "BIT"),
    Map(Boolean,                        1,         "BOOLEAN"),
    Map(TinyInt,                        3,         "SMALLINT"),
    Map(SmallInt,                       5,         "SMALLINT"),
    Map(Integer,                       10,         "INTEGER"),
    Map(BigInt,                        19,         "LARGEINT"),
    Map(Int,                           10,         "INTEGER"),
    Map(UTinyInt,                       3,         "SMALLINT"),
    Map(USmallInt,                      5,         "INTEGER"),
    Map(UInteger,                      10,         "LARGEINT"),
    Map(UBigInt,                       20,  0,  0, "NUMBER"),
    Map(Real,                          24,         "REAL"),
    Map(Float,                         53,         "DOUBLE PRECISION"),
    Map(Double,                        53,         "DOUBLE PRECISION"),
    Map(DecFloat,                      22,         "NUMBER"),
    Map(Date,                          10,         "DATE"),
    Map(DateOra,                       19,  0,  6, "TIMESTAMP"),
    Map(Time,                          15,  0,  6, "TIME"),
    Map(SmallTimestamp,                19,  0,  6, "TIMESTAMP"),
    Map(Timestamp,                     26,  0,  6, "TIMESTAMP"),
    Map(TimestampZone,                 32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                      21,  0,  6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,                32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                    10,  0,  4, "DECIMAL"),
    Map(Money,                         22,  0, 22, "NUMBER"),
    Map(MoneyScaled,                   22,  0, 22, "NUMBER"),
    Map(IntervalDayToFraction,         26,         "INTERVAL DAY() TO SECOND"),
    Map(Serial,                        10,         "INTEGER"),
    Map(IntegerUnsigned,               10,         "LARGEINT"),
    Map(TinyIntUnsigned,                3,         "SMALLINT"),
    Map(SmallIntUnsigned,               5,         "INTEGER"),
    Map(BigIntUnsigned,                20,  0,  0, "NUMBER"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kSqlBaseMapping = MakeMappingSheaf<kRows>();
