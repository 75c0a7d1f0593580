// What the author asked for on the command line of uvgrammar elements.
#pragma once

#include <stdexcept>
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

// The command line makes no sense; the text says why.
class CUsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvelements
