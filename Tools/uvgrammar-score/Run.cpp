#include "Tools/uvgrammar-score/Run.h"

#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/Comments.h"
#include "Tools/uvgrammar-score/Coverage.h"
#include "Tools/uvgrammar-score/Inputs.h"
#include "Tools/uvgrammar-score/Language.h"
#include "Tools/uvgrammar-score/Recovery.h"
#include "Tools/uvgrammar-score/SavedScore.h"
#include "Tools/uvgrammar-score/ScoreReport.h"
#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-score/Shrink.h"
#include "Tools/uvgrammar-score/Workers.h"
#include "Tools/uvparse/TableCache.h"

#include <algorithm>
#include <functional>
#include <set>

namespace uvscore {

namespace {

constexpr std::size_t kMostWorse = 20;

class CRun
{
public:
    CRun(const SCommandLine& line, CToolMessages& messages)
        : m_Line(line), m_Messages(messages),
          m_Sources(FindLanguageSources(line.language)), m_Language{m_Sources.name,
                                                                    uvparse::VersionOfParser(m_Sources.name)},
          m_Parser(m_Language, OptionsOf(line)), m_Rules(m_Sources)
    {}

    int Run()
    {
        // What is to be compared with may be missing: better told before the work.
        std::vector<SScoredFile> before;
        if (!m_Line.againstFile.empty())
            before = ReadSavedScore(m_Line.againstFile, m_Sources.name);
        if (!m_Line.shrinkFile.empty())
            return Shrink();
        const SInputs inputs = CollectInputs(m_Line.inputs, uvparse::ExtensionsOf(m_Sources.name));
        if (!Prepare())
            return kToolFindings;
        const std::vector<SScoredFile> files = Score(inputs.files);
        Report(files, inputs.passedOver);
        if (!m_Line.saveFile.empty())
            WriteWholeFile(m_Line.saveFile, SavedText(m_Sources.name, files));
        if (!m_Line.againstFile.empty()) {
            const SComparison comparison = CompareScores(before, files);
            WriteStandardOutput(ComparisonText(comparison, kMostWorse));
            if (!comparison.worse.empty())
                Worsen(kToolFindings);
        }
        if (m_Line.isCoverage)
            TellUnusedRules(files);
        if (m_Line.isComments)
            TryCommentsInAll(files);
        if (m_Line.isRecovery)
            TryFaultsInAll(files);
        return m_ExitCode;
    }

private:
    static uvparse::TOptions OptionsOf(const SCommandLine& line)
    {
        uvparse::TOptions options = line.options;
        if (line.isCoverage)
            options.emplace_back("REPORT_COVERAGE", "1");
        return options;
    }

    // Returns: false if there are no tables.
    bool Prepare()
    {
        uvparse::ChooseTableCache(true);
        if (MakeTables(m_Sources, m_Messages, &m_Rules))
            return true;
        m_Messages.Error("grammar " + m_Sources.name + " refused");
        return false;
    }

    int Shrink()
    {
        if (!Prepare())
            return kToolFindings;
        RunJobs(
            1, 1, [&](std::size_t) { return ShrinkFirstFailure(m_Parser, m_Line.shrinkFile); },
            [](std::size_t, const SJobResult& result) {
                if (!result.isDone)
                    throw CToolFailure(result.text);
                WriteStandardOutput(result.text);
            });
        return kToolClean;
    }

    // Runs an experiment with the files that give samples for it, in workers. `take` gets the number of the file and its
    // result; of a file that has none it is told why.
    void Experiment(const std::vector<SScoredFile>& files,
                    const std::function<std::string(const std::string& path, std::size_t samples)>& work,
                    const std::function<void(std::size_t file, const std::string& result)>& take)
    {
        const std::vector<std::size_t> samples = ShareSamples(files, m_Line.samples);
        std::vector<std::size_t> chosen;
        for (std::size_t i = 0; i < files.size(); ++i)
            if (samples[i] > 0)
                chosen.push_back(i);
        CToolProgress progress(chosen.size(), !m_Line.isQuiet);
        RunJobs(
            chosen.size(), Processes(),
            [&](std::size_t job) { return work(files[chosen[job]].path, samples[chosen[job]]); },
            [&](std::size_t job, const SJobResult& result) {
                const SScoredFile& file = files[chosen[job]];
                progress.Step(file.path);
                if (result.isDone) {
                    take(chosen[job], result.text);
                    return;
                }
                progress.Clear();
                m_Messages.Write(result.isCrash ? enSeverity::Error : enSeverity::Warning,
                                 SSourcePlace{file.path, 0, 0, {}}, result.text);
                if (result.isCrash)
                    Worsen(kToolFindings);
            });
    }

