// Informix's types. The limits are those of Informix 14.10, sizes in bytes. DECIMAL without a precision is a
// decimal floating point number of 16 digits. Intervals have up to nine digits in front, fractions of a
// second one to five.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type name                                          size
    Sized(          0, "CHAR",                                      32767),
    Synonym(Sized(  0, "CHARACTER",                                 32767)),
    Sized(          1, "VARCHAR",                                     255),
    Synonym(Sized(  1, "CHARACTER VARYING",                           255)),
    Sized(          3, "LVARCHAR",                                  32739),
    Plain(          7, "TEXT",                                 2147483647),
    Plain(          7, "CLOB",                              4398046511104),
    Sized(          8, "NCHAR",                                     32767),
    Sized(          9, "NVARCHAR",                                    255),
    Plain(         20, "BYTE",                                 2147483647),
    Plain(         23, "BLOB",                              4398046511104),
    Scaled(        25, "DEC",                                          32,  0, 32),
    Whole(        137, "DECIMAL",                                       0),
    Scaled(        25, "DECIMAL",                                      32,  0, 32),
    Scaled(        26, "NUMERIC",                                      32,  0, 32),
    Plain(         28, "BOOLEAN",                                       1),
    Whole(         34, "SMALLINT",                                      5),
    Whole(         35, "INT",                                          10),
    Synonym(Whole( 35, "INTEGER",                                      10)),
    Whole(        129, "SERIAL",                                       10),
    Whole(         37, "INT8",                                         19),
    Whole(         37, "SERIAL8",                                      19),
    Synonym(Whole( 37, "BIGINT",                                       19)),
    Whole(         42, "REAL",                                         24),
    Synonym(Whole( 42, "SMALLFLOAT",                                   24)),
    Whole(         43, "FLOAT",                                        53),
    Whole(         46, "DOUBLE PRECISION",                             53),
    Scaled(        60, "MONEY",                                        32,  0, 32),
    Plain(         48, "DATE",                                         10),
    Plain(         75, "DATETIME YEAR TO YEAR",                         4),
    Plain(         76, "DATETIME YEAR TO MONTH",                        7),
    Plain(         77, "DATETIME YEAR TO DAY",                         10),
    Plain(         78, "DATETIME YEAR TO HOUR",                        13),
    Plain(         79, "DATETIME YEAR TO MINUTE",                      16),
    Plain(         80, "DATETIME YEAR TO SECOND",                      19),
    Timed(         87, "DATETIME YEAR TO FRACTION()",                  25,  1,  5),
    Plain(         85, "DATETIME MONTH TO MONTH",                       2),
    Plain(         86, "DATETIME MONTH TO DAY",                         5),
    Plain(         88, "DATETIME MONTH TO HOUR",                        8),
    Plain(         89, "DATETIME MONTH TO MINUTE",                     11),
    Plain(         90, "DATETIME MONTH TO SECOND",                     14),
    Timed(         91, "DATETIME MONTH TO FRACTION()",                 20,  1,  5),
    Plain(         81, "DATETIME DAY TO DAY",                           2),
    Plain(         92, "DATETIME DAY TO HOUR",                          5),
    Plain(         93, "DATETIME DAY TO MINUTE",                        8),
    Plain(         94, "DATETIME DAY TO SECOND",                       11),
    Timed(         95, "DATETIME DAY TO FRACTION()",                   17,  1,  5),
    Plain(         82, "DATETIME HOUR TO HOUR",                         2),
    Plain(         83, "DATETIME HOUR TO MINUTE",                       5),
    Plain(         84, "DATETIME HOUR TO SECOND",                       8),
    Timed(         96, "DATETIME HOUR TO FRACTION()",                  14,  1,  5),
    Plain(         97, "DATETIME MINUTE TO MINUTE",                     2),
    Plain(         98, "DATETIME MINUTE TO SECOND",                     5),
    Timed(         99, "DATETIME MINUTE TO FRACTION()",                11,  1,  5),
    Plain(        100, "DATETIME SECOND TO SECOND",                     2),
    Timed(        101, "DATETIME SECOND TO FRACTION()",                 8,  1,  5),
    Timed(        101, "DATETIME FRACTION TO FRACTION()",               6,  1,  5),
    Led(           61, "INTERVAL YEAR() TO YEAR",                      10,  9),
    Led(           62, "INTERVAL YEAR() TO MONTH",                     13,  9),
    Led(           63, "INTERVAL MONTH() TO MONTH",                    10,  9),
    Led(           64, "INTERVAL DAY() TO DAY",                        10,  9),
    Led(           65, "INTERVAL DAY() TO HOUR",                       13,  9),
    Led(           66, "INTERVAL DAY() TO MINUTE",                     16,  9),
    Led(           67, "INTERVAL DAY() TO SECOND",                     19,  9),
    LedTimed(      68, "INTERVAL DAY() TO FRACTION()",                 25,  9,  1,  5),
    Led(           69, "INTERVAL HOUR() TO HOUR",                      10,  9),
    Led(           70, "INTERVAL HOUR() TO MINUTE",                    13,  9),
    Led(           71, "INTERVAL HOUR() TO SECOND",                    16,  9),
    LedTimed(      71, "INTERVAL HOUR() TO FRACTION()",                22,  9,  1,  5),
    Led(           72, "INTERVAL MINUTE() TO MINUTE",                  10,  9),
    Led(           73, "INTERVAL MINUTE() TO SECOND",                  13,  9),
    LedTimed(      73, "INTERVAL MINUTE() TO FRACTION()",              19,  9,  1,  5),
    Led(           74, "INTERVAL SECOND() TO SECOND",                  10,  9),
    LedTimed(      74, "INTERVAL SECOND() TO FRACTION()",              16,  9,  1,  5),
    LedTimed(      74, "INTERVAL FRACTION() TO FRACTION()",             7,  5,  1,  5),
    Plain(        127, "JSON",                                 2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 76);

} // namespace

constinit const SDataTypeTable kInformixDataTypes = MakeDataTypeTable<kRows>();
