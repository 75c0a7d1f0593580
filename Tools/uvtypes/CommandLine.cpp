#include "Tools/uvtypes/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <sstream>

namespace po = boost::program_options;

namespace uvtypes {

namespace {

void AddFormatOption(po::options_description& options, std::string& format)
{
    // clang-format off
    options.add_options()
        ("format", po::value(&format)->value_name("FORM"), "table (for reading), tsv or json; table unless told");
    // clang-format on
}

void AddNoOptions(po::options_description&, SCommandLine&) {}

void AddMapOptions(po::options_description& options, SCommandLine& line)
{
    // clang-format off
    options.add_options()
        ("from", po::value(&line.from)->value_name("DB"), "the database whose types are given")
        ("to", po::value(&line.to)->value_name("DB"), "the database whose types are wanted")
        ("all", po::bool_switch(&line.isAll), "map every row of the source's table at its limits, and every name without parameters")
        ("explain", po::bool_switch(&line.isExplain), "say which rows and which exceptions decided")
        ("check", po::bool_switch(&line.isCheck), "warn where the target holds less than the source")
        ("identity", po::bool_switch(&line.isIdentity), "the types are those of identity columns")
        ("quiet", po::bool_switch(&line.isQuiet), "no warnings; what --check finds still stands in the result and in the exit code");
    // clang-format on
}

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

struct SCommand
{
    const char* name;
    enCommand command;
    std::size_t minOperands;
    std::size_t maxOperands;
    void (*addOptions)(po::options_description& options, SCommandLine& line);
    const char* usage;
    const char* purpose;
    const char* examples;
};

// clang-format off
constexpr SCommand kCommands[] = {
//   name         command               min max         options         usage, purpose, examples
    {"map",       enCommand::Map,       0,  kAnyNumber, AddMapOptions,  "map --from DB --to DB TYPE|FILE|-... | --all",
     "Tells what types of one database are called in another. A file has one type a line; '-' is standard input. "
     "What isn't\n  a type and is the name of a file is one. A type that isn't known gets a line that says 'unknown'.",
     "uvtypes map --from Oracle --to PostgreSQL 'NUMBER(10,2)' 'VARCHAR2(30 CHAR)' DATE\n"
     "uvtypes map --from Oracle:11.2 --to MSSQL:9.0 --explain CLOB\n"
     "uvtypes map --from MySQL --to Oracle --all --check\n"
     "uvtypes map --from MySQL --to Oracle types.txt --check\n"
     "cut -f3 columns.tsv | uvtypes map --from DB2 --to Teradata --format tsv -\n"},
    {"list",      enCommand::List,      1,  1,          AddNoOptions,   "list DB",
     "Prints the data types of a database: name, internal type, limits, words of the parameters.",
     "uvtypes list Informix\n"
     "uvtypes list 'SYBASE_ASE' --format tsv\n"},
    {"databases", enCommand::Databases, 0,  0,          AddNoOptions,   "databases",
     "Prints the databases and languages whose types are known, and the versions that a target may have.",
     "uvtypes databases\n"},
};
// clang-format on

enToolFormat ReadFormat(const std::string& text)
{
    if (text.empty())
        return enToolFormat::Table;
    const std::optional<enToolFormat> format = ReadToolFormat(text);
    if (!format)
        throw CUsageError("--format takes table, tsv or json, not '" + text + "'");
    return *format;
}

// Reads what stands after the command's name.
// Returns: true if help is asked for.
bool ReadCommand(const SCommand& command, int argc, const char* const* argv, SCommandLine& line)
{
    std::string format;
    po::options_description options;
    AddFormatOption(options, format);
    command.addOptions(options, line);
    options.add_options()("help,h", "")("operand", po::value(&line.operands));
    po::positional_options_description operands;
    operands.add("operand", -1);

    const po::variables_map values = ReadToolOptions(argc, argv, options, operands);
    line.format = ReadFormat(format);
    return values.count("help") != 0;
}

void RefuseContradictions(const SCommand& command, const SCommandLine& line)
{
    if (line.operands.size() < command.minOperands || line.operands.size() > command.maxOperands)
        throw CUsageError("usage: uvtypes " + std::string(command.usage));
    if (command.command != enCommand::Map)
        return;
    if (line.from.empty() || line.to.empty())
        throw CUsageError("map needs --from and --to");
    if (line.isAll && !line.operands.empty())
        throw CUsageError("--all takes the types from the source's table: name none");
    if (!line.isAll && line.operands.empty())
        throw CUsageError(
            "no type given (a file has one a line, '-' is standard input, --all takes the source's table)");
    if (std::count(line.operands.begin(), line.operands.end(), "-") > 1)
        throw CUsageError("'-' stands there once: standard input is read to its end");
}

void AddCommandHelp(const SCommand& command, std::ostringstream& text)
{
    SCommandLine line;
    std::string format;
    po::options_description options(110);
    AddFormatOption(options, format);
    command.addOptions(options, line);
    text << "\nuvtypes " << command.usage << "\n  " << command.purpose << '\n' << options;
    std::istringstream examples(command.examples);
    for (std::string example; std::getline(examples, example);)
        text << "  e.g. " << example << '\n';
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
    if (ReadCommand(*command, argc - 1, argv + 1, line)) {
        line.topic = name;
        return line;
    }
    RefuseContradictions(*command, line);
    line.command = command->command;
    return line;
}

std::string HelpText(const std::string& topic)
{
    std::ostringstream text;
    text << "usage: uvtypes COMMAND ...\n"
            "Data types of databases, and what they are called elsewhere.\n";
    for (const SCommand& command : kCommands)
        if (topic.empty() || topic == command.name)
            AddCommandHelp(command, text);
    text << "\nDB is a database by number or by any of its names, with a version if one is meant: Oracle, "
            "Oracle:11.2,\n"
            "MSSQL:10, 'DB2 AS400'. A subtype without a name of its own goes between: MySQL:1:. Without a "
            "version the\n"
            "newest known one counts. It is the target whose version matters.\n"
            "\nResults go to standard output, messages to standard error. --help after a command tells of it "
            "alone,\n"
            "--version prints the version.\n"
            "Exit code: 0 clean; 1 a type isn't known, or --check found a loss; 2 something could not run: "
            "bad "
            "arguments,\n"
            "an unknown database, files that can't be read, failed writes.\n";
    return text.str();
}

} // namespace uvtypes
