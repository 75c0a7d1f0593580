// preparation_baseline [--repeat N] [--size MB]... [--pass NAME] [--check]: each pass that prepares a source
// text, on 1 MB and 10 MB of its own kind of source and on the sizes that are named, beside `sed -n p` over
// the same text as a file. Each run is a process of its own; the one with the least CPU time counts.
//
// --pass NAME   that pass alone
// --check       the exit code is 1 also if a pass is slower than its bound, or grows by more than a tenth
//               beyond its text; without it, only if a pass or sed fails

#include "Benchmarks/MeasuredProcess.h"
#include "Benchmarks/PreparationSources.h"
#include "Preparation/ESQLPreprocessor.h"
#include "Preparation/Formatters/Asp.h"
#include "Preparation/Formatters/Cobol.h"
#include "Preparation/Formatters/FoxPro.h"
#include "Preparation/Formatters/IbmCl.h"
#include "Preparation/Formatters/IbmRpg.h"
#include "Preparation/Formatters/Jcl.h"
#include "Preparation/Formatters/Pascal.h"
#include "Preparation/Formatters/Progress.h"
#include "Preparation/MacroPreprocessorChecker.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <time.h>
#include <utility>
#include <vector>

extern char** environ;

namespace {

constexpr double kMega = 1e6;
constexpr std::size_t kMostMemoryPerByte = 40; // of source
constexpr double kGrowthBound = 1.1;           // times the growth of the text

// `folder` holds the include files, and would hold the source.
// Returns: the bytes of the prepared text.
using Work = std::size_t (*)(const Uve::U8CString& text, const std::string& folder);

template <bool removesFormatting>
std::size_t CobolFixed(const Uve::U8CString& text, const std::string&)
{
    SCobolOptions options;
    options.format = enCobolFormat::Fixed;
    options.removesFormatting = removesFormatting;
    return FormatCobol(text, options).text.size();
}

std::size_t CobolFree(const Uve::U8CString& text, const std::string&)
{
    SCobolOptions options;
    options.format = enCobolFormat::Free;
    return FormatCobol(text, options).text.size();
}

std::size_t Jcl(const Uve::U8CString& text, const std::string&)
{
    return FormatJcl(text).text.size();
}

std::size_t IbmCl(const Uve::U8CString& text, const std::string&)
{
    return FormatIbmCl(text).text.size();
}

std::size_t FoxPro(const Uve::U8CString& text, const std::string&)
{
    return FormatFoxPro(text).text.size();
}

template <int layout>
std::size_t IbmRpg(const Uve::U8CString& text, const std::string&)
{
    return FormatIbmRpg(text, {layout}).text.size();
}

std::size_t Pascal(const Uve::U8CString& text, const std::string&)
{
    return FormatPascal(text).text.size();
}

std::size_t Progress(const Uve::U8CString& text, const std::string& folder)
{
    SProgressOptions options;
    options.filePath = Uve::U8CString(folder + "/source.p");
    return FormatProgress(text, options).text.size();
}

std::size_t Asp(const Uve::U8CString& text, const std::string& folder)
{
    SAspOptions options;
    options.filePath = Uve::U8CString(folder + "/source.asp");
    const SAspPage page = FormatAsp(text, options);
    return page.messages.empty() ? page.prepared.text.size() : 0;
}

template <int command>
std::size_t MacroProcessor(const Uve::U8CString& text, const std::string& folder)
{
    using namespace MacroPreprocessorChecker;
    DefaultPresetValues presets;
    presets.defines = {"UNIT=4", "WITH_TRACE", "JOIN(a,b)=a##b"};
    Uve::U8CString result;
    Uve::U8CString errors;
    const bool isDone = Checker::PreprocessFile(folder + "/source.c", text, result, Command{command}, presets,
                                                errors, nullptr);
    return isDone && errors.empty() ? result.size() : 0;
}

std::size_t EmbeddedSql(const Uve::U8CString& text, const std::string&)
{
    return RewriteEmbeddedSql(text).text.size();
}

struct SPass
{
    const char* name;
    enSourceKind kind;
    Work work;
    double bound; // MB/s of CPU time
};

// Passes of the same kind stand together: the source is made and sed is run once for them.
// clang-format off
constexpr SPass kPasses[] = {
    {"cobol-fixed",   enSourceKind::CobolFixed,         CobolFixed<false>,                  10},
    {"cobol-removed", enSourceKind::CobolFixed,         CobolFixed<true>,                   10},
    {"cobol-free",    enSourceKind::CobolFree,          CobolFree,                          10},
    {"jcl",           enSourceKind::Jcl,                Jcl,                                10},
    {"cl",            enSourceKind::IbmCl,              IbmCl,                              10},
    {"foxpro",        enSourceKind::FoxPro,             FoxPro,                             10},
    {"rpg-0",         enSourceKind::RpgWithDefinitions, IbmRpg<kRpgLayoutWithDefinitions>,  10},
    {"rpg-1",         enSourceKind::RpgOlder,           IbmRpg<kRpgLayoutOlder>,            10},
    {"pascal",        enSourceKind::Pascal,             Pascal,                             10},
    {"progress",      enSourceKind::Progress,           Progress,                           10},
    {"asp",           enSourceKind::Asp,                Asp,                                10},
    {"macro-0",       enSourceKind::MacroC,             MacroProcessor<0>,                  45},
    {"macro-1",       enSourceKind::MacroC,             MacroProcessor<1>,                  45},
    {"macro-2",       enSourceKind::MacroC,             MacroProcessor<2>,                  45},
    {"embedded-sql",  enSourceKind::EmbeddedSql,        EmbeddedSql,                        30},
};
// clang-format on

class CTemporaryFolder
{
public:
    CTemporaryFolder()
        : m_Path((std::filesystem::temp_directory_path() / "preparation_baseline.XXXXXX").string())
    {
        if (!mkdtemp(m_Path.data()))
            throw std::runtime_error("can't make a folder " + m_Path);
    }

