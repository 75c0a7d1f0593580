#include "Tools/uvparse/Run.h"

#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolTerminal.h"
#include "Tools/uvparse/ContentChoice.h"
#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/KnownOptions.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/LanguageNames.h"
#include "Tools/uvparse/LegacyEncoding.h"
#include "Tools/uvparse/MessageOutput.h"
#include "Tools/uvparse/OutputNames.h"
#include "Tools/uvparse/ParseReport.h"
#include "Tools/uvparse/ParserHost.h"
#include "Tools/uvparse/PreparedDiff.h"
#include "Tools/uvparse/PrettyTree.h"
#include "Tools/uvparse/Selection.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/SourceText.h"
#include "Tools/uvparse/Statistics.h"
#include "Tools/uvparse/TableCache.h"
#include "Tools/uvparse/TraceFile.h"
#include "Tools/uvparse/TreeText.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <utility>

namespace uvparse {

namespace {

using Clock = std::chrono::steady_clock;

// A longer text's parser goes with it: what it took for its work would stay until the end of the run. Loading
// the tables anew is nothing beside such a parse.
constexpr std::size_t kLongText = std::size_t{1} << 22;

long Milliseconds(double seconds)
{
    return std::lround(seconds * 1000);
}

double SecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// What the choice by content came to.
struct SChosen
{
    std::string reason;
    std::optional<SParseResult> result; // of this run's parse
    double loadSeconds = 0;
    double seconds = 0; // without loading
};

class CRun
{
public:
    CRun(const SCommandLine& line, CMessageOutput& messages);

    // What the arguments get wrong is told before any work is done.
    // Throws: std::exception.
    void Prepare();
    // Returns: the exit code.
    // Throws:  std::exception for what ends the whole run.
    int Work();

private:
    // A file of the call, read.
    struct SInput
    {
        const SLanguage* language;
        const std::string& path;
        std::string text;
        std::size_t ownSize; // bytes of the text that the file has
        SFileBytes bytes;
        double readSeconds;
        std::optional<SChosen> chosen; // nothing: the text didn't decide

        SSource Source() const
        {
            return {path, language->parserName, std::string_view(text).substr(0, ownSize), bytes};
        }
    };

    void NameOutputs();
    void RunFile(const std::string& path);
    void ParseFile(SInput& input);
    void PrepareFile(const SInput& input);
    const std::vector<SLanguage>& CandidatesOf(const std::string& path);
    SInput ReadInput(const std::string& path, const std::vector<SLanguage>& candidates);
    void ChooseByContent(const std::vector<SLanguage>& candidates, SInput& input);
    CParserHost& HostOf(const SLanguage& language, enMode mode);
    std::string PrepareAgain(const SInput& input, const SParseResult& result);
    void Report(const SInput& input, const SPreparation& preparation, const SParseResult& result);
    void Verify(const SInput& input, const SPreparation& preparation, const std::string& tree,
                CParserHost& host);
    void TellVerified(const SInput& input, const SPreparation& preparation, const std::string& remark);
    void TellTime(const SInput& input, double loadSeconds, const char* work, double workSeconds,
                  Clock::time_point writing);
    std::string OutputOf(const std::string& path) const;
    void WriteResult(const SInput& input, const std::string& result);
    void WritePrepared(const SInput& input, const SParseResult& result);
    void WriteTo(const SInput& input, const std::string& result, const TTextSink& sink);
    void Write(const SMessage& message);
    void Remark(enMessageKind kind, const SInput& input, const std::string& text);
    void TellUnread(const std::string& path, const CSourceRefusal& refusal);
    void TellFailure(const std::string& path, const std::string& text);
    void Worsen(int code) { m_ExitCode = std::max(m_ExitCode, code); }

