#include "Tools/uvgrammar-score/Language.h"

#include "Grammar/UVGrammarManifest.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar/ActionText.h"
#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarBuild.h"
#include "Tools/uvgrammar/ParserSource.h"
#include "Tools/uvgrammar/ScannerSource.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <ostream>
#include <system_error>

namespace uvscore {

namespace fs = std::filesystem;

namespace {

std::string OnlyFile(const std::string& folder, std::string_view ending)
{
    std::vector<std::string> found;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (entry->path().filename().string().ends_with(ending))
            found.push_back(entry->path().string());
    if (failed)
        throw CToolFailure(folder + ": " + failed.message());
    if (found.size() != 1)
        throw CToolFailure(folder + ": " + (found.empty() ? "no" : "more than one") + " file is called *" +
                           std::string(ending) + "; the folder of a language has one");
    return found.front();
}

std::string BesideProgram(const std::string& name)
{
    return Uve::Path::Combine(Uve::GetPathOfExe(), name.c_str()).c_str();
}

// Before any other file if there is none.
fs::file_time_type TimeOf(const fs::path& path)
{
    std::error_code failed;
    const fs::file_time_type time = fs::last_write_time(path, failed);
    return failed ? fs::file_time_type::min() : time;
}

bool AreUpToDate(const SLanguageSources& sources, const fs::path& manifest)
{
    const fs::file_time_type made = TimeOf(manifest);
    if (made == fs::file_time_type::min())
        return false;
    // What is wrong with the sources is told when their tables are made.
    std::ostream nowhere(nullptr);
    CToolMessages messages("", nowhere);
    std::vector<std::string> paths = AssembleScanner(sources.lexerPath, messages).Paths();
    const std::vector<std::string> ofParser = AssembleParser(sources.parserPath, messages).Paths();
    paths.insert(paths.end(), ofParser.begin(), ofParser.end());
    paths.push_back(BesideProgram("uvgrammar"));
    return messages.ErrorCount() == 0 &&
           std::ranges::all_of(paths, [&](const std::string& path) { return TimeOf(path) <= made; });
}

// The number that `text` begins with, and a blank after it, are taken off; -1 without them.
int TakeNumber(std::string_view& text)
{
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return -1;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return number;
}

std::string_view TakeLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

// The report's "  123 name: a . b", or "    | a . b" for another rule of the name before.
std::vector<SRuleBeingRead> ReadItems(std::string_view report, const CGrammarSource& source,
                                      const std::vector<int>& ruleLines)
{
    std::vector<SRuleBeingRead> items;
    std::set<int> lists;
    std::string left;
    while (report.starts_with("  ")) {
        std::string_view line = TakeLine(report);
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        const int number = TakeNumber(line);
        if (number < 0)
            break;
        SRuleBeingRead item;
        if (line.starts_with('|'))
            item.text = left + ":" + std::string(line.substr(1));
        else {
            left = line.substr(0, line.find(':'));
            item.text = line;
        }
        // The report counts from 0 what the tables count from 1.
        const auto rule = static_cast<std::size_t>(number) + 1;
        const int ruleLine = rule < ruleLines.size() ? ruleLines[rule] : 0;
        // A list is one rule to its author.
        const int list = source.ListOf(ruleLine);
        if (list != 0 && !lists.insert(list).second)
            continue;
        item.place = source.Place(ruleLine);
        if (list != 0)
            item.text = item.place.sourceLine;
        items.push_back(std::move(item));
    }
    return items;
}

} // namespace

SLanguageSources FindLanguageSources(const std::string& folder)
{
    const fs::path normal = (fs::absolute(folder) / "").lexically_normal().parent_path();
    return {normal.filename().string(), OnlyFile(folder, "Lexer.l"), OnlyFile(folder, "Parser.y")};
}

bool MakeTables(const SLanguageSources& sources, CToolMessages& messages)
{
    const std::string output = BesideProgram("Grammar") + '/' + sources.name;
    const fs::path manifest = fs::path(output) / kManifestName;
    if (AreUpToDate(sources, manifest))
        return true;
    SGrammarBuild build;
    build.lexerPath = sources.lexerPath;
    build.parserPath = sources.parserPath;
    build.outputPath = output;
    build.name = sources.name;
    std::string report;
    if (BuildGrammar(build, messages, report) != kToolClean)
        return false;
    // Tables that say the same as before stay in place; they are those of the sources all the same.
    std::error_code ignored;
    fs::last_write_time(manifest, fs::file_time_type::clock::now(), ignored);
    return true;
}

std::map<int, std::vector<SRuleBeingRead>>
ReadParserStates(const SLanguageSources& sources, const std::set<int>& states, CToolMessages& messages)
{
    std::map<int, std::vector<SRuleBeingRead>> rules;
    if (states.empty())
        return rules;
    const CGrammarSource source = AssembleParser(sources.parserPath, messages);
    const CTemporaryFolder scratch((fs::temp_directory_path() / "uvgrammar.").string());
    SGeneratedFiles files;
    RunBison(source, scratch.Path(), files, messages);
    const std::vector<int> ruleLines = ReadRuleLines(files.parserText);
    const std::string_view report = files.parserReport;
    constexpr std::string_view kState = "\nState ";
    for (std::size_t at = report.find(kState); at != std::string_view::npos;
         at = report.find(kState, at + 1)) {
        std::string_view rest = report.substr(at + kState.size());
        const int state = TakeNumber(rest);
        if (states.count(state) == 0)
            continue;
        rest.remove_prefix(std::min(rest.find_first_not_of('\n'), rest.size()));
        rules[state] = ReadItems(rest, source, ruleLines);
    }
    return rules;
}

} // namespace uvscore
