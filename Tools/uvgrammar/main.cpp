// uvgrammar: turns the sources of a grammar into the tables of a language.
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/GrammarBuild.h"
#include "UVEnvironment/FileHelper.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

namespace po = boost::program_options;

constexpr const char* kUsage =
    "usage: uvgrammar --lexer X.l --parser X.y --output DIR [--name NAME] [--style] [--report]\n"
    "\n"
    "Runs flex and bison over the two sources of a grammar and writes the tables of the language to DIR, "
    "which is\n"
    "replaced as a whole, and only if the grammar passes all checks.\n"
    "\n"
    "       uvgrammar score LANGUAGE FILE|FOLDER...\n"
    "\n"
    "Parses files with the tables of a language and tells what can't be read; see uvgrammar score --help.\n"
    "\n"
    "       uvgrammar test LANGUAGE [FILE...]\n"
    "\n"
    "Compares the trees of a language's texts with those that are expected; see uvgrammar test --help.\n"
    "\n"
    "       uvgrammar elements LANGUAGE\n"
    "\n"
    "Tells which elements the trees of a language have; see uvgrammar elements --help.\n"
    "\n";

constexpr std::string_view kSubcommands[] = {"elements", "score", "test"};

constexpr const char* kExitCodes = "\n"
                                   "exit code: 0 tables written, 1 grammar refused, 2 could not run\n";

// A word that isn't an option is a mistake here: everything has its own option.
po::variables_map ReadCommandLine(int argc, char** argv, const po::options_description& options)
{
    po::variables_map values;
    const po::positional_options_description none;
    po::store(po::command_line_parser(argc, argv).options(options).positional(none).run(), values);
    if (values.count("help") == 0)
        po::notify(values);
    return values;
}

std::string LastName(const std::string& path)
{
    const std::filesystem::path normal = (std::filesystem::path(path) / "").lexically_normal().parent_path();
    return normal.filename().string();
}

// Gives the rest of the command line to the program beside this one that has the subcommand's name in its own.
// Returns: only if it can't be run.
int RunSubcommand(char** argv, CToolMessages& messages)
{
    std::string program =
        Uve::Path::Combine(Uve::GetPathOfExe(), (std::string("uvgrammar-") + argv[1]).c_str()).c_str();
    argv[1] = program.data();
    execv(program.c_str(), argv + 1);
    messages.Error(program + ": " + std::strerror(errno));
    return kToolCouldNotRun;
}

int Run(int argc, char** argv, CToolMessages& messages)
{
    if (argc > 1 && std::ranges::find(kSubcommands, argv[1]) != std::end(kSubcommands))
        return RunSubcommand(argv, messages);
    SGrammarBuild build;
    bool isQuiet = false;
    po::options_description options("options");
    options.add_options()                                                                        //
        ("lexer", po::value(&build.lexerPath)->required()->value_name("FILE"), "flex source")    //
        ("parser", po::value(&build.parserPath)->required()->value_name("FILE"), "bison source") //
        ("output", po::value(&build.outputPath)->required()->value_name("DIR"),
         "the language's table directory")                                                                //
        ("name", po::value(&build.name)->value_name("NAME"), "the language's name; else DIR's last part") //
        ("depfile", po::value(&build.depfilePath)->value_name("FILE"),
         "write the names of all files that were read, as a rule for make or ninja") //
        ("expanded", po::value(&build.expandedPath)->value_name("DIR"),
         "write the two sources as flex and bison read them")                                         //
        ("style", po::bool_switch(&build.isStyled), "refuse names of nodes that rules can't rely on") //
        ("report", "print counts of rules, states, table sizes, conflicts, unused rules; and an example of "
                   "each conflict")                                 //
        ("quiet,q", po::bool_switch(&isQuiet), "write errors only") //
        ("help,h", "print this");
    po::variables_map values;
    try {
        values = ReadCommandLine(argc, argv, options);
    } catch (const po::error& error) {
        messages.Error(std::string(error.what()) + "; see uvgrammar --help");
        return kToolCouldNotRun;
    }
    if (values.count("help") != 0) {
        std::ostringstream help;
        help << kUsage << options << kExitCodes;
        WriteStandardOutput(help.str());
        return kToolClean;
    }
    if (build.name.empty())
        build.name = LastName(build.outputPath);
    if (build.name.find('/') != std::string::npos || build.name.find("..") != std::string::npos ||
        build.name.find('\n') != std::string::npos) {
        messages.Error("'" + build.name + "' can't be the name of a language: it becomes a folder");
        return kToolCouldNotRun;
    }
    messages.SetQuiet(isQuiet);
    build.explainsConflicts = values.count("report") != 0;

    std::string report;
    const enToolExit result = BuildGrammar(build, messages, report);
    if (values.count("report") != 0)
        WriteStandardOutput(report);
    if (result != kToolClean)
        messages.Error("grammar " + build.name + " refused, " + build.outputPath + " is left as it was");
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    CToolMessages messages("uvgrammar", std::cerr);
    try {
        return Run(argc, argv, messages);
    } catch (const std::exception& error) {
        messages.Error(error.what());
    }
    return kToolCouldNotRun;
}
