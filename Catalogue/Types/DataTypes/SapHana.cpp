// SAP HANA's types: limits of column tables. TINYINT has no sign. The rungs of a name climb, and its last
// rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type          name                             size
    Sized        (Char,         "CHAR",                           2000),
    Synonym(Sized(Char,         "CHARACTER",                      2000)),
    Sized        (VarChar,      "DATALINK",                       5000),
    Sized        (VarChar,      "VARCHAR",                        5000),
    Synonym(Sized(VarChar,      "CHARACTER VARYING",              5000)),
    Plain        (LongVarChar,  "LONG VARCHAR",             2147483647),
    Plain        (Text,         "CLOB",                     2147483647),
    Sized        (UniChar,      "UNICHAR",                        2000),
    Sized        (UniVarChar,   "UNIVARCHAR",                     5000),
    Plain        (UniText,      "UNITEXT",                  1073741823),
    Sized        (WChar,        "NCHAR",                          2000),
    Sized        (VarWChar,     "NVARCHAR",                       5000),
    Sized        (WChar,        "GRAPHIC",                        2000),
    Sized        (VarWChar,     "VARGRAPHIC",                     5000),
    Plain        (LongVarWChar, "LONG VARGRAPHIC",          1073741823),
    Plain        (LongVarWChar, "DBCLOB",                   1073741823),
    Sized        (Binary,       "CHAR() FOR BIT DATA",            2000),
    Synonym(Sized(Binary,       "CHARACTER() FOR BIT DATA",       2000)),
    Sized        (VarBinary,    "VARCHAR() FOR BIT DATA",         5000),
    Sized        (VarBinary,    "VARBINARY",                      5000),
    Plain        (Blob,         "BLOB",                     2147483647),
    Scaled       (Decimal,      "DECIMAL",                          38, 0, 38),
    Scaled       (Numeric,      "NUMERIC",                          38, 0, 38),
    Whole        (UTinyInt,     "TINYINT",                           3),
    Whole        (SmallInt,     "SMALLINT",                          5),
    Whole        (Integer,      "INTEGER",                          10),
    Synonym(Whole(Integer,      "INT",                              10)),
    Whole        (BigInt,       "BIGINT",                           19),
    Whole        (Real,         "REAL",                             24),
    Precise      (Float,        "FLOAT",                            24),
    Precise      (Double,       "FLOAT",                            53),
    Whole        (Double,       "DOUBLE",                           53),
    Plain        (Date,         "DATE",                             10),
    Plain        (Time,         "TIME",                              8),
    Timed        (Timestamp,    "TIMESTAMP",                        27, 0,  7, ""),
    Plain        (Xml,          "XML",                      2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 36);

} // namespace

constinit const SDataTypeTable kSapHanaDataTypes = MakeDataTypeTable<kRows>();