    ~CTemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_Path, ignored);
    }

    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    const std::string& Path() const { return m_Path; }

private:
    std::string m_Path;
};

struct SCost
{
    double cpu = 0; // seconds
    double wall = 0;
    std::size_t output = 0;
};

// Leaves nothing of the source in the caches, as if it had just come from elsewhere. A small one would stay
// there and a large one wouldn't.
void CoolCaches()
{
    std::vector<char> other(std::size_t{64} << 20, 'x');
    for (std::size_t at = 0; at < other.size(); at += 64)
        static_cast<volatile char&>(other[at]) = 'y';
}

// Each run has a process of its own. A second run in the same one would find the memory of the first, and
// that only if the text is small, so that the growth would be wrong.
bool MeasurePass(const SPass& pass, const Uve::U8CString& text, const std::string& folder, int repeat,
                 SCost& best)
{
    for (int run = 0; run < repeat; ++run) {
        SCost cost;
        WarmMemory(text.size() * kMostMemoryPerByte);
        const bool isDone = RunInProcess(cost, [&] {
            SCost made;
            CoolCaches();
            const auto start = std::chrono::steady_clock::now();
            const double cpuStart = CpuSeconds();
            made.output = pass.work(text, folder);
            made.cpu = CpuSeconds() - cpuStart;
            made.wall = Seconds(start);
            return made;
        });
        if (!isDone || cost.output == 0)
            return false;
        if (run == 0 || cost.cpu < best.cpu)
            best = cost;
    }
    return true;
}

double SecondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// `sed -n p` over the file, its output thrown away. The start of the process is part of it.
bool MeasureSed(const std::string& path, int repeat, SCost& best)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::string words[] = {"sed", "-n", "p", path};
    char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
    bool isDone = true;
    for (int run = 0; run < repeat && isDone; ++run) {
        const auto start = std::chrono::steady_clock::now();
        pid_t child = 0;
        int status = 0;
        rusage usage{};
        isDone = posix_spawnp(&child, "sed", &actions, nullptr, arguments, environ) == 0 &&
                 wait4(child, &status, 0, &usage) == child && status == 0;
        const SCost made{SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime), Seconds(start), 0};
        if (run == 0 || made.cpu < best.cpu)
            best = made;
    }
    posix_spawn_file_actions_destroy(&actions);
    return isDone;
}

