// What the author asked for on the command line of uvgrammar score.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace uvscore {

struct SCommandLine
{
    std::string language; // the folder of its sources
    std::vector<std::string> inputs;
    std::vector<std::pair<std::string, std::string>> options; // of the database info
    std::size_t groups = 20;                                  // shown
    std::size_t jobs = 0;                                     // processes; 0: one a processor
    std::string saveFile;
    std::string againstFile;
    std::string shrinkFile; // nothing else is done with it; empty: the inputs are scored
    std::string comment;    // put between tokens
    std::size_t samples = 1000;
    std::uint64_t seed = 1;
    bool isCoverage = false;
    bool failsOnUnused = false; // rules
    bool isComments = false;
    bool isRecovery = false;
    bool isQuiet = false;
    bool isHelp = false;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvscore
