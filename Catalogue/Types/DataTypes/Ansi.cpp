// Types of a database of which only the standard is known, with the names that drivers add. The standard sets
// no limits to lengths: these are the largest that drivers can count. Numbers have 38 digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type name                               size  scale
    Sized          (  0, "CHAR",                       2147483647),
    Synonym(Sized  (  0, "CHARACTER",                  2147483647)),
    Sized          (  1, "String",                     2147483647),
    Synonym(Sized  (  1, "ALPHANUMERIC",               2147483647)),
    Synonym(Sized  (  1, "VARCHAR",                    2147483647)),
    Synonym(Sized  (  1, "CHARACTER VARYING",          2147483647)),
    Plain          (  7, "TEXT",                       2147483647),
    Synonym(Plain  (  7, "LONGTEXT",                   2147483647)),
    Synonym(Plain  (  7, "LONGCHAR",                   2147483647)),
    Synonym(Plain  (  7, "MEMO",                       2147483647)),
    Synonym(Plain  (  7, "NOTE",                       2147483647)),
    Sized          (  8, "NCHAR",                      2147483647),
    Synonym(Sized  (  8, "NATIONAL CHARACTER",         2147483647)),
    Synonym(Sized  (  8, "NATIONAL CHAR",              2147483647)),
    Sized          (  9, "NATIONAL CHARACTER VARYING", 2147483647),
    Synonym(Sized  (  9, "NATIONAL CHAR VARYING",      2147483647)),
    Plain          ( 10, "NTEXT",                      2147483647),
    Sized          ( 16, "BINARY",                     2147483647),
    Sized          ( 17, "VARBINARY",                  2147483647),
    Synonym(Sized  ( 17, "BINARY VARYING",             2147483647)),
    Sized          ( 27, "BIT VARYING",                2147483647),
    Plain          ( 20, "IMAGE",                      2147483647),
    Synonym(Plain  ( 20, "LONGBINARY",                 2147483647)),
    Synonym(Plain  ( 20, "GENERAL",                    2147483647)),
    Synonym(Plain  ( 20, "OLEOBJECT",                  2147483647)),
    Scaled         ( 25, "DECIMAL",                            38, 0,  38),
    Synonym(Scaled ( 25, "DEC",                                38, 0,  38)),
    Scaled         ( 26, "NUMERIC",                            38, 0,  38),
    Plain          ( 27, "BIT",                                 1),
    Plain          ( 28, "BOOLEAN",                             1),
    Synonym(Plain  ( 28, "LOGICAL",                             1)),
    Synonym(Plain  ( 28, "LOGICAL1",                            1)),
    Synonym(Plain  ( 28, "YESNO",                               1)),
    Whole          ( 33, "TINYINT",                             3),
    Synonym(Whole  ( 33, "INTEGER1",                            3)),
    Whole          ( 38, "BYTE",                                3),
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
    Precise        ( 43, "FLOAT",                              53),
    Whole          ( 46, "FLOAT8",                             53),
    Synonym(Whole  ( 46, "DOUBLE",                             53)),
    Synonym(Whole  ( 46, "IEEEDOUBLE",                         53)),
    Scaled         ( 25, "NUMBER",                             38, 0,  38),
    Plain          ( 48, "DATE",                               10),
    Timed          ( 49, "TIME",                               15, 0, 6),
    Timed          ( 53, "DATETIME",                           26, 0, 6),
    Fixed          ( 59, "MONEY",                              19, 4),
    Synonym(Fixed  ( 59, "CURRENCY",                           19, 4)),
    Plain          (103, "UNIQUEIDENTIFIER",                   36),
    Synonym(Plain  (103, "GUID",                               36)),
};
// clang-format on
static_assert(std::size(kRows) == 60);

} // namespace

constinit const SDataTypeTable kAnsiDataTypes = MakeDataTypeTable<kRows>();
