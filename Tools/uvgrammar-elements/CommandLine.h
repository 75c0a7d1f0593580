// What the author asked for on the command line of uvgrammar elements.
#pragma once

#include <string>

namespace uvelements {

struct SCommandLine
{
    std::string language; // the folder of its sources
    std::string output;   // empty: standard output
    bool isJson = false;  // otherwise a page
    bool isCheck = false; // nothing is written: `output` is compared
    bool isHelp = false;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvelements
