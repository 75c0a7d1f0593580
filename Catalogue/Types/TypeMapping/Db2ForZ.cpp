// DB2 for z/OS. It has neither truth values nor times with a fraction, so these become numbers and
// timestamps. Oracle's NUMBER without a precision is known by its size of 0.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale  name
    Map(Char,                          255,        "CHAR"),
    Map(Char,                        32704,        "VARCHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32704,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(Text,                   2147483647,        "CLOB"),
    Map(UniChar,                     16352,        "VARGRAPHIC"),
    Map(UniVarChar,                  16352,        "VARGRAPHIC"),
    Map(UniText,                1073741823,        "DBCLOB"),
    Map(WChar,                       16352,        "VARGRAPHIC"),
    Map(WChar,                  1073741823,        "DBCLOB"),
    Map(VarWChar,                    16352,        "VARGRAPHIC"),
    Map(VarWChar,               1073741823,        "DBCLOB"),
    Map(LongVarWChar,           1073741823,        "DBCLOB"),
    Map(Binary,                        255,        "CHAR() FOR BIT DATA"),
    Map(Binary,                      32704,        "VARCHAR() FOR BIT DATA"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,                   32704,        "VARCHAR() FOR BIT DATA"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(LongVarBinary,          2147483647,        "BLOB"),
    Map(Blob,                   2147483647,        "BLOB"),
    Map(Decimal,                        31, 0, 31, "DECIMAL"),
    Map(Decimal,                        34,        "DECFLOAT"),
    Map(Numeric,                        31, 0, 31, "NUMERIC"),
    Map(Numeric,                        34,        "DECFLOAT"),
    Map(Number,                         31, 0, 31, "DECIMAL"),
    Map(Number,                         34,        "DECFLOAT"),
    Map(Bit,                             1,        "SMALLINT"),
    Map(Bit,                         32704,        "VARCHAR() FOR BIT DATA"),
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
static_assert(std::size(kRows) == 70);

} // namespace

constinit const SMappingSheaf kDb2ForZMapping = MakeMappingSheaf<kRows>();
