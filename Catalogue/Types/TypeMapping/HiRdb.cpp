// HiRDB. It has no large text, which becomes BLOB, no 64-bit integer, which becomes DEC, and no intervals
// with a fraction.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                          size  scale  name
    Map(Char,                        30000,        "CHARACTER"),
    Map(Char,                        32000,        "CHARACTER VARYING"),
    Map(Char,                   2147483647,        "BLOB"),
    Map(VarChar,                     32000,        "CHARACTER VARYING"),
    Map(VarChar,                2147483647,        "BLOB"),
    Map(UniChar,                     30000,        "MCHAR"),
    Map(UniVarChar,                  32000,        "MVARCHAR"),
    Map(WChar,                       30000,        "MCHAR"),
    Map(WChar,                       32000,        "MVARCHAR"),
    Map(WChar,                  2147483647,        "BLOB"),
    Map(VarWChar,                    32000,        "MVARCHAR"),
    Map(VarWChar,               2147483647,        "BLOB"),
    Map(Binary,                 2147483647,        "BINARY"),
    Map(VarBinary,              2147483647,        "BINARY"),
    Map(LongVarBinary,          2147483647,        "BLOB"),
    Map(Blob,                   2147483647,        "BLOB"),
    Map(Decimal,                        38, 0, 38, "DEC"),
    Map(Numeric,                        38, 0, 38, "NUMERIC"),
    Map(Number,                         38, 0, 38, "DEC"),
    Map(Bit,                             1,        "SMALLINT"),
    Map(Bit,                    2147483647,        "BINARY"),
    Map(Boolean,                         1,        "SMALLINT"),
    Map(TinyInt,                         3,        "SMALLINT"),
    Map(SmallInt,                        5,        "SMALLINT"),
    Map(Integer,                        10,        "INTEGER"),
    Map(BigInt,                         19, 0,  0, "DEC"),
    Map(Int,                            10,        "INTEGER"),
    Map(UTinyInt,                        3,        "SMALLINT"),
    Map(USmallInt,                       5,        "INTEGER"),
    Map(UInteger,                       10, 0,  0, "DEC"),
    Map(UBigInt,                        20, 0,  0, "DEC"),
    Map(Real,                           24,        "SMALLFLT"),
    Map(Float,                          53,        "FLOAT"),
    Map(FloatBetween,                   53,        "FLOAT"),
    Map(Double,                         53,        "FLOAT"),
    Map(DecFloat,                       34,        "FLOAT"),
    Map(Date,                           10,        "DATE"),
    Map(DateOra,                        19,        "TIMESTAMP"),
    Map(Time,                           18,        "TIME"),
    Map(Time,                           18, 1,  6, "TIMESTAMP"),
    Map(BigDateTime,                    26, 0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,        "TIMESTAMP"),
    Map(Timestamp,                      26, 0,  6, "TIMESTAMP"),
    Map(TimestampZone,                  26, 0,  6, "TIMESTAMP"),
    Map(DateTimeOffset,                 26, 0,  6, "TIMESTAMP"),
    Map(SmallMoney,                     10, 4,  4, "DEC"),
    Map(Money,                          19, 0,  4, "DEC"),
    Map(MoneyScaled,                    32, 0, 32, "DEC"),
    Map(IntervalYear,                   11,        "INTERVAL YEAR TO DAY"),
    Map(IntervalYearToMonth,            11,        "INTERVAL YEAR TO DAY"),
    Map(IntervalHourToMinute,            9,        "INTERVAL HOUR TO SECOND"),
    Map(IntervalHourToSecond,           32,        "INTERVAL HOUR TO SECOND"),
    Map(IntervalHourToSecond,           32, 1,  9, "CHARACTER VARYING"),
    Map(DateTimeYearToDay,              10,        "DATE"),
    Map(DateTimeYearToSecond,           19,        "TIMESTAMP"),
    Map(DateTimeYearToFraction,         25, 0,  5, "TIMESTAMP"),
    Map(SmallSerial,                     5,        "SMALLINT"),
    Map(Oid,                            10, 0,  0, "DEC"),
    Map(Xml,                    2147483647,        "XML"),
    Map(XmlType,                2147483647,        "XML"),
    Map(RowVersion,                      8,        "BINARY"),
    Map(NumericIdentity,                38, 0, 38, "NUMERIC"),
    Map(Serial,                         10,        "INTEGER"),
    Map(IntegerUnsigned,                10, 0,  0, "DEC"),
    Map(TinyIntUnsigned,                 3,        "SMALLINT"),
    Map(SmallIntUnsigned,                5,        "INTEGER"),
    Map(MediumIntUnsigned,               8,        "INTEGER"),
    Map(BigIntUnsigned,                 20, 0,  0, "DEC"),
};
// clang-format on
static_assert(std::size(kRows) == 68);

} // namespace

constinit const SMappingSheaf kHiRdbMapping = MakeMappingSheaf<kRows>();
