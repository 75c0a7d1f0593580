// MySQL, by release, and its kin.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What MySQL 4.0 calls the internal types. CHAR and VARCHAR end at 255, a character is a byte, bytes go into
// BLOBs because the binary strings lose trailing blanks, and BIT is a truth value.
// clang-format off
constexpr SUVDBToDBMSDataType kMySql40Rows[] = {
//      type                         size  scale  name
    Map(Char,                           255,        "CHAR"),
    Map(Char,                         65535,        "TEXT"),
    Map(Char,                    4294967295,        "LONGTEXT"),
    Map(VarChar,                        255,        "VARCHAR"),
    Map(VarChar,                      65535,        "TEXT"),
    Map(VarChar,                 4294967295,        "LONGTEXT"),
    Map(LongVarChar,             4294967295,        "LONGTEXT"),
    Map(LongNVarChar,            4294967295,        "LONGTEXT"),
    Map(Text,                             0,        "LONGTEXT"),
    Map(Text,                         65535,        "TEXT"),
    Map(Text,                    4294967295,        "LONGTEXT"),
    Map(UniChar,                        255,        "NATIONAL CHAR"),
    Map(UniChar,                      65535,        "TEXT"),
    Map(UniVarChar,                     255,        "NATIONAL VARCHAR"),
    Map(UniVarChar,                   65535,        "TEXT"),
    Map(UniText,                 4294967295,        "LONGTEXT"),
    Map(WChar,                          255,        "NATIONAL CHAR"),
    Map(WChar,                        65535,        "TEXT"),
    Map(WChar,                   4294967295,        "LONGTEXT"),
    Map(VarWChar,                       255,        "NATIONAL VARCHAR"),
    Map(VarWChar,                     65535,        "TEXT"),
    Map(VarWChar,                4294967295,        "LONGTEXT"),
    Map(LongVarWChar,            4294967295,        "LONGTEXT"),
    Map(Binary,                         255,        "TINYBLOB"),
    Map(Binary,                       65535,        "BLOB"),
    Map(Binary,                  4294967295,        "LONGBLOB"),
    Map(VarBinary,                    65535,        "BLOB"),
    Map(VarBinary,               4294967295,        "LONGBLOB"),
    Map(LongVarBinary,           4294967295,        "LONGBLOB"),
    Map(LongVarBit,             34359738360,        "LONGBLOB"),
    Map(Blob,                             0,        "LONGBLOB"),
    Map(Blob,                         65535,        "BLOB"),
    Map(Blob,                    4294967295,        "LONGBLOB"),
    Map(BFile,                   4294967295,        "LONGBLOB"),
    Map(SdoGeometry,             4294967295,        "LONGBLOB"),
    Map(Geometry,                4294967295,        "LONGBLOB"),
    Map(Decimal,                         65, 0, 30, "DECIMAL"),
    Map(Numeric,                         65, 0, 30, "NUMERIC"),
    Map(Number,                          65, 0, 30, "DECIMAL"),
    Map(Bit,                              1,        "BOOL"),
    Map(Bit,                         524280,        "BLOB"),
    Map(Bit,                    34359738360,        "LONGBLOB"),
    Map(Boolean,                          1,        "BOOL"),
    Map(TinyInt,                          3,        "TINYINT"),
    Map(SmallInt,                         5,        "SMALLINT"),
    Map(Integer,                         10,        "INTEGER"),
    Map(BigInt,                          19,        "BIGINT"),
    Map(Int,                             10,        "INTEGER"),
    Map(UTinyInt,                         3,        "TINYINT UNSIGNED"),
    Map(USmallInt,                        5,        "SMALLINT UNSIGNED"),
    Map(UInteger,                        10,        "INTEGER UNSIGNED"),
    Map(UBigInt,                         20,        "BIGINT UNSIGNED"),
    Map(Real,                            24,        "FLOAT"),
    Map(Float,                           53,        "DOUBLE"),
    Map(FloatBetween,                    53,        "DOUBLE"),
    Map(Double,                          53,        "DOUBLE"),
    Map(DecFloat,                        34,        "DOUBLE"),
    Map(Date,                            10,        "DATE"),
    Map(DateOra,                         19,        "DATETIME"),
    Map(Time,                            17, 0,  6, "TIME"),
    Map(BigTime,                         17, 0,  6, "TIME"),
    Map(BigDateTime,                     26, 0,  6, "DATETIME"),
    Map(SmallTimestamp,                  19, 0,  0, "DATETIME"),
    Map(Timestamp,                       26, 0,  6, "DATETIME"),
    Map(TimestampZone,                   35, 0,  6, "DATETIME"),
    Map(TimeZone,                        24, 0,  6, "TIME"),
    Map(DateTimeOffset,                  35, 0,  6, "DATETIME"),
    Map(SmallMoney,                      19, 0,  4, "DECIMAL"),
    Map(Money,                           19, 0,  4, "DECIMAL"),
    Map(MoneyScaled,                     32, 0, 30, "DECIMAL"),
    Map(DateTimeYear,                     4,        "DATE"),
    Map(DateTimeYearToMonth,              7,        "DATE"),
    Map(DateTimeYearToDay,               10,        "DATE"),
    Map(DateTimeYearToHour,              13,        "DATETIME"),
    Map(DateTimeYearToMinute,            16,        "DATETIME"),
    Map(DateTimeYearToSecond,            19,        "DATETIME"),
    Map(DateTimeHour,                     2,        "TIME"),
    Map(DateTimeHourToMinute,             5,        "TIME"),
    Map(DateTimeHourToSecond,             8,        "TIME"),
    Map(DateTimeYearToFraction,          25, 0,  6, "DATETIME"),
    Map(DateTimeHourToFraction,          14, 0,  6, "TIME"),
    Map(SmallSerial,                      5,        "SMALLINT"),
    Map(Oid,                             10,        "INTEGER UNSIGNED"),
    Map(Geography,               4294967295,        "LONGBLOB"),
    Map(Xml,                     4294967295,        "LONGTEXT"),
    Map(XmlType,                 4294967295,        "LONGTEXT"),
    Map(Guid,                            36,        "CHAR"),
    Map(RowVersion,                       8,        "TINYBLOB"),
    Map(NumericIdentity,                 65, 0,  0, "NUMERIC"),
    Map(Json,                    4294967295,        "LONGTEXT"),
    Map(JsonB,                   4294967295,        "LONGTEXT"),
    Map(Serial,                          10,        "INTEGER"),
    Map(IntegerUnsigned,                 10,        "INTEGER UNSIGNED"),
    Map(TinyIntUnsigned,                  3,        "TINYINT UNSIGNED"),
    Map(SmallIntUnsigned,                 5,        "SMALLINT UNSIGNED"),
    Map(MediumIntUnsigned,                8,        "MEDIUMINT UNSIGNED"),
    Map(BigIntUnsigned,                  20,        "BIGINT UNSIGNED"),
    Map(BlobText,                4294967295,        "LONGTEXT"),
    Map(Point,                   4294967295,        "LONGBLOB"),
    Map(Polygon,                 4294967295,        "LONGBLOB"),
};
// clang-format on
static_assert(std::size(kMySql40Rows) == 100);

