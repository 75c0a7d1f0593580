#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// Returns: the path of a process as it was started, the first word of its command line; empty if there is no
//          such process.
Uve::U8CString GetProcessName(int pid);
Uve::U8CString GetParentProcessName();
