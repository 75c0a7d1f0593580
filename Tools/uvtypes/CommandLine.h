// What the user asked for on uvtypes' command line.
#pragma once

#include "Tools/Support/ToolResults.h"

#include <string>
#include <vector>

namespace uvtypes {

enum class enCommand
{
    Help,
    Version,
    Databases,
    List,
    Map
};

struct SCommandLine
{
    enCommand command = enCommand::Help;
    std::string topic;                 // Help: of one command; empty: of all
    std::vector<std::string> operands; // as many as the command takes
    enToolFormat format = enToolFormat::Table;
    std::string from; // map
    std::string to;
    bool isAll = false;
    bool isExplain = false;
    bool isCheck = false;
    bool isIdentity = false;
    bool isQuiet = false;
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

// `topic`: a command's name, or empty for all of them.
std::string HelpText(const std::string& topic);

} // namespace uvtypes
