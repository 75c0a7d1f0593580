// DB2 on its three platforms.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// DB2 for Linux, Unix and Windows. Times with a fraction become timestamps; what DECIMAL can't hold is
// DECFLOAT, and so is Oracle's NUMBER without a precision, which is known by its size of 0.
// clang-format off
constexpr SUVDBToDBMSDataType kDb2Rows[] = {
//      type                          size  scale  name
    Map(Char,                          254,        "CHAR"),
    Map(Char,                        32672,        "VARCHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32672,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(Text,                   2147483647,        "CLOB"),
    Map(UniChar,                     16336,        "VARGRAPHIC"),
    Map(UniVarChar,                  16336,        "VARGRAPHIC"),
    Map(UniText,                1073741823,        "DBCLOB"),
    Map(WChar,                       16336,        "VARGRAPHIC"),
    Map(WChar,                  1073741823,        "DBCLOB"),
    Map(VarWChar,                    16336,        "VARGRAPHIC"),
    Map(VarWChar,               1073741823,        "DBCLOB"),
    Map(LongVarWChar,           1073741823,        "DBCLOB"),
    Map(Binary,                        254,        "CHAR() FOR BIT DATA"),
    Map(Binary,                      32672,        "VARCHAR() FOR BIT DATA"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,                   32672,        "VARCHAR() FOR BIT DATA"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(LongVarBinary,          2147483647,        "BLOB"),
    Map(Blob,                   2147483647,        "BLOB"),
    Map(Decimal,                        31, 0, 31, "DECIMAL"),
    Map(Decimal,                        34,        "DECFLOAT"),
    Map(Numeric,                        31, 0, 31, "NUMERIC"),
    Map(Numeric,                        34,        "DECFLOAT"),
    Map(Number,                         31, 0, 31, "DECIMAL"),
    Map(Number,                         34,        "DECFLOAT"),
    Map(Bit,                             1,        "BOOLEAN"),
    Map(Bit,                         32672,        "VARCHAR() FOR BIT DATA"),
    Map(Boolean,                         1,        "BOOLEAN"),
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
    Map(Double,                          0,        "DECFLOAT"),
    Map(Double,                         53,        "DOUBLE"),
    Map(DecFloat,                       34,        "DECFLOAT"),
    Map(Date,                           10,        "DATE"),
    Map(DateOra,                        19,        "TIMESTAMP"),
    Map(Time,                           18,        "TIME"),
    Map(Time,                           18, 1, 12, "TIMESTAMP"),
    Map(BigDateTime,                    26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,        "TIMESTAMP"),
    Map(Timestamp,                      32, 0, 12, "TIMESTAMP"),
    Map(TimestampZone,                  32, 0, 12, "TIMESTAMP"),
    Map(DateTimeOffset,                 32, 0, 12, "TIMESTAMP"),
    Map(SmallMoney,                     10, 4,  4, "DECIMAL"),
    Map(Money,                          19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                    31, 0, 31, "DECIMAL"),
    Map(DateTimeYearToDay,              10,        "DATE"),
    Map(DateTimeYearToSecond,           19,        "TIMESTAMP"),
    Map(DateTimeYearToFraction,         25, 0,  5, "TIMESTAMP"),
    Map(SmallSerial,                     5,        "SMALLINT"),
    Map(Xml,                    2147483647,        "XML"),
    Map(XmlType,                2147483647,        "XML"),
    Map(RowVersion,                      8,        "CHAR() FOR BIT DATA"),
    Map(NumericIdentity,                31, 0, 31, "NUMERIC"),
    Map(Serial,                         10,        "INTEGER"),
    Map(IntegerUnsigned,                10,        "BIGINT"),
    Map(TinyIntUnsigned,                 3,        "SMALLINT"),
    Map(SmallIntUnsigned,                5,        "INTEGER"),
    Map(MediumIntUnsigned,               8,        "INTEGER"),
    Map(BigIntUnsigned,                 20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kDb2Rows) == 70);

// DB2 for z/OS. It has neither truth values nor times with a fraction, so these become numbers and
// timestamps. Oracle's NUMBER without a precision is known by its size of 0.
// clang-format off
constexpr SUVDBToDBMSDataType kDb2ForZChanges[] = {
//      type                          size  scale  name
    Map(Char,                          255,        "CHAR"),
    Map(Char,                        32704,        "VARCHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32704,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(UniChar,                     16352,        "VARGRAPHIC"),
    Map(UniVarChar,                  16352,        "VARGRAPHIC"),
    Map(WChar,                       16352,        "VARGRAPHIC"),
    Map(WChar,                  1073741823,        "DBCLOB"),
    Map(VarWChar,                    16352,        "VARGRAPHIC"),
    Map(VarWChar,               1073741823,        "DBCLOB"),
    Map(Binary,                        255,        "CHAR() FOR BIT DATA"),
    Map(Binary,                      32704,        "VARCHAR() FOR BIT DATA"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,                   32704,        "VARCHAR() FOR BIT DATA"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(Bit,                             1,        "SMALLINT"),
    Map(Bit,                         32704,        "VARCHAR() FOR BIT DATA"),
    Map(Boolean,                         1,        "SMALLINT"),
};
// clang-format on
constexpr auto kDb2ForZRows = Newer<kDb2Rows, kDb2ForZChanges>();
static_assert(std::size(kDb2ForZRows) == 70);

// DB2 for i. Times with a fraction become timestamps.
// clang-format off
constexpr SUVDBToDBMSDataType kDb2ForIChanges[] = {
//      type                          size  scale  name
    Map(Char,                        32765,        "CHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32739,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(LongNVarChar,           1073741823,        "DBCLOB"),
    Map(UniChar,                     16382,        "GRAPHIC"),
    Map(UniVarChar,                  16369,        "VARGRAPHIC"),
    Map(WChar,                       16382,        "GRAPHIC"),
    Map(WChar,                  1073741823,        "DBCLOB"),
    Map(VarWChar,                    16369,        "VARGRAPHIC"),
    Map(VarWChar,               1073741823,        "DBCLOB"),
    Map(Binary,                      32765,        "BINARY"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,                   32739,        "VARBINARY"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(Decimal,                        63, 0, 63, "DECIMAL"),
    Map(Numeric,                        63, 0, 63, "NUMERIC"),
    Map(Number,                         63, 0, 63, "DECIMAL"),
    Map(Bit,                             1,        "BOOLEAN"),
    Map(Bit,                         32739,        "VARBINARY"),
    Map(Bit,                    2147483647,        "BLOB"),
    Map(FloatBetween,                   53,        "DOUBLE"),
    Map(Double,                         53,        "DOUBLE"),
    Map(DecFloat,                       34,        "DOUBLE"),
    Map(BigTime,                        15, 0,  6, "TIMESTAMP"),
    Map(MoneyScaled,                    32, 0, 32, "DECIMAL"),
    Map(RowId,                          40,        "ROWID"),
    Map(Oid,                            10,        "BIGINT"),
    Map(Guid,                           36,        "CHAR"),
    Map(RowVersion,                      8,        "BINARY"),
    Map(NumericIdentity,                63, 0, 63, "NUMERIC"),
};
// clang-format on
constexpr auto kDb2ForIRows = Newer<kDb2Rows, kDb2ForIChanges>();
static_assert(std::size(kDb2ForIRows) == 71);

} // namespace

constinit const SMappingSheaf kDb2Mapping = MakeMappingSheaf<kDb2Rows>();
constinit const SMappingSheaf kDb2ForZMapping = MakeMappingSheaf<kDb2ForZRows>();
constinit const SMappingSheaf kDb2ForIMapping = MakeMappingSheaf<kDb2ForIRows>();
