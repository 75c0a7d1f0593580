// What a database of which only the standard is known calls the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale   name
    Map(Char,                   2147483647,         "CHAR"),
    Map(VarChar,                2147483647,         "VARCHAR"),
    Map(Text,                   2147483647,         "TEXT"),
    Map(WChar,                  2147483647,         "NCHAR"),
    Map(VarWChar,               2147483647,         "NATIONAL CHARACTER VARYING"),
    Map(LongVarWChar,           1073741823,         "NTEXT"),
    Map(Binary,                 2147483647,         "BINARY"),
    Map(VarBinary,              2147483647,         "VARBINARY"),
    Map(LongVarBinary,          2147483647,         "LONGBINARY"),
    Map(Blob,                   2147483647,         "LONGBINARY"),
    Map(Decimal,                        38, 0,  38, "DECIMAL"),
    Map(Numeric,                        38, 0,  38, "NUMERIC"),
    Map(Number,                         38, 0,  38, "NUMBER"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                    2147483647,         "BIT VARYING"),
    Map(Boolean,                         1,         "BOOLEAN"),
    Map(TinyInt,                         3,         "SMALLINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "NUMERIC"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "SMALLINT"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(UInteger,                       10,         "NUMERIC"),
    Map(UBigInt,                        20,         "NUMERIC"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "DOUBLE"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       34,         "DOUBLE"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,         "DATETIME"),
    Map(Time,                           16,         "TIME"),
    Map(SmallTimestamp,                 19,         "DATETIME"),
    Map(Timestamp,                      29,         "DATETIME"),
    Map(TimestampZone,                  35,         "DATETIME"),
    Map(DateTimeOffset,                 35,         "DATETIME"),
    Map(SmallMoney,                     10, 0,   4, "MONEY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "MONEY"),
    Map(MoneyScaled,                    38, 0,  38, "DECIMAL"),
    Map(DateTimeYearToSecond,           19,         "DATETIME"),
    Map(DateTimeYearToFraction,         25,         "DATETIME"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(Guid,                           36,         "UNIQUEIDENTIFIER"),
    Map(NumericIdentity,                38, 0,  38, "NUMERIC"),
    Map(Serial,                         10,         "COUNTER"),
    Map(IntegerUnsigned,                10,         "NUMERIC"),
    Map(TinyIntUnsigned,                 3,         "SMALLINT"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,         "NUMERIC"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kAnsiMapping = MakeMappingSheaf<kRows>();
