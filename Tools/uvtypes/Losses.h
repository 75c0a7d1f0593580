// What is lost when one type stands for another.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Tools/uvtypes/Capacity.h"

#include <string>
#include <vector>

namespace uvtypes {

// What `target`, a type as written for `to`, can't take of `source`. Each is a sentence without a full stop;
// none: nothing is lost, or nothing is known of one of both.
std::vector<std::string> Losses(const SCapacity& source, DB_VERSION_INFO to, const std::string& target);

} // namespace uvtypes
