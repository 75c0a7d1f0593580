// What Adabas files, seen by SQL, call the internal types.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type                        size  scale   name
    Map(Char,                          253,         "CHAR"),
    Map(Char,                        16381,         "VARCHAR"),
    Map(VarChar,                     16381,         "VARCHAR"),
    Map(Binary,                        126,         "BINARY"),
    Map(Binary,                 2147483643,         "LVARBINARY"),
    Map(VarBinary,                   16381,         "VARBINARY"),
    Map(VarBinary,              2147483643,         "LVARBINARY"),
    Map(LongVarBinary,          2147483643,         "LVARBINARY"),
    Map(Blob,                   2147483643,         "LVARBINARY"),
    Map(Decimal,                        29,  0, 29, "DECIMAL"),
    Map(Numeric,                        29,  0, 29, "NUMERIC"),
    Map(Number,                         29,  0, 29, "NUMERIC"),
    Map(Bit,                             1,         "BIT"),
    Map(Bit,                         16381,         "VARBINARY"),
    Map(Boolean,                         1,         "BIT"),
    Map(TinyInt,                         3,         "TINYINT"),
    Map(SmallInt,                        5,         "SMALLINT"),
    Map(Integer,                        10,         "INTEGER"),
    Map(BigInt,                         19,         "DECIMAL"),
    Map(Int,                            10,         "INTEGER"),
    Map(UTinyInt,                        3,         "SMALLINT"),
    Map(USmallInt,                       5,         "INTEGER"),
    Map(UInteger,                       10,         "DECIMAL"),
    Map(UBigInt,                        20,  0,  0, "DECIMAL"),
    Map(Real,                           24,         "REAL"),
    Map(Float,                          53,         "FLOAT"),
    Map(Double,                         53,         "DOUBLE"),
    Map(DecFloat,                       53,         "DOUBLE"),
    Map(Date,                           10,         "DATE"),
    Map(DateOra,                        19,  0,  6, "TIMESTAMP"),
    Map(Time,                            8,  0,  0, "TIME"),
    Map(BigTime,                         8,  0,  0, "TIME"),
    Map(BigDateTime,                    26,  0,  6, "TIMESTAMP"),
    Map(SmallTimestamp,                 19,  0,  6, "TIMESTAMP"),
    Map(Timestamp,                      26,  0,  6, "TIMESTAMP"),
    Map(TimestampZone,                  26,  0,  6, "TIMESTAMP"),
    Map(TimeZone,                        8,  0,  0, "TIME"),
    Map(DateTimeOffset,                 26,  0,  6, "TIMESTAMP"),
    Map(SmallMoney,                     10,  0,  4, "DECIMAL"),
    Map(Money,                          19,  0,  4, "DECIMAL"),
    Map(MoneyScaled,                    32,  0, 29, "DECIMAL"),
    Map(DateTimeYearToSecond,           19,  0,  6, "TIMESTAMP"),
    Map(DateTimeYearToFraction,         26,  0,  6, "TIMESTAMP"),
    Map(SmallSerial,                     5,         "SMALLINT"),
    Map(NumericIdentity,                29,  0, 29, "NUMERIC"),
    Map(Serial,                         10,         "INTEGER"),
    Map(IntegerUnsigned,                10,         "DECIMAL"),
    Map(TinyIntUnsigned,                 3,         "SMALLINT"),
    Map(SmallIntUnsigned,                5,         "INTEGER"),
    Map(MediumIntUnsigned,               8,         "INTEGER"),
    Map(BigIntUnsigned,                 20,  0,  0, "DECIMAL"),
};
// clang-format on
static_assert(std::size(kRows) == 51);

} // namespace

constinit const SMappingSheaf kAdabasMapping = MakeMappingSheaf<kRows>();
