#include "UVEnvironment/LogSystem.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

// Every call as "operation:text", in order.
class CRecordingLog : public ILog
{
public:
    void WriteLog(const char* text) override { m_Lines.push_back(std::string("log:") + text); }
    void WriteLogScreen(const char* text) override { m_Lines.push_back(std::string("screen:") + text); }
    void WriteTrace(const char* text) override { m_Lines.push_back(std::string("trace:") + text); }
    void WriteLogFile(const char* text) override { m_Lines.push_back(std::string("file:") + text); }
    void SetLog(bool enable) override { m_Lines.push_back(enable ? "on" : "off"); }
    void WriteProfile(const char* text) override { m_Lines.push_back(std::string("profile:") + text); }
    unsigned char GetTraceLevel() override { return m_Level; }

    Lines m_Lines;
    unsigned char m_Level = 3;
};

class LogSystem : public testing::Test
{
protected:
    void SetUp() override { Flush(); }
    void TearDown() override { Flush(); }

    // The log and the early texts belong to the process: leaves none of either.
    static void Flush()
    {
        CLogWrapper::Init(std::make_shared<CRecordingLog>());
        CLogWrapper::WriteLog("");
        CLogWrapper::WriteLogScreen("");
        CLogWrapper::WriteTrace("");
        CLogWrapper::WriteLogFile("");
        CLogWrapper::WriteProfile("");
        CLogWrapper::Init(nullptr);
    }

    const Lines& Attach()
    {
        CLogWrapper::Init(m_Log);
        return m_Log->m_Lines;
    }

    std::shared_ptr<CRecordingLog> m_Log = std::make_shared<CRecordingLog>();
};

TEST_F(LogSystem, EachFormKeepsItsOwnEarlyText)
{
    struct SForm
    {
        const char* name;
        void (*write)(const char*);
    };
    const SForm forms[] = {
        {"log", CLogWrapper::WriteLog},
        {"screen", CLogWrapper::WriteLogScreen},
        {"trace", CLogWrapper::WriteTrace},
        {"file", CLogWrapper::WriteLogFile},
        {"profile", [](const char* text) { CLogWrapper::WriteProfile(std::string(text)); }},
    };
    Lines expected;
    for (const SForm& form : forms)
        for (const std::string part : {"early ", form.name})
            form.write(part.c_str());
    const Lines& lines = Attach();
    EXPECT_THAT(lines, IsEmpty());
    for (const SForm& form : forms) {
        form.write("late");
        expected.push_back(std::string(form.name) + ":early " + form.name);
        expected.push_back(std::string(form.name) + ":late");
    }
    EXPECT_EQ(lines, expected);
}

TEST_F(LogSystem, FormattedTextWithoutLogIsDropped)
{
    CLogWrapper::WriteTraceF("%s", "lost");
    CLogWrapper::WriteTraceF(tmtError, "f", 1, 2, "%s", "lost");
    CLogWrapper::WriteLogF("%s", "lost");
    CLogWrapper::WriteLogFileF("%s", "lost");
    CLogWrapper::WriteTraceWithLevel(0, "lost");
    CLogWrapper::SetLog(true);
    const Lines& lines = Attach();
    CLogWrapper::WriteTrace("1");
    CLogWrapper::WriteLog("2");
    CLogWrapper::WriteLogFile("3");
    EXPECT_THAT(lines, ElementsAre("trace:1", "log:2", "file:3"));
}

TEST_F(LogSystem, LevelLetsThroughWhatIsNotAboveIt)
{
    const Lines& lines = Attach();
    CLogWrapper::WriteTraceWithLevel(3, "same");
    CLogWrapper::WriteTraceWithLevel(4, "above");
    CLogWrapper::WriteTraceFWithLevel(2, "%d", 2);
    CLogWrapper::WriteTraceFWithLevel(255, "%d", 255);
    EXPECT_THAT(lines, ElementsAre("trace:same", "trace:2"));
}

