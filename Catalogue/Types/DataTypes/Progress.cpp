// Types of the SQL side of Progress databases, release 11.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                 size or digits, leading digits, scale
    Sized         (  0, "CHAR",                     2000),
    Synonym(Sized (  0, "CHARACTER",                2000)),
    Sized         (  1, "VARCHAR",                 31995),
    Synonym(Sized (  1, "CHARACTER VARYING",       31995)),
    Sized         ( 16, "BINARY",                   2000),
    Sized         ( 17, "VARBINARY",               31982),
    Sized         ( 20, "LVARBINARY",         1073741823),
    Scaled        ( 25, "DECIMAL",                    50, 0, 10),
    Synonym(Scaled( 25, "DEC",                        50, 0, 10)),
    Scaled        ( 26, "NUMERIC",                    50, 0, 10),
    Plain         ( 27, "BIT",                         1),
    Plain         ( 28, "LOGICAL",                     1),
    Whole         ( 33, "TINYINT",                     3),
    Whole         ( 34, "SMALLINT",                    5),
    Whole         ( 35, "INTEGER",                    10),
    Synonym(Whole ( 35, "INT",                        10)),
    Whole         ( 37, "BIGINT",                     19),
    Whole         ( 42, "REAL",                       24),
    Whole         ( 43, "FLOAT",                      53),
    Whole         ( 46, "DOUBLE",                     53),
    Plain         ( 48, "DATE",                       10),
    Timed         ( 49, "TIME",                       12, 3,  3, ""),
    Timed         ( 53, "TIMESTAMP",                  23, 3,  3, ""),
    Timed         ( 54, "TIMESTAMP_TIMEZONE",         29, 3,  3, ""),
};
// clang-format on
static_assert(std::size(kRows) == 24);

} // namespace

constinit const SDataTypeTable kProgressDataTypes = MakeDataTypeTable<kRows>();