// What MySQL 4.1 calls the internal types. CHAR, VARCHAR and their binary twins end at 255, and BIT is a
// truth value. A character has up to three bytes. The rungs of character types count characters, those of
// large objects bytes.
// clang-format off
constexpr SUVDBToDBMSDataType kMySql41Changes[] = {
//      type                         size  scale  name
    Map(Char,                           255,        "CHAR"),
    Map(Char,                         21845,        "TEXT"),
    Map(Char,                    4294967295,        "LONGTEXT"),
    Map(VarChar,                        255,        "VARCHAR"),
    Map(VarChar,                      21845,        "TEXT"),
    Map(VarChar,                 4294967295,        "LONGTEXT"),
    Map(UniChar,                        255,        "NATIONAL CHAR"),
    Map(UniChar,                      21845,        "TEXT"),
    Map(UniVarChar,                     255,        "NATIONAL VARCHAR"),
    Map(UniVarChar,                   21845,        "TEXT"),
    Map(WChar,                          255,        "NATIONAL CHAR"),
    Map(WChar,                        21845,        "TEXT"),
    Map(WChar,                   4294967295,        "LONGTEXT"),
    Map(VarWChar,                       255,        "NATIONAL VARCHAR"),
    Map(VarWChar,                     21845,        "TEXT"),
    Map(VarWChar,                4294967295,        "LONGTEXT"),
    Map(Binary,                         255,        "BINARY"),
    Map(Binary,                       65535,        "BLOB"),
    Map(Binary,                  4294967295,        "LONGBLOB"),
    Map(VarBinary,                      255,        "VARBINARY"),
    Map(VarBinary,                    65535,        "BLOB"),
    Map(VarBinary,               4294967295,        "LONGBLOB"),
    Map(Bit,                              1,        "BOOLEAN"),
    Map(Bit,                         524280,        "BLOB"),
    Map(Bit,                    34359738360,        "LONGBLOB"),
    Map(Boolean,                          1,        "BOOLEAN"),
    Map(RowVersion,                       8,        "BINARY"),
};
// clang-format on
constexpr enInternalType kMySql41Gone[] = {BlobText};
constexpr auto kMySql41Rows = Newer<kMySql40Rows, kMySql41Changes, kMySql41Gone>();
static_assert(std::size(kMySql41Rows) == 100);