TEST_F(LogSystem, LaterLogReplacesTheFirst)
{
    const Lines& lines = Attach();
    const auto second = std::make_shared<CRecordingLog>();
    CLogWrapper::Init(second);
    CLogWrapper::WriteLogScreenF("%s", "x");
    CLogWrapper::SetLog(false);
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_THAT(second->m_Lines, ElementsAre("screen:x", "off"));
}

TEST_F(LogSystem, FormattedTextOfAnyLengthArrivesWhole)
{
    const Lines& lines = Attach();
    for (const std::size_t length : {0u, 1u, 1022u, 1023u, 1024u, 1025u, 70000u}) {
        const std::string text(length, 'x');
        CLogWrapper::WriteTraceF("%s", text.c_str());
        EXPECT_EQ(lines.back(), "trace:" + text);
        EXPECT_EQ(CLogWrapper::GetLogFormatError("%s", text.c_str()), text);
    }
}

TEST_F(LogSystem, MessagesStandAtTheirPlace)
{
    struct SMessageCase
    {
        int type;
        const char* file;
        int line, code;
        const char* message;
    };
    // clang-format off
    const SMessageCase cases[] = {
        {0, "f.c", 7,    42, "\n\tf.c(7) : text"},
        {0, "f.c", 0,    42, "\n\tf.c : text"},
        {1, "f.c", 7,    42, "\nf.c(7) : text"},
        {1, "f.c", 0,    42, "\nf.c : text"},
        {2, "f.c", 7,    42, "\nf.c(7) : warning W0042: text"},
        {2, "f.c", 0, 12345, "\nf.c : warning W12345: text"},
        {3, "f.c", 7,    42, "\nf.c(7) : error E0042: text"},
        {3, "f.c", 0,     0, "\nf.c : error E0000: text"},
        {4, "f.c", 7,    42, ""},
        {3, "",    7,    42, "\ntext"},
        {4, nullptr, 7,  42, "\ntext"},
    };
    // clang-format on
    const Lines& lines = Attach();
    for (const SMessageCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.type << ' ' << c.line);
        const auto type = static_cast<enTraceMessageType>(c.type);
        EXPECT_EQ(CLogWrapper::FormMessageString(type, c.file, c.line, c.code, "text"), c.message);
        CLogWrapper::WriteLogF(type, c.file, c.line, c.code, "%s%s", "te", "xt");
        EXPECT_EQ(lines.back(), std::string("log:") + c.message);
    }
}

class CRecordingProfiler : public IProfiler
{
public:
    void EnterFunction(unsigned long id) override { m_Calls.push_back("enter " + std::to_string(id)); }
    void LeaveFunction(unsigned long id) override { m_Calls.push_back("leave " + std::to_string(id)); }
    std::string GetCallStack(unsigned long id) override { return "stack " + std::to_string(id); }
    void AddMemBlock(unsigned long, unsigned long, const char*, unsigned long) override {}
    void RemoveMemBlock(unsigned long) override {}
    void SetMemPoint() override {}
    void MemBlocksStat() override {}
    unsigned long GetNextID(std::string name) override { return name.size(); }
    void SetWatchPoint(std::string) override {}
    unsigned long GetWatchPoint(std::string) override { return 0; }
    unsigned long GetTimePoint(std::string) override { return 0; }
    void SetTimePoint(std::string) override {}

    Lines m_Calls;
};

TEST(Profiler, HelperLeavesOnlyWhatItEntered)
{
    const auto profiler = std::make_shared<CRecordingProfiler>();
    {
        const CProfilerHelper before(1);
        CProfilerWrapper::Init(profiler);
        const CProfilerHelper outer(2);
        const CProfilerHelper inner(3);
        CProfilerWrapper::Init(nullptr);
        EXPECT_EQ(CProfilerWrapper::GetNextID("abc"), 0u);
    }
    EXPECT_THAT(profiler->m_Calls, ElementsAre("enter 2", "enter 3", "leave 3", "leave 2"));
}

} // namespace
