// The databases built on PostgreSQL that keep its types and their limits up to 14.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type  name                              size  scale
    Sized           (  0, "CHAR",                         10485760),
    Synonym(Sized   (  0, "CHARACTER",                    10485760)),
    Sized           (  1, "VARCHAR",                      10485760),
    Synonym(Sized   (  1, "CHARACTER VARYING",            10485760)),
    Plain           (  7, "TEXT",                       1073741823),
    Plain           ( 23, "BYTEA",                      1073741823),
    Scaled          ( 25, "DECIMAL",                          1000,    0, 1000),
    Scaled          ( 26, "NUMERIC",                          1000,    0, 1000),
    Plain           ( 28, "BOOLEAN",                             1),
    Synonym(Plain   ( 28, "BOOL",                                1)),
    Sized           ( 27, "BIT",                          83886080),
    Sized           ( 22, "VARBIT",                       83886080),
    Synonym(Sized   ( 22, "BIT VARYING",                  83886080)),
    Whole           ( 34, "SMALLINT",                            5),
    Synonym(Whole   ( 34, "INT2",                                5)),
    Whole           ( 35, "INT",                                10),
    Synonym(Whole   ( 35, "INTEGER",                            10)),
    Synonym(Whole   ( 35, "INT4",                               10)),
    Whole           ( 37, "BIGINT",                             19),
    Synonym(Whole   ( 37, "INT8",                               19)),
    Whole           (129, "SERIAL",                             10),
    Synonym(Whole   (129, "SERIAL4",                            10)),
    Whole           ( 37, "BIGSERIAL",                          19),
    Synonym(Whole   ( 37, "SERIAL8",                            19)),
    Whole           ( 42, "REAL",                               24),
    Synonym(Whole   ( 42, "FLOAT4",                             24)),
    Whole           ( 46, "DOUBLE PRECISION",                   53),
    Synonym(Whole   ( 46, "FLOAT8",                             53)),
    Fixed           ( 59, "MONEY",                              19,    2),
    Plain           ( 48, "DATE",                               10),
    Timed           ( 53, "TIMESTAMP()",                        26,    0,    6),
    Timed           ( 54, "TIMESTAMPTZ",                        32,    6,    6, ""),
    Timed           ( 53, "TIMESTAMP",                          26,    6,    6, ""),
    Synonym(Timed   ( 54, "TIMESTAMP WITH TIME ZONE",           32,    6,    6, "")),
    Timed           ( 54, "TIMESTAMP() WITH TIME ZONE",         32,    0,    6),
    Timed           ( 49, "TIME()",                             15,    0,    6),
    Timed           ( 56, "TIME() WITH TIME ZONE",              21,    0,    6),
    Timed           ( 56, "TIMETZ",                             21,    6,    6, ""),
    Timed           ( 49, "TIME",                               15,    6,    6, ""),
    Timed           ( 68, "INTERVAL()",                         49,    0,    6),
    Plain           (103, "UUID",                               36),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kPostgreSqlForkDataTypes = MakeDataTypeTable<kRows>();
