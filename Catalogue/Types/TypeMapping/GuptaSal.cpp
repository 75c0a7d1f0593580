// What programs in 4GL and SAL call the internal types, in Informix's terms. Times with digits behind the
// second are written TO FRACTION, those without TO SECOND. Unsigned integers take the next larger one.
// Intervals, and moments without a full date or time, become texts.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                           size  scale  name
    Map(Char,                           32767,        "CHAR"),
    Map(Char,                   4398046511104,        "CLOB"),
    Map(VarChar,                          255,        "VARCHAR"),
    Map(VarChar,                        32739,        "LVARCHAR"),
    Map(VarChar,                4398046511104,        "CLOB"),
    Map(Text,                   4398046511104,        "CLOB"),
    Map(WChar,                          32767,        "NCHAR"),
    Map(VarWChar,                         255,        "NVARCHAR"),
    Map(VarWChar,                       32739,        "LVARCHAR"),
    Map(VarWChar,               4398046511104,        "CLOB"),
    Map(Binary,                    2147483647,        "BYTE"),
    Map(VarBinary,                 2147483647,        "BYTE"),
    Map(LongVarBinary,             2147483647,        "BYTE"),
    Map(Blob,                   4398046511104,        "BLOB"),
    Map(Decimal,                           32, 0, 32, "DECIMAL"),
    Map(Numeric,                           32, 0, 32, "NUMERIC"),
    Map(Number,                            32, 0, 32, "DECIMAL"),
    Map(Bit,                                1,        "BOOLEAN"),
    Map(Bit,                      17179869176,        "BYTE"),
    Map(Boolean,                            1,        "BOOLEAN"),
    Map(TinyInt,                            3,        "SMALLINT"),
    Map(SmallInt,                           5,        "SMALLINT"),
    Map(Integer,                           10,        "INTEGER"),
    Map(BigInt,                            19,        "INT8"),
    Map(UTinyInt,                           3,        "SMALLINT"),
    Map(USmallInt,                          5,        "INTEGER"),
    Map(UInteger,                          10,        "INT8"),
    Map(UBigInt,                           20, 0,  0, "DECIMAL"),
    Map(Real,                              24,        "SMALLFLOAT"),
    Map(Float,                             53,        "FLOAT"),
    Map(Double,                            53,        "DOUBLE PRECISION"),
    Map(DecFloat,                          34,        "DECIMAL"),
    Map(Date,                              10,        "DATE"),
    Map(DateOra,                           19,        "DATETIME YEAR TO SECOND"),
    Map(Time,                              18, 0,  0, "DATETIME HOUR TO SECOND"),
    Map(Time,                              18, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(BigTime,                           15, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(BigDateTime,                       26, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(SmallTimestamp,                    19, 0,  0, "DATETIME YEAR TO SECOND"),
    Map(Timestamp,                         35, 0,  0, "DATETIME YEAR TO SECOND"),
    Map(Timestamp,                         35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(TimestampZone,                     35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(TimeZone,                          24, 0,  5, "DATETIME HOUR TO FRACTION()"),
    Map(DateTimeOffset,                    35, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(SmallMoney,                        19, 0,  4, "MONEY"),
    Map(Money,                             19, 0,  4, "MONEY"),
    Map(MoneyScaled,                       32, 0, 32, "MONEY"),
    Map(DateTimeYearToDay,                 10,        "DATETIME YEAR TO DAY"),
    Map(DateTimeYearToSecond,              19,        "DATETIME YEAR TO SECOND"),
    Map(DateTimeHourToSecond,               8,        "DATETIME HOUR TO SECOND"),
    Map(DateTimeYearToFraction,            25, 0,  5, "DATETIME YEAR TO FRACTION()"),
    Map(SmallSerial,                        5,        "SMALLINT"),
    Map(Serial,                            10,        "SERIAL"),
    Map(IntegerUnsigned,                   10,        "INT8"),
    Map(TinyIntUnsigned,                    3,        "SMALLINT"),
    Map(SmallIntUnsigned,                   5,        "INTEGER"),
    Map(MediumIntUnsigned,                  8,        "INTEGER"),
    Map(BigIntUnsigned,                    20, 0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 58);

} // namespace

constinit const SMappingSheaf kGuptaSalMapping = MakeMappingSheaf<kRows>();
