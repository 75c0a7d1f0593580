// The run of uvgrammar elements as a whole.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-elements/CommandLine.h"

namespace uvelements {

// Returns: the exit code.
// Throws:  what keeps all of it from being done.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvelements
