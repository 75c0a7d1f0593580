// uvgrammar-elements: what "uvgrammar elements" runs. Like uvgrammar-test it is a program of its own, since it reads the
// cases of a language.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-elements/CommandLine.h"
#include "Tools/uvgrammar-elements/Run.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    CToolMessages messages("uvgrammar elements", std::cerr);
    try {
        const uvelements::SCommandLine line = uvelements::ReadCommandLine(argc, argv);
        return uvelements::Run(line, messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
