#include "Tools/uvgrammar-elements/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <sstream>

namespace po = boost::program_options;

namespace uvelements {

namespace {

po::options_description VisibleOptions(SCommandLine& line)
{
    po::options_description visible("options", 100);
    // clang-format off
    visible.add_options()
        ("json", po::bool_switch(&line.isJson), "write JSON in the place of a page in Markdown")
        ("output,o", po::value(&line.output)->value_name("FILE"), "write to the file and not to standard output")
        ("check", po::bool_switch(&line.isCheck), "write nothing: tell whether the file of --output is up to date")
        ("help,h", po::bool_switch(&line.isHelp), "print this");
    // clang-format on
    return visible;
}

// clang-format off
constexpr char kUsage[] =
    "usage: uvgrammar elements [options] LANGUAGE\n"
    "Tells which elements the flattened trees of a language have: what is in each of them, how often, where it stands,\n"
    "the rules that make it, and an example from the language's cases. LANGUAGE is the folder of the sources, with one\n"
    "*Lexer.l and one *Parser.y in it; the cases are in its folder Tests.\n\n";
constexpr char kAfterOptions[] =
    "\nExit code: 0 it is written, or up to date; 1 the grammar is refused, or the file isn't up to date; 2 something\n"
    "could not run.\n";
// clang-format on

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SCommandLine line;
    po::options_description all = VisibleOptions(line);
    all.add_options()("language", po::value(&line.language));
    po::positional_options_description positions;
    positions.add("language", 1);
    ReadToolOptions(argc, argv, all, positions);
    if (!line.isHelp && line.language.empty())
        throw CUsageError("no language given");
    if (line.isCheck && line.output.empty())
        throw CUsageError("--check compares the file of --output, and none is given");
    return line;
}

std::string HelpText()
{
    SCommandLine line;
    std::ostringstream text;
    text << kUsage << VisibleOptions(line) << kAfterOptions;
    return text.str();
}

} // namespace uvelements
