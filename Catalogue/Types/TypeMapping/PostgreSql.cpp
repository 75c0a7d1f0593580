// PostgreSQL, by release, and the databases that are built on it.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// PostgreSQL up to 8.2: no types of its own for UUID, XML and JSON yet.
// Order is meaning: the rungs of a type climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SUVDBToDBMSDataType kPostgreSql82Rows[] = {
//      type                          size  scale
    Map(Char,                     10485760,          "CHAR"),
    Map(Char,                   2147483647,          "TEXT"),
    Map(VarChar,                  10485760,          "VARCHAR"),
    Map(VarChar,                2147483647,          "TEXT"),
    Map(Text,                   1073741823,          "TEXT"),
    Map(UniChar,                  10485760,          "CHAR"),
    Map(WChar,                    10485760,          "CHAR"),
    Map(Binary,                 1073741823,          "BYTEA"),
    Map(VarBinary,              1073741823,          "BYTEA"),
    Map(LongVarBinary,          1073741823,          "BYTEA"),
    Map(LongVarBit,               83886080,          "BIT VARYING"),
    Map(Blob,                   1073741823,          "BYTEA"),
    Map(SdoGeometry,            1073741823,          "GEOMETRY"),
    Map(Geometry,               1073741823,          "GEOMETRY"),
    Map(Decimal,                        31, 0,   31, "DECIMAL"),
    Map(Numeric,                      1000, 0, 1000, "NUMERIC"),
    Map(Number,                          0,          "NUMERIC"),
    Map(Number,                          4,          "SMALLINT"),
    Map(Number,                          9,          "INTEGER"),
    Map(Number,                         18,          "BIGINT"),
    Map(Number,                       1000, 0, 1000, "DECIMAL"),
    Map(Bit,                             1,          "BOOLEAN"),
    Map(Bit,                            64,          "BIT"),
    Map(Boolean,                         1,          "BOOLEAN"),
    Map(TinyInt,                         3,          "SMALLINT"),
    Map(SmallInt,                        5,          "SMALLINT"),
    Map(Integer,                        10,          "INTEGER"),
    Map(BigInt,                         19,          "BIGINT"),
    Map(Int,                            10,          "INTEGER"),
    Map(UTinyInt,                        3,          "SMALLINT"),
    Map(USmallInt,                       5,          "INTEGER"),
    Map(UInteger,                       10,          "BIGINT"),
    Map(UBigInt,                        20,          "DECIMAL"),
    Map(Real,                           24,          "REAL"),
    Map(Float,                          53,          "DOUBLE PRECISION"),
    Map(FloatBetween,                   53,          "DOUBLE PRECISION"),
    Map(Double,                         53,          "DOUBLE PRECISION"),
    Map(DecFloat,                   147455,          "NUMERIC"),
    Map(Date,                           10,          "DATE"),
    Map(DateOra,                        19,          "TIMESTAMP()"),
    Map(Time,                           15, 0,    6, "TIME()"),
    Map(BigTime,                        15, 0,    6, "TIME()"),
    Map(BigDateTime,                    26, 0,    6, "TIMESTAMP()"),
    Map(SmallTimestamp,                 19,          "TIMESTAMP()"),
    Map(Timestamp,                      26, 0,    6, "TIMESTAMP()"),
    Map(TimestampZone,                  32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                       21, 0,    6, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,                 32, 0,    6, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                     10, 0,    4, "DECIMAL"),
    Map(Money,                          19, 0,    4, "DECIMAL"),
    Map(MoneyScaled,                    32, 0,   32, "DECIMAL"),
    Map(IntervalYear,                   49,          "INTERVAL()"),
    Map(IntervalYearToMonth,            49,          "INTERVAL()"),
    Map(IntervalMonth,                  49,          "INTERVAL()"),
    Map(IntervalDay,                    49,          "INTERVAL()"),
    Map(IntervalDayToHour,              49,          "INTERVAL()"),
    Map(IntervalDayToMinute,            49,          "INTERVAL()"),
    Map(IntervalDayToSecond,            49, 0,    6, "INTERVAL()"),
    Map(IntervalHour,                   49,          "INTERVAL()"),
    Map(IntervalHourToMinute,           49,          "INTERVAL()"),
    Map(IntervalHourToSecond,           49, 0,    6, "INTERVAL()"),
    Map(IntervalMinute,                 49,          "INTERVAL()"),
    Map(IntervalMinuteToSecond,         49, 0,    6, "INTERVAL()"),
    Map(IntervalSecond,                 49, 0,    6, "INTERVAL()"),
    Map(DateTimeYearToDay,              10,          "DATE"),
    Map(DateTimeYearToHour,             19,          "TIMESTAMP()"),
    Map(DateTimeYearToMinute,           19,          "TIMESTAMP()"),
    Map(DateTimeYearToSecond,           19,          "TIMESTAMP()"),
    Map(DateTimeHourToMinute,            8,          "TIME()"),
    Map(DateTimeHourToSecond,            8,          "TIME()"),
    Map(DateTimeYearToFraction,         26, 0,    6, "TIMESTAMP()"),
    Map(DateTimeHourToFraction,         15, 0,    6, "TIME()"),
    Map(IntervalDayToFraction,          49, 0,    6, "INTERVAL()"),
    Map(SmallSerial,                    10,          "SERIAL"),
    Map(IntegerArray,           1073741823,          "INTEGER[]"),
    Map(VarCharArray,             10485760,          "CHARACTER VARYING()[]"),
    Map(Oid,                            10,          "OID"),
    Map(Geography,              1073741823,          "GEOMETRY"),
    Map(Xml,                    1073741823,          "TEXT"),
    Map(XmlType,                1073741823,          "TEXT"),
    Map(Guid,                           36,          "CHAR"),
    Map(RowVersion,             1073741823,          "BYTEA"),
    Map(NumericIdentity,                38, 0,   38, "DECIMAL"),
    Map(Json,                   1073741823,          "TEXT"),
    Map(JsonB,                  1073741823,          "TEXT"),
    Map(Serial,                         10,          "SERIAL"),
    Map(IntegerUnsigned,                10,          "BIGINT"),
    Map(TinyIntUnsigned,                 3,          "SMALLINT"),
    Map(SmallIntUnsigned,                5,          "INTEGER"),
    Map(MediumIntUnsigned,               8,          "INTEGER"),
    Map(BigIntUnsigned,                 20,          "DECIMAL"),
    Map(Point,                          16,          "POINT"),
    Map(Polygon,                1073741823,          "POLYGON"),
};
// clang-format on
static_assert(std::size(kPostgreSql82Rows) == 93);

