// Running another program and waiting for it.
#pragma once

#include <string>
#include <vector>

struct SProgramResult
{
    bool wasStarted = false; // false: there is no such program, or it can't be run
    bool wasStopped = false; // it took too long
    int exitCode = 0;        // 128 plus the signal's number if a signal ended it
    std::string output;      // what it wrote to both of its streams, in order
};

// Runs `program`, looked up along PATH, without a shell: arguments arrive as they are. It runs in `folder`
// under the locale "C", with an empty standard input. `logPath` is a scratch file for its output. After `mostSeconds`, if it
// isn't 0, the program is killed.
// Throws: CToolFailure if the process can't be made or its output can't be read.
SProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& folder, const std::string& logPath, unsigned mostSeconds = 0);
