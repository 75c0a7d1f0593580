#include "Tools/uvgrammar-test/Run.h"

#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/Coverage.h"
#include "Tools/uvgrammar-score/Inputs.h"
#include "Tools/uvgrammar-score/Language.h"
#include "Tools/uvgrammar-score/Workers.h"
#include "Tools/uvgrammar-test/CaseRun.h"
#include "Tools/uvgrammar-test/LineDifference.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/TableCache.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace uvtest {

namespace fs = std::filesystem;

namespace {

constexpr const char* kCases = "Tests";
constexpr const char* kSamples = "Samples";
constexpr const char* kExtension = ".tests";
// A process that loads the language for fewer cases takes longer than it saves.
constexpr std::size_t kCasesWorthAProcess = 20;

// Those of the language, in the order of their names.
std::vector<std::string> FindCaseFiles(const std::string& language)
{
    const fs::path folder = fs::path(language) / kCases;
    std::vector<std::string> files;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (entry->path().extension() == kExtension)
            files.push_back(entry->path().string());
    if (failed)
        throw CToolFailure(folder.string() + ": " + failed.message());
    if (files.empty())
        throw CToolFailure(folder.string() + ": no file is called *" + kExtension);
    std::ranges::sort(files);
    return files;
}

// A language needn't have any.
std::vector<std::string> FindSamples(const std::string& language, const std::string& parserName)
{
    const std::string folder = (fs::path(language) / kSamples).string();
    std::error_code failed;
    if (!fs::exists(folder, failed) && !failed)
        return {};
    return uvscore::CollectInputs({folder}, uvparse::ExtensionsOf(parserName)).files;
}

// A case that is to be run.
struct SChosenCase
{
    std::size_t file = 0; // indices
    std::size_t number = 0;
};

class CRun
{
public:
    CRun(const SCommandLine& line, CToolMessages& messages)
        : m_Line(line), m_Messages(messages), m_Sources(uvscore::FindLanguageSources(line.language)),
          m_Runner({m_Sources.name, uvparse::VersionOfParser(m_Sources.name)}, line.isCoverage),
          m_Rules(m_Sources)
    {}

    int Run()
    {
        const std::vector<std::string> paths =
            m_Line.files.empty() ? FindCaseFiles(m_Line.language) : m_Line.files;
        // Before anything else is told: errors would refuse the grammar.
        uvparse::ChooseTableCache(true);
        if (!uvscore::MakeTables(m_Sources, m_Messages, &m_Rules)) {
            m_Messages.Error("grammar " + m_Sources.name + " refused");
            return kToolFindings;
        }
        ReadFiles(paths);
        const std::vector<SChosenCase> chosen = ChooseCases();
        const std::vector<SCaseResult> results = RunCases(chosen);
        for (std::size_t i = 0; i < chosen.size(); ++i)
            Judge(chosen[i], results[i]);
        WriteFiles();
        m_Report += "language " + m_Sources.name + "\n  cases: " + std::to_string(chosen.size()) +
                    "\n  passed: " + std::to_string(chosen.size() - m_Failed - m_Updated);
        if (m_Line.isUpdate)
            m_Report += "\n  updated: " + std::to_string(m_Updated);
        m_Report += "\n  failed: " + std::to_string(m_Failed) + '\n';
        if (m_Line.isCoverage)
            TellUnusedRules(results);
        WriteStandardOutput(m_Report);
        return m_Failed > 0 || m_Unused > 0 || m_Messages.ErrorCount() > 0 ? kToolFindings : kToolClean;
    }

private:
    void ReadFiles(const std::vector<std::string>& paths)
    {
        for (const std::string& path : paths) {
            try {
                m_Files.push_back(ReadCaseFile(path, ReadWholeFile(path)));
                m_Trees.emplace_back(m_Files.back().cases.size());
            } catch (const CCaseFileError& e) {
                m_Messages.Write(enSeverity::Error, SSourcePlace{path, static_cast<int>(e.Line()), 0, {}},
                                 e.what());
            }
        }
    }

