#include "Tools/uvgrammar-test/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <sstream>

namespace po = boost::program_options;

namespace uvtest {

namespace {

po::options_description VisibleOptions(SCommandLine& line)
{
    po::options_description visible("options", 100);
    // clang-format off
    visible.add_options()
        ("filter", po::value(&line.filter)->value_name("TEXT"), "run the cases that have the text in their names")
        ("update", po::bool_switch(&line.isUpdate), "write the trees that there are into the files, in the place of those that are expected")
        ("coverage", po::bool_switch(&line.isCoverage), "fail if there are rules that neither a case nor a file in the language's folder Samples uses, and name them")
        ("help,h", po::bool_switch(&line.isHelp), "print this");
    // clang-format on
    return visible;
}

// clang-format off
constexpr char kUsage[] =
    "usage: uvgrammar test [options] LANGUAGE [FILE...]\n"
    "Makes the tables of a language if they aren't those of its sources, and compares the trees of texts with those\n"
    "that are expected. LANGUAGE is the folder of the sources, with one *Lexer.l and one *Parser.y in it; without a\n"
    "FILE the cases are those of all files *.tests in its folder Tests.\n\n";
constexpr char kAfterOptions[] =
    "\nExit code: 0 all trees are as expected, or were updated; 1 a case fails, a rule isn't used where that was asked for, a\n"
    "file of cases can't be understood or the grammar is refused; 2 something could not run.\n";
// clang-format on

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SCommandLine line;
    po::options_description all = VisibleOptions(line);
    all.add_options()("language", po::value(&line.language))("file", po::value(&line.files));
    po::positional_options_description positions;
    positions.add("language", 1).add("file", -1);
    const po::variables_map values = ReadToolOptions(argc, argv, all, positions);
    if (!line.isHelp && line.language.empty())
        throw CUsageError("no language given");
    return line;
}

std::string HelpText()
{
    SCommandLine line;
    std::ostringstream text;
    text << kUsage << VisibleOptions(line) << kAfterOptions;
    return text.str();
}

} // namespace uvtest
