// The work of one call of uvparse.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvparse/CommandLine.h"

namespace uvparse {

// Parses the files one after the other; one that fails doesn't stop the others. Messages also go to standard
// error.
// Returns: the exit code, the worst that any file gave.
// Throws:  std::exception for what ends the whole run.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvparse
