#include "Tools/uvparse/CommandLine.h"

#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

#include <optional>
#include <sstream>

namespace po = boost::program_options;

namespace uvparse {

namespace {

using Texts = std::vector<std::string>;

// What the options leave in their own words.
struct SRawOptions
{
    Texts options;
    Texts objectOptions;
    std::string messages;
};

po::options_description VisibleOptions(SCommandLine& line, SRawOptions& raw)
{
    po::options_description visible("Options", 100);
    // clang-format off
    visible.add_options()
        ("language,l", po::value(&line.language)->value_name("NAME"), "parser name; else chosen by --db or by the file's extension, and where that leads to several languages by the text; auto: by extension and text, whatever the extension")
        ("db", po::value(&line.database)->value_name("KIND[:SUBTYPE[:VERSION]]"), "database by number or by any of its names")
        ("option,o", po::value(&raw.options)->value_name("KEY=VALUE"), "option of the database info; repeatable")
        ("object-option", po::value(&raw.objectOptions)->value_name("KEY=VALUE"), "option of the object being converted; repeatable")
        ("encoding", po::value(&line.encoding)->value_name("NAME"), "encoding of the input, by iconv's name; else told by a byte order mark, else UTF-8")
        ("record-length", po::value(&line.recordLength)->value_name("N"), "the input has no line ends but records of N bytes each")
        ("prepare", po::bool_switch(&line.isPrepare), "print the prepared text instead of parsing it; needs no language tables")
        ("diff", po::bool_switch(&line.isDiff), "with --prepare: source and prepared text side by side, with line numbers")
        ("lines", po::bool_switch(&line.isLines), "print the number of each prepared line and of the source line that it comes from; with --prepare: the prepared text, the source line's number before it")
        ("raw", po::bool_switch(&line.isRaw), "the tree of the text as it stands, neither prepared nor flattened")
        ("pretty", po::bool_switch(&line.isPretty), "an element a line, indented; texts stay as they are")
        ("xpath", po::value(&line.xpath)->value_name("EXPR"), "what this XPath 1.0 expression selects, instead of the whole tree")
        ("color", po::bool_switch(&line.isColor), "the coloring map instead of the tree")
        ("verify", po::bool_switch(&line.isVerify), "check that the tree holds every byte of the source text")
        ("output", po::value(&line.outputFolder)->value_name("DIR"), "write DIR/<file name>.xml (.color, .txt for --xpath, .prepared, .diff, .lines) instead of standard output; files of one name go to their folders there")
        ("messages", po::value(&raw.messages)->value_name("FORM"), "form of the messages: text, json (an object a line) or sarif (a document of SARIF 2.1.0)")
        ("messages-to", po::value(&line.messageFile)->value_name("FILE"), "write the messages there instead of to standard error; '-' is standard output, which needs --output")
        ("list-languages", po::bool_switch(&line.isListLanguages), "list the languages, and whether texts of them are prepared, parsed or both")
        ("trace", po::value(&line.traceFile)->value_name("FILE"), "write the library's log and trace there")
        ("time", po::bool_switch(&line.isTime), "tell how long each step took")
        ("stat", po::bool_switch(&line.isStat), "count statements read and lost, unexpected tokens, bytes a second")
        ("no-cache", po::bool_switch(&line.isWithoutCache), "read the tables of the languages from their own files, and keep nothing of them for the next run")
        ("quiet", po::bool_switch(&line.isQuiet), "no progress, and on standard error no messages but about what could not run")
        ("version", po::bool_switch(&line.isVersion), "print the version")
        ("help", po::bool_switch(&line.isHelp), "print this help");
    // clang-format on
    return visible;
}

std::vector<std::pair<std::string, std::string>> SplitPairs(const Texts& texts, const char* option)
{
    std::vector<std::pair<std::string, std::string>> pairs;
    for (const std::string& text : texts) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0)
            throw CUsageError(std::string(option) + " takes KEY=VALUE, not '" + text + "'");
        pairs.emplace_back(text.substr(0, equals), text.substr(equals + 1));
    }
    return pairs;
}

enMessageForm MessageFormOf(const std::string& name)
{
    const std::optional<enMessageForm> form = ReadMessageForm(name);
    if (!form)
        throw CUsageError("--messages takes text, json or sarif, not '" + name + "'");
    return *form;
}

void RefuseContradictions(const SCommandLine& line)
{
    if (line.isHelp || line.isVersion || line.isListLanguages)
        return;
    if (line.files.empty())
        throw CUsageError("no file given ('-' reads standard input)");
    if (line.isColor && (line.isRaw || line.isPretty || !line.xpath.empty() || line.isVerify || line.isStat))
        throw CUsageError(
            "--color makes no tree: it can't go with --raw, --pretty, --xpath, --verify or --stat");
    if (line.IsPreparing() &&
        (line.isColor || line.isRaw || line.isPretty || !line.xpath.empty() || line.isVerify || line.isStat))
        throw CUsageError(std::string(line.isPrepare ? "--prepare" : "--lines") +
                          " doesn't parse: it can't go with --raw, --pretty, --xpath, --color, --verify or "
                          "--stat");
    if (line.isDiff && (!line.isPrepare || line.isLines))
        throw CUsageError("--diff goes with --prepare, and not with --lines, whose numbers it shows anyway");
    if (line.messageFile == "-" && line.outputFolder.empty())
        throw CUsageError("--messages-to - needs --output: else results go to standard output");
    if (line.isQuiet && line.messageForm != enMessageForm::Text && line.messageFile.empty())
        throw CUsageError("--quiet would keep findings from programs: with --messages json or sarif it needs "
                          "--messages-to");
}

// clang-format off
constexpr char kUsage[] =
    "usage: uvparse [options] FILE... | -\n"
    "Turns source text into an XML tree with every token, blank and comment in it. Languages in fixed\n"
    "columns, with macros or includes are prepared first; --prepare shows what comes of it.\n\n";
constexpr char kAfterOptions[] =
    "\nResults go to standard output, messages to standard error. Lines and columns count from 1, columns in\n"
    "code points; offsets are bytes of the file. In json what isn't known is null. A document of sarif holds\n"
    "all messages of the call, those that are not about a place in a source as notifications.\n"
    "--diff marks the lines between both texts: | changed, & the source line goes on in the prepared line\n"
    "above, < vanished, > starts no source line. It is as wide as the terminal, else as the environment's\n"
    "COLUMNS, else 130 cells; colours need a terminal and no NO_COLOR. --lines prints '-' where the\n"
    "preparation doesn't keep the source line.\n"
    "Sources are prepared in their faithful forms; -o SOURCE_FORMS=LITERAL asks for the literal ones.\n"
    "Include files are taken in from wherever sources name them; -o INCLUDE_ROOT=FOLDER takes only those in\n"
    "from below this folder (links and \"..\" resolved), as is good for foreign texts.\n"
    "Prepared tables are kept in uvparser in the user's cache folder; the environment's UVPARSER_CACHE names\n"
    "another one, or none if it is empty.\n"
    "Where the text decides, its beginning is read in each of the languages, and the one that loses the least\n"
    "of it is taken. A note tells which one, and why.\n"
    "Exit code: 0 clean; 1 a text was not read as a whole, failed to parse or differs from its tree,\n"
    "or --xpath selected nothing in any text (no node, false, zero or an empty string), or --lines was\n"
    "asked of a preparation that keeps no source lines;\n"
    "2 something could not run: bad arguments, unreadable input, unknown language, failed write.\n";
// clang-format on

} // namespace

SCommandLine ReadCommandLine(int argc, const char* const* argv)
{
    SCommandLine line;
    SRawOptions raw;
    po::options_description all = VisibleOptions(line, raw);
    all.add_options()("file", po::value(&line.files));
    po::positional_options_description files;
    files.add("file", -1);

    const po::variables_map values = ReadToolOptions(argc, argv, all, files);
    if (values.count("record-length") > 0 && line.recordLength == 0)
        throw CUsageError("--record-length needs a number above 0");
    for (const char* option : {"encoding", "xpath", "messages-to"})
        if (values.count(option) > 0 && values[option].as<std::string>().empty())
            throw CUsageError(std::string("--") + option + " needs a value that isn't empty");
    if (values.count("messages") > 0)
        line.messageForm = MessageFormOf(raw.messages);
    line.options = SplitPairs(raw.options, "--option");
    line.objectOptions = SplitPairs(raw.objectOptions, "--object-option");
    RefuseContradictions(line);
    return line;
}

std::string HelpText()
{
    SCommandLine line;
    SRawOptions raw;
    std::ostringstream text;
    text << kUsage << VisibleOptions(line, raw) << kAfterOptions;
    return text.str();
}

} // namespace uvparse
