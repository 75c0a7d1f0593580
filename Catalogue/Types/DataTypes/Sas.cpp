// Types that SAS programs declare to Teradata, with the limits of Teradata.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//  shape         type  name                          size or digits, leading digits, scale
    Sized         (  0, "CHAR",                        64000),
    Synonym(Sized (  0, "CHARACTER",                   64000)),
    Sized         (  1, "VARCHAR",                     64000),
    Synonym(Sized (  1, "CHARACTER VARYING",           64000)),
    Synonym(Sized (  1, "CHAR VARYING",                64000)),
    Plain         (  4, "LONG VARCHAR",                64000),
    Sized         ( 17, "VARBYTE",                     64000),
    Sized         ( 16, "BYTE",                        64000),
    Sized         (  8, "GRAPHIC",                     32000),
    Sized         (  9, "VARGRAPHIC",                  32000),
    Plain         ( 10, "LONG VARGRAPHIC",             32000),
    Scaled        ( 25, "DECIMAL",                        38, 0, 38),
    Synonym(Scaled( 25, "DEC",                            38, 0, 38)),
    Scaled        ( 26, "NUMERIC",                        38, 0, 38),
    Whole         ( 33, "BYTEINT",                         3),
    Whole         ( 34, "SMALLINT",                        5),
    Whole         ( 35, "INTEGER",                        10),
    Synonym(Whole ( 35, "INT",                            10)),
    Whole         ( 46, "REAL",                           53),
    Whole         ( 43, "FLOAT",                          53),
    Whole         ( 46, "DOUBLE PRECISION",               53),
    Plain         ( 48, "DATE",                           10),
    Timed         ( 53, "TIMESTAMP",                      26, 0,  6),
    Timed         ( 54, "TIMESTAMP WITH TIME ZONE",       32, 6,  6, ""),
    Timed         ( 54, "TIMESTAMP() WITH TIME ZONE",     32, 0,  6),
    Timed         ( 49, "TIME()",                         15, 0,  6),
    Timed         ( 56, "TIME() WITH TIME ZONE",          21, 0,  6),
    Timed         ( 49, "TIME",                           15, 6,  6, ""),
    Led           ( 61, "INTERVAL YEAR()",                 5, 4),
    Led           ( 62, "INTERVAL YEAR() TO MONTH",        8, 4),
    Led           ( 63, "INTERVAL MONTH()",                5, 4),
    Led           ( 64, "INTERVAL DAY()",                  5, 4),
    Led           ( 65, "INTERVAL DAY() TO HOUR",          8, 4),
    Led           ( 66, "INTERVAL DAY() TO MINUTE",       11, 4),
    LedTimed      ( 68, "INTERVAL DAY() TO SECOND",       21, 4,  6, 6, "LEADING PRECISION"),
    Led           ( 69, "INTERVAL HOUR()",                 5, 4),
    Led           ( 70, "INTERVAL HOUR() TO MINUTE",       8, 4),
    LedTimed      ( 71, "INTERVAL HOUR() TO SECOND",      18, 4,  6, 6, "LEADING PRECISION"),
    Led           ( 72, "INTERVAL MINUTE()",               5, 4),
    LedTimed      ( 73, "INTERVAL MINUTE() TO SECOND",    15, 4,  6, 6, "LEADING PRECISION"),
    LedTimed      ( 74, "INTERVAL SECOND()",              12, 4,  0, 6, "LEADING PRECISION,SCALE"),
};
// clang-format on
static_assert(std::size(kRows) == 41);

} // namespace

constinit const SDataTypeTable kSasDataTypes = MakeDataTypeTable<kRows>();
