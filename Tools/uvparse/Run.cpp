#include "Tools/uvparse/Run.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolTerminal.h"
#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/KnownOptions.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/LanguageNames.h"
#include "Tools/uvparse/LegacyEncoding.h"
#include "Tools/uvparse/OutputNames.h"
#include "Tools/uvparse/ParserHost.h"
#include "Tools/uvparse/PreparedDiff.h"
#include "Tools/uvparse/PrettyTree.h"
#include "Tools/uvparse/Selection.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/SourceText.h"
#include "Tools/uvparse/TableCache.h"
#include "Tools/uvparse/TraceFile.h"
#include "Tools/uvparse/TreeText.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iostream>
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

std::string ShownName(const std::string& path)
{
    return path == "-" ? "<stdin>" : path;
}

// Counts of one text, or of all.
struct SStatistics
{
    std::size_t statements = 0; // read
    std::size_t lost = 0;
    std::size_t unexpectedTokens = 0;
    std::size_t bytes = 0;
    double seconds = 0;

    SStatistics& operator+=(const SStatistics& other)
    {
        statements += other.statements;
        lost += other.lost;
        unexpectedTokens += other.unexpectedTokens;
        bytes += other.bytes;
        seconds += other.seconds;
        return *this;
    }

    std::string Text() const
    {
        const auto rate =
            seconds > 0 ? static_cast<unsigned long long>(static_cast<double>(bytes) / seconds) : 0;
        return std::to_string(statements) + " statements read, " + std::to_string(lost) + " lost, " +
               std::to_string(unexpectedTokens) + " unexpected tokens, " + std::to_string(bytes) +
               " bytes, " + std::to_string(rate) + " bytes/s";
    }
};

class CRun
{
public:
    CRun(const SCommandLine& line, CToolMessages& messages);

    int Run();

private:
    void ListLanguages();
    void NameOutputs();
    void RunFile(const std::string& path);
    void ParseFile(const SLanguage& language, const std::string& path, const std::string& text,
                   double readSeconds);
    void PrepareFile(const SLanguage& language, const std::string& path, const std::string& text,
                     double readSeconds);
    const SLanguage& LanguageOf(const std::string& path);
    CParserHost& HostOf(const SLanguage& language, enMode mode);
    std::string PrepareAgain(const SLanguage& language, const std::string& path, const std::string& text,
                             const SParseResult& result);
    void Report(const std::string& path, const SPreparation& preparation, const SParseResult& result);
    void WriteNotes(const std::string& path, const std::vector<SPreparationNote>& notes);
    void ReportFailure(const std::string& path, const SPreparation& preparation, const SParseResult& result);
    void Verify(const std::string& path, const SPreparation& preparation, const std::string& tree,
                CParserHost& host);
    void TellVerified(const std::string& path, const SPreparation& preparation, const std::string& remark);
    void TellTime(const std::string& path, double loadSeconds, double readSeconds, const char* work,
                  double workSeconds, Clock::time_point writing);
    std::string OutputOf(const std::string& path) const;
    void WriteResult(const std::string& path, const std::string& result);
    void WritePrepared(const std::string& path, const std::string& text, const SParseResult& result);
    void WriteTo(const std::string& path, const std::string& result, const TTextSink& sink);
    void Tell(const std::string& path, const std::string& text);
    void Worsen(int code) { m_ExitCode = std::max(m_ExitCode, code); }

