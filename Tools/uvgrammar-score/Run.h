// One run of uvgrammar score, from the command line to the exit code.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-score/CommandLine.h"

namespace uvscore {

// Throws: CToolFailure, CCannotWork and uvparse::CLanguageError for what could not run.
int Run(const SCommandLine& line, CToolMessages& messages);

} // namespace uvscore
