// Progress, its SQL side and its 4GL side.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What the SQL side of Progress databases calls the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kProgressRows[] = {
//      type                        size  scale   name
    Map(Char,                         2000,         "CHAR"),
    Map(Char,                        31995,         "VARCHAR"),
    Map(VarChar,                     31995,         "VARCHAR"),
    Map(Binary,                       2000,         "BINARY"),
    Map(Binary,                 1073741823,         "LVARBINARY"),
    Map(VarBinary,                   31982,         "VARBINARY"),
    Map(VarBinary,              1073741823,         "LVARBINARY"),
    Map(LongVarBinary,          1073741823,         "LVARBINARY"),
    Map(Blob,                   1073741823,         "LVARBINARY"),
    Map(Decimal,                        50,  0, 10, "DECIMAL"),
    Map(Numeric,                        50,  0, 10, "NUMERIC"),
    Map(Number,                         50,  0, 10, "NUMERIC"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                         31982,         "VARBINARY"),
    Map(Boolean,                         1,         "LOGICAL"),
    Map(TinyInt,                         3,         "TINYINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "SMALLINT"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(UInteger,                       10,         "BIGINT"),
    Map(UBigInt,                        20,  0,  0, "DECIMAL"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "FLOAT"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       53,         "DOUBLE"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,  0,  3, "TIMESTAMP"),
    Map(Time,                           12,  0,  3, "TIME"),
    Map(BigTime,                        12,  0,  3, "TIME"),
    Map(BigDateTime,                    23,  0,  3, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,  0,  3, "TIMESTAMP"),
    Map(Timestamp,                      23,  0,  3, "TIMESTAMP"),
    Map(TimestampZone,                  29,  0,  3, "TIMESTAMP_TIMEZONE"),
    Map(TimeZone,                       12,  0,  3, "TIME"),
    Map(DateTimeOffset,                 29,  0,  3, "TIMESTAMP_TIMEZONE"),
    Map(SmallMoney,                     10,  0,  4, "DECIMAL"),
    Map(Money,                          19,  0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32,  0, 10, "DECIMAL"),
    Map(DateTimeYearToSecond,           19,  0,  3, "TIMESTAMP"),
    Map(DateTimeYearToFraction,         23,  0,  3, "TIMESTAMP"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(RowVersion,                   2000,         "BINARY"),
    Map(NumericIdentity,                50,  0, 10, "NUMERIC"),
    Map(Serial,                         10,         "INTEGER"),
    Map(IntegerUnsigned,                10,         "BIGINT"),
    Map(TinyIntUnsigned,                 3,         "SMALLINT"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kProgressRows) == 52);

// What the 4GL side of Progress databases calls the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kOpenEdgeChanges[] = {
//      type                        size  scale   name
    Map(Char,                        31995,         "CHAR"),
    Map(Char,                   1073741823,         "LONGCHAR1"),
    Map(VarChar,                     31995,         "VARCHAR"),
    Map(VarChar,                1073741823,         "LONGCHAR1"),
    Map(BigInt,                         19,         "INT64"),
    Map(UInteger,                       10,         "INT64"),
    Map(DateOra,                        19,  0,  3, "DATETIME"),
    Map(SmallTimestamp,                 19,  0,  3, "DATETIME"),
    Map(Timestamp,                      23,  0,  3, "DATETIME"),
    Map(TimestampZone,                  23,  0,  3, "DATETIME"),
    Map(DateTimeOffset,                 23,  0,  3, "DATETIME"),
    Map(DateTimeYearToSecond,           19,  0,  3, "DATETIME"),
    Map(DateTimeYearToFraction,         23,  0,  3, "DATETIME"),
    Map(IntegerUnsigned,                10,         "INT64"),
};
// clang-format on
constexpr enInternalType kOpenEdgeGone[] = {BigDateTime, RowVersion};
constexpr auto kOpenEdgeRows = Newer<kProgressRows, kOpenEdgeChanges, kOpenEdgeGone>();
static_assert(std::size(kOpenEdgeRows) == 51);

} // namespace

constinit const SMappingSheaf kProgressMapping = MakeMappingSheaf<kProgressRows>();
constinit const SMappingSheaf kOpenEdgeMapping = MakeMappingSheaf<kOpenEdgeRows>();
