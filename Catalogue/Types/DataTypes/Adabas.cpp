// Types of Adabas files as SQL sees them: alphanumeric fields of 253 bytes and long ones of 16381, 29 packed
// digits.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                size or digits, leading digits, scale
    Sized         (  0, "CHAR",                     253),
    Synonym(Sized (  0, "CHARACTER",                253)),
    Sized         (  1, "VARCHAR",                16381),
    Synonym(Sized (  1, "CHARACTER VARYING",      16381)),
    Sized         ( 16, "BINARY",                   126),
    Sized         ( 17, "VARBINARY",              16381),
    Sized         ( 20, "LVARBINARY",        2147483643),
    Scaled        ( 25, "DECIMAL",                   29, 0, 29),
    Synonym(Scaled( 25, "DEC",                       29, 0, 29)),
    Scaled        ( 26, "NUMERIC",                   29, 0, 29),
    Plain         ( 27, "BIT",                        1),
    Whole         ( 33, "TINYINT",                    3),
    Whole         ( 34, "SMALLINT",                   5),
    Whole         ( 35, "INTEGER",                   10),
    Synonym(Whole ( 35, "INT",                       10)),
    Whole         ( 42, "REAL",                      24),
    Whole         ( 43, "FLOAT",                     53),
    Whole         ( 46, "DOUBLE",                    53),
    Plain         ( 48, "DATE",                      10),
    Plain         ( 49, "TIME",                       8),
    Timed         ( 53, "TIMESTAMP",                 26, 6,  6, ""),
};
// clang-format on
static_assert(std::size(kRows) == 21);

} // namespace

constinit const SDataTypeTable kAdabasDataTypes = MakeDataTypeTable<kRows>();
