// Redshift. Lengths are bytes, a TEXT is a VARCHAR(256), a BYTEA what VARBYTE takes. The bit, money, serial
// and array types are read in scripts only.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type  name                                size  scale
    Sized           (  0, "CHAR",                               4096),
    Synonym(Sized   (  0, "CHARACTER",                          4096)),
    Sized           (  1, "VARCHAR",                           65535),
    Synonym(Sized   (  1, "CHARACTER VARYING",                 65535)),
    Plain           (  7, "TEXT",                                256),
    Plain           ( 23, "BYTEA",                           1024000),
    Sized           (  9, "NVARCHAR",                          65535),
    Plain           (110, "XML",                               65535),
    Scaled          ( 25, "DECIMAL",                              38,  0, 37),
    Scaled          ( 26, "NUMERIC",                              38,  0, 37),
    Plain           ( 28, "BOOLEAN",                               1),
    Synonym(Plain   ( 28, "BOOL",                                  1)),
    Sized           ( 27, "BIT",                               64000),
    Sized           ( 22, "VARBIT",                            64000),
    Synonym(Sized   ( 22, "BIT VARYING",                       64000)),
    Whole           ( 34, "SMALLINT",                              5),
    Synonym(Whole   ( 34, "INT2",                                  5)),
    Whole           ( 35, "INT",                                  10),
    Synonym(Whole   ( 35, "INTEGER",                              10)),
    Synonym(Whole   ( 35, "INT4",                                 10)),
    Whole           ( 37, "BIGINT",                               19),
    Synonym(Whole   ( 37, "INT8",                                 19)),
    Whole           (129, "SERIAL",                               10),
    Synonym(Whole   (129, "SERIAL4",                              10)),
    Whole           ( 37, "BIGSERIAL",                            19),
    Synonym(Whole   ( 37, "SERIAL8",                              19)),
    Whole           ( 42, "REAL",                                 24),
    Synonym(Whole   ( 42, "FLOAT4",                               24)),
    Whole           ( 46, "DOUBLE PRECISION",                     53),
    Synonym(Whole   ( 46, "FLOAT8",                               53)),
    Fixed           ( 59, "MONEY",                                19,  2),
    Plain           ( 48, "DATE",                                 10),
    Timed           ( 53, "TIMESTAMP()",                          26,  0,  6),
    Timed           ( 54, "TIMESTAMPTZ",                          32,  6,  6, ""),
    Timed           ( 53, "TIMESTAMP",                            26,  6,  6, ""),
    Synonym(Timed   ( 54, "TIMESTAMP WITH TIME ZONE",             32,  6,  6, "")),
    Timed           ( 54, "TIMESTAMP() WITH TIME ZONE",           32,  0,  6),
    Timed           ( 49, "TIME()",                               15,  0,  6),
    Timed           ( 56, "TIME() WITH TIME ZONE",                21,  0,  6),
    Timed           ( 56, "TIMETZ",                               21,  6,  6, ""),
    Timed           ( 49, "TIME",                                 15,  6,  6, ""),
    Timed           ( 68, "INTERVAL()",                           49,  0,  6),
    Plain           (103, "UUID",                                 36),
    Whole           (104, "OID",                                  10),
    Plain           (114, "INTEGER[]",                           256),
    Sized           (116, "CHARACTER()[]",                      4096),
    Sized           (117, "CHARACTER VARYING()[]",             65535),
    Scaled          (118, "NUMERIC()[]",                          38,  0, 37),
    Sized           (119, "BIT()[]",                           64000),
    Sized           (120, "BIT VARYING()[]",                   64000),
    Timed           (121, "TIMESTAMP() WITHOUT TIME ZONE[]",      26,  0,  6),
    Timed           (122, "TIME() WITHOUT TIME ZONE[]",           15,  0,  6),
};
// clang-format on
static_assert(std::size(kRows) == 52);

} // namespace

constinit const SDataTypeTable kRedshiftDataTypes = MakeDataTypeTable<kRows>();
