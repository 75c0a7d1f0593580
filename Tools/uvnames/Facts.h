// What a database demands of names.
#pragma once

#include "Tools/Support/ToolDatabaseNames.h"
#include "Tools/Support/ToolResults.h"

#include <string>
#include <utility>
#include <vector>

namespace uvnames {

// A word of what it is about and a text, in the order in which they are shown.
using NameFacts = std::vector<std::pair<std::string, ToolCell>>;

NameFacts FactsOf(const SToolDatabase& database);

} // namespace uvnames
