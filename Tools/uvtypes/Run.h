#pragma once

#include "Tools/uvtypes/CommandLine.h"

class CToolMessages;

namespace uvtypes {

// Does what the command line asks for.
// Returns: the exit code.
// Throws:  CDatabaseError, CToolFailure.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvtypes
