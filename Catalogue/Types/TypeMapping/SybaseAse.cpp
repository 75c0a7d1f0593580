// What Adaptive Server Enterprise calls the internal types. BIGDATETIME takes what is too early or too fine
// for DATETIME. TINYINT has no sign: signed bytes go to SMALLINT.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale   name
    Map(Char,                        16384,         "CHAR"),
    Map(Char,                   2147483647,         "TEXT"),
    Map(VarChar,                     16384,         "VARCHAR"),
    Map(VarChar,                2147483647,         "TEXT"),
    Map(Text,                   2147483647,         "TEXT"),
    Map(UniChar,                      8192,         "UNICHAR"),
    Map(UniVarChar,                   8192,         "UNIVARCHAR"),
    Map(UniText,                1073741823,         "UNITEXT"),
    Map(WChar,                        8192,         "UNICHAR"),
    Map(WChar,                  1073741823,         "UNITEXT"),
    Map(VarWChar,                     8192,         "UNIVARCHAR"),
    Map(VarWChar,               1073741823,         "UNITEXT"),
    Map(LongVarWChar,           1073741823,         "UNITEXT"),
    Map(Binary,                      16384,         "BINARY"),
    Map(Binary,                 2147483647,         "IMAGE"),
    Map(VarBinary,                   16384,         "VARBINARY"),
    Map(VarBinary,              2147483647,         "IMAGE"),
    Map(LongVarBinary,          2147483647,         "IMAGE"),
    Map(Blob,                   2147483647,         "IMAGE"),
    Map(BFile,                  2147483647,         "IMAGE"),
    Map(Decimal,                        38, 0,  38, "DECIMAL"),
    Map(Numeric,                        38, 0,  38, "NUMERIC"),
    Map(Number,                         38, 0,  38, "DECIMAL"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                         16384,         "BINARY"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "SMALLINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INT"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(Int,                            10,         "INT"),
    Map(UTinyInt,                        3,         "TINYINT"),
    Map(USmallInt,                       5,         "UNSIGNED SMALLINT"),
    Map(UInteger,                       10,         "UNSIGNED INT"),
    Map(UBigInt,                        20,         "NUMERIC"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "DOUBLE PRECISION"),
    Map(FloatBetween,                   53,         "DOUBLE PRECISION"),
    Map(Double,                         53,         "DOUBLE PRECISION"),
    Map(DecFloat,                       34,         "DOUBLE PRECISION"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,         "BIGDATETIME"),
    Map(Time,                           16,         "BIGTIME"),
    Map(BigTime,                        15,         "BIGTIME"),
    Map(BigDateTime,                    26,         "BIGDATETIME"),
    Map(SmallTimestamp,                 16,         "SMALLDATETIME"),
    Map(SmallTimestamp,                 19,         "BIGDATETIME"),
    Map(Timestamp,                      29,         "BIGDATETIME"),
    Map(TimestampZone,                  35,         "BIGDATETIME"),
    Map(TimeZone,                       21,         "BIGTIME"),
    Map(DateTimeOffset,                 35,         "BIGDATETIME"),
    Map(SmallMoney,                     10, 0,   4, "SMALLMONEY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "MONEY"),
    Map(MoneyScaled,                    38, 0,  38, "DECIMAL"),
    Map(DateTimeYearToDay,              10,         "DATE"),
    Map(DateTimeYearToSecond,           19,         "BIGDATETIME"),
    Map(DateTimeHourToSecond,            8,         "BIGTIME"),
    Map(DateTimeYearToFraction,         25,         "BIGDATETIME"),
    Map(DateTimeHourToFraction,         14,         "BIGTIME"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(Oid,                            10,         "UNSIGNED INT"),
    Map(RowVersion,                      8,         "TIMESTAMP"),
    Map(NumericIdentity,                18, 0,  38, "NUMERIC IDENTITY"),
    Map(Serial,                         10,         "INT"),
    Map(IntegerUnsigned,                10,         "UNSIGNED INT"),
    Map(TinyIntUnsigned,                 3,         "TINYINT"),
    Map(SmallIntUnsigned,                5,         "UNSIGNED SMALLINT"),
    Map(MediumIntUnsigned,               8,         "INT"),
    Map(BigIntUnsigned,                 20,         "NUMERIC"),
    Map(Point,                  2147483647,         "TEXT"),
};
// clang-format on
static_assert(std::size(kRows) == 71);

} // namespace

constinit const SMappingSheaf kSybaseAseMapping = MakeMappingSheaf<kRows>();
