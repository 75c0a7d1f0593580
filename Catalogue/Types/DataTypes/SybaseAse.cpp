// Types of Adaptive Server Enterprise 15.7 with pages of 16 KB. TIMESTAMP is a row version here and no time;
// TINYINT has no sign. FLOAT without a precision is a double: hence its first rung; 43,
// because a 46 without a size would be Oracle's NUMBER.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type             name                      size  scale
    Sized        (Char,            "CHAR",                   16384),
    Sized        (VarChar,         "VARCHAR",                16384),
    Plain        (Text,            "TEXT",              2147483647),
    Sized        (UniChar,         "UNICHAR",                 8192),
    Sized        (UniVarChar,      "UNIVARCHAR",              8192),
    Plain        (UniText,         "UNITEXT",           1073741823),
    Sized        (WChar,           "NCHAR",                  16384),
    Sized        (VarWChar,        "NVARCHAR",               16384),
    Plain        (LongVarWChar,    "NTEXT",             1073741823),
    Plain        (RowVersion,      "TIMESTAMP",                  8),
    Sized        (Binary,          "BINARY",                 16384),
    Sized        (VarBinary,       "VARBINARY",              16384),
    Plain        (LongVarBinary,   "IMAGE",             2147483647),
    Synonym(Plain(LongVarBinary,   "LONG BINARY",       2147483647)),
    Scaled       (Decimal,         "DECIMAL",                   38, 0,  38),
    Scaled       (Numeric,         "NUMERIC",                   38, 0,  38),
    Plain        (Bit,             "BIT",                        1),
    Whole        (UTinyInt,        "TINYINT",                    3),
    Synonym(Whole(UTinyInt,        "UNSIGNED TINYINT",           3)),
    Whole        (SmallInt,        "SMALLINT",                   5),
    Whole        (USmallInt,       "UNSIGNED SMALLINT",          5),
    Whole        (Integer,         "INT",                       10),
    Synonym(Whole(Integer,         "INTEGER",                   10)),
    Whole        (UInteger,        "UNSIGNED INT",              10),
    Synonym(Whole(UInteger,        "UNSIGNED INTEGER",          10)),
    Whole        (BigInt,          "BIGINT",                    19),
    Whole        (Real,            "REAL",                      24),
    Whole        (Float,           "FLOAT",                      0),
    Precise      (Float,           "FLOAT",                     48),
    Whole        (Double,          "DOUBLE",                    53),
    Synonym(Whole(Double,          "DOUBLE PRECISION",          53)),
    Plain        (Date,            "DATE",                      10),
    Timed        (Time,            "TIME",                      12, 3, 3, ""),
    Timed        (BigTime,         "BIGTIME",                   15, 6, 6, ""),
    Timed        (BigDateTime,     "BIGDATETIME",               26, 6, 6, ""),
    Plain        (SmallTimestamp,  "SMALLDATETIME",             16),
    Timed        (Timestamp,       "DATETIME",                  23, 3, 3, ""),
    Fixed        (SmallMoney,      "SMALLMONEY",                10, 4),
    Fixed        (Money,           "MONEY",                     19, 4),
    Whole        (NumericIdentity, "NUMERIC IDENTITY",          18),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kSybaseAseDataTypes = MakeDataTypeTable<kRows>();