    const SCommandLine& m_Line;
    CToolMessages& m_Messages;
    CLanguageChoice m_Languages;
    std::shared_ptr<CTraceFile> m_Trace;
    std::map<std::string, SLanguage> m_Chosen; // by the extension of files
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

CRun::CRun(const SCommandLine& line, CToolMessages& messages)
    : m_Line(line), m_Messages(messages),
      m_Languages(GrammarsBesideProgram(), line.IsPreparing() ? enPurpose::Preparation : enPurpose::Parsing),
      m_Progress(line.files.size(), !line.isQuiet)
{}

void CRun::ListLanguages()
{
    std::map<std::string, std::string> languages;
    for (const SPreparedLanguage& language : PreparedLanguages())
        languages[language.parserName] = "prepared";
    for (const std::string& name : m_Languages.GetGrammars()) {
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

// The extension is all that the choice sees of a file.
const SLanguage& CRun::LanguageOf(const std::string& path)
{
    const std::string extension = std::filesystem::path(path).extension().string();
    auto chosen = m_Chosen.find(extension);
    if (chosen == m_Chosen.end())
        chosen =
            m_Chosen.emplace(extension, m_Languages.Choose(m_Line.language, m_Line.database, path)).first;
    return chosen->second;
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

void CRun::Tell(const std::string& path, const std::string& text)
{
    m_Progress.Clear();
    std::cerr << path << ": " << text << '\n';
}

void CRun::TellVerified(const std::string& path, const SPreparation& preparation, const std::string& remark)
{
    if (!m_Line.isQuiet)
        Tell(ShownName(path), "verified: the tree holds the " + std::to_string(preparation.prepared.size()) +
                                  " bytes of the " + (preparation.pass.empty() ? "text" : "prepared text") +
                                  remark);
}

// Flattening may change texts, line ends above all. Where it has, the raw tree is asked whether the parse is
// right.
void CRun::Verify(const std::string& path, const SPreparation& preparation, const std::string& tree,
                  CParserHost& host)
{
    const std::string_view text = preparation.prepared;
    std::optional<STreeDifference> difference = FindTreeDifference(tree, text);
    if (!difference) {
        TellVerified(path, preparation, "");
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
            TellVerified(path, preparation,
                         " before it is flattened, which changes it from byte " + std::to_string(changedAt) +
                             " on");
            return;
        }
    }
    SMessagePlace found = CSourcePlaces(ShownName(path), preparation).Find(difference->textOffset);
    found.place.sourceLine.clear();
    m_Progress.Clear();
    m_Messages.Write(enSeverity::Error, found.place,
                     std::string("the tree's text differs from the ") +
                         (preparation.pass.empty() ? "source" : "prepared text") + " from byte " +
                         std::to_string(difference->textOffset) + " on (byte " +
                         std::to_string(difference->treeOffset) + " of the " + what + ')' + found.remark);
    Worsen(kToolFindings);
}

// Takes "number<separator>" off the front.
// Returns: the number; 0, with `text` as it was, if there is none.
std::size_t TakeLineNumber(std::string_view& text, std::string_view separator)
{
    std::size_t line = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), line);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error != std::errc() || !text.substr(length).starts_with(separator))
        return 0;
    text.remove_prefix(length + separator.size());
    return line;
}

// The preprocessor's message names the file and the line before what is wrong; where the file is an
// included one, it is left to speak for itself. A parser's message begins with the number of a prepared line.
void CRun::ReportFailure(const std::string& path, const SPreparation& preparation, const SParseResult& result)
{
    SMessagePlace found{SSourcePlace{ShownName(path), 0, 0, {}}, {}, {}};
    std::string_view failure = result.failure;
    if (const std::size_t at = failure.find(path + " : "); at != std::string_view::npos) {
        std::string_view rest = failure.substr(at + path.size() + 3);
        if (const std::size_t line = TakeLineNumber(rest, " : ")) {
            found.place.line = static_cast<int>(line);
            failure = rest;
        }
    } else if (!preparation.pass.empty() && preparation.lines.IsKnown()) {
        if (const std::size_t line = TakeLineNumber(failure, " "))
            found = CSourcePlaces(ShownName(path), preparation).FindLine(line);
    }
    m_Messages.Write(enSeverity::Error, found.place, std::string(failure) + found.remark);
}

void CRun::WriteNotes(const std::string& path, const std::vector<SPreparationNote>& notes)
{
    for (const SPreparationNote& note : notes)
        m_Messages.Write(
            note.isError ? enSeverity::Error : enSeverity::Warning,
            SSourcePlace{note.file.empty() ? ShownName(path) : note.file, static_cast<int>(note.line), 0, {}},
            note.text);
}

