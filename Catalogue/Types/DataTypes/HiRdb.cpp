// HiRDB's types: limits in bytes. MCHAR and MVARCHAR mix characters of one and more bytes. The rungs of a
// name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//               type  name                             size
    Sized(          8, "MCHAR",                         30000),
    Sized(          0, "CHARACTER",                     30000),
    Sized(          1, "DATALINK",                        200),
    Sized(          1, "CHARACTER VARYING",             32000),
    Sized(          9, "MVARCHAR",                      32000),
    Plain(          4, "LONG VARCHAR",                  32000),
    Sized(         17, "BINARY",                        32000),
    Sized(         20, "BINARY",                   2147483647),
    Sized(         23, "BLOB",                     2147483647),
    Sized(          8, "GRAPHIC",                       15000),
    Sized(         16, "CHAR() FOR BIT DATA",           30000),
    Synonym(Sized( 16, "CHARACTER() FOR BIT DATA",      30000)),
    Sized(         17, "VARCHAR() FOR BIT DATA",        32000),
    Scaled(        14, "NUMERIC",                           2, 0,  0),
    Scaled(        34, "NUMERIC",                           4, 0,  0),
    Scaled(        14, "NUMERIC",                           9, 0,  0),
    Scaled(        37, "NUMERIC",                          18, 0,  0),
    Scaled(        26, "NUMERIC",                          38, 0, 38),
    Whole(         34, "SMALLINT",                          5),
    Whole(         35, "INTEGER",                          10),
    Synonym(Whole( 35, "INT",                              10)),
    Scaled(        14, "DEC",                               2, 0,  0),
    Scaled(        34, "DEC",                               4, 0,  0),
    Scaled(        14, "DEC",                               9, 0,  0),
    Scaled(        37, "DEC",                              18, 0,  0),
    Scaled(        25, "DEC",                              38, 0, 38),
    Plain(         29, "ROWID",                            18),
    Plain(         30, "UROWID",                           18),
    Whole(         42, "REAL",                             24),
    Synonym(Whole( 42, "SMALLFLT",                         24)),
    Whole(         43, "FLOAT",                            53),
    Whole(         46, "FLOAT",                            53),
    Whole(         46, "DOUBLE",                           53),
    Timed(         52, "TIMESTAMP",                        19, 0,  0),
    Timed(         53, "TIMESTAMP",                        26, 0,  6),
    Plain(         62, "INTERVAL YEAR TO DAY",             11),
    Plain(         71, "INTERVAL HOUR TO SECOND",           9),
    Plain(         48, "DATE",                             10),
    Plain(         49, "TIME",                              8),
    Plain(        110, "XML",                      2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kHiRdbDataTypes = MakeDataTypeTable<kRows>();
