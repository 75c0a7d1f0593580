// Which files a run is about.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace uvscore {

struct SInputs
{
    std::vector<std::string> files; // those of a folder in the order of their names
    std::size_t passedOver = 0;     // in folders, for their extension
};

// Files are taken as they are named, folders with all that is below them and has one of the extensions (lower case); any
// has if there are none. A file is taken once.
// Throws: CToolFailure.
SInputs CollectInputs(const std::vector<std::string>& named, const std::set<std::string>& extensions);

} // namespace uvscore
