// The types of DB2 for i: limits of columns that may be null. The rungs of a name climb, and its last rung
// takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type          name                           size
    Sized         (Char,         "CHAR",                        32765),
    Synonym(Sized (Char,         "CHARACTER",                   32765)),
    Sized         (VarChar,      "DATALINK",                    32717),
    Sized         (VarChar,      "VARCHAR",                     32739),
    Synonym(Sized (VarChar,      "CHARACTER VARYING",           32739)),
    Plain         (LongVarChar,  "LONG VARCHAR",                32739),
    Sized         (Text,         "CLOB",                   2147483647),
    Sized         (WChar,        "GRAPHIC",                     16382),
    Sized         (VarWChar,     "VARGRAPHIC",                  16369),
    Plain         (LongVarWChar, "LONG VARGRAPHIC",             16369),
    Sized         (LongVarWChar, "DBCLOB",                 1073741823),
    Sized         (Binary,       "BINARY",                      32765),
    Sized         (VarBinary,    "VARBINARY",                   32739),
    Sized         (Blob,         "BLOB",                   2147483647),
    Sized         (Binary,       "CHAR() FOR BIT DATA",         32765),
    Sized         (VarBinary,    "VARCHAR() FOR BIT DATA",      32739),
    Scaled        (Decimal,      "DECIMAL",                        63, 0, 63),
    Synonym(Scaled(Decimal,      "DEC",                            63, 0, 63)),
    Scaled        (Numeric,      "NUMERIC",                        63, 0, 63),
    Whole         (SmallInt,     "SMALLINT",                        5),
    Whole         (Integer,      "INTEGER",                        10),
    Synonym(Whole (Integer,      "INT",                            10)),
    Whole         (BigInt,       "BIGINT",                         19),
    Whole         (Real,         "REAL",                           24),
    Precise       (Float,        "FLOAT",                          24),
    Precise       (Double,       "FLOAT",                          53),
    Whole         (Double,       "DOUBLE",                         53),
    Plain         (Date,         "DATE",                           10),
    Plain         (Time,         "TIME",                            8),
    Timed         (Timestamp,    "TIMESTAMP",                      32, 0, 12),
    Plain         (Xml,          "XML",                    2147483647),
    Plain         (RowId,        "ROWID",                          40),
    Plain         (Boolean,      "BOOLEAN",                         1),
};
// clang-format on
static_assert(std::size(kRows) == 33);

} // namespace

constinit const SDataTypeTable kDb2ForIDataTypes = MakeDataTypeTable<kRows>();
