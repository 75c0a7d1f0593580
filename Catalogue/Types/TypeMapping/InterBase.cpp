// InterBase and Firebird.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// InterBase: a NUMERIC of 18 digits is its longest integer. Zones and intervals it has none.
// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kInterBaseRows[] = {
//      type                          size  scale
    Map(Char,                        32767,        "CHAR"),
    Map(Char,                   2147483647,        "CLOB"),
    Map(VarChar,                     32765,        "VARCHAR"),
    Map(VarChar,                2147483647,        "CLOB"),
    Map(Text,                   2147483647,        "CLOB"),
    Map(Binary,                 2147483647,        "BLOB"),
    Map(VarBinary,              2147483647,        "BLOB"),
    Map(LongVarBinary,          2147483647,        "BLOB"),
    Map(Blob,                   2147483647,        "BLOB"),
    Map(Decimal,                        18, 0, 18, "DECIMAL"),
    Map(Numeric,                        18, 0, 18, "NUMERIC"),
    Map(Number,                         18, 0, 18, "DECIMAL"),
    Map(Bit,                             1,        "BOOLEAN"),
    Map(Bit,                         32765,        "VARCHAR"),
    Map(Bit,                    2147483647,        "CLOB"),
    Map(Boolean,                         1,        "BOOLEAN"),
    Map(TinyInt,                         3,        "SMALLINT"),
    Map(SmallInt,                        5,        "SMALLINT"),
    Map(Integer,                        10,        "INTEGER"),
    Map(BigInt,                         19,        "NUMERIC"),
    Map(Int,                            10,        "INTEGER"),
    Map(UTinyInt,                        3,        "SMALLINT"),
    Map(USmallInt,                       5,        "INTEGER"),
    Map(UInteger,                       10,        "NUMERIC"),
    Map(UBigInt,                        20,        "NUMERIC"),
    Map(Real,                           24,        "FLOAT"),
    Map(Float,                          53,        "DOUBLE PRECISION"),
    Map(FloatBetween,                   53,        "DOUBLE PRECISION"),
    Map(Double,                         53,        "DOUBLE PRECISION"),
    Map(DecFloat,                       53,        "DOUBLE PRECISION"),
    Map(Date,                           10,        "DATE"),
    Map(DateOra,                        19,        "TIMESTAMP"),
    Map(Time,                           13, 0,  4, "TIME"),
    Map(BigTime,                        13, 0,  4, "TIME"),
    Map(BigDateTime,                    24, 0,  4, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,        "TIMESTAMP"),
    Map(Timestamp,                      24, 0,  4, "TIMESTAMP"),
    Map(TimestampZone,                  24, 0,  4, "TIMESTAMP"),
    Map(TimeZone,                       13, 0,  4, "TIME"),
    Map(DateTimeOffset,                 24, 0,  4, "TIMESTAMP"),
    Map(SmallMoney,                     10, 0,  4, "DECIMAL"),
    Map(Money,                          19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32, 0, 32, "DECIMAL"),
    Map(DateTimeYearToDay,              10,        "DATE"),
    Map(DateTimeYearToSecond,           19,        "TIMESTAMP"),
    Map(DateTimeHourToSecond,            8,        "TIME"),
    Map(DateTimeYearToFraction,         24, 0,  4, "TIMESTAMP"),
    Map(SmallSerial,                     5,        "SMALLINT"),
    Map(RowVersion,             2147483647,        "BLOB"),
    Map(NumericIdentity,                38, 0, 38, "NUMERIC"),
    Map(Serial,                         10,        "INTEGER"),
    Map(IntegerUnsigned,                10,        "NUMERIC"),
    Map(TinyIntUnsigned,                 3,        "SMALLINT"),
    Map(SmallIntUnsigned,                5,        "INTEGER"),
    Map(MediumIntUnsigned,               8,        "INTEGER"),
    Map(BigIntUnsigned,                 20,        "NUMERIC"),
};
// clang-format on
static_assert(std::size(kInterBaseRows) == 56);

// Firebird: long text is a BLOB with a sub type. Zones and intervals have no name here.
// clang-format off
constexpr SUVDBToDBMSDataType kFirebirdChanges[] = {
//      type                          size  scale
    Map(Char,                        32767,        "CHAR"),
    Map(Char,                   2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(VarChar,                     32765,        "VARCHAR"),
    Map(VarChar,                2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(Text,                   2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(Decimal,                        38, 0, 38, "DECIMAL"),
    Map(Numeric,                        38, 0, 38, "NUMERIC"),
    Map(Number,                         38, 0, 38, "DECIMAL"),
    Map(Bit,                             1,        "BOOLEAN"),
    Map(Bit,                         32765,        "VARCHAR"),
    Map(Bit,                    2147483647,        "BLOB SUB_TYPE TEXT"),
    Map(BigInt,                         19,        "BIGINT"),
    Map(UInteger,                       10,        "BIGINT"),
    Map(DateTimeHourToFraction,         13, 0,  4, "TIME"),
    Map(IntegerUnsigned,                10,        "BIGINT"),
};
// clang-format on
constexpr auto kFirebirdRows = Newer<kInterBaseRows, kFirebirdChanges>();
static_assert(std::size(kFirebirdRows) == 57);

} // namespace

constinit const SMappingSheaf kInterBaseMapping = MakeMappingSheaf<kInterBaseRows>();
constinit const SMappingSheaf kFirebirdMapping = MakeMappingSheaf<kFirebirdRows>();