// What MySQL 5.0 calls the internal types, from release 5.0.3 on. A row has 65535 bytes and a character up to
// three, so VARCHAR ends at 21844. The rungs of character types count characters, those of large objects
// bytes.
// clang-format off
constexpr SUVDBToDBMSDataType kMySql50Changes[] = {
//      type                         size  scale  name
    Map(Char,                           255,        "CHAR"),
    Map(Char,                         21844,        "VARCHAR"),
    Map(Char,                       5592405,        "MEDIUMTEXT"),
    Map(Char,                    4294967295,        "LONGTEXT"),
    Map(VarChar,                      21844,        "VARCHAR"),
    Map(VarChar,                    5592405,        "MEDIUMTEXT"),
    Map(VarChar,                 4294967295,        "LONGTEXT"),
    Map(Text,                             0,        "LONGTEXT"),
    Map(Text,                         65535,        "TEXT"),
    Map(Text,                      16777215,        "MEDIUMTEXT"),
    Map(Text,                    4294967295,        "LONGTEXT"),
    Map(UniChar,                        255,        "NCHAR"),
    Map(UniChar,                      21844,        "NVARCHAR"),
    Map(UniVarChar,                   21844,        "NVARCHAR"),
    Map(WChar,                          255,        "NCHAR"),
    Map(WChar,                        21844,        "NVARCHAR"),
    Map(WChar,                   4294967295,        "LONGTEXT"),
    Map(VarWChar,                     21844,        "NVARCHAR"),
    Map(VarWChar,                4294967295,        "LONGTEXT"),
    Map(Binary,                         255,        "BINARY"),
    Map(Binary,                       65532,        "VARBINARY"),
    Map(Binary,                  4294967295,        "LONGBLOB"),
    Map(VarBinary,                    65532,        "VARBINARY"),
    Map(VarBinary,               4294967295,        "LONGBLOB"),
    Map(Blob,                             0,        "LONGBLOB"),
    Map(Blob,                         65535,        "BLOB"),
    Map(Blob,                      16777215,        "MEDIUMBLOB"),
    Map(Blob,                    4294967295,        "LONGBLOB"),
    Map(Bit,                              1,        "BOOLEAN"),
    Map(Bit,                             64,        "BIT"),
    Map(Bit,                    34359738360,        "LONGBLOB"),
    Map(BlobText,                4294967295,        "LONGTEXT"),
};
// clang-format on
constexpr auto kMySql50Rows = Newer<kMySql41Rows, kMySql50Changes>();
static_assert(std::size(kMySql50Rows) == 101);

// What MySQL calls the internal types from 5.1 on; all later releases use these rows. So VARCHAR ends where
// 65535 bytes of utf8mb4 do (national types stay at three bytes), and JSON is there. The rungs of character
// types count characters, those of large objects bytes.
// clang-format off
constexpr SUVDBToDBMSDataType kMySql51Changes[] = {
//      type                         size  scale  name
    Map(Char,                           255,        "CHAR"),
    Map(Char,                         16383,        "VARCHAR"),
    Map(Char,                       4194303,        "MEDIUMTEXT"),
    Map(Char,                    4294967295,        "LONGTEXT"),
    Map(VarChar,                      16383,        "VARCHAR"),
    Map(VarChar,                    4194303,        "MEDIUMTEXT"),
    Map(VarChar,                 4294967295,        "LONGTEXT"),
    Map(Json,                    4294967295,        "JSON"),
    Map(JsonB,                   4294967295,        "JSON"),
};
// clang-format on
constexpr auto kMySql51Rows = Newer<kMySql50Rows, kMySql51Changes>();
static_assert(std::size(kMySql51Rows) == 101);

