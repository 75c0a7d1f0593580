// Oracle, by release.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Oracle 8: numbers have one type, and so have dates; JSON is text that a check holds to it.
// clang-format off
constexpr SUVDBToDBMSDataType kOracle83Rows[] = {
//      type                          size  scale     name
    Map(Char,                         2000,           "CHAR"),
    Map(Char,                         4000,           "VARCHAR2"),
    Map(Char,                   2147483647,           "CLOB"),
    Map(VarChar,                      4000,           "VARCHAR2"),
    Map(VarChar,                2147483647,           "CLOB"),
    Map(VarChar2,                     4000,           "VARCHAR2"),
    Map(VarChar2,               2147483647,           "CLOB"),
    Map(LVarChar,                     4000,           "VARCHAR2"),
    Map(LVarChar,               2147483647,           "CLOB"),
    Map(LongVarChar,            4294967295,           "CLOB"),
    Map(LongNVarChar,           2147483647,           "NCLOB"),
    Map(Text,                   4294967295,           "CLOB"),
    Map(UniChar,                      1000,           "NCHAR"),
    Map(UniChar,                      2000,           "NVARCHAR2"),
    Map(UniChar,                2147483647,           "NCLOB"),
    Map(UniVarChar,                   2000,           "NVARCHAR2"),
    Map(UniVarChar,             2147483647,           "NCLOB"),
    Map(UniText,                2147483647,           "NCLOB"),
    Map(WChar,                        1000,           "NCHAR"),
    Map(WChar,                        2000,           "NVARCHAR2"),
    Map(WChar,                  2147483647,           "NCLOB"),
    Map(VarWChar,                     2000,           "NVARCHAR2"),
    Map(VarWChar,               2147483647,           "NCLOB"),
    Map(LongVarWChar,           2147483647,           "NCLOB"),
    Map(Binary,                       2000,           "RAW"),
    Map(Binary,                 4294967295,           "BLOB"),
    Map(VarBinary,                    2000,           "RAW"),
    Map(VarBinary,              4294967295,           "BLOB"),
    Map(LongVarBinary,          4294967295,           "BLOB"),
    Map(LongVarBit,                   2000,           "RAW"),
    Map(LongVarBit,             4294967295,           "BLOB"),
    Map(Blob,                   4294967295,           "BLOB"),
    Map(BFile,                         255,           "BFILE"),
    Map(SdoGeometry,            2147483647,           "SDO_GEOMETRY"),
    Map(Geometry,               2147483647,           "SDO_GEOMETRY"),
    Map(Decimal,                        38, -84, 127, "NUMBER"),
    Map(Numeric,                        38, -84, 127, "NUMBER"),
    Map(Number,                         38, -84, 127, "NUMBER"),
    Map(Bit,                             1,           "NUMBER"),
    Map(Bit,                          2000,           "RAW"),
    Map(Bit,                    4294967295,           "BLOB"),
    Map(Boolean,                         1,   0,   0, "NUMBER"),
    Map(TinyInt,                         3,   0,   0, "NUMBER"),
    Map(SmallInt,                        5,   0,   0, "NUMBER"),
    Map(Integer,                        10,   0,   0, "NUMBER"),
    Map(BigInt,                         19,   0,   0, "NUMBER"),
    Map(Int,                            10,   0,   0, "NUMBER"),
    Map(UTinyInt,                        3,   0,   0, "NUMBER"),
    Map(USmallInt,                       5,   0,   0, "NUMBER"),
    Map(UInteger,                       10,   0,   0, "NUMBER"),
    Map(UBigInt,                        20,   0,   0, "NUMBER"),
    Map(Real,                           24,           "NUMBER"),
    Map(Float,                          53,           "NUMBER"),
    Map(FloatBetween,                   53,           "NUMBER"),
    Map(SmallFloat,                     24,           "NUMBER"),
    Map(Double,                         53,           "NUMBER"),
    Map(DoubleLong,                     53,           "NUMBER"),
    Map(DecFloat,                       34,           "DOUBLE PRECISION"),
    Map(Date,                           10,           "DATE"),
    Map(DateOra,                        19,           "DATE"),
    Map(Time,                           18,           "DATE"),
    Map(BigTime,                        15,           "DATE"),
    Map(BigDateTime,                    26,           "DATE"),
    Map(SmallTimestamp,                 19,           "DATE"),
    Map(Timestamp,                      29,           "DATE"),
    Map(TimestampZone,                  36,   0,   9, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                       36,   0,   9, "TIMESTAMP() WITH TIME ZONE"),
    Map(DateTimeOffset,                 34,   0,   9, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                     10,   4,   4, "NUMBER"),
    Map(Money,                          19,   0,   4, "NUMBER"),
    Map(MoneyScaled,                    32,   0,  32, "NUMBER"),
    Map(DateTimeYearToDay,              10,           "DATE"),
    Map(DateTimeYearToHour,             13,           "DATE"),
    Map(DateTimeYearToMinute,           16,           "DATE"),
    Map(DateTimeYearToSecond,           19,           "DATE"),
    Map(DateTimeHourToSecond,            8,           "DATE"),
    Map(DateTimeYearToFraction,         25,           "DATE"),
    Map(SmallSerial,                     5,   0,   0, "NUMBER"),
    Map(RowId,                          18,           "ROWID"),
    Map(URowId,                       4000,           "UROWID"),
    Map(Oid,                            10,   0,   0, "NUMBER"),
    Map(Geography,              2147483647,           "SDO_GEOMETRY"),
    Map(Xml,                    2147483647,           "CLOB"),
    Map(XmlType,                2147483647,           "CLOB"),
    Map(Guid,                           36,           "RAW"),
    Map(RowVersion,                      8,           "RAW"),
    Map(NumericIdentity,                38,   0,  38, "NUMBER"),
    Map(Json,                   4294967295,           "JSON"),
    Map(JsonB,                  4294967295,           "CLOB"),
    Map(Serial,                         10,   0,   0, "NUMBER"),
    Map(IntegerUnsigned,                10,   0,   0, "NUMBER"),
    Map(TinyIntUnsigned,                 3,   0,   0, "NUMBER"),
    Map(SmallIntUnsigned,                5,   0,   0, "NUMBER"),
    Map(MediumIntUnsigned,               8,   0,   0, "NUMBER"),
    Map(BigIntUnsigned,                 20,   0,   0, "NUMBER"),
    Map(BlobText,               4294967295,           "CLOB"),
    Map(Point,                  2147483647,           "SDO_GEOMETRY"),
    Map(Polygon,                2147483647,           "SDO_GEOMETRY"),
};
// clang-format on
static_assert(std::size(kOracle83Rows) == 98);

// Oracle 9: timestamps, intervals and XMLTYPE are there; floating point numbers are decimal inside.
// clang-format off
constexpr SUVDBToDBMSDataType kOracle92Changes[] = {
//      type                          size  scale     name
    Map(Float,                         126,           "NUMBER"),
    Map(FloatBetween,                   53,           "DOUBLE PRECISION"),
    Map(Double,                        126,           "NUMBER"),
    Map(Time,                           18,           "DATE"),
    Map(Time,                           18,   1,   9, "TIMESTAMP"),
    Map(BigTime,                        29,   0,   9, "TIMESTAMP"),
    Map(BigDateTime,                    29,   0,   9, "TIMESTAMP"),
    Map(Timestamp,                      29,   0,   9, "TIMESTAMP"),
    Map(DateTimeOffset,                 36,   0,   9, "TIMESTAMP() WITH TIME ZONE"),
    Map(IntervalYear,                   12,           "INTERVAL YEAR() TO MONTH"),
    Map(IntervalYearToMonth,            12,           "INTERVAL YEAR() TO MONTH"),
    Map(IntervalMonth,                  12,           "INTERVAL YEAR() TO MONTH"),
    Map(IntervalDay,                    28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalDayToHour,              28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalDayToMinute,            28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalDayToSecond,            28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalHour,                   28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalHourToMinute,           28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalHourToSecond,           28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalMinute,                 28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalMinuteToSecond,         28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalSecond,                 28,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(DateTimeYearToFraction,         29,   0,   9, "TIMESTAMP"),
    Map(IntervalDayToFraction,          28,   0,   6, "INTERVAL DAY() TO SECOND"),
    Map(IntervalDayToFraction,          48,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(IntervalDayToFraction,          49,   0,   6, "INTERVAL DAY TO SECOND"),
    Map(Xml,                    2147483647,           "XMLTYPE"),
    Map(XmlType,                2147483647,           "XMLTYPE"),
    Map(Guid,                           36,           "CHAR"),
    Map(Json,                   4294967295,           "CLOB"),
};
constexpr enInternalType kOracle92Gone[] = {
    VarChar2, LVarChar, LongVarChar, LongVarBit, SmallFloat, DoubleLong, DateTimeYearToHour,
    DateTimeYearToMinute, DateTimeHourToSecond, URowId, Oid, JsonB, BlobText,
};
// clang-format on
constexpr auto kOracle92Rows = Newer<kOracle83Rows, kOracle92Changes, kOracle92Gone>();
static_assert(std::size(kOracle92Rows) == 99);

// Oracle 10 and later: binary floating point numbers too. A NUMBER without a precision is known by its
// size of 0.
// clang-format off
constexpr SUVDBToDBMSDataType kOracle102Changes[] = {
//      type                          size  scale     name
    Map(LongVarBit,                   2000,           "RAW"),
    Map(LongVarBit,             4294967295,           "BLOB"),
    Map(Real,                           24,           "BINARY_FLOAT"),
    Map(Float,                          53,           "BINARY_DOUBLE"),
    Map(FloatBetween,                   53,           "BINARY_DOUBLE"),
    Map(Double,                          0,           "NUMBER"),
    Map(Double,                         53,           "BINARY_DOUBLE"),
    Map(Double,                        126,           "FLOAT"),
    Map(DecFloat,                        0,           "NUMBER"),
    Map(DecFloat,                       34,           "DOUBLE PRECISION"),
    Map(DateTimeYearToMinute,           16,           "DATE"),
    Map(DateTimeHourToSecond,            8,           "DATE"),
    Map(IntervalDayToFraction,          28,   0,   6, "INTERVAL DAY() TO SECOND"),
    Map(IntervalDayToFraction,          49,   0,   9, "INTERVAL DAY() TO SECOND()"),
    Map(URowId,                       4000,           "UROWID"),
    Map(Oid,                            10,   0,   0, "NUMBER"),
};
// clang-format on
constexpr auto kOracle102Rows = Newer<kOracle92Rows, kOracle102Changes>();
static_assert(std::size(kOracle102Rows) == 107);

} // namespace

constinit const SMappingSheaf kOracle83Mapping = MakeMappingSheaf<kOracle83Rows>();
constinit const SMappingSheaf kOracle92Mapping = MakeMappingSheaf<kOracle92Rows>();
constinit const SMappingSheaf kOracle102Mapping = MakeMappingSheaf<kOracle102Rows>();
