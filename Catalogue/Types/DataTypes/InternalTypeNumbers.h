// The internal types by name: what a row of a table or a sheaf is written with.
#pragma once

#include <cstddef>
#include <cstdint>

namespace UVDBRows {

enum enInternalType : std::int64_t
{
#define UVDB_TYPE(name, number, row, meaning) name = (number),
#define UVDB_TYPE_AGAIN(name, row)
#include "Catalogue/Types/DataTypes/InternalTypes.inc"
#undef UVDB_TYPE_AGAIN
#undef UVDB_TYPE
};

} // namespace UVDBRows

// Internal type numbers are below.
inline constexpr std::size_t kInternalTypeLimit = 142;