void CRun::Report(const std::string& path, const SPreparation& preparation, const SParseResult& result)
{
    const bool isRefused =
        std::any_of(result.notes.begin(), result.notes.end(), [](const auto& note) { return note.isError; });
    if (!result.findings.empty() || !result.isParsed || isRefused)
        Worsen(kToolFindings);
    if (m_Line.isQuiet)
        return;
    m_Progress.Clear();
    WriteNotes(path, result.notes);
    if (!result.findings.empty()) {
        CSourcePlaces places(ShownName(path), preparation);
        WriteFindings(m_Messages, std::cerr, places, preparation.prepared, result.findings);
    }
    if (!result.isParsed && (result.findings.empty() || !result.isRefusedForTokens))
        ReportFailure(path, preparation, result);
    if (result.isEmpty && !result.pass.empty() && !preparation.source.empty() && result.notes.empty())
        m_Messages.Write(enSeverity::Warning, SSourcePlace{ShownName(path), 0, 0, {}},
                         result.pass + " left nothing of the text");
}

void CRun::WriteTo(const std::string& path, const std::string& result, const TTextSink& sink)
{
    if (m_Selector) {
        SSelectionLook look;
        look.isPretty = m_Line.isPretty;
        if (m_Line.files.size() > 1 && m_Line.outputFolder.empty())
            look.prefix = ShownName(path) + ':';
        if (m_Selector->Write(result, ShownName(path), look, sink))
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
        m_Progress.Clear();
        m_Messages.Write(enSeverity::Error, SSourcePlace{ShownName(path), 0, 0, {}},
                         "not indented: the tree is not well-formed at its byte " +
                             std::to_string(*brokenAt));
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

void CRun::WriteResult(const std::string& path, const std::string& result)
{
    COutputFile file(OutputOf(path));
    WriteTo(path, result, [&](std::string_view piece) { file.Write(piece); });
    file.Close();
}

void CRun::WritePrepared(const std::string& path, const std::string& text, const SParseResult& result)
{
    COutputFile file(OutputOf(path));
    const TTextSink sink = [&](std::string_view piece) { file.Write(piece); };
    if (m_Line.isDiff) {
        SDiffLook look;
        look.width = m_Line.outputFolder.empty() ? StandardOutputWidth() : look.width;
        look.isColored = m_Line.outputFolder.empty() && StandardOutputTakesColors();
        look.sourceTitle = ShownName(path);
        look.preparedTitle = result.pass.empty() ? "unprepared" : "prepared by " + result.pass;
        WriteDiff(text, result.output, result.preparedLines, look, sink);
    } else if (m_Line.isLines) {
        const bool isNamed = m_Line.files.size() > 1 && m_Line.outputFolder.empty();
        WriteLines(result.output, result.preparedLines, isNamed ? ShownName(path) + ':' : "",
                   m_Line.isPrepare, sink);
    } else {
        sink(result.output);
    }
    file.Close();
}

void CRun::TellTime(const std::string& path, double loadSeconds, double readSeconds, const char* work,
                    double workSeconds, Clock::time_point writing)
{
    if (!m_Line.isTime)
        return;
    Tell(ShownName(path), "load " + std::to_string(Milliseconds(loadSeconds)) + " ms, read " +
                              std::to_string(Milliseconds(readSeconds)) + " ms, " + work + ' ' +
                              std::to_string(Milliseconds(workSeconds)) + " ms, write " +
                              std::to_string(Milliseconds(SecondsSince(writing))) + " ms");
}

// A parse keeps its prepared text to itself. Messages and comparisons have it made once more.
std::string CRun::PrepareAgain(const SLanguage& language, const std::string& path, const std::string& text,
                               const SParseResult& result)
{
    if (result.pass.empty())
        return PreparedText(text);
    if (result.findings.empty() && !m_Line.isVerify)
        return {};
    return HostOf(language, enMode::Preparation).Parse(text, path).output;
}

void CRun::ParseFile(const SLanguage& language, const std::string& path, const std::string& text,
                     double readSeconds)
{
    CParserHost& host = HostOf(language, m_Line.isColor ? enMode::Coloring
                                         : m_Line.isRaw ? enMode::RawTree
                                                        : enMode::Tree);
    const SParseResult result = host.Parse(text, path);
    const std::string prepared = PrepareAgain(language, path, text, result);
    const SPreparation preparation{result.pass.empty() ? prepared : text, prepared, result.preparedLines,
                                   result.pass};
    Report(path, preparation, result);
    // A raw tree is of the text as it stands.
    if (m_Line.isVerify && result.isParsed)
        Verify(path, m_Line.isRaw ? SPreparation{text, text, {}, {}} : preparation, result.output, host);
    if (m_Line.isStat) {
        const SStatistics statistics{
            CountStatements(result.output), CountFindings(result.findings, enFinding::SkippedText),
            CountFindings(result.findings, enFinding::UnexpectedToken), text.size(), result.seconds};
        Tell(ShownName(path), statistics.Text());
        m_Sum += statistics;
        ++m_Counted;
    }

    const double loadSeconds = host.TakeLoadSeconds();
    const Clock::time_point writing = Clock::now();
    // A search wants memory of its own.
    if (m_Selector && text.size() > kLongText)
        m_Hosts.clear();
    if (result.isParsed)
        WriteResult(path, result.output);
    TellTime(path, loadSeconds, readSeconds, "parse", result.seconds, writing);
}

void CRun::PrepareFile(const SLanguage& language, const std::string& path, const std::string& text,
                       double readSeconds)
{
    CParserHost& host = HostOf(language, enMode::Preparation);
    const SParseResult result = host.Parse(text, path);
    Report(path, SPreparation{text, result.output, result.preparedLines, result.pass}, result);
    if (m_Line.isLines && !result.output.empty() && !result.preparedLines.IsKnown())
        Worsen(kToolFindings);

    const Clock::time_point writing = Clock::now();
    if (result.isParsed)
        WritePrepared(path, text, result);
    TellTime(path, host.TakeLoadSeconds(), readSeconds, "prepare", result.seconds, writing);
}

void CRun::RunFile(const std::string& path)
{
    const SLanguage& language = LanguageOf(path);
    const Clock::time_point start = Clock::now();
    std::string text = ReadSourceText(path, {m_Line.encoding, m_Line.recordLength});
    // The preparation takes the last character, whatever it is.
    if (language.version.db == UVDB_DB_IBM_CL && !m_Line.isRaw && !text.empty() && text.back() != '\n')
        text += '\n';
    const double readSeconds = SecondsSince(start);
    if (m_Line.IsPreparing())
        PrepareFile(language, path, text, readSeconds);
    else
        ParseFile(language, path, text, readSeconds);
    if (text.size() > kLongText)
        m_Hosts.clear();
}

int CRun::Run()
{
    if (m_Line.isHelp) {
        WriteStandardOutput(HelpText());
        return kToolClean;
    }
    if (m_Line.isVersion) {
        WriteStandardOutput("uvparse " UV_VERSION "\n");
        return kToolClean;
    }
    if (m_Line.isListLanguages) {
        ListLanguages();
        return kToolClean;
    }
    // What the arguments get wrong is told before any work is done.
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
    for (const std::string& path : m_Line.files) {
        m_Progress.Step(ShownName(path));
        try {
            RunFile(path);
        } catch (const CLanguageError& e) {
            m_Progress.Clear();
            m_Messages.Error(ShownName(path) + ": " + e.what());
            Worsen(kToolCouldNotRun);
        } catch (const std::bad_alloc&) {
            // What the text has taken goes with its parser.
            m_Hosts.clear();
            m_Progress.Clear();
            m_Messages.Error(ShownName(path) + ": out of memory");
            Worsen(kToolCouldNotRun);
        } catch (const std::exception& e) {
            m_Progress.Clear();
            m_Messages.Error(e.what());
            Worsen(kToolCouldNotRun);
        }
    }
    m_Progress.Clear();
    if (m_Line.isStat && m_Counted > 1)
        Tell("sum of " + std::to_string(m_Counted) + " texts", m_Sum.Text());
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

} // namespace

int Run(const SCommandLine& line, CToolMessages& messages)
{
    return CRun(line, messages).Run();
}

} // namespace uvparse