    // An author who names cases that aren't there believes that they pass.
    std::vector<SChosenCase> ChooseCases() const
    {
        std::vector<SChosenCase> chosen;
        for (std::size_t file = 0; file < m_Files.size(); ++file)
            for (std::size_t number = 0; number < m_Files[file].cases.size(); ++number)
                if (m_Files[file].cases[number].name.find(m_Line.filter) != std::string::npos)
                    chosen.push_back({file, number});
        if (chosen.empty() && m_Messages.ErrorCount() == 0)
            throw CToolFailure(m_Line.filter.empty() ? "there are no cases"
                                                     : "no case has '" + m_Line.filter + "' in its name");
        return chosen;
    }

    const SCase& CaseOf(const SChosenCase& chosen) const { return m_Files[chosen.file].cases[chosen.number]; }

    std::vector<SCaseResult> RunCases(const std::vector<SChosenCase>& chosen)
    {
        std::vector<SCaseResult> results(chosen.size());
        const std::size_t processes =
            std::min(uvscore::ProcessorCount(), chosen.size() / kCasesWorthAProcess + 1);
        uvscore::RunJobs(
            chosen.size(), processes,
            [&](std::size_t job) {
                return WriteCaseResult(m_Runner.Run(CaseOf(chosen[job]), m_Files[chosen[job].file].path));
            },
            [&](std::size_t job, const uvscore::SJobResult& result) {
                if (result.isDone)
                    results[job] = ReadCaseResult(result.text);
                else
                    results[job].problem = result.text;
            });
        return results;
    }

    void Judge(const SChosenCase& chosen, const SCaseResult& result)
    {
        const SCase& one = CaseOf(chosen);
        const std::string head =
            m_Files[chosen.file].path + ':' + std::to_string(one.line) + ": " + one.name + '\n';
        if (!result.problem.empty()) {
            ++m_Failed;
            m_Report += head + "  " + result.problem + "\n\n";
        } else if (one.expected != result.lines && m_Line.isUpdate) {
            ++m_Updated;
            m_Trees[chosen.file][chosen.number] = result.lines;
            m_Report += "updated: " + head;
            for (const std::string& line : result.lines)
                if (line.starts_with("! "))
                    m_Report += "  " + line + '\n';
        } else if (!one.expected) {
            ++m_Failed;
            m_Report += head + "  no tree is expected yet; --update writes the one that there is\n\n";
        } else if (*one.expected != result.lines) {
            ++m_Failed;
            m_Report += head + DifferenceText(*one.expected, result.lines) + '\n';
        }
    }

    void TellUnusedRules(const std::vector<SCaseResult>& results)
    {
        uvscore::CUsedRules used;
        for (const SCaseResult& result : results)
            used.Add(result.coverage);
        const std::vector<std::string> samples = FindSamples(m_Line.language, m_Sources.name);
        uvscore::RunJobs(
            samples.size(), 1, [&](std::size_t job) { return m_Runner.CoverageOf(samples[job]); },
            [&](std::size_t job, const uvscore::SJobResult& result) {
                if (result.isDone)
                    used.Add(result.text);
                else // what can't be read is named already
                    m_Messages.Error(result.isCrash ? samples[job] + ": " + result.text : result.text);
            });
        const uvscore::SCoverageReport report = uvscore::ReportCoverage(m_Rules, used, "case or sample");
        m_Report += report.text;
        m_Unused = report.unused;
    }

    void WriteFiles() const
    {
        for (std::size_t i = 0; i < m_Files.size(); ++i) {
            const std::string content = WithTrees(m_Files[i], m_Trees[i]);
            if (content != m_Files[i].content)
                WriteWholeFile(m_Files[i].path, content);
        }
    }

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    uvscore::SLanguageSources m_Sources;
    CCaseRunner m_Runner;
    std::vector<SCaseFile> m_Files;
    std::vector<std::vector<std::optional<TLines>>> m_Trees; // for each file and case, if it is updated
    std::string m_Report;
    uvscore::CLanguageRules m_Rules;
    std::size_t m_Unused = 0; // rules
    std::size_t m_Failed = 0;
    std::size_t m_Updated = 0;
};

} // namespace

int Run(const SCommandLine& line, CToolMessages& messages)
{
    if (line.isHelp) {
        WriteStandardOutput(HelpText());
        return kToolClean;
    }
    return CRun(line, messages).Run();
}

} // namespace uvtest
