// Types of Snowflake. Its integers are all numbers of 38 digits and its floats all doubles, whatever their
// names say. TEXT without a length is the longest text; with one it is a VARCHAR.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type            name                   size  scale
    Sized         (Char,           "CHAR",             16777216),
    Sized         (VarChar,        "VARCHAR",          16777216),
    Synonym(Sized (VarChar,        "TEXT",             16777215)),
    Sized         (Text,           "TEXT",             16777216),
    Plain         (HierarchyId,    "HIERARCHYID",           892),
    Plain         (Xml,            "XML",              16777216),
    Plain         (Geography,      "GEOGRAPHY",         8388608),
    Sized         (WChar,          "NCHAR",            16777216),
    Sized         (VarWChar,       "NVARCHAR",         16777216),
    Plain         (LongVarWChar,   "NTEXT",            16777216),
    Timed         (Timestamp,      "TIMESTAMP",              29, 0, 9),
    Sized         (Binary,         "BINARY",            8388608),
    Sized         (VarBinary,      "VARBINARY",         8388608),
    Plain         (LongVarBinary,  "IMAGE",             8388608),
    Scaled        (Decimal,        "DECIMAL",                38, 0,  37),
    Synonym(Scaled(Decimal,        "DEC",                    38, 0,  37)),
    Scaled        (Numeric,        "NUMERIC",                38, 0,  37),
    Synonym(Scaled(Decimal,        "NUMBER",                 38, 0,  37)),
    Plain         (Bit,            "BIT",                     1),
    Fixed         (Decimal,        "INT",                    38, 0),
    Synonym(Fixed (Decimal,        "INTEGER",                38, 0)),
    Synonym(Fixed (Decimal,        "BIGINT",                 38, 0)),
    Synonym(Fixed (Decimal,        "SMALLINT",               38, 0)),
    Synonym(Fixed (Decimal,        "TINYINT",                38, 0)),
    Whole         (Double,         "REAL",                   53),
    Synonym(Whole (Double,         "FLOAT",                  53)),
    Synonym(Whole (Double,         "DOUBLE PRECISION",       53)),
    Plain         (SmallTimestamp, "SMALLDATETIME",          16),
    Timed         (Time,           "TIME",                   18, 0, 9),
    Plain         (Date,           "DATE",                   10),
    Timed         (TimestampZone,  "TIMESTAMP_TZ",           35, 0, 9),
    Synonym(Timed (Timestamp,      "TIMESTAMP_NTZ",          29, 0, 9)),
    Fixed         (SmallMoney,     "SMALLMONEY",             10, 4),
    Fixed         (Money,          "MONEY",                  19, 4),
    Plain         (Guid,           "UNIQUEIDENTIFIER",       36),
    Plain         (Variant,        "SQL_VARIANT",      16777216),
    Plain         (Json,           "VARIANT",          16777216),
    Plain         (VarWChar,       "SYSNAME",               128),
    Plain         (RowVersion,     "ROWVERSION",              8),
    Plain         (Geometry,       "GEOMETRY",          8388608),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kSnowflakeDataTypes = MakeDataTypeTable<kRows>();
