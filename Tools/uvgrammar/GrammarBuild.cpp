#include "Tools/uvgrammar/GrammarBuild.h"

#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarManifest.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar/EndRules.h"
#include "Tools/uvgrammar/GrammarChecks.h"
#include "Tools/uvgrammar/ParserSource.h"
#include "Tools/uvgrammar/ScannerSource.h"
#include "Tools/uvgrammar/TableDirectory.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <filesystem>
#include <map>
#include <utility>

namespace {

// Messages of the library are lines for a log and begin with a line feed.
std::string LogText(const Uve::U8CString& text)
{
    const std::size_t from = text.find_first_not_of('\n');
    return from == std::string::npos ? std::string() : text.substr(from);
}

void Require(int result, const char* what)
{
    if (result != 0)
        throw CToolFailure(std::string(what) + " can't be read out of the generated text or written");
}

// The extractor passes over rules for the end of the text.
void AppendEndRecords(const CGrammarSource& source, const SGeneratedFiles& files, const std::string& defines,
                      const std::string& path)
{
    std::map<std::string, int> startConditions;
    UVDBGrammarKeeper::CreateDefinesMap(defines, startConditions);
    WriteWholeFile(path, ReadWholeFile(path) + EndRecords(source, files, startConditions));
}

void WriteTables(const CGrammarSource& source, const SGeneratedFiles& files, const std::string& name,
                 std::uint32_t sources, const std::string& directory)
{
    const std::string lexer = directory + "Lexer/";
    const std::string parser = directory + "Parser/";
    std::string defines;
    Require(UVDBGrammarKeeper::SaveActionsToFile(files.lexerPath, lexer), "the scanner's actions");
    Require(UVDBGrammarKeeper::SaveTablesToFile(files.lexerPath, lexer), "the scanner's tables");
    Require(UVDBGrammarKeeper::SaveDefinesToFile(files.lexerHeaderPath, lexer, defines),
            "the start conditions");
    AppendEndRecords(source, files, defines, lexer + "actions.dat");
    Require(UVDBGrammarKeeper::SaveActionsToFile(files.parserPath, parser), "the parser's actions");
    Require(UVDBGrammarKeeper::SaveTablesToFile(files.parserPath, parser), "the parser's tables");
    Require(UVDBGrammarKeeper::SaveConstantsToFile(files.parserPath, parser), "the final state");
    Require(UVDBGrammarKeeper::SaveDefinesToFile(files.parserPath, parser, defines), "the tokens");
    WriteWholeFile(directory + kManifestName, ComposeManifest(directory, name, sources));
}

void AppendTables(std::string& report, std::initializer_list<std::pair<const char*, std::size_t>> tables)
{
    for (const auto& [name, entries] : tables)
        report += std::string("  ") + name + ": " + std::to_string(entries) + " entries\n";
}

// A blank in a name would separate two names.
std::string MakeName(const std::string& path)
{
    std::string name;
    for (const char c : path) {
        if (c == ' ' || c == '#' || c == '\\')
            name += '\\';
        name += c;
        if (c == '$')
            name += c;
    }
    return name;
}

std::string DependencyRule(const SGrammarBuild& build, const CGrammarSource& lexer,
                           const CGrammarSource& parser)
{
    std::string rule = MakeName(build.outputPath + '/' + kManifestName) + ':';
    for (const CGrammarSource* const source : {&lexer, &parser}) {
        for (const std::string& path : source->Paths())
            rule += " \\\n  " + MakeName(path);
    }
    return rule + '\n';
}

void WriteExpanded(const std::string& folder, const std::string& path, const CGrammarSource& source)
{
    std::error_code ignored; // the write tells
    std::filesystem::create_directories(folder, ignored);
    const std::filesystem::path target =
        std::filesystem::path(folder) / std::filesystem::path(path).filename();
    WriteWholeFile(target.string(), source.Text());
}

// A list is one rule to its author.
std::size_t RuleCount(const CGrammarSource& source, const std::vector<int>& ruleLines, std::size_t rules)
{
    std::size_t ofLists = 0;
    for (const int line : ruleLines)
        ofLists += source.ListOf(line) != 0 ? 1u : 0u;
    return rules - ofLists + static_cast<std::size_t>(source.ListCount());
}

std::string ReportText(const SGrammarBuild& build, const CGrammarSource& source, const SGeneratedFiles& files,
                       const SParserReport& parser, const SLoadedTables& tables,
                       const std::set<std::string>& used)
{
    const auto number = [](std::size_t value) { return std::to_string(value); };
    std::string report = "grammar " + build.name + "\n\nscanner\n";
    report += "  rules: " + number(tables.scanner.tables->rule_can_match_eol.count - 2) +
              '\n'; // without rule 0 and flex's default
    report += "  start conditions: " + number(tables.scanner.startConditions.size()) + '\n';
    report += "  states: " + number(tables.scanner.tables->accept.count - 3) + '\n';
    AppendTables(report, {{"accept", tables.scanner.tables->accept.count},
                          {"base", tables.scanner.tables->base.count},
                          {"nxt", tables.scanner.tables->nxt.count},
                          {"acclist", tables.scanner.tables->acclist.count}});
    report += "\nparser\n";
    // without that of $accept
    report +=
        "  rules: " + number(RuleCount(source, ReadRuleLines(files.parserText), parser.rules.size() - 1)) +
        '\n';
    report += "  lists among them: " + std::to_string(source.ListCount()) + '\n';
    report += "  terminals: " + std::to_string(parser.terminals) + '\n';
    report += "  nonterminals: " + std::to_string(parser.nonterminals) + '\n';
    report += "  states: " + number(tables.parser.tables->pact.count) + '\n';
    AppendTables(report, {{"table", tables.parser.tables->table.count},
                          {"r1", tables.parser.tables->r1.count},
                          {"translate", tables.parser.tables->translate.count}});
    report += "  conflicts: " + std::to_string(parser.shiftReduceConflicts) + " shift/reduce, " +
              std::to_string(parser.reduceReduceConflicts) + " reduce/reduce\n";
    report += "  unused nonterminals: " + number(parser.uselessNonterminals.size()) + '\n';
    for (const std::string& name : parser.uselessNonterminals)
        report += "    " + name + '\n';
    report += "  unused rules: " + number(parser.uselessRules.size()) + '\n';
    for (const std::string& rule : parser.uselessRules)
        report += "    " + rule + '\n';

    std::string unmade;
    std::size_t unmadeCount = 0;
    for (const auto& [token, value] : tables.parser.tokens) {
        if (value == 0 || used.count(token) != 0 || tables.scanner.startConditions.count(token) != 0)
            continue;
        ++unmadeCount;
        unmade += "    " + token + '\n';
    }
    report += "  tokens that no scanner action names: " + number(unmadeCount) + '\n' + unmade;
    return report;
}

// Shows no warnings if they are as many as are meant, else all of them.
class CMeantWarnings
{
public:
    CMeantWarnings(const std::string& path, std::optional<std::size_t> count, CToolMessages& messages)
        : m_Path(path), m_Count(count), m_Messages(messages)
    {
        if (m_Count)
            m_Messages.Hold();
    }
    CMeantWarnings(const CMeantWarnings&) = delete;
    CMeantWarnings& operator=(const CMeantWarnings&) = delete;
    ~CMeantWarnings()
    {
        const bool isMeant = m_Count == m_Messages.WarningCount();
        if (m_Count && !isMeant && m_Messages.ErrorCount() == 0)
            m_Messages.Write(enSeverity::Note, {m_Path, 0, 0, {}},
                             std::to_string(m_Messages.WarningCount()) + " warnings, where %warnings says " +
                                 std::to_string(*m_Count));
        m_Messages.Release(!isMeant);
    }

private:
    const std::string& m_Path;
    std::optional<std::size_t> m_Count;
    CToolMessages& m_Messages;
};

} // namespace

