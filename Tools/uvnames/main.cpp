// uvnames: what the objects of a database are called in another one.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolDatabase.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvnames/CommandLine.h"
#include "Tools/uvnames/Run.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    CToolMessages messages("uvnames", std::cerr);
    try {
        return uvnames::Run(uvnames::ReadCommandLine(argc, argv), messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
