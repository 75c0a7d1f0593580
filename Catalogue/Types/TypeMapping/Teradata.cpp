// What Teradata calls the internal types, with the limits of release 16.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                        size  scale   name
    Map(Char,                        64000,         "CHAR"),
    Map(Char,                   2097088000,         "CLOB"),
    Map(VarChar,                     64000,         "VARCHAR"),
    Map(VarChar,                2097088000,         "CLOB"),
    Map(UniChar,                     32000,         "CHAR() CHARACTER SET UNICODE"),
    Map(UniVarChar,                  32000,         "VARCHAR() CHARACTER SET UNICODE"),
    Map(WChar,                       32000,         "CHAR() CHARACTER SET UNICODE"),
    Map(VarWChar,                    32000,         "VARCHAR() CHARACTER SET UNICODE"),
    Map(VarWChar,               1048544000,         "CLOB CHARACTER SET UNICODE"),
    Map(LongVarWChar,           1048544000,         "CLOB CHARACTER SET UNICODE"),
    Map(Binary,                      64000,         "BYTE"),
    Map(VarBinary,                   64000,         "VARBYTE"),
    Map(VarBinary,              2097088000,         "BLOB"),
    Map(LongVarBinary,          2097088000,         "BLOB"),
    Map(Blob,                   2097088000,         "BLOB"),
    Map(Decimal,                        38,  0, 38, "DECIMAL"),
    Map(Numeric,                        38,  0, 38, "NUMERIC"),
    Map(Number,                         38,  0, 38, "NUMBER"),
    Map(Bit,                             1,         "BYTEINT"),
    Map(Bit,                         64000,         "BYTE"),
    Map(Boolean,                         1,         "BYTEINT"),
    Map(TinyInt,                         3,         "BYTEINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(UTinyInt,                        3,         "SMALLINT"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(UInteger,                       10,         "BIGINT"),
    Map(UBigInt,                        20,  0,  0, "DECIMAL"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "FLOAT"),
    Map(Double,                         53,         "DOUBLE PRECISION"),
    Map(DecFloat,                       38,         "NUMBER"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,  0,  6, "TIMESTAMP"),
    Map(Time,                           15,  0,  6, "TIME()"),
    Map(BigDateTime,                    26,  0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,  0,  6, "TIMESTAMP"),
    Map(Timestamp,                      26,  0,  6, "TIMESTAMP"),
    Map(TimestampZone,                  32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                       21,  0,  6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,                 32,  0,  6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                     10,  0,  4, "DECIMAL"),
    Map(Money,                          19,  0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32,  0, 32, "DECIMAL"),
    Map(IntervalYearToMonth,             8,         "INTERVAL YEAR() TO MONTH"),
    Map(DateTimeYearToSecond,           19,  0,  6, "TIMESTAMP"),
    Map(DateTimeYearToFraction,         26,  0,  6, "TIMESTAMP"),
    Map(IntervalDayToFraction,          21,         "INTERVAL DAY() TO SECOND"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(Xml,                    2097088000,         "XML"),
    Map(XmlType,                2097088000,         "XML"),
    Map(RowVersion,                      8,         "BYTE"),
    Map(NumericIdentity,                38,  0, 38, "NUMERIC"),
    Map(Json,                     16776192,         "JSON"),
    Map(Serial,                         10,         "INTEGER"),
    Map(IntegerUnsigned,                10,         "BIGINT"),
    Map(TinyIntUnsigned,                 3,         "SMALLINT"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 61);

} // namespace

constinit const SMappingSheaf kTeradataMapping = MakeMappingSheaf<kRows>();
