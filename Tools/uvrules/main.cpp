// uvrules: packs, unpacks, resolves and applies rule files.
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvrules/Apply.h"
#include "Tools/uvrules/BadInput.h"
#include "Tools/uvrules/CommandLine.h"
#include "Tools/uvrules/PackedFiles.h"
#include "Tools/uvrules/Resolve.h"

#include <exception>
#include <iostream>

namespace {

int Run(const uvrules::SCommandLine& line, CToolMessages& messages)
{
    switch (line.command) {
    case uvrules::enCommand::Help:
        WriteStandardOutput(uvrules::HelpText());
        break;
    case uvrules::enCommand::Version:
        WriteStandardOutput("uvrules " UV_VERSION "\n");
        break;
    case uvrules::enCommand::Pack:
        return uvrules::Pack(line, messages);
    case uvrules::enCommand::Unpack:
        return uvrules::Unpack(line, messages);
    case uvrules::enCommand::Show:
        return uvrules::Show(line, messages);
    case uvrules::enCommand::Resolve:
        return uvrules::Resolve(line, messages);
    case uvrules::enCommand::Apply:
        return uvrules::Apply(line, messages);
    }
    return kToolClean;
}

} // namespace

int main(int argc, char** argv)
{
    CToolMessages messages("uvrules", std::cerr);
    try {
        return Run(uvrules::ReadCommandLine(argc, argv), messages);
    } catch (const CUsageError& e) {
        messages.Error(std::string(e.what()) + " (try --help)");
    } catch (const uvrules::CBadInput& e) {
        messages.Error(e.what());
        return kToolFindings;
    } catch (const std::exception& e) {
        messages.Error(e.what());
    }
    return kToolCouldNotRun;
}
