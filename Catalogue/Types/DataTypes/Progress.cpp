#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>
#include <string_view>

namespace {

using namespace UVDBRows;

// Types of the SQL side of Progress databases, release 11.
// clang-format off
constexpr SDataTypeParams kProgressRows[] = {
//                 type           name                        size  scale
    Sized         (Char,          "CHAR",                     2000),
    Synonym(Sized (Char,          "CHARACTER",                2000)),
    Sized         (VarChar,       "VARCHAR",                 31995),
    Synonym(Sized (VarChar,       "CHARACTER VARYING",       31995)),
    Sized         (Binary,        "BINARY",                   2000),
    Sized         (VarBinary,     "VARBINARY",               31982),
    Sized         (LongVarBinary, "LVARBINARY",         1073741823),
    Scaled        (Decimal,       "DECIMAL",                    50, 0, 10),
    Synonym(Scaled(Decimal,       "DEC",                        50, 0, 10)),
    Scaled        (Numeric,       "NUMERIC",                    50, 0, 10),
    Plain         (Bit,           "BIT",                         1),
    Plain         (Boolean,       "LOGICAL",                     1),
    Whole         (TinyInt,       "TINYINT",                     3),
    Whole         (SmallInt,      "SMALLINT",                    5),
    Whole         (Integer,       "INTEGER",                    10),
    Synonym(Whole (Integer,       "INT",                        10)),
    Whole         (BigInt,        "BIGINT",                     19),
    Whole         (Real,          "REAL",                       24),
    Whole         (Float,         "FLOAT",                      53),
    Whole         (Double,        "DOUBLE",                     53),
    Plain         (Date,          "DATE",                       10),
    Timed         (Time,          "TIME",                       12, 3,  3, ""),
    Timed         (Timestamp,     "TIMESTAMP",                  23, 3,  3, ""),
    Timed         (TimestampZone, "TIMESTAMP_TIMEZONE",         29, 3,  3, ""),
};
// clang-format on
static_assert(std::size(kProgressRows) == 24);

// Types of the 4GL side of Progress databases, release 11: fields of 31995 bytes, 50 digits with 10 after the
// point.
// clang-format off
constexpr SRowChange kOpenEdgeChanges[] = {
//                 type           name                        size  scale
    Sized         (Char,          "CHAR",                    31995),
    Synonym(Sized (Char,          "CHARACTER",               31995)),
    Plain         (LongVarBinary, "LVARBINARY",         1073741823),
    After("CHARACTER VARYING"),
    Plain         (Text,          "LONGCHAR1",          1073741823),
    After("INT"),
    Whole         (BigInt,        "INT64",                      19),
    After("TIMESTAMP"),
    Synonym(Timed (Timestamp,     "DATETIME",                   23, 3,  3, "")),
    Plain         (Boolean,       "LOGICAL",                     1),
};
// clang-format on
constexpr std::string_view kOpenEdgeGone[] = {"LOGICAL", "BIGINT", "TIMESTAMP_TIMEZONE"};
constexpr auto kOpenEdgeRows = NewerTypes<kProgressRows, kOpenEdgeChanges, kOpenEdgeGone>();
static_assert(std::size(kOpenEdgeRows) == 25);

} // namespace

constinit const SDataTypeTable kProgressDataTypes = MakeDataTypeTable<kProgressRows>();
constinit const SDataTypeTable kOpenEdgeDataTypes = MakeDataTypeTable<kOpenEdgeRows>();
