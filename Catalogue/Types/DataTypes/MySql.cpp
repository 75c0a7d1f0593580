// MySQL's types and SingleStore's; the limits are those of MySQL 8.0. VARCHAR and VARBINARY share the 65535
// bytes of a row, national ones at three bytes a character. REAL is a double there, and so is FLOAT from 25
// binary digits on. DATETIME is written without its fraction's digits unless there are some.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type name                        size
    Sized(          0, "CHAR",                      255),
    Sized(          1, "VARCHAR",                 65535),
    Plain(          7, "TINYTEXT",                  255),
    Plain(          7, "TEXT",                    65535),
    Plain(          7, "MEDIUMTEXT",           16777215),
    Plain(          7, "LONGTEXT",           4294967295),
    Sized(          8, "NATIONAL CHAR",             255),
    Sized(          9, "NATIONAL VARCHAR",        21844),
    Synonym(Sized(  8, "NCHAR",                     255)),
    Synonym(Sized(  9, "NVARCHAR",                21844)),
    Sized(          0, "CHAR() BINARY",             255),
    Sized(         16, "BINARY",                    255),
    Sized(         17, "VARBINARY",               65535),
    Sized(          1, "VARCHAR() BINARY",        65535),
    Plain(         20, "LONG VARBINARY",       16777215),
    Plain(         23, "TINYBLOB",                  255),
    Plain(         23, "BLOB",                    65535),
    Plain(         23, "MEDIUMBLOB",           16777215),
    Plain(         23, "LONGBLOB",           4294967295),
    Scaled(        25, "DECIMAL",                    65,  0, 30),
    Scaled(        26, "NUMERIC",                    65,  0, 30),
    Sized(         27, "BIT",                        64),
    Plain(         28, "BOOLEAN",                     1),
    Synonym(Plain( 28, "BOOL",                        1)),
    Whole(         33, "TINYINT",                     3),
    Whole(         34, "SMALLINT",                    5),
    Whole(         35, "MEDIUMINT",                   7),
    Whole(         35, "INT",                        10),
    Synonym(Whole( 35, "INTEGER",                    10)),
    Whole(         37, "BIGINT",                     19),
    Whole(         46, "REAL",                       53),
    Whole(         43, "FLOAT",                      53),
    Whole(         46, "DOUBLE",                     53),
    Synonym(Whole( 46, "DOUBLE PRECISION",           53)),
    Plain(         48, "DATE",                       10),
    Timed(         49, "TIME",                       17,  0,  6),
    Timed(         53, "DATETIME",                   26,  0,  6, ""),
    Timed(         53, "TIMESTAMP",                  26,  0,  6),
    Whole(        130, "INTEGER UNSIGNED",           10),
    Whole(        132, "TINYINT UNSIGNED",            3),
    Whole(        131, "SMALLINT UNSIGNED",           5),
    Whole(        133, "MEDIUMINT UNSIGNED",          8),
    Whole(        134, "BIGINT UNSIGNED",            20),
    Plain(        127, "JSON",               4294967295),
};
// clang-format on
static_assert(std::size(kRows) == 44);

} // namespace

constinit const SDataTypeTable kMySqlDataTypes = MakeDataTypeTable<kRows>();
