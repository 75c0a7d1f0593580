// What the user asked for on uvrules' command line.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace uvrules {

enum class enCommand
{
    Help,
    Version,
    Pack,
    Unpack,
    Show,
    Resolve,
    Apply
};

using NamedTexts = std::vector<std::pair<std::string, std::string>>;

struct SCommandLine
{
    enCommand command = enCommand::Help;
    std::vector<std::string> operands; // as many as the command takes
    std::string output;                // unpack; empty: standard output
    bool isForced = false;             // unpack
    std::string hostFolder;            // resolve; empty: the folder of this program
    std::string first;                 // resolve: the conversion at hand
    std::string second;
    std::string third;
    NamedTexts parameters;    // apply: name and XPath expression
    NamedTexts xmlParameters; // apply: name and path
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvrules
