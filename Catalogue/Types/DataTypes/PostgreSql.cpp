// PostgreSQL, what is built on it, and what uses its names.
// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// The databases built on PostgreSQL that keep its types and their limits up to 14.
// clang-format off
constexpr SDataTypeParams kPostgreSqlForkRows[] = {
//                type                   name                                     size  scale
    Sized        (Char,                  "CHAR",                              10485760),
    Synonym(Sized(Char,                  "CHARACTER",                         10485760)),
    Sized        (VarChar,               "VARCHAR",                           10485760),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                 10485760)),
    Plain        (Text,                  "TEXT",                            1073741823),
    Plain        (Blob,                  "BYTEA",                           1073741823),
    Scaled       (Decimal,               "DECIMAL",                               1000,     0, 1000),
    Scaled       (Numeric,               "NUMERIC",                               1000,     0, 1000),
    Plain        (Boolean,               "BOOLEAN",                                  1),
    Synonym(Plain(Boolean,               "BOOL",                                     1)),
    Sized        (Bit,                   "BIT",                               83886080),
    Sized        (LongVarBit,            "VARBIT",                            83886080),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                       83886080)),
    Whole        (SmallInt,              "SMALLINT",                                 5),
    Synonym(Whole(SmallInt,              "INT2",                                     5)),
    Whole        (Integer,               "INT",                                     10),
    Synonym(Whole(Integer,               "INTEGER",                                 10)),
    Synonym(Whole(Integer,               "INT4",                                    10)),
    Whole        (BigInt,                "BIGINT",                                  19),
    Synonym(Whole(BigInt,                "INT8",                                    19)),
    Whole        (Serial,                "SERIAL",                                  10),
    Synonym(Whole(Serial,                "SERIAL4",                                 10)),
    Whole        (BigInt,                "BIGSERIAL",                               19),
    Synonym(Whole(BigInt,                "SERIAL8",                                 19)),
    Whole        (Real,                  "REAL",                                    24),
    Synonym(Whole(Real,                  "FLOAT4",                                  24)),
    Whole        (Double,                "DOUBLE PRECISION",                        53),
    Synonym(Whole(Double,                "FLOAT8",                                  53)),
    Fixed        (Money,                 "MONEY",                                   19,     2),
    Plain        (Date,                  "DATE",                                    10),
    Timed        (Timestamp,             "TIMESTAMP()",                             26,     0,    6),
    Timed        (TimestampZone,         "TIMESTAMPTZ",                             32,     6,    6, ""),
    Timed        (Timestamp,             "TIMESTAMP",                               26,     6,    6, ""),
    Synonym(Timed(TimestampZone,         "TIMESTAMP WITH TIME ZONE",                32,     6,    6, "")),
    Timed        (TimestampZone,         "TIMESTAMP() WITH TIME ZONE",              32,     0,    6),
    Timed        (Time,                  "TIME()",                                  15,     0,    6),
    Timed        (TimeZone,              "TIME() WITH TIME ZONE",                   21,     0,    6),
    Timed        (TimeZone,              "TIMETZ",                                  21,     6,    6, ""),
    Timed        (Time,                  "TIME",                                    15,     6,    6, ""),
    Timed        (IntervalDayToFraction, "INTERVAL()",                              49,     0,    6),
    Plain        (Guid,                  "UUID",                                    36),
};
// clang-format on
static_assert(std::size(kPostgreSqlForkRows) == 41);

