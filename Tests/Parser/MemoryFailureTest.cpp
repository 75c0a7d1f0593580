// What a host sees when memory runs out: each step of its way is run again and again, with the first
// allocation failing, then the second, and so on. Every run is a process of its own. Afterwards, with memory
// there again, the same object has to parse as if nothing had happened.
//
// Two ends are apart: U8CString ends the process without memory, by contract, and so may the XML libraries,
// which take the text of a coloring map.
#include "Tests/Parser/ParserFixture.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

long g_untilFailure = 0; // 0: none fails
bool g_failsOn = false;  // once it has begun
bool g_hasFailed = false;

bool IsToFail()
{
    if (g_untilFailure == 0 || --g_untilFailure > 0)
        return false;
    g_untilFailure = g_failsOn ? 1 : 0;
    g_hasFailed = true;
    errno = ENOMEM;
    return true;
}

} // namespace

extern "C" {

// NOLINTBEGIN: they take the place of the C library's own.
void* malloc(std::size_t size)
{
    return IsToFail() ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size)
{
    return IsToFail() ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size)
{
    return IsToFail() ? nullptr : __libc_realloc(block, size);
}
// NOLINTEND

} // extern "C"

namespace {

// How a run ends. Everything else is a fault.
enum enEnd : int
{
    kGood = 0,
    kNothingFailed = 40,
    kEndedByString = 41,
    kEndedByXmlLibrary = 42,
    kWrongAfterwards = 43
};

// Whose code called for the end: the nearest of those that may.
int ReasonForEnd()
{
    void* frames[128];
    const int count = backtrace(frames, static_cast<int>(std::size(frames)));
    for (int i = 0; i < count; ++i) {
        Dl_info info;
        if (dladdr(frames[i], &info) == 0)
            continue;
        const std::string_view library = info.dli_fname ? info.dli_fname : "";
        if (library.find("libxml2") != library.npos || library.find("libxslt") != library.npos)
            return kEndedByXmlLibrary;
        const std::string_view symbol = info.dli_sname ? info.dli_sname : "";
        if (symbol.find("3Uve9U8CString") != symbol.npos)
            return kEndedByString;
    }
    return 0;
}

[[noreturn]] void EndByTerminate()
{
    g_untilFailure = 0;
    const int reason = ReasonForEnd();
    if (reason == 0)
        std::abort();
    _exit(reason);
}

void EndBySignal(int number)
{
    g_untilFailure = 0;
    if (ReasonForEnd() == kEndedByXmlLibrary)
        _exit(kEndedByXmlLibrary);
    std::signal(number, SIG_DFL);
    std::raise(number);
}

struct SRuns
{
    long runs = 0;
    long endedByString = 0;
};

class MemoryFailure : public ParserTest
{
protected:
    // Runs `step` with the first allocation failing, then the second, until it needs no more of them; first
    // that one alone, then all that come after it too. `check` says whether all is well afterwards. Both run
    // in processes that know what was made before.
    template <class Step, class Check>
    SRuns FailEach(Step step, Check check, long most = 20000)
    {
        ReasonForEnd(); // makes the loader's own allocations now
        SRuns result;
        for (const bool failsOn : {false, true}) {
            SCOPED_TRACE(failsOn ? "and all after it" : "alone");
            g_failsOn = failsOn;
            FailEach(step, check, most, result);
        }
        RecordProperty("runs", std::to_string(result.runs));
        RecordProperty("endedByString", std::to_string(result.endedByString));
        return result;
    }

private:
    template <class Step, class Check>
    void FailEach(Step step, Check check, long most, SRuns& result)
    {
        for (long n = 1; n <= most; ++n) {
            const pid_t child = fork();
            if (child == 0)
                RunChild(n, step, check);
            int status = 0;
            waitpid(child, &status, 0);
            if (WIFEXITED(status) && WEXITSTATUS(status) == kNothingFailed)
                return;
            ++result.runs;
            const int end = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            result.endedByString += end == kEndedByString;
            EXPECT_TRUE(end == kGood || end == kEndedByString || end == kEndedByXmlLibrary)
                << "allocation " << n << ": "
                << (WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : std::to_string(end).c_str());
        }
    }

protected:
    // Parses as a host does that knows of no trouble.
    bool ParsesWell() { return Parse(kText) == UVDB_OK && TextOfTree(Tree()) == kText; }
    bool ParsesWellAfterInit() { return m_Parser.Init("") == UVDB_OK && ParsesWell(); }

    static constexpr char kText[] = "print 'a<b';\nuse b; -- c\n";

private:
    template <class Step, class Check>
    [[noreturn]] static void RunChild(long n, Step step, Check check)
    {
        alarm(60);
        std::set_terminate(EndByTerminate);
        std::signal(SIGSEGV, EndBySignal);
        std::signal(SIGABRT, EndBySignal);
        g_untilFailure = n;
        step();
        g_untilFailure = 0;
        if (!g_hasFailed)
            _exit(kNothingFailed);
        _exit(check() ? kGood : kWrongAfterwards);
    }
};

// All or nothing: what fails leaves the earlier grammar at work.
TEST_F(MemoryFailure, OfLoadLeavesTheEarlierGrammar)
{
    Start();
    bool isLoaded = false;
    const auto load = [&] {
        try {
            isLoaded = m_Parser.Load("Tiny") == UVDB_OK;
        } catch (...) {
        }
    };
    const SRuns runs = FailEach(load, [&] {
        if (!isLoaded)
            return ParsesWell();
        return m_Parser.Load(kFixtureGrammar) == UVDB_OK && ParsesWellAfterInit();
    });
    EXPECT_GT(runs.runs, 300);
    EXPECT_LT(runs.endedByString, runs.runs / 10);
}

TEST_F(MemoryFailure, OfInitLeavesAnObjectThatParsesOrSaysThatItCant)
{
    for (const char* mode : {"", "-cl"}) {
        SCOPED_TRACE(mode);
        Load();
        ASSERT_EQ(m_Parser.set_DatabaseInfo(m_Info), UVDB_OK);
        const SRuns runs = FailEach([&] { m_Parser.Init(mode); },
                                    [&] {
                                        Parse(kText);
                                        return ParsesWellAfterInit();
                                    });
        EXPECT_GT(runs.runs, 10);
    }
}

TEST_F(MemoryFailure, OfATextLeavesAnObjectThatParsesTheNext)
{
    SetOption("REPORT_UNEXPECTED_TOKENS", "1");
    Start();
    for (const char* text : {kText, "print 1 1; use 'x';\nprint 2;"}) {
        SCOPED_TRACE(text);
        int result = UVDB_ERROR;
        const auto parse = [&] {
            if (m_Parser.set_Query(text) != UVDB_OK)
                return;
            result = m_Parser.Parse(false);
            Tree();
            LastDescription();
        };
        const std::string wanted = Parse(text) == UVDB_OK ? TextOfTree(Tree()) : "";
        const SRuns runs = FailEach(
            parse, [&] { return (result != UVDB_OK || TextOfTree(Tree()) == wanted) && ParsesWell(); });
        EXPECT_GT(runs.runs, 30);
    }
}

// A coloring that worked says so by its message, since its map is no tree; one that failed never says it.
TEST_F(MemoryFailure, OfAColoringIsToldFromOneThatWorked)
{
    Start("-cl");
    Parse(kText);
    const std::string wanted = m_Parser.GetParsedXml();
    ASSERT_EQ(LastDescription(), "can't transform tree to serial");
    bool isAnswered = false;
    const auto color = [&] {
        isAnswered = m_Parser.set_Query(kText) == UVDB_OK && m_Parser.Parse(false) == UVDB_ERROR;
    };
    constexpr long kScan = 150; // what comes later is the business of the XML libraries
    FailEach(
        color,
        [&] {
            const bool hasWorked = isAnswered && LastDescription() == "can't transform tree to serial";
            return (!hasWorked || m_Parser.GetParsedXml() == wanted) && ParsesWellAfterInit();
        },
        kScan);
}

} // namespace
