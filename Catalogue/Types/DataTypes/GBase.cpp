// The types of GBase 8a, by which Ingres is read and written too. Where Ingres has more room (CHAR, VARCHAR,
// their national twins, BINARY, VARBINARY and the 2 GiB of LONGTEXT and LONGBLOB) its limits stand, otherwise
// those of GBase.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type name                      size
    Sized(          0, "CHAR",                  32000),
    Sized(          1, "VARCHAR",               32000),
    Plain(          7, "TINYTEXT",                255),
    Plain(          7, "TEXT",                  32767),
    Plain(          7, "MEDIUMTEXT",         16777215),
    Plain(          7, "LONGTEXT",         2147483647),
    Sized(          8, "NATIONAL CHAR",         16000),
    Sized(          9, "NATIONAL VARCHAR",      16000),
    Sized(          0, "CHAR() BINARY",           255),
    Sized(         16, "BINARY",                32000),
    Sized(         17, "VARBINARY",             32000),
    Sized(          1, "VARCHAR() BINARY",      10922),
    Plain(         20, "LONG VARBINARY",     16777215),
    Plain(         23, "TINYBLOB",                255),
    Plain(         23, "BLOB",                  32767),
    Plain(         23, "MEDIUMBLOB",         16777215),
    Plain(         23, "LONGBLOB",         2147483647),
    Scaled(        25, "DECIMAL",                  65,  0, 30),
    Scaled(        26, "NUMERIC",                  65,  0, 30),
    Sized(         27, "BIT",                      64),
    Plain(         28, "BOOLEAN",                   1),
    Synonym(Plain( 28, "BOOL",                      1)),
    Whole(         33, "TINYINT",                   3),
    Whole(         34, "SMALLINT",                  5),
    Whole(         35, "MEDIUMINT",                 7),
    Whole(         35, "INT",                      10),
    Synonym(Whole( 35, "INTEGER",                  10)),
    Whole(         37, "BIGINT",                   19),
    Whole(         46, "REAL",                     53),
    Whole(         43, "FLOAT",                    53),
    Whole(         46, "DOUBLE",                   53),
    Synonym(Whole( 46, "DOUBLE PRECISION",         53)),
    Plain(         48, "DATE",                     10),
    Timed(         49, "TIME",                     17,  0,  6),
    Timed(         53, "DATETIME",                 26,  0,  6, ""),
    Timed(         53, "TIMESTAMP",                26,  0,  6),
};
// clang-format on
static_assert(std::size(kRows) == 36);

} // namespace

constinit const SDataTypeTable kGBaseDataTypes = MakeDataTypeTable<kRows>();
