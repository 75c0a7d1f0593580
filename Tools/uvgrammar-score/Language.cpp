#include "Tools/uvgrammar-score/Language.h"

#include "Grammar/UVGrammarManifest.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar/ActionText.h"
#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarBuild.h"
#include "Tools/uvgrammar/GrammarChecks.h"
#include "Tools/uvgrammar/ParserReport.h"
#include "Tools/uvgrammar/ParserSource.h"
#include "Tools/uvgrammar/ScannerSource.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <system_error>
#include <utility>

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

// Messages that nobody reads: what is wrong with the sources is told when their tables are made.
class CSilence
{
public:
    CToolMessages& Messages() { return m_Messages; }

private:
    std::ostream m_Nowhere{nullptr};
    CToolMessages m_Messages{"", m_Nowhere};
};

// Whether tables with this manifest say what the sources do. Their dates tell nothing: a source may be taken out of an
// archive, and two folders may have languages of one name.
bool AreTablesOf(const fs::path& manifest, const SLanguageSources& sources)
{
    if (TimeOf(manifest) < TimeOf(BesideProgram("uvgrammar")))
        return false;
    CSilence silence;
    CToolMessages& messages = silence.Messages();
    const CGrammarSource scanner = AssembleScanner(sources.lexerPath, messages);
    const CGrammarSource parser = AssembleParser(sources.parserPath, messages);
    return messages.ErrorCount() == 0 &&
           SourcesOfManifest(ReadWholeFile(manifest.string())) == SourcesChecksum(scanner, parser);
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

std::string TextOf(const SGrammarRule& rule)
{
    std::string text = rule.left + ':';
    for (const std::string& symbol : rule.right)
        text.append(1, ' ').append(symbol);
    return rule.right.empty() ? text + " %empty" : text;
}

} // namespace

SLanguageSources FindLanguageSources(const std::string& folder)
{
    const fs::path normal = (fs::absolute(folder) / "").lexically_normal().parent_path();
    return {normal.filename().string(), OnlyFile(folder, "Lexer.l"), OnlyFile(folder, "Parser.y")};
}

bool MakeTables(const SLanguageSources& sources, CToolMessages& messages, CLanguageRules* rules)
{
    const std::string output = BesideProgram("Grammar") + '/' + sources.name;
    const fs::path manifest = fs::path(output) / kManifestName;
    if (AreTablesOf(manifest, sources))
        return true;
    SGrammarBuild build;
    build.lexerPath = sources.lexerPath;
    build.parserPath = sources.parserPath;
    build.outputPath = output;
    build.name = sources.name;
    std::string report;
    std::unique_ptr<const SGeneratedGrammar> generated;
    if (BuildGrammar(build, messages, report, &generated) != kToolClean)
        return false;
    if (rules != nullptr)
        rules->Take(std::move(generated));
    // Tables that say the same as before stay in place, older than the tool.
    std::error_code ignored;
    fs::last_write_time(manifest, std::max(TimeOf(manifest), TimeOf(BesideProgram("uvgrammar"))), ignored);
    return true;
}

CLanguageRules::CLanguageRules(SLanguageSources sources) : m_Sources(std::move(sources)) {}

CLanguageRules::~CLanguageRules() = default;

void CLanguageRules::Take(std::unique_ptr<const SGeneratedGrammar> generated)
{
    m_Generated = std::move(generated);
}

const SGeneratedGrammar& CLanguageRules::Generated()
{
    if (!m_Generated) {
        CSilence silence;
        SGeneratedGrammar made{AssembleScanner(m_Sources.lexerPath, silence.Messages()),
                               AssembleParser(m_Sources.parserPath, silence.Messages())};
        const CTemporaryFolder scratch((fs::temp_directory_path() / "uvgrammar.").string());
        RunFlex(made.scanner, scratch.Path(), made.files, silence.Messages());
        RunBison(made.parser, scratch.Path(), made.files, silence.Messages());
        m_Generated = std::make_unique<const SGeneratedGrammar>(std::move(made));
    }
    return *m_Generated;
}

std::map<int, std::vector<SRuleBeingRead>> CLanguageRules::ReadStates(const std::set<int>& states)
{
    std::map<int, std::vector<SRuleBeingRead>> rules;
    if (states.empty())
        return rules;
    const SGeneratedGrammar& generated = Generated();
    const std::vector<int> ruleLines = ReadRuleLines(generated.files.parserText);
    const std::string_view report = generated.files.parserReport;
    constexpr std::string_view kState = "\nState ";
    for (std::size_t at = report.find(kState); at != std::string_view::npos;
         at = report.find(kState, at + 1)) {
        std::string_view rest = report.substr(at + kState.size());
        const int state = TakeNumber(rest);
        if (states.count(state) == 0)
            continue;
        rest.remove_prefix(std::min(rest.find_first_not_of('\n'), rest.size()));
        rules[state] = ReadItems(rest, generated.parser, ruleLines);
    }
    return rules;
}

std::vector<SLanguageRule> CLanguageRules::ParserRules()
{
    const SGeneratedGrammar& generated = Generated();
    const CGrammarSource& source = generated.parser;
    const std::vector<int> ruleLines = ReadRuleLines(generated.files.parserText);
    std::vector<SLanguageRule> rules;
    // Where the lists and the %words are in `rules`.
    std::map<std::pair<int, const SSourcePlace*>, std::size_t> forms;
    for (const SGrammarRule& rule : ReadParserReport(generated.files.parserReport).rules) {
        if (rule.number == 1)
            continue; // bison's own, which is never reduced
        const auto number = static_cast<std::size_t>(rule.number);
        const int line = number < ruleLines.size() ? ruleLines[number] : 0;
        const std::pair form(source.ListOf(line), source.WordsOf(line));
        if (form.first == 0 && form.second == nullptr) {
            rules.push_back({source.Place(line), TextOf(rule), {rule.number}});
            continue;
        }
        const auto [known, isNew] = forms.emplace(form, rules.size());
        if (isNew) {
            SSourcePlace place = form.second != nullptr ? *form.second : source.Place(line);
            rules.push_back({place, place.sourceLine, {}});
        }
        rules[known->second].numbers.push_back(rule.number);
    }
    return rules;
}

std::vector<SLanguageRule> CLanguageRules::ScannerRules()
{
    const SGeneratedGrammar& generated = Generated();
    const CGrammarSource& source = generated.scanner;
    const std::string_view made = generated.files.lexerText;
    const int defaultRule = DefinedNumber(made, "YY_END_OF_BUFFER") - 1;
    std::vector<std::string> lines{""}; // which count from 1
    std::istringstream text(source.Text());
    for (std::string line; std::getline(text, line);)
        lines.push_back(std::move(line));
    std::vector<SLanguageRule> rules;
    for (const SActionCase& action : ReadScannerActions(made).cases)
        if (action.number != defaultRule)
            rules.push_back({source.Place(action.line),
                             ReadableRule(lines.at(static_cast<std::size_t>(action.line))),
                             {action.number}});
    return rules;
}

} // namespace uvscore
