// MySQL and what speaks its dialect. VARCHAR and VARBINARY share the 65535 bytes of a row, national ones at
// three bytes a character. REAL is a double there, and so is FLOAT from 25 binary digits on. DATETIME is
// written without its fraction's digits unless there are some.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// MySQL's types and SingleStore's; the limits are those of MySQL 8.0.
// clang-format off
constexpr SDataTypeParams kMySqlRows[] = {
//                type               name                        size  scale
    Sized        (Char,              "CHAR",                      255),
    Sized        (VarChar,           "VARCHAR",                 65535),
    Plain        (Text,              "TINYTEXT",                  255),
    Plain        (Text,              "TEXT",                    65535),
    Plain        (Text,              "MEDIUMTEXT",           16777215),
    Plain        (Text,              "LONGTEXT",           4294967295),
    Sized        (WChar,             "NATIONAL CHAR",             255),
    Sized        (VarWChar,          "NATIONAL VARCHAR",        21844),
    Synonym(Sized(WChar,             "NCHAR",                     255)),
    Synonym(Sized(VarWChar,          "NVARCHAR",                21844)),
    Sized        (Char,              "CHAR() BINARY",             255),
    Sized        (Binary,            "BINARY",                    255),
    Sized        (VarBinary,         "VARBINARY",               65535),
    Sized        (VarChar,           "VARCHAR() BINARY",        65535),
    Plain        (LongVarBinary,     "LONG VARBINARY",       16777215),
    Plain        (Blob,              "TINYBLOB",                  255),
    Plain        (Blob,              "BLOB",                    65535),
    Plain        (Blob,              "MEDIUMBLOB",           16777215),
    Plain        (Blob,              "LONGBLOB",           4294967295),
    Scaled       (Decimal,           "DECIMAL",                    65, 0, 30),
    Scaled       (Numeric,           "NUMERIC",                    65, 0, 30),
    Sized        (Bit,               "BIT",                        64),
    Plain        (Boolean,           "BOOLEAN",                     1),
    Synonym(Plain(Boolean,           "BOOL",                        1)),
    Whole        (TinyInt,           "TINYINT",                     3),
    Whole        (SmallInt,          "SMALLINT",                    5),
    Whole        (Integer,           "MEDIUMINT",                   7),
    Whole        (Integer,           "INT",                        10),
    Synonym(Whole(Integer,           "INTEGER",                    10)),
    Whole        (BigInt,            "BIGINT",                     19),
    Whole        (Double,            "REAL",                       53),
    Whole        (Float,             "FLOAT",                      53),
    Whole        (Double,            "DOUBLE",                     53),
    Synonym(Whole(Double,            "DOUBLE PRECISION",           53)),
    Plain        (Date,              "DATE",                       10),
    Timed        (Time,              "TIME",                       17, 0,  6),
    Timed        (Timestamp,         "DATETIME",                   26, 0,  6, ""),
    Timed        (Timestamp,         "TIMESTAMP",                  26, 0,  6),
    Whole        (IntegerUnsigned,   "INTEGER UNSIGNED",           10),
    Whole        (TinyIntUnsigned,   "TINYINT UNSIGNED",            3),
    Whole        (SmallIntUnsigned,  "SMALLINT UNSIGNED",           5),
    Whole        (MediumIntUnsigned, "MEDIUMINT UNSIGNED",          8),
    Whole        (BigIntUnsigned,    "BIGINT UNSIGNED",            20),
    Plain        (Json,              "JSON",               4294967295),
};
// clang-format on
static_assert(std::size(kMySqlRows) == 44);

// MariaDB's types; the limits are those of release 10.6.
// clang-format off
constexpr SRowChange kMariaDbChanges[] = {
//                type               name                        size  scale
    Synonym(Sized(VarWChar,          "NATIONAL VARCHAR",        21844)),
    Scaled       (Decimal,           "DECIMAL",                    65, 0, 38),
    Scaled       (Numeric,           "NUMERIC",                    65, 0, 38),
    After("VARCHAR"),
    Sized        (VarWChar,          "NVARCHAR",                21844),
};
// clang-format on
constexpr std::string_view kMariaDbGone[] = {"NCHAR",
                                             "NVARCHAR",
                                             "INTEGER UNSIGNED",
                                             "TINYINT UNSIGNED",
                                             "SMALLINT UNSIGNED",
                                             "MEDIUMINT UNSIGNED",
                                             "BIGINT UNSIGNED",
                                             "JSON"};
constexpr auto kMariaDbRows = NewerTypes<kMySqlRows, kMariaDbChanges, kMariaDbGone>();
static_assert(std::size(kMariaDbRows) == 37);

// The types of GBase 8a, by which Ingres is read and written too. Where Ingres has more room (CHAR, VARCHAR,
// their national twins, BINARY, VARBINARY and the 2 GiB of LONGTEXT and LONGBLOB) its limits stand, otherwise
// those of GBase.
// clang-format off
constexpr SRowChange kGBaseChanges[] = {
//                type               name                        size  scale
    Sized        (Char,              "CHAR",                    32000),
    Sized        (VarChar,           "VARCHAR",                 32000),
    Plain        (Text,              "TEXT",                    32767),
    Plain        (Text,              "LONGTEXT",           2147483647),
    Sized        (WChar,             "NATIONAL CHAR",           16000),
    Sized        (VarWChar,          "NATIONAL VARCHAR",        16000),
    Sized        (Binary,            "BINARY",                  32000),
    Sized        (VarBinary,         "VARBINARY",               32000),
    Sized        (VarChar,           "VARCHAR() BINARY",        10922),
    Plain        (Blob,              "BLOB",                    32767),
    Plain        (Blob,              "LONGBLOB",           2147483647),
    Scaled       (Decimal,           "DECIMAL",                    65, 0, 30),
    Scaled       (Numeric,           "NUMERIC",                    65, 0, 30),
};
// clang-format on
constexpr std::string_view kGBaseGone[] = {"NVARCHAR"};
constexpr auto kGBaseRows = NewerTypes<kMariaDbRows, kGBaseChanges, kGBaseGone>();
static_assert(std::size(kGBaseRows) == 36);

} // namespace

constinit const SDataTypeTable kMySqlDataTypes = MakeDataTypeTable<kMySqlRows>();
constinit const SDataTypeTable kMariaDbDataTypes = MakeDataTypeTable<kMariaDbRows>();
constinit const SDataTypeTable kGBaseDataTypes = MakeDataTypeTable<kGBaseRows>();
