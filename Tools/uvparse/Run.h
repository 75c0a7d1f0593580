// The work of one call of uvparse.
#pragma once

#include "Tools/uvparse/CommandLine.h"

namespace uvparse {

// Parses the files one after the other; one that fails doesn't stop the others. What ends the whole run is
// told as a message too.
// Returns: the exit code, the worst that any file gave.
// Throws:  std::exception if messages can't be written.
int Run(const SCommandLine& line);

} // namespace uvparse
