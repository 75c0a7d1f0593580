// The languages of .NET, and scripts of browsers.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Which types of C# carry the internal types; the rest travels as text.
// clang-format off
constexpr SUVDBToDBMSDataType kCSharpRows[] = {
//      type             size  scale   name
    Map(VarChar,     2147483647,         "String"),
    Map(Decimal,             28,  0, 28, "decimal"),
    Map(Numeric,             28,  0, 28, "decimal"),
    Map(Number,              28,  0, 28, "decimal"),
    Map(Bit,                  1,         "bool"),
    Map(Bit,         2147483647,         "String"),
    Map(Boolean,              1,         "bool"),
    Map(TinyInt,              3,         "int"),
    Map(SmallInt,             5,         "int"),
    Map(Integer,             10,         "int"),
    Map(BigInt,              19,         "decimal"),
    Map(Int,                 10,         "int"),
    Map(UTinyInt,             3,         "int"),
    Map(Real,                24,         "float"),
    Map(Float,               53,         "double"),
    Map(Double,              53,         "double"),
    Map(SmallMoney,          28,  0, 28, "decimal"),
    Map(Money,               28,  0, 28, "decimal"),
    Map(SmallSerial,          5,         "int"),
    Map(Serial,              10,         "int"),
};
// clang-format on
static_assert(std::size(kCSharpRows) == 20);

// Which types stand for the internal types in scripts of browsers; the rest travels as text.
constexpr enInternalType kJavaScriptGone[] = {SmallSerial};
constexpr auto kJavaScriptRows = Newer<kCSharpRows, kNoRows, kJavaScriptGone>();
static_assert(std::size(kJavaScriptRows) == 19);

// Which types of .NET stand for the internal types in its scripts and on phones; the rest travels as text.
constexpr enInternalType kPowerShellGone[] = {SmallMoney, Serial};
constexpr auto kPowerShellRows = Newer<kJavaScriptRows, kNoRows, kPowerShellGone>();
static_assert(std::size(kPowerShellRows) == 17);

} // namespace

constinit const SMappingSheaf kCSharpMapping = MakeMappingSheaf<kCSharpRows>();
constinit const SMappingSheaf kJavaScriptMapping = MakeMappingSheaf<kJavaScriptRows>();
constinit const SMappingSheaf kPowerShellMapping = MakeMappingSheaf<kPowerShellRows>();