    const SCommandLine& m_Line;
    const bool m_IsSilent; // no messages but about what could not run
    CMessageOutput& m_Messages;
    CLanguageChoice m_Languages;
    std::shared_ptr<CTraceFile> m_Trace;
    std::map<std::string, std::vector<SLanguage>> m_Candidates; // by the extension of files
    std::string m_Language;                                     // of the file at hand, once it is known
    // One parser object each.
    std::map<std::pair<std::string, enMode>, std::unique_ptr<CParserHost>> m_Hosts;
    std::map<std::string, std::string> m_OutputPaths; // by file
    std::unique_ptr<CSelector> m_Selector;            // empty: the whole tree is wanted
    bool m_HasSelected = false;
    SStatistics m_Sum;
    std::size_t m_Counted = 0;
    CToolProgress m_Progress;
    int m_ExitCode = kToolClean;
};

std::vector<std::string> GrammarsBesideProgram()
{
    return ListGrammars(Uve::Path::Combine(Uve::GetPathOfExe(), "Grammar"));
}

CRun::CRun(const SCommandLine& line, CMessageOutput& messages)
    : m_Line(line), m_IsSilent(line.isQuiet && line.messageFile.empty()), m_Messages(messages),
      m_Languages(GrammarsBesideProgram(), line.IsPreparing() ? enPurpose::Preparation : enPurpose::Parsing),
      // Progress on the same terminal would stand between lines that programs read.
      m_Progress(line.files.size(),
                 !line.isQuiet && (line.messageForm == enMessageForm::Text || !line.messageFile.empty()))
{}

void ListLanguages()
{
    std::map<std::string, std::string> languages;
    for (const SPreparedLanguage& language : PreparedLanguages())
        languages[language.parserName] = "prepared";
    for (const std::string& name : GrammarsBesideProgram()) {
        std::string& what = languages[name];
        what += what.empty() ? "parsed" : ", parsed";
    }
    std::string text;
    for (const auto& [name, what] : languages)
        text.append(name).append(1, '\t').append(what).append(1, '\n');
    WriteStandardOutput(text);
}

// Results of files of one name go to the folders of these files, so that none overwrites another. What would
// do so all the same is found before the work begins.
void CRun::NameOutputs()
{
    std::map<std::string, std::string> users;
    const COutputNames names(m_Line.files);
    for (const std::string& path : m_Line.files) {
        std::string name = path == "-" ? "stdin" : names.NameOf(path);
        name += m_Line.isDiff      ? ".diff"
                : m_Line.isPrepare ? ".prepared"
                : m_Line.isLines   ? ".lines"
                : m_Line.isColor   ? ".color"
                : m_Selector       ? ".txt"
                                   : ".xml";
        const std::string target = (std::filesystem::path(m_Line.outputFolder) / name).string();
        const auto [user, isFree] = users.emplace(target, path);
        if (!isFree)
            throw CToolFailure(std::string("'")
                                   .append(user->second)
                                   .append("' and '")
                                   .append(path)
                                   .append("' would both be written to '")
                                   .append(target)
                                   .append("'"));
        m_OutputPaths[path] = target;
    }
    std::set<std::string> folders{m_Line.outputFolder};
    for (const auto& [path, target] : m_OutputPaths)
        folders.insert(std::filesystem::path(target).parent_path().string());
    for (const std::string& folder : folders) {
        std::error_code failed;
        std::filesystem::create_directories(folder, failed);
        if (failed)
            throw CToolFailure(folder + ": " + failed.message());
    }
}

// The extension is all that matters of a file's name.
const std::vector<SLanguage>& CRun::CandidatesOf(const std::string& path)
{
    const std::string extension = std::filesystem::path(path).extension().string();
    auto found = m_Candidates.find(extension);
    if (found == m_Candidates.end())
        found =
            m_Candidates.emplace(extension, m_Languages.Candidates(m_Line.language, m_Line.database, path))
                .first;
    return found->second;
}

CParserHost& CRun::HostOf(const SLanguage& language, enMode mode)
{
    // The database is the same for all files of a language, unless --db gives it, and then it is the same for
    // all.
    std::unique_ptr<CParserHost>& host = m_Hosts[{language.parserName, mode}];
    if (!host) {
        SHostSettings settings;
        settings.mode = mode;
        settings.options = m_Line.options;
        settings.objectOptions = m_Line.objectOptions;
        settings.log = m_Trace;
        host = std::make_unique<CParserHost>(language, settings);
    }
    return *host;
}

void CRun::Write(const SMessage& message)
{
    m_Progress.Clear();
    m_Messages.Write(message);
}

void CRun::Remark(enMessageKind kind, const SInput& input, const std::string& text)
{
    SMessage message;
    message.kind = kind;
    message.severity = enSeverity::Note;
    message.file = input.path;
    message.language = input.language->parserName;
    message.text = ShownName(input.path) + ": " + text;
    Write(message);
}

void CRun::TellFailure(const std::string& path, const std::string& text)
{
    SMessage message;
    message.kind = enMessageKind::CouldNotRun;
    message.file = path;
    message.language = m_Language;
    message.text = text;
    Write(message);
    Worsen(kToolCouldNotRun);
}

void CRun::TellUnread(const std::string& path, const CSourceRefusal& refusal)
{
    SMessage message;
    message.kind = enMessageKind::InvalidText;
    message.file = path;
    message.language = m_Language;
    message.text = refusal.what();
    message.range.line = refusal.Place().line;
    message.range.column = refusal.Place().column;
    if (refusal.Place().line > 0) {
        message.range.endLine = refusal.Place().line;
        message.range.endColumn = refusal.Place().column + 1;
    }
    message.range.byteOffset = refusal.FileOffset();
    if (refusal.FileOffset())
        message.range.byteLength = 1;
    Write(message);
    Worsen(kToolCouldNotRun);
}

void CRun::TellVerified(const SInput& input, const SPreparation& preparation, const std::string& remark)
{
    if (!m_IsSilent)
        Remark(enMessageKind::Verified, input,
               "verified: the tree holds the " + std::to_string(preparation.prepared.size()) +
                   " bytes of the " + (preparation.pass.empty() ? "text" : "prepared text") + remark);
}

// Flattening may change texts, line ends above all. Where it has, the raw tree is asked whether the parse is
// right.
void CRun::Verify(const SInput& input, const SPreparation& preparation, const std::string& tree,
                  CParserHost& host)
{
    const std::string_view text = preparation.prepared;
    std::optional<STreeDifference> difference = FindTreeDifference(tree, text);
    if (!difference) {
        TellVerified(input, preparation, "");
        return;
    }
    const char* what = "tree";
    if (!m_Line.isRaw) {
        const std::size_t changedAt = difference->textOffset;
        const SParseResult raw = host.ParseRaw();
        if (raw.isParsed) {
            what = "raw tree";
            difference = FindTreeDifference(raw.output, text);
        }
        if (!difference) {
            TellVerified(input, preparation,
                         " before it is flattened, which changes it from byte " + std::to_string(changedAt) +
                             " on");
            return;
        }
    }
    Write(DifferenceOf(input.Source(), preparation, *difference, what));
    Worsen(kToolFindings);
}

void CRun::Report(const SInput& input, const SPreparation& preparation, const SParseResult& result)
{
    if (HasFaults(result))
        Worsen(kToolFindings);
    if (m_IsSilent)
        return;
    for (const SMessage& message : ReportOf(input.Source(), preparation, result))
        Write(message);
}

void CRun::WriteTo(const SInput& input, const std::string& result, const TTextSink& sink)
{
    if (m_Selector) {
        SSelectionLook look;
        look.isPretty = m_Line.isPretty;
        if (m_Line.files.size() > 1 && m_Line.outputFolder.empty())
            look.prefix = ShownName(input.path) + ':';
        if (m_Selector->Write(result, ShownName(input.path), look, sink))
            m_HasSelected = true;
        return;
    }
    if (result.empty())
        return;
    if (m_Line.isPretty) {
        const std::optional<std::size_t> brokenAt = WritePretty(result, sink);
        if (!brokenAt) {
            sink("\n");
            return;
        }
        SMessage message = MessageAbout(input.Source(), enMessageKind::MalformedTree);
        message.text = "not indented: the tree is not well-formed at its byte " + std::to_string(*brokenAt);
        Write(message);
        Worsen(kToolFindings);
    }
    sink(result);
    if (result.back() != '\n')
        sink("\n");
}

std::string CRun::OutputOf(const std::string& path) const
{
    return m_Line.outputFolder.empty() ? "-" : m_OutputPaths.at(path);
}

void CRun::WriteResult(const SInput& input, const std::string& result)
{
    COutputFile file(OutputOf(input.path));
    WriteTo(input, result, [&](std::string_view piece) { file.Write(piece); });
    file.Close();
}

void CRun::WritePrepared(const SInput& input, const SParseResult& result)
{
    COutputFile file(OutputOf(input.path));
    const TTextSink sink = [&](std::string_view piece) { file.Write(piece); };
    if (m_Line.isDiff) {
        SDiffLook look;
        look.width = m_Line.outputFolder.empty() ? StandardOutputWidth() : look.width;
        look.isColored = m_Line.outputFolder.empty() && StandardOutputTakesColors();
        look.sourceTitle = ShownName(input.path);
        look.preparedTitle = result.pass.empty() ? "unprepared" : "prepared by " + result.pass;
        WriteDiff(input.text, result.output, result.preparedLines, look, sink);
    } else if (m_Line.isLines) {
        const bool isNamed = m_Line.files.size() > 1 && m_Line.outputFolder.empty();
        WriteLines(result.output, result.preparedLines, isNamed ? ShownName(input.path) + ':' : "",
                   m_Line.isPrepare, sink);
    } else {
        sink(result.output);
    }
    file.Close();
}

void CRun::TellTime(const SInput& input, double loadSeconds, const char* work, double workSeconds,
                    Clock::time_point writing)
{
    if (!m_Line.isTime)
        return;
    std::string choice;
    if (input.chosen) {
        loadSeconds += input.chosen->loadSeconds;
        choice = "choose " + std::to_string(Milliseconds(input.chosen->seconds)) + " ms, ";
    }
    Remark(enMessageKind::Time, input,
           "load " + std::to_string(Milliseconds(loadSeconds)) + " ms, read " +
               std::to_string(Milliseconds(input.readSeconds)) + " ms, " + choice + work + ' ' +
               std::to_string(Milliseconds(workSeconds)) + " ms, write " +
               std::to_string(Milliseconds(SecondsSince(writing))) + " ms");
}

// A parse keeps its prepared text to itself. Messages and comparisons have it made once more. A raw tree is
// of the text as it stands.
std::string CRun::PrepareAgain(const SInput& input, const SParseResult& result)
{
    if (m_Line.isRaw)
        return input.text;
    if (result.pass.empty())
        return PreparedText(input.text);
    if (result.findings.empty() && !m_Line.isVerify)
        return {};
    return HostOf(*input.language, enMode::Preparation).Parse(input.text, input.path).output;
}

void CRun::ParseFile(SInput& input)
{
    CParserHost& host = HostOf(*input.language, m_Line.isColor ? enMode::Coloring
                                                : m_Line.isRaw ? enMode::RawTree
                                                               : enMode::Tree);
    const SParseResult result = input.chosen && input.chosen->result
                                    ? *std::exchange(input.chosen->result, {})
                                    : host.Parse(input.text, input.path);
    const std::string prepared = PrepareAgain(input, result);
    const SPreparation preparation{result.pass.empty() ? prepared : input.text, prepared,
                                   result.preparedLines, result.pass};
    Report(input, preparation, result);
    if (m_Line.isVerify && result.isParsed)
        Verify(input, preparation, result.output, host);
    if (m_Line.isStat) {
        const SStatistics statistics{
            CountStatements(result.output), CountFindings(result.findings, enFinding::SkippedText),
            CountFindings(result.findings, enFinding::UnexpectedToken), input.text.size(), result.seconds};
        Remark(enMessageKind::Statistics, input, statistics.Text());
        m_Sum += statistics;
        ++m_Counted;
    }

    const double loadSeconds = host.TakeLoadSeconds();
    const Clock::time_point writing = Clock::now();
    // A search wants memory of its own.
    if (m_Selector && input.text.size() > kLongText)
        m_Hosts.clear();
    if (result.isParsed)
        WriteResult(input, result.output);
    TellTime(input, loadSeconds, "parse", result.seconds, writing);
}

void CRun::PrepareFile(const SInput& input)
{
    CParserHost& host = HostOf(*input.language, enMode::Preparation);
    const SParseResult result = host.Parse(input.text, input.path);
    Report(input, SPreparation{input.text, result.output, result.preparedLines, result.pass}, result);
    if (m_Line.isLines && !result.output.empty() && !result.preparedLines.IsKnown())
        Worsen(kToolFindings);

    const Clock::time_point writing = Clock::now();
    if (result.isParsed)
        WritePrepared(input, result);
    TellTime(input, host.TakeLoadSeconds(), "prepare", result.seconds, writing);
}

// Reads the file and has its language chosen.
CRun::SInput CRun::ReadInput(const std::string& path, const std::vector<SLanguage>& candidates)
{
    if (candidates.size() == 1)
        m_Language = candidates.front().parserName;
    const Clock::time_point start = Clock::now();
    SSourceText source = ReadSourceText(path, {m_Line.encoding, m_Line.recordLength});
    SInput input{&candidates.front(), path,        std::move(source.text), 0, source.bytes,
                 SecondsSince(start), std::nullopt};
    input.ownSize = input.text.size();
    if (candidates.size() > 1)
        ChooseByContent(candidates, input);
    m_Language = input.language->parserName;
    if (!m_Line.isRaw)
        input.text = TextForParser(*input.language, std::move(input.text));
    return input;
}

void CRun::ChooseByContent(const std::vector<SLanguage>& candidates, SInput& input)
{
    const Clock::time_point start = Clock::now();
    const CContentChoice chooser(
        [&](const SLanguage& language, enMode mode) -> CParserHost& { return HostOf(language, mode); });
    SContentChoice choice = chooser.Choose(candidates, input.text, input.path);
    input.language = &candidates[choice.index];
    SChosen& chosen = input.chosen.emplace();
    chosen.seconds = SecondsSince(start);
    for (const SLanguage& language : candidates)
        chosen.loadSeconds += HostOf(language, enMode::Tree).TakeLoadSeconds();
    chosen.seconds -= chosen.loadSeconds;
    chosen.reason = std::move(choice.reason);
    if (!m_Line.IsPreparing() && !m_Line.isRaw && !m_Line.isColor)
        chosen.result = std::move(choice.result);
}

void CRun::RunFile(const std::string& path)
{
    const std::vector<SLanguage>& candidates = CandidatesOf(path);
    std::optional<SInput> input;
    try {
        input.emplace(ReadInput(path, candidates));
    } catch (...) {
        m_Messages.Begin(path, m_Language);
        throw;
    }
    m_Messages.Begin(path, m_Language);
    if (input->chosen && !m_IsSilent) {
        SMessage message = MessageAbout(input->Source(), enMessageKind::ChosenLanguage);
        message.text = input->chosen->reason;
        Write(message);
    }
    if (m_Line.IsPreparing())
        PrepareFile(*input);
    else
        ParseFile(*input);
    if (input->text.size() > kLongText)
        m_Hosts.clear();
}

void CRun::Prepare()
{
    CheckOptions(m_Line.options, DatabaseOptions(), "--option");
    CheckOptions(m_Line.objectOptions, ObjectOptions(), "--object-option");
    if (!m_Line.encoding.empty())
        CLegacyDecoder check(m_Line.encoding);
    if (!m_Line.xpath.empty())
        m_Selector = std::make_unique<CSelector>(m_Line.xpath);
    if (!m_Line.outputFolder.empty())
        NameOutputs();
    if (!m_Line.traceFile.empty())
        m_Trace = std::make_shared<CTraceFile>(m_Line.traceFile);
    ChooseTableCache(!m_Line.isWithoutCache);
}

int CRun::Work()
{
    for (const std::string& path : m_Line.files) {
        m_Progress.Step(ShownName(path));
        m_Language.clear();
        try {
            RunFile(path);
        } catch (const CLanguageError& e) {
            TellFailure(path, ShownName(path) + ": " + e.what());
        } catch (const CSourceRefusal& e) {
            TellUnread(path, e);
        } catch (const std::bad_alloc&) {
            // What the text has taken goes with its parser.
            m_Hosts.clear();
            TellFailure(path, ShownName(path) + ": out of memory");
        } catch (const std::exception& e) {
            TellFailure(path, e.what());
        }
    }
    m_Progress.Clear();
    if (m_Line.isStat && m_Counted > 1) {
        SMessage sum;
        sum.kind = enMessageKind::Statistics;
        sum.severity = enSeverity::Note;
        sum.text = "sum of " + std::to_string(m_Counted) + " texts: " + m_Sum.Text();
        Write(sum);
    }
    if (m_Selector && !m_HasSelected)
        Worsen(kToolFindings);
    if (m_Trace) {
        m_Hosts.clear();
        m_Trace->Close();
    } else {
        // The process ends with the run: the system takes its memory back sooner than its objects could.
        static auto* const forTheSystem = new decltype(m_Hosts);
        forTheSystem->merge(m_Hosts);
    }
    return m_ExitCode;
}

int WorkAndTell(const SCommandLine& line, CMessageOutput& messages)
{
    SMessage failure;
    failure.kind = enMessageKind::BadArguments;
    try {
        CRun run(line, messages);
        run.Prepare();
        failure.kind = enMessageKind::CouldNotRun;
        return run.Work();
    } catch (const std::exception& e) {
        failure.text = e.what();
    }
    messages.Write(failure);
    return kToolCouldNotRun;
}

} // namespace

int Run(const SCommandLine& line)
{
    if (line.isHelp) {
        WriteStandardOutput(HelpText());
        return kToolClean;
    }
    if (line.isVersion) {
        WriteStandardOutput("uvparse " UV_VERSION "\n");
        return kToolClean;
    }
    if (line.isListLanguages) {
        ListLanguages();
        return kToolClean;
    }
    CMessageOutput messages(line.messageForm, line.messageFile);
    const int exitCode = WorkAndTell(line, messages);
    messages.End(exitCode);
    return exitCode;
}

} // namespace uvparse