std::uint32_t SourcesChecksum(const CGrammarSource& scanner, const CGrammarSource& parser)
{
    return FactsOfText(scanner.Text() + parser.Text()).checksum;
}

enToolExit BuildGrammar(const SGrammarBuild& build, CToolMessages& messages, std::string& report,
                        std::unique_ptr<const SGeneratedGrammar>* generated)
{
    CGrammarSource lexer = AssembleScanner(build.lexerPath, messages);
    CGrammarSource parser = AssembleParser(build.parserPath, messages);
    const CMeantWarnings meant(build.parserPath, parser.MeantWarnings(), messages);
    if (!build.depfilePath.empty())
        WriteWholeFile(build.depfilePath, DependencyRule(build, lexer, parser));
    if (messages.ErrorCount() > 0)
        return kToolFindings;
    if (!build.expandedPath.empty()) {
        WriteExpanded(build.expandedPath, build.lexerPath, lexer);
        WriteExpanded(build.expandedPath, build.parserPath, parser);
    }
    CTableDirectory output(build.outputPath);
    const CTemporaryFolder scratch((std::filesystem::temp_directory_path() / "uvgrammar.").string());

    SGeneratedFiles files;
    RunFlex(lexer, scratch.Path(), files, messages);
    RunBison(parser, scratch.Path(), files, messages, build.explainsConflicts);
    if (!files.lexerText.empty())
        CheckScannerForm(lexer, files, messages);
    if (!files.parserText.empty())
        CheckParserForm(parser, files, messages);
    if (messages.ErrorCount() > 0)
        return kToolFindings;

    const std::string written = output.NewPath();
    try {
        WriteTables(lexer, files, build.name, SourcesChecksum(lexer, parser), written);
    } catch (const Uve::U8CString& text) {
        throw CToolFailure(LogText(text));
    }
    try {
        SLoadedTables tables;
        LoadTables(written, tables);
        const SParserReport parserReport = ReadParserReport(files.parserReport);
        std::set<std::string> used;
        CheckScannerRules(lexer, files, tables, messages, used);
        CheckParserRules(parser, files, parserReport, tables, messages);
        if (build.isStyled)
            CheckStyle(parser, files, parserReport, messages);
        report = ReportText(build, parser, files, parserReport, tables, used);
        if (messages.ErrorCount() > 0)
            return kToolFindings;
        ProveTables(written, tables);
        CheckScannerReach(lexer, files, tables, messages);
    } catch (const Uve::U8CString& text) {
        // The directory that the text names goes in a moment.
        std::string shown = LogText(text);
        const std::size_t at = shown.find(written);
        if (at != std::string::npos)
            shown.erase(at, written.size());
        messages.Error("the tables made of this grammar can't be loaded: " + shown);
        return kToolFindings;
    }
    output.Commit();
    if (generated != nullptr)
        *generated = std::make_unique<const SGeneratedGrammar>(
            SGeneratedGrammar{std::move(lexer), std::move(parser), std::move(files)});
    return kToolClean;
}
