#pragma once

#include "Tools/uvrules/CommandLine.h"

class CToolMessages;

namespace uvrules {

// Prints the stylesheet, and warns about conditions that no conversion can meet.
// Returns: the exit code.
// Throws:  CToolFailure.
int Resolve(const SCommandLine& line, CToolMessages& messages);

} // namespace uvrules
