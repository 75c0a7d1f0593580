// HiRDB's types: limits in bytes. MCHAR and MVARCHAR mix characters of one and more bytes. The rungs of a
// name climb, and its last rung takes what the others refuse.
#include "Catalogue/Types/DataTypes/DataTypeTables.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SDataTypeParams kRows[] = {
//                type                  name                             size
    Sized        (WChar,                "MCHAR",                         30000),
    Sized        (Char,                 "CHARACTER",                     30000),
    Sized        (VarChar,              "DATALINK",                        200),
    Sized        (VarChar,              "CHARACTER VARYING",             32000),
    Sized        (VarWChar,             "MVARCHAR",                      32000),
    Plain        (LongVarChar,          "LONG VARCHAR",                  32000),
    Sized        (VarBinary,            "BINARY",                        32000),
    Sized        (LongVarBinary,        "BINARY",                   2147483647),
    Sized        (Blob,                 "BLOB",                     2147483647),
    Sized        (WChar,                "GRAPHIC",                       15000),
    Sized        (Binary,               "CHAR() FOR BIT DATA",           30000),
    Synonym(Sized(Binary,               "CHARACTER() FOR BIT DATA",      30000)),
    Sized        (VarBinary,            "VARCHAR() FOR BIT DATA",        32000),
    Scaled       (Number,               "NUMERIC",                           2, 0,  0),
    Scaled       (SmallInt,             "NUMERIC",                           4, 0,  0),
    Scaled       (Number,               "NUMERIC",                           9, 0,  0),
    Scaled       (BigInt,               "NUMERIC",                          18, 0,  0),
    Scaled       (Numeric,              "NUMERIC",                          38, 0, 38),
    Whole        (SmallInt,             "SMALLINT",                          5),
    Whole        (Integer,              "INTEGER",                          10),
    Synonym(Whole(Integer,              "INT",                              10)),
    Scaled       (Number,               "DEC",                               2, 0,  0),
    Scaled       (SmallInt,             "DEC",                               4, 0,  0),
    Scaled       (Number,               "DEC",                               9, 0,  0),
    Scaled       (BigInt,               "DEC",                              18, 0,  0),
    Scaled       (Decimal,              "DEC",                              38, 0, 38),
    Plain        (RowId,                "ROWID",                            18),
    Plain        (URowId,               "UROWID",                           18),
    Whole        (Real,                 "REAL",                             24),
    Synonym(Whole(Real,                 "SMALLFLT",                         24)),
    Whole        (Float,                "FLOAT",                            53),
    Whole        (Double,               "FLOAT",                            53),
    Whole        (Double,               "DOUBLE",                           53),
    Timed        (SmallTimestamp,       "TIMESTAMP",                        19, 0,  0),
    Timed        (Timestamp,            "TIMESTAMP",                        26, 0,  6),
    Plain        (IntervalYearToMonth,  "INTERVAL YEAR TO DAY",             11),
    Plain        (IntervalHourToSecond, "INTERVAL HOUR TO SECOND",           9),
    Plain        (Date,                 "DATE",                             10),
    Plain        (Time,                 "TIME",                              8),
    Plain        (Xml,                  "XML",                      2147483647),
};
// clang-format on
static_assert(std::size(kRows) == 40);

} // namespace

constinit const SDataTypeTable kHiRdbDataTypes = MakeDataTypeTable<kRows>();
