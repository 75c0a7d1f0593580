// Exit codes, the same for every tool. With several inputs the worst one counts.
#pragma once

enum enToolExit
{
    kToolClean = 0,
    kToolFindings = 1,   // the work was done and something is wrong with the input
    kToolCouldNotRun = 2 // bad arguments, missing files, failed writes
};
