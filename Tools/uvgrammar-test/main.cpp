// uvgrammar-test: what "uvgrammar test" runs. Like uvgrammar-score it is a program of its own, since it needs the library
// that parses.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-test/CommandLine.h"
#include "Tools/uvgrammar-test/Run.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    CToolMessages messages("uvgrammar test", std::cerr);
    try {
        const uvtest::SCommandLine line = uvtest::ReadCommandLine(argc, argv);
        return uvtest::Run(line, messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
