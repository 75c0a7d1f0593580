// InterBase. Lengths are bytes; in UTF-8 the first rung of CHAR and VARCHAR is sure. Decimal numbers have
// 16 bits up to 4 digits, 32 up to 9 and 64 up to 18; dialect 1 takes a DOUBLE PRECISION for 10 to 15 digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Order is meaning: the rungs of a name climb, and its last rung takes what the others refuse.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//                  type  name                              size  scale
    Sized           (  0, "CHAR",                             8191),
    Sized           (  0, "CHAR",                            32767),
    Sized           (  1, "VARCHAR",                          8191),
    Sized           (  1, "VARCHAR",                         32765),
    Plain           (  7, "CLOB",                       2147483647),
    Plain           ( 23, "BLOB",                       2147483647),
    Sized           (  8, "NCHAR",                           32767),
    Synonym(Sized   (  8, "NATIONAL CHARACTER",              32767)),
    Synonym(Sized   (  8, "NATIONAL CHAR",                   32767)),
    Sized           (  9, "NCHAR VARYING",                   32765),
    Synonym(Sized   (  9, "NATIONAL CHARACTER VARYING",      32765)),
    Synonym(Sized   (  9, "NATIONAL CHAR VARYING",           32765)),
    Plain           ( 28, "BOOLEAN",                             1),
    Whole           ( 34, "SMALLINT",                            5),
    Whole           ( 35, "INT",                                10),
    Synonym(Whole   ( 35, "INTEGER",                            10)),
    Whole           ( 42, "FLOAT",                              24),
    Whole           ( 46, "DOUBLE PRECISION",                   53),
    Scaled          ( 25, "DECIMAL",                             4,  0,  4),
    Scaled          ( 25, "DECIMAL",                             9,  0,  9),
    Scaled          ( 25, "DECIMAL",                            15,  0, 15),
    Scaled          ( 25, "DECIMAL",                            18,  0, 18),
    Scaled          ( 26, "NUMERIC",                             4,  0,  4),
    Scaled          ( 26, "NUMERIC",                             9,  0,  9),
    Scaled          ( 26, "NUMERIC",                            15,  0, 15),
    Scaled          ( 26, "NUMERIC",                            18,  0, 18),
    Plain           ( 48, "DATE",                               10),
    Timed           ( 53, "TIMESTAMP",                          24,  4,  4, ""),
    Timed           ( 49, "TIME",                               13,  4,  4, ""),
};
// clang-format on
static_assert(std::size(kRows) == 29);

} // namespace

constinit const SDataTypeTable kInterBaseDataTypes = MakeDataTypeTable<kRows>();
