// NuoDB's types. The rungs of a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//               type  name                             size
    Sized(          0, "CHAR",                          32767),
    Synonym(Sized(  0, "CHARACTER",                     32767)),
    Sized(          1, "DATALINK",                      32767),
    Sized(          1, "VARCHAR",                       32767),
    Synonym(Sized(  1, "CHARACTER VARYING",             32767)),
    Plain(          4, "LONG VARCHAR",             2147483647),
    Plain(          7, "CLOB",                     2147483647),
    Sized(          8, "NCHAR",                         32767),
    Sized(          9, "NVARCHAR",                      32767),
    Sized(         16, "BINARY",                        32767),
    Sized(         17, "VARBINARY",                     32767),
    Sized(          8, "GRAPHIC",                       16383),
    Sized(          9, "VARGRAPHIC",                    16383),
    Plain(         10, "LONG VARGRAPHIC",          1073741823),
    Plain(         10, "DBCLOB",                   1073741823),
    Sized(         16, "CHAR() FOR BIT DATA",           32767),
    Synonym(Sized( 16, "CHARACTER() FOR BIT DATA",      32767)),
    Sized(         17, "VARCHAR() FOR BIT DATA",        32767),
    Plain(         23, "BLOB",                     2147483647),
    Scaled(        25, "DECIMAL",                          38, 0, 38),
    Scaled(        26, "NUMERIC",                          38, 0, 38),
    Whole(         34, "SMALLINT",                          5),
    Whole(         35, "INTEGER",                          10),
    Synonym(Whole( 35, "INT",                              10)),
    Whole(         37, "BIGINT",                           19),
    Whole(         42, "REAL",                             24),
    Precise(       43, "FLOAT",                            24),
    Precise(       46, "FLOAT",                            53),
    Whole(         46, "DOUBLE",                           53),
    Plain(         48, "DATE",                             10),
    Timed(         49, "TIME",                             18, 0,  9),
    Timed(         53, "TIMESTAMP",                        29, 0,  9),
    Plain(        110, "XML",                      2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 33);

} // namespace

constinit const SDataTypeTable kNuoDbDataTypes = MakeDataTypeTable<kRows>();
