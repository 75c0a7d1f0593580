// What Access calls the internal types. All its texts are national. DATETIME takes dates and times; whole
// numbers that LONG can't hold are decimals.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale   name
    Map(VarChar,                       255,         "TEXT"),
    Map(VarChar,                1073741823,         "MEMO"),
    Map(Text,                   2147483647,         "MEMO"),
    Map(Binary,                        510,         "BINARY"),
    Map(Binary,                 2147483647,         "LONGBINARY"),
    Map(VarBinary,                     510,         "VARBINARY"),
    Map(VarBinary,              2147483647,         "LONGBINARY"),
    Map(LongVarBinary,          2147483647,         "LONGBINARY"),
    Map(Blob,                   2147483647,         "LONGBINARY"),
    Map(Decimal,                        28, 0,  28, "DECIMAL"),
    Map(Numeric,                        28, 0,  28, "DECIMAL"),
    Map(Number,                         28, 0,  28, "DECIMAL"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                           510,         "BINARY"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "SMALLINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "DECIMAL"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "BYTE"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(UInteger,                       10,         "DECIMAL"),
    Map(UBigInt,                        20,         "DECIMAL"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "DOUBLE"),
    Map(FloatBetween,                   53,         "DOUBLE"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       34,         "DOUBLE"),
    Map(Date,                           10,         "DATETIME"),
    Map(DateOra,                        19,         "DATETIME"),
    Map(Time,                           16,         "DATETIME"),
    Map(SmallTimestamp,                 19,         "DATETIME"),
    Map(Timestamp,                      29,         "DATETIME"),
    Map(TimestampZone,                  35,         "DATETIME"),
    Map(TimeZone,                       21,         "DATETIME"),
    Map(DateTimeOffset,                 35,         "DATETIME"),
    Map(SmallMoney,                     10, 0,   4, "MONEY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "MONEY"),
    Map(MoneyScaled,                    28, 0,  28, "DECIMAL"),
    Map(DateTimeYearToSecond,           19,         "DATETIME"),
    Map(DateTimeYearToFraction,         25,         "DATETIME"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(Guid,                           36,         "GUID"),
    Map(NumericIdentity,                28, 0,  28, "DECIMAL"),
    Map(Serial,                         10,         "COUNTER"),
    Map(IntegerUnsigned,                10,         "DECIMAL"),
    Map(TinyIntUnsigned,                 3,         "BYTE"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,         "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SMappingSheaf kAccessMapping = MakeMappingSheaf<kRows>();
