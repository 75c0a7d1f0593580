// PostgreSQL: the limits of 15, the first with negative scales. What has no limit of its own ends at 1 GB.
// NUMERIC without parameters is a decimal number of any scale: 131072 digits and 16383 behind the point.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type  name                                   size  scale
    Sized           (  0, "CHAR",                              10485760),
    Synonym(Sized   (  0, "CHARACTER",                         10485760)),
    Sized           (  1, "VARCHAR",                           10485760),
    Synonym(Sized   (  1, "CHARACTER VARYING",                 10485760)),
    Plain           (  7, "TEXT",                            1073741823),
    Plain           ( 23, "BYTEA",                           1073741823),
    Sized           (  9, "NVARCHAR",                          10485760),
    Plain           (110, "XML",                             1073741823),
    Scaled          ( 25, "DECIMAL",                               1000, -1000,  1000),
    Scaled          ( 26, "NUMERIC",                               1000, -1000,  1000),
    Whole           (137, "NUMERIC",                             147455),
    Plain           ( 28, "BOOLEAN",                                  1),
    Synonym(Plain   ( 28, "BOOL",                                     1)),
    Sized           ( 27, "BIT",                               83886080),
    Sized           ( 22, "VARBIT",                            83886080),
    Synonym(Sized   ( 22, "BIT VARYING",                       83886080)),
    Whole           ( 34, "SMALLINT",                                 5),
    Synonym(Whole   ( 34, "INT2",                                     5)),
    Whole           ( 35, "INT",                                     10),
    Synonym(Whole   ( 35, "INTEGER",                                 10)),
    Synonym(Whole   ( 35, "INT4",                                    10)),
    Whole           ( 37, "BIGINT",                                  19),
    Synonym(Whole   ( 37, "INT8",                                    19)),
    Whole           (129, "SERIAL",                                  10),
    Synonym(Whole   (129, "SERIAL4",                                 10)),
    Whole           ( 37, "BIGSERIAL",                               19),
    Synonym(Whole   ( 37, "SERIAL8",                                 19)),
    Whole           (113, "SMALLSERIAL",                              5),
    Whole           ( 42, "REAL",                                    24),
    Synonym(Whole   ( 42, "FLOAT4",                                  24)),
    Whole           ( 46, "DOUBLE PRECISION",                        53),
    Synonym(Whole   ( 46, "FLOAT8",                                  53)),
    Fixed           ( 59, "MONEY",                                   19,     2),
    Plain           ( 48, "DATE",                                    10),
    Timed           ( 53, "TIMESTAMP()",                             26,     0,     6),
    Timed           ( 54, "TIMESTAMPTZ",                             32,     6,     6, ""),
    Timed           ( 53, "TIMESTAMP",                               26,     6,     6, ""),
    Synonym(Timed   ( 54, "TIMESTAMP WITH TIME ZONE",                32,     6,     6, "")),
    Timed           ( 54, "TIMESTAMP() WITH TIME ZONE",              32,     0,     6),
    Timed           ( 49, "TIME()",                                  15,     0,     6),
    Timed           ( 56, "TIME() WITH TIME ZONE",                   21,     0,     6),
    Timed           ( 56, "TIMETZ",                                  21,     6,     6, ""),
    Timed           ( 49, "TIME",                                    15,     6,     6, ""),
    Timed           ( 68, "INTERVAL()",                              49,     0,     6),
    Plain           (103, "UUID",                                    36),
    Whole           (104, "OID",                                     10),
    Plain           (114, "INTEGER[]",                       1073741823),
    Sized           (116, "CHARACTER()[]",                     10485760),
    Sized           (117, "CHARACTER VARYING()[]",             10485760),
    Scaled          (118, "NUMERIC()[]",                           1000, -1000,  1000),
    Sized           (119, "BIT()[]",                           83886080),
    Sized           (120, "BIT VARYING()[]",                   83886080),
    Timed           (121, "TIMESTAMP() WITHOUT TIME ZONE[]", 1073741823,     0,     6),
    Timed           (122, "TIME() WITHOUT TIME ZONE[]",      1073741823,     0,     6),
    Plain           (107, "GEOMETRY",                        1073741823),
    Plain           (108, "GEOGRAPHY",                       1073741823),
    Plain           (138, "POINT",                                   51),
    Plain           (139, "POLYGON",                         1073741823),
    Plain           (127, "JSON",                            1073741823),
    Plain           (128, "JSONB",                            268435455),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kPostgreSqlDataTypes = MakeDataTypeTable<kRows>();
