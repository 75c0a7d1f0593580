// The databases whose types are known.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Tools/Support/ToolDatabaseNames.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct SMappingSheafKey;

namespace uvtypes {

// ReadToolDatabase.
// Throws: CDatabaseError for names that mean nothing, and for databases without a table of types.
SToolDatabase ReadSource(std::string_view text);

// The same for databases without a sheaf of their own.
SToolDatabase ReadTarget(std::string_view text);

// The sheaf that serves a target.
const SMappingSheafKey& SheafOf(const SToolDatabase& target);

// "PostgreSQL 8.4", or without a version where the sheaf has none.
std::string SheafName(const SMappingSheafKey& sheaf);

// Kinds and subtypes with a table or a sheaf, ascending.
struct SKnownDatabase
{
    std::string name;
    DB_VERSION_INFO version;
    std::size_t rowCount = 0;          // of its table of types; 0: no source
    std::vector<std::string> versions; // of its sheaves; "any" for one without a version; empty: no target
};

std::vector<SKnownDatabase> KnownDatabases();

} // namespace uvtypes
