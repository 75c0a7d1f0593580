// Types of the 4GL side of Progress databases, release 11: fields of 31995 bytes, 50 digits with 10 behind
// the point.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                size or digits, leading digits, scale
    Sized         (  0, "CHAR",                   31995),
    Synonym(Sized (  0, "CHARACTER",              31995)),
    Sized         (  1, "VARCHAR",                31995),
    Synonym(Sized (  1, "CHARACTER VARYING",      31995)),
    Plain         (  7, "LONGCHAR1",         1073741823),
    Sized         ( 16, "BINARY",                  2000),
    Sized         ( 17, "VARBINARY",              31982),
    Plain         ( 20, "LVARBINARY",        1073741823),
    Scaled        ( 25, "DECIMAL",                   50, 0, 10),
    Synonym(Scaled( 25, "DEC",                       50, 0, 10)),
    Scaled        ( 26, "NUMERIC",                   50, 0, 10),
    Plain         ( 27, "BIT",                        1),
    Whole         ( 33, "TINYINT",                    3),
    Whole         ( 34, "SMALLINT",                   5),
    Whole         ( 35, "INTEGER",                   10),
    Synonym(Whole ( 35, "INT",                       10)),
    Whole         ( 37, "INT64",                     19),
    Whole         ( 42, "REAL",                      24),
    Whole         ( 43, "FLOAT",                     53),
    Whole         ( 46, "DOUBLE",                    53),
    Plain         ( 48, "DATE",                      10),
    Timed         ( 49, "TIME",                      12, 3,  3, ""),
    Timed         ( 53, "TIMESTAMP",                 23, 3,  3, ""),
    Synonym(Timed ( 53, "DATETIME",                  23, 3,  3, "")),
    Plain         ( 28, "LOGICAL",                    1),
};
// clang-format on
static_assert(std::size(kRows) == 25);

} // namespace

constinit const SDataTypeTable kOpenEdgeDataTypes = MakeDataTypeTable<kRows>();
