// NuoDB's types. The rungs of a name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type          name                             size
    Sized        (Char,         "CHAR",                          32767),
    Synonym(Sized(Char,         "CHARACTER",                     32767)),
    Sized        (VarChar,      "DATALINK",                      32767),
    Sized        (VarChar,      "VARCHAR",                       32767),
    Synonym(Sized(VarChar,      "CHARACTER VARYING",             32767)),
    Plain        (LongVarChar,  "LONG VARCHAR",             2147483647),
    Plain        (Text,         "CLOB",                     2147483647),
    Sized        (WChar,        "NCHAR",                         32767),
    Sized        (VarWChar,     "NVARCHAR",                      32767),
    Sized        (Binary,       "BINARY",                        32767),
    Sized        (VarBinary,    "VARBINARY",                     32767),
    Sized        (WChar,        "GRAPHIC",                       16383),
    Sized        (VarWChar,     "VARGRAPHIC",                    16383),
    Plain        (LongVarWChar, "LONG VARGRAPHIC",          1073741823),
    Plain        (LongVarWChar, "DBCLOB",                   1073741823),
    Sized        (Binary,       "CHAR() FOR BIT DATA",           32767),
    Synonym(Sized(Binary,       "CHARACTER() FOR BIT DATA",      32767)),
    Sized        (VarBinary,    "VARCHAR() FOR BIT DATA",        32767),
    Plain        (Blob,         "BLOB",                     2147483647),
    Scaled       (Decimal,      "DECIMAL",                          38, 0, 38),
    Scaled       (Numeric,      "NUMERIC",                          38, 0, 38),
    Whole        (SmallInt,     "SMALLINT",                          5),
    Whole        (Integer,      "INTEGER",                          10),
    Synonym(Whole(Integer,      "INT",                              10)),
    Whole        (BigInt,       "BIGINT",                           19),
    Whole        (Real,         "REAL",                             24),
    Precise      (Float,        "FLOAT",                            24),
    Precise      (Double,       "FLOAT",                            53),
    Whole        (Double,       "DOUBLE",                           53),
    Plain        (Date,         "DATE",                             10),
    Timed        (Time,         "TIME",                             18, 0,  9),
    Timed        (Timestamp,    "TIMESTAMP",                        29, 0,  9),
    Plain        (Xml,          "XML",                      2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 33);

} // namespace

constinit const SDataTypeTable kNuoDbDataTypes = MakeDataTypeTable<kRows>();
