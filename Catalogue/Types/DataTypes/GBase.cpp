// The types of GBase 8a, by which Ingres is read and written too. Where Ingres has more room (CHAR, VARCHAR,
// their national twins, BINARY, VARBINARY and the 2 GiB of LONGTEXT and LONGBLOB) its limits stand, otherwise
// those of GBase.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type           name                      size
    Sized        (Char,          "CHAR",                  32000),
    Sized        (VarChar,       "VARCHAR",               32000),
    Plain        (Text,          "TINYTEXT",                255),
    Plain        (Text,          "TEXT",                  32767),
    Plain        (Text,          "MEDIUMTEXT",         16777215),
    Plain        (Text,          "LONGTEXT",         2147483647),
    Sized        (WChar,         "NATIONAL CHAR",         16000),
    Sized        (VarWChar,      "NATIONAL VARCHAR",      16000),
    Sized        (Char,          "CHAR() BINARY",           255),
    Sized        (Binary,        "BINARY",                32000),
    Sized        (VarBinary,     "VARBINARY",             32000),
    Sized        (VarChar,       "VARCHAR() BINARY",      10922),
    Plain        (LongVarBinary, "LONG VARBINARY",     16777215),
    Plain        (Blob,          "TINYBLOB",                255),
    Plain        (Blob,          "BLOB",                  32767),
    Plain        (Blob,          "MEDIUMBLOB",         16777215),
    Plain        (Blob,          "LONGBLOB",         2147483647),
    Scaled       (Decimal,       "DECIMAL",                  65,  0, 30),
    Scaled       (Numeric,       "NUMERIC",                  65,  0, 30),
    Sized        (Bit,           "BIT",                      64),
    Plain        (Boolean,       "BOOLEAN",                   1),
    Synonym(Plain(Boolean,       "BOOL",                      1)),
    Whole        (TinyInt,       "TINYINT",                   3),
    Whole        (SmallInt,      "SMALLINT",                  5),
    Whole        (Integer,       "MEDIUMINT",                 7),
    Whole        (Integer,       "INT",                      10),
    Synonym(Whole(Integer,       "INTEGER",                  10)),
    Whole        (BigInt,        "BIGINT",                   19),
    Whole        (Double,        "REAL",                     53),
    Whole        (Float,         "FLOAT",                    53),
    Whole        (Double,        "DOUBLE",                   53),
    Synonym(Whole(Double,        "DOUBLE PRECISION",         53)),
    Plain        (Date,          "DATE",                     10),
    Timed        (Time,          "TIME",                     17,  0,  6),
    Timed        (Timestamp,     "DATETIME",                 26,  0,  6, ""),
    Timed        (Timestamp,     "TIMESTAMP",                26,  0,  6),
};
// clang-format on
static_assert(std::size(kRows) == 36);

} // namespace

constinit const SDataTypeTable kGBaseDataTypes = MakeDataTypeTable<kRows>();
