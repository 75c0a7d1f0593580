#include "Tools/uvrules/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <iterator>
#include <limits>
#include <sstream>

namespace po = boost::program_options;

namespace uvrules {

namespace {

using Texts = std::vector<std::string>;

// The texts of options that take pairs, before they are split.
struct SPairOptions
{
    Texts parameters;
    Texts xmlParameters;
};

void AddNoOptions(po::options_description&, SCommandLine&, SPairOptions&) {}

void AddUnpackOptions(po::options_description& options, SCommandLine& line, SPairOptions&)
{
    // clang-format off
    options.add_options()
        ("output,o", po::value(&line.output)->value_name("OUT"), "write OUT instead of standard output; a file that is there stays")
        ("force", po::bool_switch(&line.isForced), "replace OUT if it is there");
    // clang-format on
}

void AddResolveOptions(po::options_description& options, SCommandLine& line, SPairOptions&)
{
    // clang-format off
    options.add_options()
        ("first", po::value(&line.first)->value_name("A"), "the conversion at hand: what the name of a condition must equal")
        ("second", po::value(&line.second)->value_name("B"), "what the second name of a condition must equal, if it has one")
        ("third", po::value(&line.third)->value_name("C"), "what an item of a condition's list must equal, if it has one")
        ("host", po::value(&line.hostFolder)->value_name("DIR"), "the folder that the host's program stands in; else that of uvrules");
    // clang-format on
}

void AddApplyOptions(po::options_description& options, SCommandLine&, SPairOptions& pairs)
{
    // clang-format off
    options.add_options()
        ("param", po::value(&pairs.parameters)->value_name("NAME=XPATH"), "global parameter by an expression, a text in its own quotes; repeatable")
        ("param-xml", po::value(&pairs.xmlParameters)->value_name("NAME=FILE"), "global parameter by an XML document; repeatable");
    // clang-format on
}

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

struct SCommand
{
    const char* name;
    enCommand command;
    std::size_t minOperands;
    std::size_t maxOperands;
    void (*addOptions)(po::options_description& options, SCommandLine& line, SPairOptions& pairs);
    const char* usage;
    const char* purpose;
};

// clang-format off
constexpr SCommand kCommands[] = {
//   name       command             min max         options            usage, purpose
    {"pack",    enCommand::Pack,    1,  kAnyNumber, AddNoOptions,      "pack FILE...",
     "Replaces each file by its packed form, once that is known to give the file back."},
    {"unpack",  enCommand::Unpack,  1,  1,          AddUnpackOptions,  "unpack FILE|- [-o OUT [--force]]",
     "Prints what a packed file holds."},
    {"show",    enCommand::Show,    1,  1,          AddNoOptions,      "show FILE|-",
     "Prints the header of a packed file and whether it unpacks."},
    {"resolve", enCommand::Resolve, 1,  1,          AddResolveOptions, "resolve NAME [--first A] [--second B] [--third C]",
     "Prints a rule stylesheet with imports resolved and conditions decided."},
    {"apply",   enCommand::Apply,   2,  2,          AddApplyOptions,   "apply STYLESHEET|- TREE.xml|- [--param NAME=XPATH] [--param-xml NAME=FILE]",
     "Prints the document that a stylesheet, plain or packed, makes of a tree."},
};
// clang-format on

NamedTexts SplitPairs(const Texts& texts, const std::string& option, const std::string& form)
{
    NamedTexts pairs;
    for (const std::string& text : texts) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0)
            throw CUsageError(std::string(option).append(" takes ").append(form) + ", not '" + text + "'");
        pairs.emplace_back(text.substr(0, equals), text.substr(equals + 1));
    }
    return pairs;
}

// Reads what stands after the command's name.
// Returns: true if help is asked for.
bool ReadCommand(const SCommand& command, int argc, const char* const* argv, SCommandLine& line)
{
    SPairOptions pairs;
    po::options_description options;
    command.addOptions(options, line, pairs);
    options.add_options()("help,h", "")("operand", po::value(&line.operands));
    po::positional_options_description operands;
    operands.add("operand", -1);

    const po::variables_map values = ReadToolOptions(argc, argv, options, operands);
    line.parameters = SplitPairs(pairs.parameters, "--param", "NAME=XPATH");
    line.xmlParameters = SplitPairs(pairs.xmlParameters, "--param-xml", "NAME=FILE");
    return values.count("help") != 0;
}

void RefuseContradictions(const SCommand& command, const SCommandLine& line)
{
    if (line.operands.size() < command.minOperands || line.operands.size() > command.maxOperands)
        throw CUsageError("usage: uvrules " + std::string(command.usage));
    if (std::count(line.operands.begin(), line.operands.end(), "-") > 1)
        throw CUsageError("standard input can be read once");
    if (line.isForced && line.output.empty())
        throw CUsageError("--force is for --output");
}

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SCommandLine line;
    const std::string name = argc > 1 ? argv[1] : "";
    if (name.empty())
        throw CUsageError("no command given");
    if (name == "--help" || name == "-h")
        return line;
    if (name == "--version") {
        line.command = enCommand::Version;
        return line;
    }
    const auto* const command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                             [&name](const SCommand& c) { return c.name == name; });
    if (command == std::end(kCommands))
        throw CUsageError("there is no command '" + name + "'");
    if (ReadCommand(*command, argc - 1, argv + 1, line))
        return line;
    RefuseContradictions(*command, line);
    line.command = command->command;
    return line;
}

std::string HelpText()
{
    std::ostringstream text;
    text << "usage: uvrules COMMAND ...\n"
            "The tool for authors of rule files.\n";
    for (const SCommand& command : kCommands) {
        SCommandLine line;
        SPairOptions pairs;
        po::options_description options(110);
        command.addOptions(options, line, pairs);
        text << "\nuvrules " << command.usage << "\n  " << command.purpose << '\n' << options;
    }
    text << "\nresolve looks for NAME where the library does: in the folder rules beside the host's program "
            "or, if "
            "there is\n"
            "none, in the folder crs; what it imports from rules stands in rules/.Precompiled. A value that "
            "isn't "
            "given is\n"
            "empty. If NAME itself holds \"GlobalVariables\", its conditions are decided as in an import.\n"
            "apply takes a stylesheet as it stands: resolve its imports first.\n"
            "\nResults go to standard output, messages to standard error. --help and --version print what "
            "they say.\n"
            "Exit code: 0 clean; 1 a file can't be packed or unpacked, a stylesheet can't be resolved or "
            "applied;\n"
            "2 something could not run: bad arguments, unreadable files, failed writes.\n";
    return text.str();
}

} // namespace uvrules
