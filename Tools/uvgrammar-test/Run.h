// The run of uvgrammar test as a whole.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-test/CommandLine.h"

namespace uvtest {

// Returns: the exit code.
// Throws:  what keeps all of it from being done.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvtest
