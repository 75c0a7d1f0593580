// SQL Server, by release, and what maps to its columns.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What SQL Server 2000 calls the internal types. It has no date without a time and no time zone: DATETIME
// takes them.
// clang-format off
constexpr SUVDBToDBMSDataType kSqlServer80Rows[] = {
//      type                          size  scale   name
    Map(Char,                         8000,         "CHAR"),
    Map(Char,                   2147483647,         "TEXT"),
    Map(VarChar,                      8000,         "VARCHAR"),
    Map(VarChar,                2147483647,         "TEXT"),
    Map(LongVarChar,            2147483647,         "TEXT"),
    Map(LongNVarChar,           1073741823,         "NTEXT"),
    Map(Text,                   2147483647,         "TEXT"),
    Map(UniChar,                      4000,         "NCHAR"),
    Map(UniChar,                1073741823,         "NTEXT"),
    Map(UniVarChar,                   4000,         "NVARCHAR"),
    Map(UniVarChar,             1073741823,         "NTEXT"),
    Map(UniText,                1073741823,         "NTEXT"),
    Map(WChar,                        4000,         "NCHAR"),
    Map(WChar,                  1073741823,         "NTEXT"),
    Map(VarWChar,                     4000,         "NVARCHAR"),
    Map(VarWChar,               1073741823,         "NTEXT"),
    Map(LongVarWChar,           1073741823,         "NTEXT"),
    Map(Binary,                       8000,         "BINARY"),
    Map(Binary,                 2147483647,         "IMAGE"),
    Map(VarBinary,                    8000,         "VARBINARY"),
    Map(VarBinary,              2147483647,         "IMAGE"),
    Map(LongVarBinary,          2147483647,         "IMAGE"),
    Map(LongVarBit,                   8000,         "VARBINARY"),
    Map(LongVarBit,             2147483647,         "IMAGE"),
    Map(Blob,                   2147483647,         "IMAGE"),
    Map(BFile,                  2147483647,         "IMAGE"),
    Map(Decimal,                        38, 0,  38, "DECIMAL"),
    Map(Numeric,                        38, 0,  38, "NUMERIC"),
    Map(Number,                          0,         "FLOAT"),
    Map(Number,                          4,         "SMALLINT"),
    Map(Number,                          9,         "INT"),
    Map(Number,                         18,         "BIGINT"),
    Map(Number,                         38, 0,  38, "DECIMAL"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                          8000,         "BINARY"),
    Map(Bit,                    2147483647,         "IMAGE"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "SMALLINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INT"),
    Map(BigInt,                         19,         "BIGINT"),
    Map(Int,                            10,         "INT"),
    Map(UTinyInt,                        3,         "TINYINT"),
    Map(USmallInt,                       5,         "INT"),
    Map(UInteger,                       10,         "BIGINT"),
    Map(UBigInt,                        20,         "NUMERIC"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "FLOAT"),
    Map(FloatBetween,                   53,         "FLOAT"),
    Map(Double,                         53,         "FLOAT"),
    Map(DecFloat,                       34,         "FLOAT"),
    Map(Date,                           10,         "DATETIME"),
    Map(DateOra,                        19,         "DATETIME"),
    Map(Time,                           16,         "DATETIME"),
    Map(BigTime,                        15,         "DATETIME"),
    Map(BigDateTime,                    26,         "DATETIME"),
    Map(SmallTimestamp,                  0,         "DATETIME"),
    Map(SmallTimestamp,                 16,         "SMALLDATETIME"),
    Map(SmallTimestamp,                 19,         "DATETIME"),
    Map(Timestamp,                      29,         "DATETIME"),
    Map(TimestampZone,                  35,         "DATETIME"),
    Map(TimeZone,                       21,         "DATETIME"),
    Map(DateTimeOffset,                 35,         "DATETIME"),
    Map(SmallMoney,                     10, 0,   4, "SMALLMONEY"),
    Map(Money,                          19, 2,   2, "DECIMAL"),
    Map(Money,                          19, 0,   4, "MONEY"),
    Map(MoneyScaled,                    14, 0,   4, "MONEY"),
    Map(MoneyScaled,                    16, 2,   4, "MONEY"),
    Map(MoneyScaled,                    38, 0,  38, "DECIMAL"),
    Map(DateTimeYear,                   10,         "DATETIME"),
    Map(DateTimeYearToMonth,            10,         "DATETIME"),
    Map(DateTimeYearToDay,              10,         "DATETIME"),
    Map(DateTimeYearToHour,             19,         "DATETIME"),
    Map(DateTimeYearToMinute,           19,         "DATETIME"),
    Map(DateTimeYearToSecond,           19,         "DATETIME"),
    Map(DateTimeHour,                    8,         "DATETIME"),
    Map(DateTimeHourToMinute,            8,         "DATETIME"),
    Map(DateTimeHourToSecond,            8,         "DATETIME"),
    Map(DateTimeYearToFraction,         25,         "DATETIME"),
    Map(DateTimeHourToFraction,         14,         "DATETIME"),
    Map(SmallSerial,                     5,         "SMALLINT IDENTITY"),
    Map(Oid,                            10,         "BIGINT"),
    Map(Guid,                           36,         "UNIQUEIDENTIFIER"),
    Map(Variant,                      8000,         "SQL_VARIANT"),
    Map(RowVersion,                      8,         "ROWVERSION"),
    Map(NumericIdentity,                18, 0,  38, "NUMERIC"),
    Map(Serial,                         10,         "INT"),
    Map(IntegerUnsigned,                10,         "BIGINT"),
    Map(TinyIntUnsigned,                 3,         "TINYINT"),
    Map(SmallIntUnsigned,                5,         "INT"),
    Map(MediumIntUnsigned,               8,         "INT"),
    Map(BigIntUnsigned,                 20,         "NUMERIC"),
};
// clang-format on
static_assert(std::size(kSqlServer80Rows) == 92);

// What SQL Server 2005 calls the internal types. It has no date without a time and no time zone: DATETIME
// takes them.
// clang-format off
constexpr SUVDBToDBMSDataType kSqlServer90Changes[] = {
//      type                          size  scale   name
    Map(Char,                         8000,         "CHAR"),
    Map(Char,                   2147483647,         "VARCHAR(MAX)"),
    Map(VarChar,                      8000,         "VARCHAR"),
    Map(VarChar,                2147483647,         "VARCHAR(MAX)"),
    Map(LongVarChar,            2147483647,         "VARCHAR(MAX)"),
    Map(LongNVarChar,           1073741823,         "NVARCHAR(MAX)"),
    Map(Text,                   2147483647,         "VARCHAR(MAX)"),
    Map(UniChar,                      4000,         "NCHAR"),
    Map(UniChar,                1073741823,         "NVARCHAR(MAX)"),
    Map(UniVarChar,                   4000,         "NVARCHAR"),
    Map(UniVarChar,             1073741823,         "NVARCHAR(MAX)"),
    Map(UniText,                1073741823,         "NVARCHAR(MAX)"),
    Map(VarWChar,                     4000,         "NVARCHAR"),
    Map(VarWChar,               1073741823,         "NVARCHAR(MAX)"),
    Map(LongVarWChar,           1073741823,         "NVARCHAR(MAX)"),
    Map(Binary,                       8000,         "BINARY"),
    Map(Binary,                 2147483647,         "VARBINARY(MAX)"),
    Map(VarBinary,                    8000,         "VARBINARY"),
    Map(VarBinary,              2147483647,         "VARBINARY(MAX)"),
    Map(LongVarBinary,          2147483647,         "VARBINARY(MAX)"),
    Map(LongVarBit,                   8000,         "VARBINARY"),
    Map(LongVarBit,             2147483647,         "VARBINARY(MAX)"),
    Map(Blob,                   2147483647,         "VARBINARY(MAX)"),
    Map(BFile,                  2147483647,         "VARBINARY(MAX)"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                          8000,         "BINARY"),
    Map(Bit,                    2147483647,         "VARBINARY(MAX)"),
    Map(Xml,                    2147483647,         "XML"),
    Map(XmlType,                2147483647,         "XML"),
    Map(BlobText,               2147483647,         "VARCHAR(MAX)"),
};
// clang-format on
constexpr auto kSqlServer90Rows = Newer<kSqlServer80Rows, kSqlServer90Changes>();
static_assert(std::size(kSqlServer90Rows) == 95);

// What SQL Server 2008 calls the internal types. Its TINYINT has no sign: signed bytes go to SMALLINT.
// clang-format off
constexpr SUVDBToDBMSDataType kSqlServer100Changes[] = {
//      type                          size  scale   name
    Map(Char,                            2,         "CHAR"),
    Map(Char,                         8000,         "CHAR"),
    Map(Char,                   2147483647,         "VARCHAR(MAX)"),
    Map(VarChar,                      4000,         "VARCHAR"),
    Map(VarChar,                      8000,         "VARCHAR"),
    Map(VarChar,                2147483647,         "VARCHAR(MAX)"),
    Map(SdoGeometry,            2147483647,         "GEOMETRY"),
    Map(Geometry,               2147483647,         "GEOMETRY"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,         "DATETIME2"),
    Map(Time,                           16,         "TIME"),
    Map(BigTime,                        15,         "TIME"),
    Map(BigDateTime,                    26,         "DATETIME2"),
    Map(SmallTimestamp,                  0,         "DATETIME2"),
    Map(SmallTimestamp,                 16,         "SMALLDATETIME"),
    Map(SmallTimestamp,                 19,         "DATETIME2"),
    Map(Timestamp,                      29,         "DATETIME2"),
    Map(TimestampZone,                  35,         "DATETIMEOFFSET"),
    Map(TimeZone,                       21,         "DATETIMEOFFSET"),
    Map(DateTimeOffset,                 35,         "DATETIMEOFFSET"),
    Map(DateTimeYear,                   10,         "DATE"),
    Map(DateTimeYearToMonth,            10,         "DATE"),
    Map(DateTimeYearToDay,              10,         "DATE"),
    Map(DateTimeYearToHour,             19,         "DATETIME2"),
    Map(DateTimeYearToMinute,           19,         "DATETIME2"),
    Map(DateTimeYearToSecond,           19,         "DATETIME2"),
    Map(DateTimeHour,                    8,         "TIME"),
    Map(DateTimeHourToMinute,            8,         "TIME"),
    Map(DateTimeHourToSecond,            8,         "TIME"),
    Map(DateTimeYearToFraction,         25,         "DATETIME2"),
    Map(DateTimeHourToFraction,         14,         "TIME"),
    Map(IntegerArray,           2147483647,         "VARCHAR(MAX)"),
    Map(SmallIntArray,          2147483647,         "VARCHAR(MAX)"),
    Map(CharArray,              2147483647,         "VARCHAR(MAX)"),
    Map(VarCharArray,           2147483647,         "VARCHAR(MAX)"),
    Map(NumericArray,           2147483647,         "VARCHAR(MAX)"),
    Map(BitArray,               2147483647,         "VARCHAR(MAX)"),
    Map(VarBitArray,            2147483647,         "VARCHAR(MAX)"),
    Map(TimestampArray,         2147483647,         "VARCHAR(MAX)"),
    Map(TimeArray,              2147483647,         "VARCHAR(MAX)"),
    Map(RowId,                          40,         "VARCHAR"),
    Map(Geography,              2147483647,         "GEOGRAPHY"),
    Map(HierarchyId,                   892,         "HIERARCHYID"),
    Map(Json,                   4294967295,         "NVARCHAR(MAX)"),
    Map(JsonB,                  4294967295,         "NVARCHAR(MAX)"),
    Map(Point,                  2147483647,         "GEOMETRY"),
    Map(Polygon,                2147483647,         "GEOMETRY"),
};
// clang-format on
constexpr enInternalType kSqlServer100Gone[] = {BlobText};
constexpr auto kSqlServer100Rows = Newer<kSqlServer90Rows, kSqlServer100Changes, kSqlServer100Gone>();
static_assert(std::size(kSqlServer100Rows) == 114);

// What SQL Server 2012 calls the internal types. Its TINYINT has no sign: signed bytes go to SMALLINT.
// clang-format off
constexpr SUVDBToDBMSDataType kSqlServer110Changes[] = {
//      type                          size  scale   name
    Map(VarChar2,                     8000,         "VARCHAR"),
    Map(VarChar2,               2147483647,         "VARCHAR(MAX)"),
    Map(LVarChar,                     8000,         "VARCHAR"),
    Map(LVarChar,               2147483647,         "VARCHAR(MAX)"),
    Map(URowId,                       4000,         "VARCHAR"),
    Map(BlobText,               2147483647,         "VARCHAR(MAX)"),
    Map(RecordIdSmallInt,       2147483647,         "VARCHAR(MAX)"),
};
// clang-format on
constexpr auto kSqlServer110Rows = Newer<kSqlServer100Rows, kSqlServer110Changes>();
static_assert(std::size(kSqlServer110Rows) == 121);

// What the programs of FoxPro call the internal types: columns of SQL Server 2012. FoxPro has no type table,
// so these names take no parameters.
// clang-format off
constexpr SUVDBToDBMSDataType kFoxProChanges[] = {
//      type                          size  scale   name
    Map(Char,                         8000,         "CHAR"),
    Map(Char,                   2147483647,         "VARCHAR(MAX)"),
    Map(VarChar,                      8000,         "VARCHAR"),
    Map(VarChar,                2147483647,         "VARCHAR(MAX)"),
};
// clang-format on
constexpr enInternalType kFoxProGone[] = {LongVarChar, DateTimeYear, DateTimeYearToMonth, RowId};
constexpr auto kFoxProRows = Newer<kSqlServer100Rows, kFoxProChanges, kFoxProGone>();
static_assert(std::size(kFoxProRows) == 108);

} // namespace

constinit const SMappingSheaf kSqlServer80Mapping = MakeMappingSheaf<kSqlServer80Rows>();
constinit const SMappingSheaf kSqlServer90Mapping = MakeMappingSheaf<kSqlServer90Rows>();
constinit const SMappingSheaf kSqlServer100Mapping = MakeMappingSheaf<kSqlServer100Rows>();
constinit const SMappingSheaf kSqlServer110Mapping = MakeMappingSheaf<kSqlServer110Rows>();
constinit const SMappingSheaf kFoxProMapping = MakeMappingSheaf<kFoxProRows>();
