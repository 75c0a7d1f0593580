// uvgrammar-score: what "uvgrammar score" runs. A program of its own, since it needs the library that parses, and
// uvgrammar must not: a change of the library would make the tables of every language anew.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar-score/CommandLine.h"
#include "Tools/uvgrammar-score/Run.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    CToolMessages messages("uvgrammar score", std::cerr);
    try {
        const uvscore::SCommandLine line = uvscore::ReadCommandLine(argc, argv);
        return uvscore::Run(line, messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
