// PostgreSQL: the limits of 15, the first with negative scales. What has no limit of its own ends at 1 GB.
// NUMERIC without parameters is a decimal number of any scale: 131072 digits and 16383 after the point.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type                   name                                   size  scale
    Sized        (Char,                  "CHAR",                              10485760),
    Synonym(Sized(Char,                  "CHARACTER",                         10485760)),
    Sized        (VarChar,               "VARCHAR",                           10485760),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                 10485760)),
    Plain        (Text,                  "TEXT",                            1073741823),
    Plain        (Blob,                  "BYTEA",                           1073741823),
    Sized        (VarWChar,              "NVARCHAR",                          10485760),
    Plain        (Xml,                   "XML",                             1073741823),
    Scaled       (Decimal,               "DECIMAL",                               1000, -1000,  1000),
    Scaled       (Numeric,               "NUMERIC",                               1000, -1000,  1000),
    Whole        (DecFloat,              "NUMERIC",                             147455),
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
    Whole        (SmallSerial,           "SMALLSERIAL",                              5),
    Whole        (Real,                  "REAL",                                    24),
    Synonym(Whole(Real,                  "FLOAT4",                                  24)),
    Whole        (Double,                "DOUBLE PRECISION",                        53),
    Synonym(Whole(Double,                "FLOAT8",                                  53)),
    Fixed        (Money,                 "MONEY",                                   19,     2),
    Plain        (Date,                  "DATE",                                    10),
    Timed        (Timestamp,             "TIMESTAMP()",                             26,     0,     6),
    Timed        (TimestampZone,         "TIMESTAMPTZ",                             32,     6,     6, ""),
    Timed        (Timestamp,             "TIMESTAMP",                               26,     6,     6, ""),
    Synonym(Timed(TimestampZone,         "TIMESTAMP WITH TIME ZONE",                32,     6,     6, "")),
    Timed        (TimestampZone,         "TIMESTAMP() WITH TIME ZONE",              32,     0,     6),
    Timed        (Time,                  "TIME()",                                  15,     0,     6),
    Timed        (TimeZone,              "TIME() WITH TIME ZONE",                   21,     0,     6),
    Timed        (TimeZone,              "TIMETZ",                                  21,     6,     6, ""),
    Timed        (Time,                  "TIME",                                    15,     6,     6, ""),
    Timed        (IntervalDayToFraction, "INTERVAL()",                              49,     0,     6),
    Plain        (Guid,                  "UUID",                                    36),
    Whole        (Oid,                   "OID",                                     10),
    Plain        (IntegerArray,          "INTEGER[]",                       1073741823),
    Sized        (CharArray,             "CHARACTER()[]",                     10485760),
    Sized        (VarCharArray,          "CHARACTER VARYING()[]",             10485760),
    Scaled       (NumericArray,          "NUMERIC()[]",                           1000, -1000,  1000),
    Sized        (BitArray,              "BIT()[]",                           83886080),
    Sized        (VarBitArray,           "BIT VARYING()[]",                   83886080),
    Timed        (TimestampArray,        "TIMESTAMP() WITHOUT TIME ZONE[]", 1073741823,     0,     6),
    Timed        (TimeArray,             "TIME() WITHOUT TIME ZONE[]",      1073741823,     0,     6),
    Plain        (Geometry,              "GEOMETRY",                        1073741823),
    Plain        (Geography,             "GEOGRAPHY",                       1073741823),
    Plain        (Point,                 "POINT",                                   51),
    Plain        (Polygon,               "POLYGON",                         1073741823),
    Plain        (Json,                  "JSON",                            1073741823),
    Plain        (JsonB,                 "JSONB",                            268435455),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kPostgreSqlDataTypes = MakeDataTypeTable<kRows>();
