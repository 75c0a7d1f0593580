#include "Tools/uvgrammar-score/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <sstream>

namespace po = boost::program_options;

namespace uvscore {

namespace {

po::options_description VisibleOptions(SCommandLine& line, std::vector<std::string>& options)
{
    po::options_description visible("options", 100);
    // clang-format off
    visible.add_options()
        ("groups", po::value(&line.groups)->value_name("N"), "show this many kinds of failure; else 20")
        ("save", po::value(&line.saveFile)->value_name("FILE"), "keep there which statements were clean")
        ("against", po::value(&line.againstFile)->value_name("FILE"), "tell which statements got better and worse since the run that was kept there")
        ("shrink", po::value(&line.shrinkFile)->value_name("FILE"), "print the first failing statement of the file, as short as it can be and fail in the same way; goes without other files")
        ("coverage", po::bool_switch(&line.isCoverage), "name the rules of the parser and the scanner that no file used")
        ("fail-on-unused", po::bool_switch(&line.failsOnUnused), "the same, and exit with 1 if there are any")
        ("comments", po::bool_switch(&line.isComments), "put a comment between the tokens of clean statements and tell where that changes the tree")
        ("comment", po::value(&line.comment)->default_value("/* c */", "/* c */")->value_name("TEXT"), "the comment")
        ("recovery", po::bool_switch(&line.isRecovery), "put a fault into clean statements, one at a time, and count the other statements that are read as before")
        ("samples", po::value(&line.samples)->value_name("N"), "clean statements to try --comments and --recovery on; else 1000")
        ("seed", po::value(&line.seed)->value_name("N"), "chooses other samples")
        ("option,o", po::value(&options)->value_name("KEY=VALUE"), "option of the database info; repeatable")
        ("jobs,j", po::value(&line.jobs)->value_name("N"), "parse in this many processes; else one for each processor")
        ("quiet,q", po::bool_switch(&line.isQuiet), "no progress, warnings and notes")
        ("help,h", po::bool_switch(&line.isHelp), "print this");
    // clang-format on
    return visible;
}

// clang-format off
constexpr char kUsage[] =
    "usage: uvgrammar score [options] LANGUAGE FILE|FOLDER...\n"
    "Makes the tables of a language if they aren't those of its sources, parses files with them, and tells what\n"
    "can't be read. LANGUAGE is the folder of the sources, with one *Lexer.l and one *Parser.y in it.\n\n";
constexpr char kAfterOptions[] =
    "\nOf folders all files are taken that have an extension of the language, and all if no extension of it is\n"
    "known. The tables stand in the folder Grammar beside the program.\n"
    "Exit code: 0 done; 1 the grammar is refused, a file has crashed the parser, with --against a statement got\n"
    "worse, or with --fail-on-unused a rule isn't used; 2 something could not run.\n";
// clang-format on

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SCommandLine line;
    std::vector<std::string> options;
    po::options_description all = VisibleOptions(line, options);
    all.add_options()("language", po::value(&line.language))("input", po::value(&line.inputs));
    po::positional_options_description positions;
    positions.add("language", 1).add("input", -1);
    const po::variables_map values = ReadToolOptions(argc, argv, all, positions);
    for (const char* option : {"save", "against"})
        if (values.count(option) > 0 && values[option].as<std::string>().empty())
            throw CUsageError(std::string("--") + option + " needs a value that isn't empty");
    if (line.isHelp)
        return line;
    line.isCoverage = line.isCoverage || line.failsOnUnused;
    for (const std::string& text : options) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0)
            throw CUsageError("--option takes KEY=VALUE, not '" + text + "'");
        line.options.emplace_back(text.substr(0, equals), text.substr(equals + 1));
    }
    if (line.language.empty())
        throw CUsageError("no language given");
    if (line.inputs.empty() == line.shrinkFile.empty())
        throw CUsageError(line.inputs.empty() ? "no file given" : "--shrink goes without other files");
    return line;
}

std::string HelpText()
{
    SCommandLine line;
    std::vector<std::string> options;
    std::ostringstream text;
    text << kUsage << VisibleOptions(line, options) << kAfterOptions;
    return text.str();
}

} // namespace uvscore
