// Parser objects on several threads, one for each. The thread sanitizer watches what they share: the log, the
// stylesheets, what is made at its first use.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/ILog.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/UVParser.h"
#include "UVEnvironment/LogSystem.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

// The regular expressions' library keeps blocks of memory in a cache of its own, which the sanitizer can't
// look into.
extern "C" const char* __tsan_default_suppressions()
{
    return "race:boost::re_detail\n";
}

namespace {

constexpr int kThreads = 4;

// Counts what it is told. Traces come one at a time.
class CCountingLog : public ILog
{
public:
    void WriteLog(const char*) override {}
    void WriteLogScreen(const char*) override {}
    void WriteTrace(const char* text) override
    {
        ++m_Traces;
        m_LastTrace = text;
    }
    void WriteLogFile(const char*) override {}
    void SetLog(bool) override {}
    void WriteProfile(const char*) override {}
    unsigned char GetTraceLevel() override { return 255; }

    long m_Traces = 0;
    std::string m_LastTrace;
};

// What a host gets for a text, in one string.
std::string Outcome(IUVDBSQLParser& parser, const char* text)
{
    parser.set_Query(text);
    std::string outcome = std::to_string(parser.Parse(false));
    Uve::U8CString tree;
    parser.get_SQLTree(tree);
    outcome += tree;
    std::shared_ptr<IUVDBErrorInfo> error;
    parser.get_LastError(error);
    char description[1000] = "";
    std::size_t length = 0;
    if (error)
        error->get_Description(description, sizeof description, &length);
    return outcome + description;
}

std::shared_ptr<CUVDBDatabaseInfo> MakeInfo(std::uint64_t kind,
                                            const std::vector<const char*>& optionsThatAreSet)
{
    DB_VERSION_INFO version;
    version.db = kind;
    const auto info = UVDBMakeObject<CUVDBDatabaseInfo>(version);
    for (const char* option : optionsThatAreSet)
        CUVDBOptionWrapper::SetParam(info, option, Uve::U8CString("1"));
    return info;
}

// All that one thread does: its own parser, infos, object and texts, in the host's calling order.
std::vector<std::string> Work(const std::shared_ptr<ILog>& log)
{
    std::vector<std::string> outcomes;
    CUVDBSQLParser parser;
    parser.set_Log(log);
    for (const std::vector<const char*>& options :
         {std::vector{"REPORT_UNEXPECTED_TOKENS", "REPORT_PREPARED_LINES"}, {"TREE2SERIAL_STYLESHEET"}}) {
        const auto info = MakeInfo(UVDB_DB_COMMON, options);
        CUVDBOptionWrapper::SetParam(info, "OPTION_VARYING_PARSING", Uve::U8CString("YES"));
        std::shared_ptr<IUVDBObjectInfo> object;
        info->create_new_object(object, 0);
        CUVDBOptionWrapper::SetParam(object, "FilePath", Uve::U8CString("a.sql"));
        parser.Load("Common");
        parser.set_DatabaseInfo(info);
        parser.set_ConvertingObject(object);
        for (const char* mode : {"", "-cl"}) {
            parser.Init(mode);
            for (const char* text : {"print 'a<b'; use \"q\";\n-- é\n", "print 1 1;", "print \"x\";"})
                outcomes.push_back(Outcome(parser, text));
        }
        Uve::U8CString tokens;
        CUVDBOptionWrapper::GetParam(info, "UNEXPECTED_TOKENS", tokens);
        outcomes.push_back(tokens);
    }
    // Preparation needs no grammar.
    for (const std::uint64_t kind : {UVDB_DB_COBOL, UVDB_DB_IBM_RPG, UVDB_DB_CPP}) {
        parser.set_DatabaseInfo(MakeInfo(kind, {"PREPARE_ONLY", "COBOLFORMAT"}));
        parser.Init("");
        outcomes.push_back(Outcome(parser, "#define N(x) x + 1\n       MOVE N(A) TO B.\n      * c\n"));
    }
    return outcomes;
}

TEST(ParserThreads, EachWithItsOwnParserGetsWhatItWouldGetAlone)
{
    const auto log = std::make_shared<CCountingLog>();
    std::vector<std::vector<std::string>> outcomes(kThreads);
    std::vector<std::thread> threads;
    // Nothing has been used before: what is made at its first use is made now.
    for (auto& mine : outcomes)
        threads.emplace_back([&mine, log] { mine = Work(log); });
    for (std::thread& thread : threads)
        thread.join();
    const std::vector<std::string> alone = Work(log);
    EXPECT_NE(alone.front().find("<TPRINT"), std::string::npos) << alone.front();
    for (const auto& mine : outcomes)
        EXPECT_EQ(mine, alone);
    EXPECT_GT(log->m_Traces, 0);
}

// A host may give each parser a log of its own; the last one counts for all.
TEST(ParserThreads, LogsAreReplacedWhileOthersWrite)
{
    std::atomic<bool> isOver = false;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&isOver] {
            CUVDBSQLParser parser;
            while (!isOver)
                parser.set_Log(std::make_shared<CCountingLog>());
        });
    for (int i = 0; i < 2000; ++i) {
        CLogWrapper::WriteTraceF("%d", i);
        CLogWrapper::WriteLog("text");
        CLogWrapper::IsTraceLevelWanted(1);
    }
    isOver = true;
    for (std::thread& thread : threads)
        thread.join();
    CLogWrapper::Init(nullptr);
}

} // namespace
