#include "Tools/uvnames/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"
#include "Tools/uvnames/NameOptions.h"
#include "Tools/uvnames/Reasons.h"

#include <boost/program_options.hpp>

#include <algorithm>
#include <sstream>

namespace po = boost::program_options;

namespace uvnames {

namespace {

struct SRawLine
{
    SCommandLine line;
    std::string format = "table";
    std::vector<std::string> operands;
};

po::options_description ShownOptions(SRawLine& raw)
{
    SCommandLine& line = raw.line;
    po::options_description options(110);
    // clang-format off
    options.add_options()
        ("from", po::value(&line.from)->value_name("DB"), "the database whose names are given")
        ("to", po::value(&line.to)->value_name("DB"), "the database whose names are wanted")
        ("option,o", po::value(&line.options)->value_name("OPTION=VALUE"), "how names are made (see below); source:OPTION=VALUE and target:OPTION=VALUE set it on one side")
        ("schema", po::value(&line.schema)->value_name("NAME"), "every schema becomes this one")
        ("format", po::value(&raw.format)->value_name("FORM"), "table (for reading), tsv or json; table unless told")
        ("changed", po::bool_switch(&line.isChangedOnly), "leave out names that stay as they are but for a default schema, or for that of an index or a key")
        ("report", po::value(&line.reportFile)->value_name("FILE.xml"), "write the report of all names as XML")
        ("html", po::value(&line.htmlFile)->value_name("FILE"), "write a page for reading, with filters by reason")
        ("explain", po::value(&line.explained)->value_name("NAME"), "walk the steps of one name, such as dbo.Orders, instead of reading names")
        ("type", po::value(&line.type)->value_name("TYPE"), "the type of the name to explain; Table unless told");
    // clang-format on
    return options;
}

// Throws: CUsageError.
bool ReadOptions(int argc, const char* const* argv, SRawLine& raw)
{
    po::options_description options = ShownOptions(raw);
    options.add_options()("help,h", "")("version", "")("operand", po::value(&raw.operands));
    po::positional_options_description operands;
    operands.add("operand", -1);

    const po::variables_map values = ReadToolOptions(argc, argv, options, operands);
    if (values.count("version") != 0)
        raw.line.command = enCommand::Version;
    return values.count("help") == 0 && values.count("version") == 0;
}

void RefuseForConversion(const SCommandLine& line)
{
    const std::string command = line.command == enCommand::Words ? "words" : "limits";
    if (!line.from.empty() || !line.to.empty() || !line.options.empty() || !line.schema.empty() ||
        !line.reportFile.empty() || !line.htmlFile.empty() || !line.explained.empty() || !line.type.empty() ||
        line.isChangedOnly)
        throw CUsageError("'" + command + "' takes a database and --format, and nothing else");
}

void ReadCommand(SRawLine& raw)
{
    SCommandLine& line = raw.line;
    const bool isWords = !raw.operands.empty() && raw.operands.front() == "words";
    const bool isLimits = !raw.operands.empty() && raw.operands.front() == "limits";
    // A file that is called so is meant when both databases are there.
    if ((isWords || isLimits) && line.from.empty() && line.to.empty()) {
        line.command = isWords ? enCommand::Words : enCommand::Limits;
        RefuseForConversion(line);
        if (raw.operands.size() != 2)
            throw CUsageError("usage: uvnames " + raw.operands.front() + " DB");
        line.database = raw.operands.back();
        return;
    }
    line.command = line.explained.empty() ? enCommand::Convert : enCommand::Explain;
    if (line.from.empty() || line.to.empty())
        throw CUsageError("--from and --to are needed");
    if (std::ranges::count(raw.operands, "-") > 1)
        throw CUsageError("'-' stands there once: standard input is read to its end");
    line.inputs = raw.operands.empty() ? std::vector<std::string>{"-"} : raw.operands;
    if (line.command == enCommand::Convert) {
        if (!line.type.empty())
            throw CUsageError("--type belongs to --explain: names that are read bring theirs");
        return;
    }
    if (!raw.operands.empty() || !line.reportFile.empty() || !line.htmlFile.empty() || line.isChangedOnly)
        throw CUsageError("--explain tells of one name: no file, no report");
    if (line.type.empty())
        line.type = "Table";
}

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SRawLine raw;
    if (!ReadOptions(argc, argv, raw))
        return raw.line;
    const std::optional<enToolFormat> format = ReadToolFormat(raw.format);
    if (!format)
        throw CUsageError("--format takes table, tsv or json, not '" + raw.format + "'");
    raw.line.format = *format;
    ReadCommand(raw);
    return raw.line;
}

std::string HelpText()
{
    SRawLine raw;
    std::ostringstream text;
    text << "usage: uvnames --from DB --to DB [-o OPTION=VALUE ...] [--report FILE.xml] [--html FILE] "
            "[FILE|-...]\n"
            "       uvnames --from DB --to DB [-o OPTION=VALUE ...] --explain NAME [--type TYPE]\n"
            "       uvnames words DB\n"
            "       uvnames limits DB\n"
            "What the objects of a database are called in another one: legal there, unique, and why.\n\n"
         << ShownOptions(raw)
         << "\nA line of input is one name, in fields separated by tabs: type, server, schema, object, "
            "sub-object, "
            "and a\n"
            "word such as temp. Fields at the end may be left out; \\t, \\n, \\r and \\\\ stand for what "
            "would "
            "break a line.\n"
            "A first line that begins with 'type' is a head. TYPE is Table, Column, Index and so on, or a "
            "number.\n"
            "  e.g. printf 'Column\\t\\tdbo\\tOrder Items\\tUnit Price\\n' | uvnames --from MSSQL --to "
            "PostgreSQL\n"
            "  e.g. uvnames --from Oracle --to MySQL --html names.html --report names.xml names.tsv\n"
            "  e.g. uvnames --from DB2 --to Oracle:11.2 --explain SALES.CUSTOMER_ORDERS_OF_THE_LAST_YEAR\n"
            "\nOptions, with what this tool takes unless told:\n";
    for (const SNameOption& option : NameOptions()) {
        std::string head = std::string("  ") + option.name;
        if (option.defaultValue)
            head += std::string("=") + option.defaultValue;
        text << head << "\n        " << option.meaning << '\n';
    }
    text << "\nReasons of changes:\n";
    for (const SReason& reason : Reasons())
        text << "  " << reason.text << "\n        " << reason.sentence << '\n';
    text << "\nDB is a database by number or by any of its names, with a version if one is meant: Oracle, "
            "Oracle:11.2,\n"
            "MSSQL:10. A subtype without a name of its own goes between: MySQL:1:. Without a version the "
            "newest "
            "one counts.\n"
            "\nResults go to standard output, messages to standard error.\n"
            "Exit code: 0 clean; 1 a line couldn't be read as a name, or two names clash in the target; 2 "
            "something could\n"
            "not run: bad arguments, an unknown database, files that can't be read or written.\n";
    return text.str();
}

} // namespace uvnames
