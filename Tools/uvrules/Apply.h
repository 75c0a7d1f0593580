#pragma once

#include "Tools/uvrules/CommandLine.h"

class CToolMessages;

namespace uvrules {

// Prints what the stylesheet makes of the tree.
// Returns: the exit code.
// Throws:  CToolFailure, CBadInput.
int Apply(const SCommandLine& line, CToolMessages& messages);

} // namespace uvrules
