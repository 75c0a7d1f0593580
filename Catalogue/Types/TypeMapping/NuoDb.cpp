// NuoDB. It has one type of text and one of bytes for all that is long, and no intervals.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale  name
    Map(Char,                        32767,        "CHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32767,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(Text,                   2147483647,        "CLOB"),
    Map(UniChar,                     32767,        "NCHAR"),
    Map(UniChar,                2147483647,        "CLOB"),
    Map(UniVarChar,                  32767,        "NVARCHAR"),
    Map(UniVarChar,             2147483647,        "CLOB"),
    Map(WChar,                       32767,        "NCHAR"),
    Map(WChar,                  2147483647,        "CLOB"),
    Map(VarWChar,                    32767,        "NVARCHAR"),
    Map(VarWChar,               2147483647,        "CLOB"),
    Map(Binary,                      32767,        "BINARY"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,                   32767,        "VARBINARY"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(LongVarBinary,          2147483647,        "BLOB"),
    Map(Blob,                   2147483647,        "BLOB"),
    Map(Decimal,                        38, 0, 38, "DECIMAL"),
    Map(Numeric,                        38, 0, 38, "NUMERIC"),
    Map(Number,                         38, 0, 38, "DECIMAL"),
    Map(Bit,                             1,        "SMALLINT"),
    Map(Bit,                         32767,        "VARBINARY"),
    Map(Bit,                    2147483647,        "BLOB"),
    Map(Boolean,                         1,        "SMALLINT"),
    Map(TinyInt,                         3,        "SMALLINT"),
    Map(SmallInt,                        5,        "SMALLINT"),
    Map(Integer,                        10,        "INTEGER"),
    Map(BigInt,                         19,        "BIGINT"),
    Map(Int,                            10,        "INTEGER"),
    Map(UTinyInt,                        3,        "SMALLINT"),
    Map(USmallInt,                       5,        "INTEGER"),
    Map(UInteger,                       10,        "BIGINT"),
    Map(UBigInt,                        20, 0,  0, "DECIMAL"),
    Map(Real,                           24,        "REAL"),
    Map(Float,                          53,        "DOUBLE"),
    Map(FloatBetween,                   53,        "DOUBLE"),
    Map(Double,                         53,        "DOUBLE"),
    Map(DecFloat,                       34,        "DOUBLE"),
    Map(Date,                           10,        "DATE"),
    Map(DateOra,                        19,        "TIMESTAMP"),
    Map(Time,                           18, 0,  9, "TIME"),
    Map(BigTime,                        15, 0,  6, "TIME"),
    Map(BigDateTime,                    26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,        "TIMESTAMP"),
    Map(Timestamp,                      29, 0,  9, "TIMESTAMP"),
    Map(TimestampZone,                  29, 0,  9, "TIMESTAMP"),
    Map(DateTimeOffset,                 29, 0,  9, "TIMESTAMP"),
    Map(SmallMoney,                     10, 4,  4, "DECIMAL"),
    Map(Money,                          19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32, 0, 32, "DECIMAL"),
    Map(DateTimeYearToDay,              10,        "DATE"),
    Map(DateTimeYearToSecond,           19,        "TIMESTAMP"),
    Map(DateTimeYearToFraction,         25, 0,  5, "TIMESTAMP"),
    Map(SmallSerial,                     5,        "SMALLINT"),
    Map(Oid,                            10,        "BIGINT"),
    Map(Xml,                    2147483647,        "XML"),
    Map(XmlType,                2147483647,        "XML"),
    Map(Guid,                           36,        "CHAR"),
    Map(RowVersion,                      8,        "BINARY"),
    Map(NumericIdentity,                38, 0, 38, "NUMERIC"),
    Map(Serial,                         10,        "INTEGER"),
    Map(IntegerUnsigned,                10,        "BIGINT"),
    Map(TinyIntUnsigned,                 3,        "SMALLINT"),
    Map(SmallIntUnsigned,                5,        "INTEGER"),
    Map(MediumIntUnsigned,               8,        "INTEGER"),
    Map(BigIntUnsigned,                 20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 68);

} // namespace

constinit const SMappingSheaf kNuoDbMapping = MakeMappingSheaf<kRows>();
