// Visual Basic in its three forms.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

#include <iterator>

namespace {

using namespace UVDBRows;

// Which types of Visual Basic carry the internal types; the rest travels as text.
// clang-format off
constexpr SUVDBToDBMSDataType kVisualBasicRows[] = {
//      type          size  scale   name
    Map(VarChar,  2147483647,         "String"),
    Map(Decimal,          15,  0, 15, "DOUBLE"),
    Map(Numeric,          15,  0, 15, "DOUBLE"),
    Map(Boolean,           1,         "BOOLEAN"),
    Map(SmallInt,          5,         "SHORT"),
    Map(Integer,          10,         "INTEGER"),
    Map(BigInt,           15,         "DOUBLE"),
    Map(Real,             24,         "DOUBLE"),
    Map(Float,            53,         "DOUBLE"),
    Map(Double,           53,         "DOUBLE"),
};
// clang-format on
static_assert(std::size(kVisualBasicRows) == 10);

// Which types of the Visual Basic of reports carry the internal types; the rest travels as text.
constexpr enInternalType kVbForCrystalGone[] = {Real};
constexpr auto kVbForCrystalRows = Newer<kVisualBasicRows, kNoRows, kVbForCrystalGone>();
static_assert(std::size(kVbForCrystalRows) == 9);

// Which types of Visual Basic for .NET carry the internal types; the rest travels as text.
// clang-format off
constexpr SUVDBToDBMSDataType kVbNetChanges[] = {
//      type          size  scale   name
    Map(Integer,          10,         "Integer"),
};
// clang-format on
constexpr enInternalType kVbNetGone[] = {Real};
constexpr auto kVbNetRows = Newer<kVisualBasicRows, kVbNetChanges, kVbNetGone>();
static_assert(std::size(kVbNetRows) == 9);

} // namespace

constinit const SMappingSheaf kVisualBasicMapping = MakeMappingSheaf<kVisualBasicRows>();
constinit const SMappingSheaf kVbForCrystalMapping = MakeMappingSheaf<kVbForCrystalRows>();
constinit const SMappingSheaf kVbNetMapping = MakeMappingSheaf<kVbNetRows>();