// PostgreSQL: the limits of 15, the first with negative scales. What has no limit of its own ends at 1 GB.
// NUMERIC without parameters is a decimal number of any scale: 131072 digits and 16383 after the point.
// clang-format off
constexpr SRowChange kPostgreSqlChanges[] = {
//                type                   name                                     size  scale
    Scaled       (Decimal,               "DECIMAL",                               1000, -1000, 1000),
    Scaled       (Numeric,               "NUMERIC",                               1000, -1000, 1000),
    Whole        (DecFloat,              "NUMERIC",                             147455),
    After("BYTEA"),
    Sized        (VarWChar,              "NVARCHAR",                          10485760),
    Plain        (Xml,                   "XML",                             1073741823),
    After("SERIAL8"),
    Whole        (SmallSerial,           "SMALLSERIAL",                              5),
    After("UUID"),
    Whole        (Oid,                   "OID",                                     10),
    Plain        (IntegerArray,          "INTEGER[]",                       1073741823),
    Sized        (CharArray,             "CHARACTER()[]",                     10485760),
    Sized        (VarCharArray,          "CHARACTER VARYING()[]",             10485760),
    Scaled       (NumericArray,          "NUMERIC()[]",                           1000, -1000, 1000),
    Sized        (BitArray,              "BIT()[]",                           83886080),
    Sized        (VarBitArray,           "BIT VARYING()[]",                   83886080),
    Timed        (TimestampArray,        "TIMESTAMP() WITHOUT TIME ZONE[]", 1073741823,     0,    6),
    Timed        (TimeArray,             "TIME() WITHOUT TIME ZONE[]",      1073741823,     0,    6),
    Plain        (Geometry,              "GEOMETRY",                        1073741823),
    Plain        (Geography,             "GEOGRAPHY",                       1073741823),
    Plain        (Point,                 "POINT",                                   51),
    Plain        (Polygon,               "POLYGON",                         1073741823),
    Plain        (Json,                  "JSON",                            1073741823),
    Plain        (JsonB,                 "JSONB",                            268435455),
};
// clang-format on
constexpr auto kPostgreSqlRows = NewerTypes<kPostgreSqlForkRows, kPostgreSqlChanges>();
static_assert(std::size(kPostgreSqlRows) == 60);

// Redshift. Lengths are bytes, a TEXT is a VARCHAR(256), a BYTEA what VARBYTE takes. The bit, money, serial
// and array types are read in scripts only.
// clang-format off
constexpr SRowChange kRedshiftChanges[] = {
//                type                   name                                     size  scale
    Sized        (Char,                  "CHAR",                                  4096),
    Synonym(Sized(Char,                  "CHARACTER",                             4096)),
    Sized        (VarChar,               "VARCHAR",                              65535),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                    65535)),
    Plain        (Text,                  "TEXT",                                   256),
    Plain        (Blob,                  "BYTEA",                              1024000),
    Scaled       (Decimal,               "DECIMAL",                                 38,     0,   37),
    Scaled       (Numeric,               "NUMERIC",                                 38,     0,   37),
    Sized        (Bit,                   "BIT",                                  64000),
    Sized        (LongVarBit,            "VARBIT",                               64000),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                          64000)),
    After("BYTEA"),
    Sized        (VarWChar,              "NVARCHAR",                             65535),
    Plain        (Xml,                   "XML",                                  65535),
    After("UUID"),
    Whole        (Oid,                   "OID",                                     10),
    Plain        (IntegerArray,          "INTEGER[]",                              256),
    Sized        (CharArray,             "CHARACTER()[]",                         4096),
    Sized        (VarCharArray,          "CHARACTER VARYING()[]",                65535),
    Scaled       (NumericArray,          "NUMERIC()[]",                             38,     0,   37),
    Sized        (BitArray,              "BIT()[]",                              64000),
    Sized        (VarBitArray,           "BIT VARYING()[]",                      64000),
    Timed        (TimestampArray,        "TIMESTAMP() WITHOUT TIME ZONE[]",         26,     0,    6),
    Timed        (TimeArray,             "TIME() WITHOUT TIME ZONE[]",              15,     0,    6),
};
// clang-format on
constexpr auto kRedshiftRows = NewerTypes<kPostgreSqlForkRows, kRedshiftChanges>();
static_assert(std::size(kRedshiftRows) == 52);

// Netezza. Lengths are bytes, those of NVARCHAR characters; a BYTEA takes what VARBINARY takes.
// clang-format off
constexpr SRowChange kNetezzaChanges[] = {
//                type                   name                                     size  scale
    Sized        (Char,                  "CHAR",                                 64000),
    Synonym(Sized(Char,                  "CHARACTER",                            64000)),
    Sized        (VarChar,               "VARCHAR",                              64000),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                    64000)),
    Plain        (Text,                  "TEXT",                                 64000),
    Plain        (Blob,                  "BYTEA",                                64000),
    Scaled       (Decimal,               "DECIMAL",                                 38,     0,   38),
    Scaled       (Numeric,               "NUMERIC",                                 38,     0,   38),
    Sized        (Bit,                   "BIT",                                  64000),
    Sized        (LongVarBit,            "VARBIT",                               64000),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                          64000)),
    After("TEXT"),
    Sized        (VarWChar,              "NVARCHAR",                             16000),
};
// clang-format on
constexpr std::string_view kNetezzaGone[] = {"TIME"};
constexpr auto kNetezzaRows = NewerTypes<kPostgreSqlForkRows, kNetezzaChanges, kNetezzaGone>();
static_assert(std::size(kNetezzaRows) == 41);

// ANTS, whose types Solid and Paradox are read with. Long values end at 2 GB.
// clang-format off
constexpr SRowChange kAntsChanges[] = {
//                type                   name                                     size  scale
    Sized        (Char,                  "CHAR",                                  8000),
    Synonym(Sized(Char,                  "CHARACTER",                             8000)),
    Sized        (VarChar,               "VARCHAR",                               8000),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                     8000)),
    Plain        (Text,                  "TEXT",                            2147483647),
    Plain        (Blob,                  "BYTEA",                           2147483647),
    Scaled       (Decimal,               "DECIMAL",                                 38,     0,   38),
    Scaled       (Numeric,               "NUMERIC",                                 38,     0,   38),
};
// clang-format on
constexpr std::string_view kAntsGone[] = {"TIME", "UUID"};
constexpr auto kAntsRows = NewerTypes<kPostgreSqlForkRows, kAntsChanges, kAntsGone>();
static_assert(std::size(kAntsRows) == 39);

// Splice Machine. TEXT is its CLOB, BYTEA its BLOB. XML, intervals, zones and arrays are read in scripts
// only.
// clang-format off
constexpr SRowChange kSpliceMachineChanges[] = {
//                type                   name                                     size  scale
    Sized        (Char,                  "CHAR",                                   254),
    Synonym(Sized(Char,                  "CHARACTER",                              254)),
    Sized        (VarChar,               "VARCHAR",                              32672),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                    32672)),
    Sized        (Bit,                   "BIT",                                  32672),
    Sized        (LongVarBit,            "VARBIT",                               32672),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                          32672)),
    After("BYTEA"),
    Sized        (VarWChar,              "NVARCHAR",                             32672),
    Plain        (Xml,                   "XML",                             2147483647),
    After("TIMETZ"),
    Timed        (Time,                  "TIME",                                    15,     6,    6, ""),
    After("INTERVAL()"),
    Plain        (Guid,                  "UUID",                                    36),
    Whole        (Oid,                   "OID",                                     10),
    Plain        (IntegerArray,          "INTEGER[]",                       2147483647),
    Sized        (CharArray,             "CHARACTER()[]",                          254),
    Sized        (VarCharArray,          "CHARACTER VARYING()[]",                32672),
    Scaled       (NumericArray,          "NUMERIC()[]",                             38,     0,   38),
    Sized        (BitArray,              "BIT()[]",                              32672),
    Sized        (VarBitArray,           "BIT VARYING()[]",                      32672),
    Timed        (TimestampArray,        "TIMESTAMP() WITHOUT TIME ZONE[]",         26,     0,    6),
    Timed        (TimeArray,             "TIME() WITHOUT TIME ZONE[]",              15,     0,    6),
};
// clang-format on
constexpr auto kSpliceMachineRows = NewerTypes<kAntsRows, kSpliceMachineChanges>();
static_assert(std::size(kSpliceMachineRows) == 52);

} // namespace

constinit const SDataTypeTable kPostgreSqlForkDataTypes = MakeDataTypeTable<kPostgreSqlForkRows>();
constinit const SDataTypeTable kPostgreSqlDataTypes = MakeDataTypeTable<kPostgreSqlRows>();
constinit const SDataTypeTable kRedshiftDataTypes = MakeDataTypeTable<kRedshiftRows>();
constinit const SDataTypeTable kNetezzaDataTypes = MakeDataTypeTable<kNetezzaRows>();
constinit const SDataTypeTable kAntsDataTypes = MakeDataTypeTable<kAntsRows>();
constinit const SDataTypeTable kSpliceMachineDataTypes = MakeDataTypeTable<kSpliceMachineRows>();
