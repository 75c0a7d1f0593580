// Types of Access 2003. One type holds dates and times. BYTE has no sign. NUMBER alone is a double, with a
// precision it is a decimal.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                               size  scale
    Sized          (  0, "CHAR",                              255),
    Synonym(Sized  (  0, "CHARACTER",                         255)),
    Sized          (  1, "String",                            255),
    Synonym(Sized  (  1, "ALPHANUMERIC",                      255)),
    Synonym(Sized  (  1, "VARCHAR",                           255)),
    Synonym(Sized  (  1, "CHARACTER VARYING",                 255)),
    Synonym(Sized  (  1, "TEXT",                              255)),
    Plain          (  7, "LONGTEXT",                   1073741823),
    Synonym(Plain  (  7, "LONGCHAR",                   1073741823)),
    Synonym(Plain  (  7, "MEMO",                       1073741823)),
    Synonym(Plain  (  7, "NOTE",                       1073741823)),
    Sized          (  8, "NCHAR",                             255),
    Synonym(Sized  (  8, "NATIONAL CHARACTER",                255)),
    Synonym(Sized  (  8, "NATIONAL CHAR",                     255)),
    Sized          (  9, "NATIONAL CHARACTER VARYING",        255),
    Synonym(Sized  (  9, "NATIONAL CHAR VARYING",             255)),
    Plain          ( 10, "NTEXT",                      1073741823),
    Sized          ( 16, "BINARY",                            510),
    Sized          ( 17, "VARBINARY",                         510),
    Synonym(Sized  ( 17, "BINARY VARYING",                    510)),
    Synonym(Sized  ( 17, "BIT VARYING",                       510)),
    Plain          ( 20, "IMAGE",                      2147483647),
    Synonym(Plain  ( 20, "LONGBINARY",                 2147483647)),
    Synonym(Plain  ( 20, "GENERAL",                    2147483647)),
    Synonym(Plain  ( 20, "OLEOBJECT",                  2147483647)),
    Whole          ( 46, "NUMBER",                              0),
    Scaled         ( 26, "NUMBER",                             28, 0,  28),
    Whole          ( 46, "NUMBER",                             53),
    Plain          ( 27, "BIT",                                 1),
    Plain          ( 28, "BOOLEAN",                             1),
    Synonym(Plain  ( 28, "LOGICAL",                             1)),
    Synonym(Plain  ( 28, "LOGICAL1",                            1)),
    Synonym(Plain  ( 28, "YESNO",                               1)),
    Whole          ( 38, "TINYINT",                             3),
    Synonym(Whole  ( 38, "INTEGER1",                            3)),
    Synonym(Whole  ( 38, "BYTE",                                3)),
    Whole          ( 34, "SMALLINT",                            5),
    Synonym(Whole  ( 34, "INTEGER2",                            5)),
    Synonym(Whole  ( 34, "SHORT",                               5)),
    Whole          ( 35, "INTEGER",                            10),
    Synonym(Whole  ( 35, "INT",                                10)),
    Synonym(Whole  ( 35, "INTEGER4",                           10)),
    Synonym(Whole  ( 35, "LONG",                               10)),
    Whole          (129, "COUNTER",                            10),
    Whole          ( 42, "REAL",                               24),
    Synonym(Whole  ( 42, "SINGLE",                             24)),
    Synonym(Whole  ( 42, "FLOAT4",                             24)),
    Synonym(Whole  ( 42, "IEESINGLE",                          24)),
    Whole          ( 43, "FLOAT",                              53),
    Synonym(Whole  ( 43, "FLOAT8",                             53)),
    Synonym(Whole  ( 46, "DOUBLE",                             53)),
    Synonym(Whole  ( 46, "IEEEDOUBLE",                         53)),
    Plain          ( 52, "DATE",                               19),
    Synonym(Plain  ( 52, "TIME",                               19)),
    Synonym(Plain  ( 52, "DATETIME",                           19)),
    Fixed          ( 59, "MONEY",                              19, 4),
    Fixed          ( 59, "CURRENCY",                           15, 2),
    Scaled         ( 25, "DECIMAL",                            28, 0,  28),
    Plain          (103, "UNIQUEIDENTIFIER",                   36),
    Synonym(Plain  (103, "GUID",                               36)),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kAccessDataTypes = MakeDataTypeTable<kRows>();
