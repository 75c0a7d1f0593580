// The types of DB2 for i: limits of columns that may be null. The rungs of a name climb, and its last rung
// takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type  name                           size
    Sized(           0, "CHAR",                        32765),
    Synonym(Sized(   0, "CHARACTER",                   32765)),
    Sized(           1, "DATALINK",                    32717),
    Sized(           1, "VARCHAR",                     32739),
    Synonym(Sized(   1, "CHARACTER VARYING",           32739)),
    Plain(           4, "LONG VARCHAR",                32739),
    Sized(           7, "CLOB",                   2147483647),
    Sized(           8, "GRAPHIC",                     16382),
    Sized(           9, "VARGRAPHIC",                  16369),
    Plain(          10, "LONG VARGRAPHIC",             16369),
    Sized(          10, "DBCLOB",                 1073741823),
    Sized(          16, "BINARY",                      32765),
    Sized(          17, "VARBINARY",                   32739),
    Sized(          23, "BLOB",                   2147483647),
    Sized(          16, "CHAR() FOR BIT DATA",         32765),
    Sized(          17, "VARCHAR() FOR BIT DATA",      32739),
    Scaled(         25, "DECIMAL",                        63, 0, 63),
    Synonym(Scaled( 25, "DEC",                            63, 0, 63)),
    Scaled(         26, "NUMERIC",                        63, 0, 63),
    Whole(          34, "SMALLINT",                        5),
    Whole(          35, "INTEGER",                        10),
    Synonym(Whole(  35, "INT",                            10)),
    Whole(          37, "BIGINT",                         19),
    Whole(          42, "REAL",                           24),
    Precise(        43, "FLOAT",                          24),
    Precise(        46, "FLOAT",                          53),
    Whole(          46, "DOUBLE",                         53),
    Plain(          48, "DATE",                           10),
    Plain(          49, "TIME",                            8),
    Timed(          53, "TIMESTAMP",                      32, 0, 12),
    Plain(         110, "XML",                    2147483647),
    Plain(          29, "ROWID",                          40),
    Plain(          28, "BOOLEAN",                         1),
};
// clang-format on
static_assert(std::size(kRows) == 33);

} // namespace

constinit const SDataTypeTable kDb2ForIDataTypes = MakeDataTypeTable<kRows>();
