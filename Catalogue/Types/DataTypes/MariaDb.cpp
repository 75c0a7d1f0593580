// MariaDB's types; the limits are those of release 10.6. VARCHAR and VARBINARY share the 65535 bytes of a
// row, national ones at three bytes a character. REAL is a double there, and so is FLOAT from 25 binary
// digits on. DATETIME is written without its fraction's digits unless there are some.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type           name                      size
    Sized        (Char,          "CHAR",                    255),
    Sized        (VarChar,       "VARCHAR",               65535),
    Sized        (VarWChar,      "NVARCHAR",              21844),
    Plain        (Text,          "TINYTEXT",                255),
    Plain        (Text,          "TEXT",                  65535),
    Plain        (Text,          "MEDIUMTEXT",         16777215),
    Plain        (Text,          "LONGTEXT",         4294967295),
    Sized        (WChar,         "NATIONAL CHAR",           255),
    Synonym(Sized(VarWChar,      "NATIONAL VARCHAR",      21844)),
    Sized        (Char,          "CHAR() BINARY",           255),
    Sized        (Binary,        "BINARY",                  255),
    Sized        (VarBinary,     "VARBINARY",             65535),
    Sized        (VarChar,       "VARCHAR() BINARY",      65535),
    Plain        (LongVarBinary, "LONG VARBINARY",     16777215),
    Plain        (Blob,          "TINYBLOB",                255),
    Plain        (Blob,          "BLOB",                  65535),
    Plain        (Blob,          "MEDIUMBLOB",         16777215),
    Plain        (Blob,          "LONGBLOB",         4294967295),
    Scaled       (Decimal,       "DECIMAL",                  65,  0, 38),
    Scaled       (Numeric,       "NUMERIC",                  65,  0, 38),
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
static_assert(std::size(kRows) == 37);

} // namespace

constinit const SDataTypeTable kMariaDbDataTypes = MakeDataTypeTable<kRows>();