// PostgreSQL 8.3 and later, with the types that came since. The database is taken to be UTF-8, where national
// characters are characters. A NUMERIC without parameters takes the floating decimals of other databases.
// clang-format off
constexpr SUVDBToDBMSDataType kPostgreSql84Changes[] = {
//      type                          size  scale
    Map(SmallSerial,                     5,          "SMALLSERIAL"),
    Map(Geography,              1073741823,          "GEOGRAPHY"),
    Map(Xml,                    1073741823,          "XML"),
    Map(XmlType,                1073741823,          "XML"),
    Map(Guid,                           36,          "UUID"),
    Map(Json,                   1073741823,          "JSON"),
    Map(JsonB,                   268435455,          "JSONB"),
};
// clang-format on
constexpr auto kPostgreSql84Rows = Newer<kPostgreSql82Rows, kPostgreSql84Changes>();
static_assert(std::size(kPostgreSql84Rows) == 93);

// The databases built on PostgreSQL that keep its types.
// clang-format off
constexpr SUVDBToDBMSDataType kPostgreSqlForkChanges[] = {
//      type                          size  scale
    Map(Char,                     10485760,          "CHAR"),
    Map(Decimal,                      1000, 0, 1000, "DECIMAL"),
    Map(Number,                       1000, 0, 1000, "DECIMAL"),
    Map(DecFloat,                       53,          "DOUBLE PRECISION"),
    Map(SmallSerial,                    10,          "SERIAL"),
    Map(Oid,                            10,          "BIGINT"),
    Map(NumericIdentity,                38, 0,   38, "NUMERIC"),
};
constexpr enInternalType kPostgreSqlForkGone[] = {
    UniChar, WChar, SdoGeometry, Geometry, IntervalYear, IntervalMonth, IntervalDay, IntervalDayToHour,
    IntervalDayToMinute, IntervalHour, IntervalHourToMinute, IntervalHourToSecond, IntervalMinute,
    IntervalMinuteToSecond, IntervalSecond, DateTimeYearToDay, DateTimeYearToHour, DateTimeYearToMinute,
    DateTimeHourToMinute, DateTimeHourToSecond, DateTimeHourToFraction, IntegerArray, VarCharArray,
    Geography, Xml, XmlType, Json, JsonB, Point, Polygon,
};
// clang-format on
constexpr auto kPostgreSqlForkRows = Newer<kPostgreSql84Rows, kPostgreSqlForkChanges, kPostgreSqlForkGone>();
static_assert(std::size(kPostgreSqlForkRows) == 58);

// EnterpriseDB, by the names that it shares with PostgreSQL.
constexpr enInternalType kEnterpriseDbGone[] = {Oid};
constexpr auto kEnterpriseDbRows = Newer<kPostgreSqlForkRows, kNoRows, kEnterpriseDbGone>();
static_assert(std::size(kEnterpriseDbRows) == 57);

} // namespace

constinit const SMappingSheaf kPostgreSql82Mapping = MakeMappingSheaf<kPostgreSql82Rows>();
constinit const SMappingSheaf kPostgreSql84Mapping = MakeMappingSheaf<kPostgreSql84Rows>();
constinit const SMappingSheaf kPostgreSqlForkMapping = MakeMappingSheaf<kPostgreSqlForkRows>();
constinit const SMappingSheaf kEnterpriseDbMapping = MakeMappingSheaf<kEnterpriseDbRows>();
