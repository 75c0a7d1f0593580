// uvtypes: the data types of databases, and what they are called in another one.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolDatabase.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvtypes/CommandLine.h"
#include "Tools/uvtypes/Run.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    CToolMessages messages("uvtypes", std::cerr);
    try {
        return uvtypes::Run(uvtypes::ReadCommandLine(argc, argv), messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
