// What the user asked for on uvnames' command line.
#pragma once

#include "Tools/Support/ToolResults.h"

#include <string>
#include <vector>

namespace uvnames {

enum class enCommand
{
    Help,
    Version,
    Convert,
    Explain,
    Words,
    Limits
};

struct SCommandLine
{
    enCommand command = enCommand::Help;
    enToolFormat format = enToolFormat::Table;
    std::string database; // words, limits
    std::string from;     // convert, explain
    std::string to;
    std::vector<std::string> options; // NAME=VALUE
    std::string schema;
    std::vector<std::string> inputs; // files; "-" is standard input
    std::string reportFile;          // empty: none is wanted
    std::string htmlFile;
    std::string explained; // a name of the source
    std::string type;      // of that name
    bool isChangedOnly = false;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvnames
