// Types of SQL Anywhere 12, and of IQ. DATETIME and SMALLDATETIME are further names of TIMESTAMP, TEXT and
// IMAGE of the long types. TINYINT has no sign.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type           name                             size  scale
    Sized        (Char,          "CHAR",                          32767),
    Sized        (VarChar,       "VARCHAR",                       32767),
    Plain        (LongVarChar,   "LONG VARCHAR",             2147483647),
    Plain        (Text,          "TEXT",                     2147483647),
    Plain        (LongNVarChar,  "LONG NVARCHAR",            2147483647),
    Sized        (WChar,         "NCHAR",                         32767),
    Sized        (VarWChar,      "NVARCHAR",                      32767),
    Plain        (LongVarWChar,  "NTEXT",                    2147483647),
    Sized        (Binary,        "BINARY",                        32767),
    Sized        (VarBinary,     "VARBINARY",                     32767),
    Plain        (LongVarBinary, "IMAGE",                    2147483647),
    Synonym(Plain(LongVarBinary, "LONG BINARY",              2147483647)),
    Plain        (LongVarBit,    "LONG VARBIT",              2147483647),
    Scaled       (Decimal,       "DECIMAL",                         127, 0, 127),
    Scaled       (Numeric,       "NUMERIC",                         127, 0, 127),
    Plain        (Bit,           "BIT",                               1),
    Sized        (Bit,           "VARBIT",                        32767),
    Synonym(Sized(Bit,           "BIT VARYING",                   32767)),
    Whole        (UTinyInt,      "TINYINT",                           3),
    Synonym(Whole(UTinyInt,      "UNSIGNED TINYINT",                  3)),
    Whole        (SmallInt,      "SMALLINT",                          5),
    Whole        (USmallInt,     "UNSIGNED SMALLINT",                 5),
    Whole        (Integer,       "INT",                              10),
    Synonym(Whole(Integer,       "INTEGER",                          10)),
    Whole        (UInteger,      "UNSIGNED INT",                     10),
    Synonym(Whole(UInteger,      "UNSIGNED INTEGER",                 10)),
    Whole        (BigInt,        "BIGINT",                           19),
    Whole        (UBigInt,       "UNSIGNED BIGINT",                  20),
    Whole        (Real,          "REAL",                             24),
    Precise      (Float,         "FLOAT",                            53),
    Whole        (Double,        "DOUBLE",                           53),
    Synonym(Whole(Double,        "DOUBLE PRECISION",                 53)),
    Plain        (Date,          "DATE",                             10),
    Timed        (Time,          "TIME",                             15, 6, 6, ""),
    Timed        (Timestamp,     "SMALLDATETIME",                    26, 6, 6, ""),
    Synonym(Timed(Timestamp,     "DATETIME",                         26, 6, 6, "")),
    Synonym(Timed(Timestamp,     "TIMESTAMP",                        26, 6, 6, "")),
    Timed        (TimestampZone, "TIMESTAMP WITH TIME ZONE",         33, 6, 6, ""),
    Fixed        (Money,         "BTIMONEY",                         19, 4),
    Fixed        (SmallMoney,    "SMALLMONEY",                       10, 4),
    Synonym(Fixed(Money,         "MONEY",                            19, 4)),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSybaseDataTypes = MakeDataTypeTable<kRows>();
