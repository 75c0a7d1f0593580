// One type on its way from a database to another.
#pragma once

#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <string>
#include <string_view>
#include <vector>

namespace uvtypes {

struct SMappedType
{
    STypeText source;     // as it was read, with the numbers that its database assumes
    STypeNumbers written; // the numbers that the text itself gave
    STargetType target;
};

// Maps a type that is written for `from`.
// Returns: false if it can't be read or `from` has no such type; `error` then says why.
bool MapType(DB_VERSION_INFO from, DB_VERSION_INFO to, std::string_view text, bool isIdentity,
             SMappedType& mapped, std::string& error, STypeTrail* trail = nullptr);

// The types that show a whole table: each row at its limits, then each name without parameters. None twice.
std::vector<std::string> TypesOfTable(DB_VERSION_INFO version);

} // namespace uvtypes
