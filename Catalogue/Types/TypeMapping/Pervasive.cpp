// What Pervasive calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale   name
    Map(Char,                         8000,         "CHAR"),
    Map(Char,                   2147483647,         "LONGVARCHAR"),
    Map(VarChar,                      8000,         "VARCHAR"),
    Map(VarChar,                2147483647,         "LONGVARCHAR"),
    Map(Text,                   2147483647,         "LONGVARCHAR"),
    Map(Binary,                       8000,         "BINARY"),
    Map(Binary,                 2147483647,         "LONGVARBINARY"),
    Map(VarBinary,                    8000,         "BINARY"),
    Map(VarBinary,              2147483647,         "LONGVARBINARY"),
    Map(LongVarBinary,          2147483647,         "LONGVARBINARY"),
    Map(Blob,                   2147483647,         "LONGVARBINARY"),
    Map(Decimal,                        64, 0,  64, "DECIMAL"),
    Map(Numeric,                        15, 0,  15, "NUMERIC"),
    Map(Numeric,                        64, 0,  64, "DECIMAL"),
    Map(Number,                         64, 0,  64, "DECIMAL"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                          8000,         "BINARY"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "TINYINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "UTINYINT"),
    Map(USmallInt,                       5,         "USMALLINT"),
    Map(UInteger,                       10,         "UINTEGER"),
    Map(UBigInt,                        20,         "UBIGINT"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "DOUBLE"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       34,         "DOUBLE"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,         "TIMESTAMP"),
    Map(Time,                           16,         "TIME"),
    Map(SmallTimestamp,                 27,         "TIMESTAMP"),
    Map(Timestamp,                      29,         "TIMESTAMP"),
    Map(TimestampZone,                  35,         "TIMESTAMP"),
    Map(DateTimeOffset,                 35,         "TIMESTAMP"),
    Map(SmallMoney,                     10, 0,   4, "CURRENCY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "CURRENCY"),
    Map(MoneyScaled,                    64, 0,  64, "DECIMAL"),
    Map(DateTimeYearToSecond,           19,         "TIMESTAMP"),
    Map(DateTimeYearToFraction,         25,         "TIMESTAMP"),
    Map(SmallSerial,                     5,         "SMALLIDENTITY"),
    Map(NumericIdentity,                64, 0,  64, "DECIMAL"),
    Map(Serial,                         10,         "IDENTITY"),
    Map(IntegerUnsigned,                10,         "UINTEGER"),
    Map(TinyIntUnsigned,                 3,         "UTINYINT"),
    Map(SmallIntUnsigned,                5,         "USMALLINT"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,         "UBIGINT"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kPervasiveMapping = MakeMappingSheaf<kRows>();
