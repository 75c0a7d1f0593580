// ANTS, whose types Solid and Paradox are read with. Long values end at 2 GB.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type                   name                              size  scale
    Sized        (Char,                  "CHAR",                             8000),
    Synonym(Sized(Char,                  "CHARACTER",                        8000)),
    Sized        (VarChar,               "VARCHAR",                          8000),
    Synonym(Sized(VarChar,               "CHARACTER VARYING",                8000)),
    Plain        (Text,                  "TEXT",                       2147483647),
    Plain        (Blob,                  "BYTEA",                      2147483647),
    Scaled       (Decimal,               "DECIMAL",                            38,  0, 38),
    Scaled       (Numeric,               "NUMERIC",                            38,  0, 38),
    Plain        (Boolean,               "BOOLEAN",                             1),
    Synonym(Plain(Boolean,               "BOOL",                                1)),
    Sized        (Bit,                   "BIT",                          83886080),
    Sized        (LongVarBit,            "VARBIT",                       83886080),
    Synonym(Sized(LongVarBit,            "BIT VARYING",                  83886080)),
    Whole        (SmallInt,              "SMALLINT",                            5),
    Synonym(Whole(SmallInt,              "INT2",                                5)),
    Whole        (Integer,               "INT",                                10),
    Synonym(Whole(Integer,               "INTEGER",                            10)),
    Synonym(Whole(Integer,               "INT4",                               10)),
    Whole        (BigInt,                "BIGINT",                             19),
    Synonym(Whole(BigInt,                "INT8",                               19)),
    Whole        (Serial,                "SERIAL",                             10),
    Synonym(Whole(Serial,                "SERIAL4",                            10)),
    Whole        (BigInt,                "BIGSERIAL",                          19),
    Synonym(Whole(BigInt,                "SERIAL8",                            19)),
    Whole        (Real,                  "REAL",                               24),
    Synonym(Whole(Real,                  "FLOAT4",                             24)),
    Whole        (Double,                "DOUBLE PRECISION",                   53),
    Synonym(Whole(Double,                "FLOAT8",                             53)),
    Fixed        (Money,                 "MONEY",                              19,  2),
    Plain        (Date,                  "DATE",                               10),
    Timed        (Timestamp,             "TIMESTAMP()",                        26,  0,  6),
    Timed        (TimestampZone,         "TIMESTAMPTZ",                        32,  6,  6, ""),
    Timed        (Timestamp,             "TIMESTAMP",                          26,  6,  6, ""),
    Synonym(Timed(TimestampZone,         "TIMESTAMP WITH TIME ZONE",           32,  6,  6, "")),
    Timed        (TimestampZone,         "TIMESTAMP() WITH TIME ZONE",         32,  0,  6),
    Timed        (Time,                  "TIME()",                             15,  0,  6),
    Timed        (TimeZone,              "TIME() WITH TIME ZONE",              21,  0,  6),
    Timed        (TimeZone,              "TIMETZ",                             21,  6,  6, ""),
    Timed        (IntervalDayToFraction, "INTERVAL()",                         49,  0,  6),
};
// clang-format on
static_assert(std::size(kRows) == 39);

} // namespace

constinit const SDataTypeTable kAntsDataTypes = MakeDataTypeTable<kRows>();