    void TryCommentsInAll(const std::vector<SScoredFile>& files)
    {
        std::vector<std::string> paths;
        paths.reserve(files.size());
        for (const SScoredFile& file : files)
            paths.push_back(file.path);
        std::vector<SCommentReport> reports(files.size());
        Experiment(
            files,
            [&](const std::string& path, std::size_t samples) {
                return WriteCommentReport(TryComments(m_Parser, path, m_Line.comment, samples, m_Line.seed));
            },
            [&](std::size_t file, const std::string& result) { reports[file] = ReadCommentReport(result); });
        WriteStandardOutput(CommentsText(paths, reports, m_Line.groups));
    }

    void TryFaultsInAll(const std::vector<SScoredFile>& files)
    {
        std::vector<SFaultResult> results;
        Experiment(
            files,
            [&](const std::string& path, std::size_t samples) {
                return WriteFaultResults(TryFaults(m_Parser, path, samples, m_Line.seed));
            },
            [&](std::size_t, const std::string& result) {
                const std::vector<SFaultResult> ofFile = ReadFaultResults(result);
                results.insert(results.end(), ofFile.begin(), ofFile.end());
            });
        WriteStandardOutput(RecoveryText(results));
    }

    std::size_t Processes() const { return m_Line.jobs > 0 ? m_Line.jobs : ProcessorCount(); }

    std::vector<SScoredFile> Score(const std::vector<std::string>& paths)
    {
        std::vector<SScoredFile> files(paths.size());
        CToolProgress progress(paths.size(), !m_Line.isQuiet);
        RunJobs(
            paths.size(), Processes(),
            [&](std::size_t job) { return WriteScoredFile(ScoreFile(m_Parser, paths[job])); },
            [&](std::size_t job, const SJobResult& result) {
                progress.Step(paths[job]);
                files[job] = result.isDone ? ReadScoredFile(paths[job], result.text)
                                           : CrashedFile(paths[job], result.text);
            });
        progress.Clear();
        for (const SScoredFile& file : files) {
            const bool isCrash = file.state == enFileState::Crashed;
            if (file.state != enFileState::Parsed)
                m_Messages.Write(isCrash ? enSeverity::Error : enSeverity::Warning,
                                 SSourcePlace{file.path, 0, 0, {}}, file.problem);
            if (isCrash)
                Worsen(kToolFindings);
        }
        m_Unreadable =
            std::erase_if(files, [](const SScoredFile& file) { return file.state == enFileState::NoText; });
        if (files.empty())
            throw CToolFailure("there is nothing to parse");
        return files;
    }

    void Report(const std::vector<SScoredFile>& files, std::size_t passedOver)
    {
        STotals totals;
        for (const SScoredFile& file : files)
            totals.Add(file);
        std::string text = "language " + m_Sources.name + '\n' + totals.Text();
        if (passedOver > 0)
            text += "  files passed over for their extension: " + std::to_string(passedOver) + '\n';
        if (m_Unreadable > 0)
            text += "  files that can't be read: " + std::to_string(m_Unreadable) + '\n';
        const std::vector<SFailureGroup> groups = GroupFailures(files);
        std::set<int> states;
        for (std::size_t i = 0; i < std::min(groups.size(), m_Line.groups); ++i)
            if (groups[i].failure.state >= 0)
                states.insert(groups[i].failure.state);
        text += GroupsText(groups, m_Line.groups, m_Rules.ReadStates(states));
        WriteStandardOutput(text);
    }

    void TellUnusedRules(const std::vector<SScoredFile>& files)
    {
        CUsedRules used;
        for (const SScoredFile& file : files)
            used.Add(file.coverage);
        const SCoverageReport report = ReportCoverage(m_Rules, used, "file");
        WriteStandardOutput(report.text);
        if (m_Line.failsOnUnused && report.unused > 0)
            Worsen(kToolFindings);
    }

    void Worsen(int code) { m_ExitCode = std::max(m_ExitCode, code); }

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    SLanguageSources m_Sources;
    uvparse::SLanguage m_Language;
    CTextParser m_Parser;
    CLanguageRules m_Rules;
    std::size_t m_Unreadable = 0; // files
    int m_ExitCode = kToolClean;
};

} // namespace

int Run(const SCommandLine& line, CToolMessages& messages)
{
    if (line.isHelp) {
        WriteStandardOutput(HelpText());
        return kToolClean;
    }
    messages.SetQuiet(line.isQuiet);
    return CRun(line, messages).Run();
}

} // namespace uvscore
