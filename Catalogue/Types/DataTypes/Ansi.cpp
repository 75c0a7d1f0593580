// Types of a database of which only the standard is known, with the names that drivers add. The standard sets
// no limits to lengths: these are the largest that drivers can count. Numbers have 38 digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                 type           name                               size  scale
    Sized         (Char,          "CHAR",                       2147483647),
    Synonym(Sized (Char,          "CHARACTER",                  2147483647)),
    Sized         (VarChar,       "String",                     2147483647),
    Synonym(Sized (VarChar,       "ALPHANUMERIC",               2147483647)),
    Synonym(Sized (VarChar,       "VARCHAR",                    2147483647)),
    Synonym(Sized (VarChar,       "CHARACTER VARYING",          2147483647)),
    Plain         (Text,          "TEXT",                       2147483647),
    Synonym(Plain (Text,          "LONGTEXT",                   2147483647)),
    Synonym(Plain (Text,          "LONGCHAR",                   2147483647)),
    Synonym(Plain (Text,          "MEMO",                       2147483647)),
    Synonym(Plain (Text,          "NOTE",                       2147483647)),
    Sized         (WChar,         "NCHAR",                      2147483647),
    Synonym(Sized (WChar,         "NATIONAL CHARACTER",         2147483647)),
    Synonym(Sized (WChar,         "NATIONAL CHAR",              2147483647)),
    Sized         (VarWChar,      "NATIONAL CHARACTER VARYING", 2147483647),
    Synonym(Sized (VarWChar,      "NATIONAL CHAR VARYING",      2147483647)),
    Plain         (LongVarWChar,  "NTEXT",                      2147483647),
    Sized         (Binary,        "BINARY",                     2147483647),
    Sized         (VarBinary,     "VARBINARY",                  2147483647),
    Synonym(Sized (VarBinary,     "BINARY VARYING",             2147483647)),
    Sized         (Bit,           "BIT VARYING",                2147483647),
    Plain         (LongVarBinary, "IMAGE",                      2147483647),
    Synonym(Plain (LongVarBinary, "LONGBINARY",                 2147483647)),
    Synonym(Plain (LongVarBinary, "GENERAL",                    2147483647)),
    Synonym(Plain (LongVarBinary, "OLEOBJECT",                  2147483647)),
    Scaled        (Decimal,       "DECIMAL",                            38, 0,  38),
    Synonym(Scaled(Decimal,       "DEC",                                38, 0,  38)),
    Scaled        (Numeric,       "NUMERIC",                            38, 0,  38),
    Plain         (Bit,           "BIT",                                 1),
    Plain         (Boolean,       "BOOLEAN",                             1),
    Synonym(Plain (Boolean,       "LOGICAL",                             1)),
    Synonym(Plain (Boolean,       "LOGICAL1",                            1)),
    Synonym(Plain (Boolean,       "YESNO",                               1)),
    Whole         (TinyInt,       "TINYINT",                             3),
    Synonym(Whole (TinyInt,       "INTEGER1",                            3)),
    Whole         (UTinyInt,      "BYTE",                                3),
    Whole         (SmallInt,      "SMALLINT",                            5),
    Synonym(Whole (SmallInt,      "INTEGER2",                            5)),
    Synonym(Whole (SmallInt,      "SHORT",                               5)),
    Whole         (Integer,       "INTEGER",                            10),
    Synonym(Whole (Integer,       "INT",                                10)),
    Synonym(Whole (Integer,       "INTEGER4",                           10)),
    Synonym(Whole (Integer,       "LONG",                               10)),
    Whole         (Serial,        "COUNTER",                            10),
    Whole         (Real,          "REAL",                               24),
    Synonym(Whole (Real,          "SINGLE",                             24)),
    Synonym(Whole (Real,          "FLOAT4",                             24)),
    Synonym(Whole (Real,          "IEESINGLE",                          24)),
    Precise       (Float,         "FLOAT",                              53),
    Whole         (Double,        "FLOAT8",                             53),
    Synonym(Whole (Double,        "DOUBLE",                             53)),
    Synonym(Whole (Double,        "IEEEDOUBLE",                         53)),
    Scaled        (Decimal,       "NUMBER",                             38, 0,  38),
    Plain         (Date,          "DATE",                               10),
    Timed         (Time,          "TIME",                               15, 0, 6),
    Timed         (Timestamp,     "DATETIME",                           26, 0, 6),
    Fixed         (Money,         "MONEY",                              19, 4),
    Synonym(Fixed (Money,         "CURRENCY",                           19, 4)),
    Plain         (Guid,          "UNIQUEIDENTIFIER",                   36),
    Synonym(Plain (Guid,          "GUID",                               36)),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kAnsiDataTypes = MakeDataTypeTable<kRows>();