// What SingleStore calls the internal types before release 7. A character has up to three bytes. The rungs of
// character types count characters, those of large objects bytes.
// clang-format off
constexpr SUVDBToDBMSDataType kSingleStoreChanges[] = {
//      type                         size  scale  name
    Map(Json,                    4294967295,        "JSON"),
    Map(JsonB,                   4294967295,        "JSON"),
};
// clang-format on
constexpr enInternalType kSingleStoreGone[] = {LongNVarChar, BlobText};
constexpr auto kSingleStoreRows = Newer<kMySql50Rows, kSingleStoreChanges, kSingleStoreGone>();
static_assert(std::size(kSingleStoreRows) == 99);

// What SingleStore calls the internal types from release 7 on, where a character has up to four bytes. The
// rungs of character types count characters, those of large objects bytes.
constexpr enInternalType kSingleStore70Gone[] = {LongNVarChar, BlobText};
constexpr auto kSingleStore70Rows = Newer<kMySql51Rows, kNoRows, kSingleStore70Gone>();
static_assert(std::size(kSingleStore70Rows) == 99);

// What MariaDB calls the internal types. Unsigned integers take the next larger one. A character has up to
// four bytes. The rungs of character types count characters, those of large objects bytes.
// clang-format off
constexpr SUVDBToDBMSDataType kMariaDbChanges[] = {
//      type                         size  scale  name
    Map(Char,                           255,        "CHAR"),
    Map(Char,                         16383,        "VARCHAR"),
    Map(Char,                    4294967295,        "LONGTEXT"),
    Map(VarChar,                      16383,        "VARCHAR"),
    Map(VarChar,                 4294967295,        "LONGTEXT"),
    Map(Text,                             0,        "LONGTEXT"),
    Map(Text,                         65535,        "TEXT"),
    Map(Text,                    4294967295,        "LONGTEXT"),
    Map(UniChar,                        255,        "NATIONAL CHAR"),
    Map(UniChar,                      21844,        "NVARCHAR"),
    Map(WChar,                          255,        "NATIONAL CHAR"),
    Map(WChar,                        21844,        "NVARCHAR"),
    Map(WChar,                   4294967295,        "LONGTEXT"),
    Map(Blob,                             0,        "LONGBLOB"),
    Map(Blob,                         65535,        "BLOB"),
    Map(Blob,                    4294967295,        "LONGBLOB"),
    Map(Decimal,                         65, 0, 38, "DECIMAL"),
    Map(Numeric,                         65, 0, 38, "NUMERIC"),
    Map(Number,                          65, 0, 38, "DECIMAL"),
    Map(UTinyInt,                         3,        "SMALLINT"),
    Map(USmallInt,                        5,        "INTEGER"),
    Map(UInteger,                        10,        "BIGINT"),
    Map(UBigInt,                         20, 0,  0, "DECIMAL"),
    Map(MoneyScaled,                     32, 0, 38, "DECIMAL"),
    Map(Oid,                             10,        "BIGINT"),
    Map(Json,                    4294967295,        "LONGTEXT"),
    Map(IntegerUnsigned,                 10,        "BIGINT"),
    Map(TinyIntUnsigned,                  3,        "SMALLINT"),
    Map(SmallIntUnsigned,                 5,        "INTEGER"),
    Map(MediumIntUnsigned,                8,        "INTEGER"),
    Map(BigIntUnsigned,                  20, 0,  0, "DECIMAL"),
};
// clang-format on
constexpr enInternalType kMariaDbGone[] = {LongVarChar, LongNVarChar, UniText, XmlType, JsonB, BlobText};
constexpr auto kMariaDbRows = Newer<kMySql51Rows, kMariaDbChanges, kMariaDbGone>();
static_assert(std::size(kMariaDbRows) == 91);

} // namespace

constinit const SMappingSheaf kMySql40Mapping = MakeMappingSheaf<kMySql40Rows>();
constinit const SMappingSheaf kMySql41Mapping = MakeMappingSheaf<kMySql41Rows>();
constinit const SMappingSheaf kMySql50Mapping = MakeMappingSheaf<kMySql50Rows>();
constinit const SMappingSheaf kMySql51Mapping = MakeMappingSheaf<kMySql51Rows>();
constinit const SMappingSheaf kSingleStoreMapping = MakeMappingSheaf<kSingleStoreRows>();
constinit const SMappingSheaf kSingleStore70Mapping = MakeMappingSheaf<kSingleStore70Rows>();
constinit const SMappingSheaf kMariaDbMapping = MakeMappingSheaf<kMariaDbRows>();
