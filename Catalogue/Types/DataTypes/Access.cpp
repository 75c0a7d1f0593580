// Types of Access 2003. One type holds dates and times. BYTE has no sign. NUMBER alone is a double, with a
// precision it is a decimal.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type            name                               size  scale
    Sized        (Char,           "CHAR",                              255),
    Synonym(Sized(Char,           "CHARACTER",                         255)),
    Sized        (VarChar,        "String",                            255),
    Synonym(Sized(VarChar,        "ALPHANUMERIC",                      255)),
    Synonym(Sized(VarChar,        "VARCHAR",                           255)),
    Synonym(Sized(VarChar,        "CHARACTER VARYING",                 255)),
    Synonym(Sized(VarChar,        "TEXT",                              255)),
    Plain        (Text,           "LONGTEXT",                   1073741823),
    Synonym(Plain(Text,           "LONGCHAR",                   1073741823)),
    Synonym(Plain(Text,           "MEMO",                       1073741823)),
    Synonym(Plain(Text,           "NOTE",                       1073741823)),
    Sized        (WChar,          "NCHAR",                             255),
    Synonym(Sized(WChar,          "NATIONAL CHARACTER",                255)),
    Synonym(Sized(WChar,          "NATIONAL CHAR",                     255)),
    Sized        (VarWChar,       "NATIONAL CHARACTER VARYING",        255),
    Synonym(Sized(VarWChar,       "NATIONAL CHAR VARYING",             255)),
    Plain        (LongVarWChar,   "NTEXT",                      1073741823),
    Sized        (Binary,         "BINARY",                            510),
    Sized        (VarBinary,      "VARBINARY",                         510),
    Synonym(Sized(VarBinary,      "BINARY VARYING",                    510)),
    Synonym(Sized(VarBinary,      "BIT VARYING",                       510)),
    Plain        (LongVarBinary,  "IMAGE",                      2147483647),
    Synonym(Plain(LongVarBinary,  "LONGBINARY",                 2147483647)),
    Synonym(Plain(LongVarBinary,  "GENERAL",                    2147483647)),
    Synonym(Plain(LongVarBinary,  "OLEOBJECT",                  2147483647)),
    Whole        (Double,         "NUMBER",                              0),
    Scaled       (Numeric,        "NUMBER",                             28, 0,  28),
    Whole        (Double,         "NUMBER",                             53),
    Plain        (Bit,            "BIT",                                 1),
    Plain        (Boolean,        "BOOLEAN",                             1),
    Synonym(Plain(Boolean,        "LOGICAL",                             1)),
    Synonym(Plain(Boolean,        "LOGICAL1",                            1)),
    Synonym(Plain(Boolean,        "YESNO",                               1)),
    Whole        (UTinyInt,       "TINYINT",                             3),
    Synonym(Whole(UTinyInt,       "INTEGER1",                            3)),
    Synonym(Whole(UTinyInt,       "BYTE",                                3)),
    Whole        (SmallInt,       "SMALLINT",                            5),
    Synonym(Whole(SmallInt,       "INTEGER2",                            5)),
    Synonym(Whole(SmallInt,       "SHORT",                               5)),
    Whole        (Integer,        "INTEGER",                            10),
    Synonym(Whole(Integer,        "INT",                                10)),
    Synonym(Whole(Integer,        "INTEGER4",                           10)),
    Synonym(Whole(Integer,        "LONG",                               10)),
    Whole        (Serial,         "COUNTER",                            10),
    Whole        (Real,           "REAL",                               24),
    Synonym(Whole(Real,           "SINGLE",                             24)),
    Synonym(Whole(Real,           "FLOAT4",                             24)),
    Synonym(Whole(Real,           "IEESINGLE",                          24)),
    Whole        (Float,          "FLOAT",                              53),
    Synonym(Whole(Float,          "FLOAT8",                             53)),
    Synonym(Whole(Double,         "DOUBLE",                             53)),
    Synonym(Whole(Double,         "IEEEDOUBLE",                         53)),
    Plain        (SmallTimestamp, "DATE",                               19),
    Synonym(Plain(SmallTimestamp, "TIME",                               19)),
    Synonym(Plain(SmallTimestamp, "DATETIME",                           19)),
    Fixed        (Money,          "MONEY",                              19, 4),
    Fixed        (Money,          "CURRENCY",                           15, 2),
    Scaled       (Decimal,        "DECIMAL",                            28, 0,  28),
    Plain        (Guid,           "UNIQUEIDENTIFIER",                   36),
    Synonym(Plain(Guid,           "GUID",                               36)),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kAccessDataTypes = MakeDataTypeTable<kRows>();
