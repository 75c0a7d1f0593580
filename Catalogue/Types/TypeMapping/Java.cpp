// Java.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Which classes of Java carry the internal types.
// clang-format off
constexpr SUVDBToDBMSDataType kJavaRows[] = {
//      type                  size  scale           name
    Map(VarChar,          2147483647,                 "String"),
    Map(Binary,           2147483647,                 "byte[]"),
    Map(VarBinary,        2147483647,                 "byte[]"),
    Map(LongVarBinary,    2147483647,                 "byte[]"),
    Map(Blob,             2147483647,                 "byte[]"),
    Map(Decimal,          2147483647,  0, 2147483647, "BigDecimal"),
    Map(Numeric,          2147483647,  0, 2147483647, "BigDecimal"),
    Map(Number,           2147483647,  0, 2147483647, "BigDecimal"),
    Map(Bit,                       1,                 "Boolean"),
    Map(Bit,              2147483647,                 "byte[]"),
    Map(Boolean,                   1,                 "Boolean"),
    Map(TinyInt,                   3,                 "Byte"),
    Map(SmallInt,                  5,                 "Short"),
    Map(Integer,                  10,                 "Integer"),
    Map(BigInt,                   19,                 "Long"),
    Map(Int,                      10,                 "Integer"),
    Map(UTinyInt,                  3,                 "Short"),
    Map(USmallInt,                 5,                 "Integer"),
    Map(UInteger,                 10,                 "Long"),
    Map(Real,                     24,                 "Float"),
    Map(Float,                    53,                 "Double"),
    Map(Double,                   53,                 "Double"),
    Map(DecFloat,         2147483647,  0, 2147483647, "BigDecimal"),
    Map(Date,                     10,                 "Date"),
    Map(DateOra,                  19,  0,          9, "Timestamp"),
    Map(Time,                      8,  0,          0, "Time"),
    Map(SmallTimestamp,           19,  0,          9, "Timestamp"),
    Map(Timestamp,                29,  0,          9, "Timestamp"),
    Map(TimestampZone,            29,  0,          9, "Timestamp"),
    Map(TimeZone,                  8,  0,          0, "Time"),
    Map(DateTimeOffset,           29,  0,          9, "Timestamp"),
    Map(SmallMoney,       2147483647,  0, 2147483647, "BigDecimal"),
    Map(Money,            2147483647,  0, 2147483647, "BigDecimal"),
    Map(SmallSerial,               5,                 "Short"),
    Map(Serial,                   10,                 "Integer"),
    Map(IntegerUnsigned,          10,                 "Long"),
    Map(TinyIntUnsigned,           3,                 "Short"),
    Map(SmallIntUnsigned,          5,                 "Integer"),
    Map(BigIntUnsigned,           20,  0,          0, "BigDecimal"),
};
// clang-format on
static_assert(std::size(kJavaRows) == 39);

// Which classes of Java carry the internal types on mobile devices and in embedded libraries.
constexpr enInternalType kAndroidGone[] = {UInteger, SmallMoney, SmallSerial};
constexpr auto kAndroidRows = Newer<kJavaRows, kNoRows, kAndroidGone>();
static_assert(std::size(kAndroidRows) == 36);

} // namespace

constinit const SMappingSheaf kJavaMapping = MakeMappingSheaf<kJavaRows>();
constinit const SMappingSheaf kAndroidMapping = MakeMappingSheaf<kAndroidRows>();
