// What the author asked for on the command line of uvgrammar test.
#pragma once

#include <string>
#include <vector>

namespace uvtest {

struct SCommandLine
{
    std::string language;           // the folder of its sources
    std::vector<std::string> files; // of cases; none: those of the language
    std::string filter;             // part of the names of the cases; empty: all
    bool isUpdate = false;
    bool isCoverage = false;
    bool isHelp = false;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvtest
