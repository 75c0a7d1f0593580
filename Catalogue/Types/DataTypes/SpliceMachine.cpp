// Splice Machine. TEXT is its CLOB, BYTEA its BLOB. XML, intervals, zones and arrays are read in
// scripts only.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type                   name                                   size  scale
    Sized        (Char,                  "CHAR",                                   254),
    Synonym(Sized(Char,                  "CHARACTER",                              254)),
    Sized        (VarChar,               "VARCHAR",                              32672),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                    32672)),
    Plain        (Text,                  "TEXT",                            2147483647),
    Plain        (Blob,                  "BYTEA",                           2147483647),
    Sized        (VarWChar,              "NVARCHAR",                             32672),
    Plain        (Xml,                   "XML",                             2147483647),
    Scaled       (Decimal,               "DECIMAL",                                 38,  0, 38),
    Scaled       (Numeric,               "NUMERIC",                                 38,  0, 38),
    Plain        (Boolean,               "BOOLEAN",                                  1),
    Synonym(Plain(Boolean,               "BOOL",                                     1)),
    Sized        (Bit,                   "BIT",                                  32672),
    Sized        (LongVarBit,            "VARBIT",                               32672),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                          32672)),
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
    Fixed        (Money,                 "MONEY",                                   19,  2),
    Plain        (Date,                  "DATE",                                    10),
    Timed        (Timestamp,             "TIMESTAMP()",                             26,  0,  6),
    Timed        (TimestampZone,         "TIMESTAMPTZ",                             32,  6,  6, ""),
    Timed        (Timestamp,             "TIMESTAMP",                               26,  6,  6, ""),
    Synonym(Timed(TimestampZone,         "TIMESTAMP WITH TIME ZONE",                32,  6,  6, "")),
    Timed        (TimestampZone,         "TIMESTAMP() WITH TIME ZONE",              32,  0,  6),
    Timed        (Time,                  "TIME()",                                  15,  0,  6),
    Timed        (TimeZone,              "TIME() WITH TIME ZONE",                   21,  0,  6),
    Timed        (TimeZone,              "TIMETZ",                                  21,  6,  6, ""),
    Timed        (Time,                  "TIME",                                    15,  6,  6, ""),
    Timed        (IntervalDayToFraction, "INTERVAL()",                              49,  0,  6),
    Plain        (Guid,                  "UUID",                                    36),
    Whole        (Oid,                   "OID",                                     10),
    Plain        (IntegerArray,          "INTEGER[]",                       2147483647),
    Sized        (CharArray,             "CHARACTER()[]",                          254),
    Sized        (VarCharArray,          "CHARACTER VARYING()[]",                32672),
    Scaled       (NumericArray,          "NUMERIC()[]",                             38,  0, 38),
    Sized        (BitArray,              "BIT()[]",                              32672),
    Sized        (VarBitArray,           "BIT VARYING()[]",                      32672),
    Timed        (TimestampArray,        "TIMESTAMP() WITHOUT TIME ZONE[]",         26,  0,  6),
    Timed        (TimeArray,             "TIME() WITHOUT TIME ZONE[]",              15,  0,  6),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SDataTypeTable kSpliceMachineDataTypes = MakeDataTypeTable<kRows>();
