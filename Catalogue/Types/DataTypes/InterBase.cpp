// InterBase and Firebird.
// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// InterBase. Lengths are bytes; in UTF-8 the first rung of CHAR and VARCHAR is sure. Decimal numbers have 16
// bits up to 4 digits, 32 up to 9 and 64 up to 18; dialect 1 takes a DOUBLE PRECISION for 10 to 15 digits.
// clang-format off
constexpr SDataTypeParams kInterBaseRows[] = {
//                type       name                                size  scale
    Sized        (Char,      "CHAR",                             8191),
    Sized        (Char,      "CHAR",                            32767),
    Sized        (VarChar,   "VARCHAR",                          8191),
    Sized        (VarChar,   "VARCHAR",                         32765),
    Plain        (Text,      "CLOB",                       2147483647),
    Plain        (Blob,      "BLOB",                       2147483647),
    Sized        (WChar,     "NCHAR",                           32767),
    Synonym(Sized(WChar,     "NATIONAL CHARACTER",              32767)),
    Synonym(Sized(WChar,     "NATIONAL CHAR",                   32767)),
    Sized        (VarWChar,  "NCHAR VARYING",                   32765),
    Synonym(Sized(VarWChar,  "NATIONAL CHARACTER VARYING",      32765)),
    Synonym(Sized(VarWChar,  "NATIONAL CHAR VARYING",           32765)),
    Plain        (Boolean,   "BOOLEAN",                             1),
    Whole        (SmallInt,  "SMALLINT",                            5),
    Whole        (Integer,   "INT",                                10),
    Synonym(Whole(Integer,   "INTEGER",                            10)),
    Whole        (Real,      "FLOAT",                              24),
    Whole        (Double,    "DOUBLE PRECISION",                   53),
    Scaled       (Decimal,   "DECIMAL",                             4, 0,  4),
    Scaled       (Decimal,   "DECIMAL",                             9, 0,  9),
    Scaled       (Decimal,   "DECIMAL",                            15, 0, 15),
    Scaled       (Decimal,   "DECIMAL",                            18, 0, 18),
    Scaled       (Numeric,   "NUMERIC",                             4, 0,  4),
    Scaled       (Numeric,   "NUMERIC",                             9, 0,  9),
    Scaled       (Numeric,   "NUMERIC",                            15, 0, 15),
    Scaled       (Numeric,   "NUMERIC",                            18, 0, 18),
    Plain        (Date,      "DATE",                               10),
    Timed        (Timestamp, "TIMESTAMP",                          24, 4,  4, ""),
    Timed        (Time,      "TIME",                               13, 4,  4, ""),
};
// clang-format on
static_assert(std::size(kInterBaseRows) == 29);

// Firebird 4. Lengths are bytes; in UTF-8 the first rung of CHAR and VARCHAR is sure. Decimal numbers have 16
// bits up to 4 digits, 32 up to 9, 64 up to 18, then 128; dialect 1 takes a DOUBLE PRECISION for 10 to 15.
// clang-format off
constexpr SRowChange kFirebirdChanges[] = {
//                type       name                                size  scale
    Scaled       (Decimal,   "DECIMAL",                             4, 0,  4),
    Scaled       (Decimal,   "DECIMAL",                             9, 0,  9),
    Scaled       (Decimal,   "DECIMAL",                            15, 0, 15),
    Scaled       (Decimal,   "DECIMAL",                            18, 0, 18),
    Scaled       (Decimal,   "DECIMAL",                            38, 0, 38),
    Scaled       (Numeric,   "NUMERIC",                             4, 0,  4),
    Scaled       (Numeric,   "NUMERIC",                             9, 0,  9),
    Scaled       (Numeric,   "NUMERIC",                            15, 0, 15),
    Scaled       (Numeric,   "NUMERIC",                            18, 0, 18),
    Scaled       (Numeric,   "NUMERIC",                            38, 0, 38),
    After("CLOB"),
    Plain        (BlobText,  "BLOB SUB_TYPE TEXT",         2147483647),
    After("INTEGER"),
    Whole        (BigInt,    "INT64",                              19),
    Synonym(Whole(BigInt,    "BIGINT",                             19)),
};
// clang-format on
constexpr auto kFirebirdRows = NewerTypes<kInterBaseRows, kFirebirdChanges>();
static_assert(std::size(kFirebirdRows) == 34);

} // namespace

constinit const SDataTypeTable kInterBaseDataTypes = MakeDataTypeTable<kInterBaseRows>();
constinit const SDataTypeTable kFirebirdDataTypes = MakeDataTypeTable<kFirebirdRows>();
