// Languages that have no types of columns.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// What languages without types of columns, such as COBOL or HTML, write for the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kLanguageRows[] = {
//      type                        size  scale     name
    Map(Char,                   2147483647,           "CHAR"),
    Map(VarChar,                2147483647,           "VARCHAR"),
    Map(WChar,                  1073741823,           "NCHAR"),
    Map(VarWChar,               1073741823,           "NCHAR VARYING"),
    Map(LongVarWChar,           1073741823,           "NCHAR VARYING"),
    Map(Binary,                 2147483647,           "BYTEA"),
    Map(VarBinary,              2147483647,           "BYTEA"),
    Map(LongVarBinary,          2147483647,           "BYTEA"),
    Map(Blob,                   2147483647,           "BYTEA"),
    Map(Decimal,                      1000,  0, 1000, "DECIMAL"),
    Map(Numeric,                      1000,  0, 1000, "NUMERIC"),
    Map(Number,                       1000,  0, 1000, "NUMERIC"),
    Map(Bit,                             1,           "BOOLEAN"),
    Map(Bit,                    2147483647,           "BIT"),
    Map(Boolean,                         1,           "BOOLEAN"),
    Map(TinyInt,                         3,           "SMALLINT"),
    Map(SmallInt,                        5,           "SMALLINT"),
    Map(Integer,                        10,           "INTEGER"),
    Map(BigInt,                         19,           "LARGEINT"),
    Map(Int,                            10,           "INT"),
    Map(UTinyInt,                        3,           "SMALLINT"),
    Map(USmallInt,                       5,           "INTEGER"),
    Map(UInteger,                       10,           "LARGEINT"),
    Map(UBigInt,                        20,  0,    0, "NUMERIC"),
    Map(Real,                           53,           "DOUBLE PRECISION"),
    Map(Float,                          53,           "DOUBLE PRECISION"),
    Map(Double,                         53,           "DOUBLE PRECISION"),
    Map(DecFloat,                       53,           "DOUBLE PRECISION"),
    Map(Date,                           10,           "DATE"),
    Map(DateOra,                        19,  0,    9, "TIMESTAMP"),
    Map(Time,                           18,  0,    9, "TIME()"),
    Map(SmallTimestamp,                 19,  0,    9, "TIMESTAMP"),
    Map(Timestamp,                      29,  0,    9, "TIMESTAMP"),
    Map(TimestampZone,                  35,  0,    9, "TIMESTAMP() WITH TIME ZONE"),
    Map(TimeZone,                       24,  0,    9, "TIME() WITH TIME ZONE"),
    Map(DateTimeOffset,                 35,  0,    9, "TIMESTAMP() WITH TIME ZONE"),
    Map(SmallMoney,                     19,  0,    4, "MONEY"),
    Map(Money,                          19,  0,    4, "NUMERIC"),
    Map(MoneyScaled,                  1000,  0, 1000, "NUMERIC"),
    Map(IntervalYearToMonth,            13,           "INTERVAL YEAR() TO MONTH"),
    Map(DateTimeYearToSecond,           19,  0,    9, "TIMESTAMP"),
    Map(DateTimeYearToFraction,         29,  0,    9, "TIMESTAMP"),
    Map(IntervalDayToFraction,          26,           "INTERVAL DAY() TO SECOND"),
    Map(SmallSerial,                     5,           "SMALLINT"),
    Map(NumericIdentity,              1000,  0, 1000, "NUMERIC"),
    Map(Serial,                         10,           "INTEGER"),
    Map(IntegerUnsigned,                10,           "LARGEINT"),
    Map(TinyIntUnsigned,                 3,           "SMALLINT"),
    Map(SmallIntUnsigned,                5,           "INTEGER"),
    Map(MediumIntUnsigned,               8,           "INTEGER"),
    Map(BigIntUnsigned,                 20,  0,    0, "NUMERIC"),
};
// clang-format on
static_assert(std::size(kLanguageRows) == 51);

// What scripting languages without types of columns write for the internal types.
// clang-format off
constexpr enInternalType kScriptGone[] = {
    DateTimeYearToSecond, DateTimeYearToFraction, NumericIdentity, MediumIntUnsigned,
};
// clang-format on
constexpr auto kScriptRows = Newer<kLanguageRows, kNoRows, kScriptGone>();
static_assert(std::size(kScriptRows) == 47);

} // namespace

constinit const SMappingSheaf kLanguageMapping = MakeMappingSheaf<kLanguageRows>();
constinit const SMappingSheaf kScriptMapping = MakeMappingSheaf<kScriptRows>();
