// What a database without a sheaf of its own gets.
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"

namespace {

using namespace UVDBRows;

// clang-format off
constexpr SUVDBToDBMSDataType kRows[] = {
//      type     size  name
    Map(VarChar, 4000, "VARCHAR"),
};
// clang-format on
static_assert(std::size(kRows) == 1);

} // namespace

constinit const SMappingSheaf kCommonMapping = MakeMappingSheaf<kRows>();
