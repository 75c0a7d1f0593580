#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// The path of a process as it was started: the first word of its command line.
// Returns: the bytes as the system has them, at most 8192; empty if there is no such process.
Uve::U8CString GetProcessName(int pid);
Uve::U8CString GetParentProcessName();
