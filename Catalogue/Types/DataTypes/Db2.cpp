// DB2's types for Linux, Unix and Windows as for z/OS: each limit is the larger one of the two. The rungs of
// a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type          name                             size
    Sized         (Char,         "CHAR",                            255),
    Synonym(Sized (Char,         "CHARACTER",                       255)),
    Sized         (VarChar,      "DATALINK",                        200),
    Sized         (VarChar,      "VARCHAR",                       32704),
    Synonym(Sized (VarChar,      "CHARACTER VARYING",             32704)),
    Plain         (LongVarChar,  "LONG VARCHAR",                  32704),
    Sized         (Text,         "CLOB",                     2147483647),
    Sized         (WChar,        "GRAPHIC",                         127),
    Sized         (VarWChar,     "VARGRAPHIC",                    16352),
    Plain         (LongVarWChar, "LONG VARGRAPHIC",               16352),
    Sized         (LongVarWChar, "DBCLOB",                   1073741823),
    Sized         (Binary,       "CHAR() FOR BIT DATA",             255),
    Synonym(Sized (Binary,       "CHARACTER() FOR BIT DATA",        255)),
    Sized         (Binary,       "BINARY",                          255),
    Sized         (VarBinary,    "VARCHAR() FOR BIT DATA",        32704),
    Sized         (VarBinary,    "VARBINARY",                     32704),
    Sized         (Blob,         "BLOB",                     2147483647),
    Scaled        (Decimal,      "DECIMAL",                          31,  0, 31),
    Synonym(Scaled(Decimal,      "DEC",                              31,  0, 31)),
    Scaled        (Numeric,      "NUMERIC",                          31,  0, 31),
    Whole         (SmallInt,     "SMALLINT",                          5),
    Whole         (Integer,      "INTEGER",                          10),
    Synonym(Whole (Integer,      "INT",                              10)),
    Whole         (BigInt,       "BIGINT",                           19),
    Whole         (Real,         "REAL",                             24),
    Precise       (Real,         "FLOAT",                            24),
    Precise       (Double,       "FLOAT",                            53),
    Whole         (Double,       "DOUBLE",                           53),
    Scaled        (DecFloat,     "DECFLOAT",                         34, 34, 34, "SCALE"),
    Plain         (Date,         "DATE",                             10),
    Plain         (Time,         "TIME",                              8),
    Timed         (Timestamp,    "TIMESTAMP",                        32,  0, 12),
    Plain         (Xml,          "XML",                      2147483647),
    Plain         (Boolean,      "BOOLEAN",                           1),
};
// clang-format on
static_assert(std::size(kRows) == 34);

} // namespace

constinit const SDataTypeTable kDb2DataTypes = MakeDataTypeTable<kRows>();
