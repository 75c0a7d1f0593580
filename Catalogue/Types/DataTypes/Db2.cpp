// DB2's types for Linux, Unix and Windows as for z/OS: each limit is the larger one of the two. The rungs of
// a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type  name                             size
    Sized(           0, "CHAR",                            255),
    Synonym(Sized(   0, "CHARACTER",                       255)),
    Sized(           1, "DATALINK",                        200),
    Sized(           1, "VARCHAR",                       32704),
    Synonym(Sized(   1, "CHARACTER VARYING",             32704)),
    Plain(           4, "LONG VARCHAR",                  32704),
    Sized(           7, "CLOB",                     2147483647),
    Sized(           8, "GRAPHIC",                         127),
    Sized(           9, "VARGRAPHIC",                    16352),
    Plain(          10, "LONG VARGRAPHIC",               16352),
    Sized(          10, "DBCLOB",                   1073741823),
    Sized(          16, "CHAR() FOR BIT DATA",             255),
    Synonym(Sized(  16, "CHARACTER() FOR BIT DATA",        255)),
    Sized(          16, "BINARY",                          255),
    Sized(          17, "VARCHAR() FOR BIT DATA",        32704),
    Sized(          17, "VARBINARY",                     32704),
    Sized(          23, "BLOB",                     2147483647),
    Scaled(         25, "DECIMAL",                          31,  0, 31),
    Synonym(Scaled( 25, "DEC",                              31,  0, 31)),
    Scaled(         26, "NUMERIC",                          31,  0, 31),
    Whole(          34, "SMALLINT",                          5),
    Whole(          35, "INTEGER",                          10),
    Synonym(Whole(  35, "INT",                              10)),
    Whole(          37, "BIGINT",                           19),
    Whole(          42, "REAL",                             24),
    Precise(        42, "FLOAT",                            24),
    Precise(        46, "FLOAT",                            53),
    Whole(          46, "DOUBLE",                           53),
    Scaled(        137, "DECFLOAT",                         34, 34, 34, "SCALE"),
    Plain(          48, "DATE",                             10),
    Plain(          49, "TIME",                              8),
    Timed(          53, "TIMESTAMP",                        32,  0, 12),
    Plain(         110, "XML",                      2147483647),
    Plain(          28, "BOOLEAN",                           1),
};
// clang-format on
static_assert(std::size(kRows) == 34);

} // namespace

constinit const SDataTypeTable kDb2DataTypes = MakeDataTypeTable<kRows>();