struct SArguments
{
    int repeat = 10;
    std::set<double> sizes = {1, 10}; // MB
    const char* pass = nullptr;
    bool isChecking = false;
};

bool ReadArguments(int argc, char** argv, SArguments& arguments)
{
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--repeat") == 0 && hasValue) {
            arguments.repeat = std::atoi(argv[++i]);
            if (arguments.repeat < 1)
                return false;
        } else if (std::strcmp(argv[i], "--size") == 0 && hasValue) {
            const double size = std::atof(argv[++i]);
            if (!(size >= 1 && size <= 1000))
                return false;
            arguments.sizes.insert(size);
        } else if (std::strcmp(argv[i], "--pass") == 0 && hasValue) {
            arguments.pass = argv[++i];
            if (std::ranges::none_of(kPasses,
                                     [&](const SPass& pass) { return std::strcmp(pass.name, argv[i]) == 0; }))
                return false;
        } else if (std::strcmp(argv[i], "--check") == 0) {
            arguments.isChecking = true;
        } else {
            return false;
        }
    }
    return true;
}

// Returns: false if a pass or sed failed. `isInBounds` becomes false if a pass misses a bound.
bool MeasureAll(const SArguments& arguments, const std::string& folder, bool& isInBounds)
{
    const std::string path = folder + "/source";
    bool isAllDone = true;
    std::map<const SPass*, SCost> smallest; // at the first size
    for (const double size : arguments.sizes) {
        std::printf("\n%g MB\n%-14s %9s %9s %9s %9s %9s %9s %9s\n", size, "", "CPU s", "wall s", "MB/s",
                    "growth", "output MB", "sed s", "sed/pass");
        const SPass* before = nullptr;
        Uve::U8CString text;
        SCost sed;
        for (const SPass& pass : kPasses) {
            if (arguments.pass && std::strcmp(arguments.pass, pass.name) != 0)
                continue;
            if (!before || before->kind != pass.kind) {
                text = MakeSource(pass.kind, static_cast<std::size_t>(size * kMega));
                if (!(std::ofstream(path, std::ios::binary) << text << std::flush))
                    throw std::runtime_error("can't write " + path);
                if (!MeasureSed(path, arguments.repeat, sed)) {
                    std::printf("sed failed\n");
                    return false;
                }
            }
            before = &pass;
            SCost cost;
            if (!MeasurePass(pass, text, folder, arguments.repeat, cost)) {
                std::printf("%-14s failed\n", pass.name);
                isAllDone = false;
                continue;
            }
            const auto bytes = static_cast<double>(text.size());
            const double growth = cost.cpu / smallest.try_emplace(&pass, cost).first->second.cpu;
            const double speed = bytes / cost.cpu / kMega;
            const bool isSlow = speed < pass.bound;
            const bool isSteep = growth > kGrowthBound * size / *arguments.sizes.begin();
            isInBounds = isInBounds && !isSlow && !isSteep;
            std::printf("%-14s %9.4f %9.4f %9.1f %9.1f %9.2f %9.4f %9.2f%s%s\n", pass.name, cost.cpu,
                        cost.wall, speed, growth, static_cast<double>(cost.output) / kMega, sed.cpu,
                        sed.cpu / cost.cpu, isSlow ? "  slow" : "", isSteep ? "  grows" : "");
            std::fflush(stdout);
        }
    }
    return isAllDone;
}

} // namespace

int main(int argc, char** argv)
{
    SArguments arguments;
    if (!ReadArguments(argc, argv, arguments)) {
        std::fprintf(
            stderr,
            "usage: preparation_baseline [--repeat N] [--size MB]... [--pass NAME] [--check]\npasses:");
        for (const SPass& pass : kPasses)
            std::fprintf(stderr, " %s", pass.name);
        std::fprintf(stderr, "\n");
        return 2;
    }
    try {
        const CTemporaryFolder folder;
        WriteIncludeFiles(folder.Path());
        bool isInBounds = true;
        const bool isAllDone = MeasureAll(arguments, folder.Path(), isInBounds);
        return isAllDone && (isInBounds || !arguments.isChecking) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "preparation_baseline: %s\n", error.what());
        return 1;
    }
}
