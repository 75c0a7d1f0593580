#pragma once

#include "Tools/uvnames/CommandLine.h"

class CToolMessages;

namespace uvnames {

// Does what the command line asks for.
// Returns: the exit code.
// Throws:  CDatabaseError, CUsageError, CToolFailure.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvnames
