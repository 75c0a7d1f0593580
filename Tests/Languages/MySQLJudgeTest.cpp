// The server that has a say about the language MySQL, and what it says to the language's samples. Without a server the
// tests are skipped.
#include "Tests/Languages/MySQLJudge.h"

#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/MariaDbServer.h"
#include "Tests/Languages/MySQLOwnSyntax.h"
#include "Tests/Languages/MySQLScript.h"
#include "Tools/uvgrammar-score/Language.h"
#include "Tools/uvparse/LanguageChoice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

class MySqlJudgeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!CMariaDbServer::GetMissing().empty())
            GTEST_SKIP() << CMariaDbServer::GetMissing() << " isn't installed";
        m_Server = std::make_unique<CMariaDbServer>();
        m_Judge = std::make_unique<CMySqlJudge>(m_Server->GetSocket());
    }

    SMySqlVerdict Judge(const std::string& statement, const std::string& mode = {})
    {
        return m_Judge->Judge(statement, mode);
    }

    std::unique_ptr<CMariaDbServer> m_Server;
    std::unique_ptr<CMySqlJudge> m_Judge;
};

struct SJudgeCase
{
    const char* statement; // "^" is where it is refused, and isn't in it
    enMySqlVerdict verdict;
};

// clang-format off
constexpr SJudgeCase kJudgeCases[] = {
    {"SELECT 1",                                                              enMySqlVerdict::Taken},
    {"/*! SELECT 1 */",                                                       enMySqlVerdict::Taken},
    {"SELECT 1 FRM ^x y",                                                     enMySqlVerdict::Refused},
    {"SELECT a\n  FROM\n ^WHERE a\n  FROM WHERE",                             enMySqlVerdict::Refused},
    {"SELECT 1 FRM ^x y, 'and much more after it than the server says, in a message which it cuts' AS z, 'you see'",
                                                                              enMySqlVerdict::Refused},
    {"SELECT 1 FROM^",                                                        enMySqlVerdict::Refused},
    {"CREATE TABLE t (a nosuchtype)",                                         enMySqlVerdict::Refused},
    {"SELECT a FROM nosuch -- and that's it",                                 enMySqlVerdict::TakenAsText},
    {"SELECT a FROM nosuch ^)",                                               enMySqlVerdict::Refused},
    // bodies are read whole
    {"CREATE PROCEDURE p() BEGIN DECLARE x INT; SELECT x; END",               enMySqlVerdict::Taken},
    {"CREATE PROCEDURE p() BEGIN DECLARE x INT; SELEC ^1; END",               enMySqlVerdict::Refused},
    {"CREATE TRIGGER t BEFORE INSERT ON nosuch FOR EACH ROW SET NEW.a = ^= 1", enMySqlVerdict::Refused},
    {"CREATE EVENT e ON SCHEDULE EVERY 1 DAY DO BEGIN SELEC ^1; END",         enMySqlVerdict::Refused},
    // what it can't prepare it reads, and runs as little as anything else
    {"PREPARE s FROM 'SELECT 1'",                                             enMySqlVerdict::TakenAsText},
    {"PREPARE s FROM ^SELECT",                                                enMySqlVerdict::Refused},
    {"SHUTDOWN",                                                              enMySqlVerdict::Taken},
    {"KILL 1",                                                                enMySqlVerdict::Taken},
    {"RESET MASTER",                                                          enMySqlVerdict::Taken},
    {"DROP DATABASE uv_scratch",                                              enMySqlVerdict::Taken},
    {"DROP DATABASE uv_scratch",                                              enMySqlVerdict::Taken}, // it is still there
    // names that keep the server from reading on
    {"SET nosuch = 1, @a = 2",                                                enMySqlVerdict::Taken},
    {"EXPLAIN FORMAT = TREE SELECT 1",                                        enMySqlVerdict::Taken},
    {"SET nosuch = 1, @a = = 2",                                              enMySqlVerdict::Refused},
    {"CREATE TABLE t (a TEXT) CHARSET nosuch COLLATE utf8mb4_0900_ai_ci",     enMySqlVerdict::Taken},
    {"CREATE TABLE t (a TEXT COLLATE utf8mb4_0900_ai_ci) ENGINE ^+",          enMySqlVerdict::Refused},
    {"CREATE PROCEDURE p() BEGIN LEAVE nosuch; SELEC 1; END",                 enMySqlVerdict::Stopped},
    // modes
    {"SELECT \"a\" FROM (SELECT 1 AS a) AS t",                                enMySqlVerdict::Taken},
    {"SELECT COUNT (^*) FROM nosuch",                                         enMySqlVerdict::Refused},
    {"SELECT 'it\\'s'",                                                       enMySqlVerdict::Taken},
};
// clang-format on

TEST_F(MySqlJudgeTest, TellsSyntaxFromOtherErrors)
{
    for (const SJudgeCase& c : kJudgeCases) {
        SCOPED_TRACE(c.statement);
        std::string statement = c.statement;
        const std::size_t place = statement.find('^');
        if (place != std::string::npos)
            statement.erase(place, 1);
        const SMySqlVerdict verdict = Judge(statement);
        EXPECT_STREQ(NameOf(verdict.kind), NameOf(c.verdict)) << verdict.message;
        if (place != std::string::npos) {
            EXPECT_EQ(verdict.offset, place) << verdict.message;
        }
    }
    EXPECT_TRUE(Judge("SELECT COUNT (*) FROM nosuch", "IGNORE_SPACE").IsTaken());
    EXPECT_TRUE(Judge("CREATE TABLE \"t\" (a INT)", "ANSI_QUOTES").IsTaken());
}

TEST_F(MySqlJudgeTest, MySqlsOwnSyntaxIsRefusedWhereItIs)
{
    for (const SOwnSyntax& row : MySqlOwnSyntax()) {
        SCOPED_TRACE(row.example);
        const SMySqlVerdict verdict = Judge(row.example);
        EXPECT_STREQ(NameOf(verdict.kind), NameOf(enMySqlVerdict::Refused));
        const char* const found = FindMySqlOwnSyntax(row.example, verdict.offset);
        EXPECT_STREQ(found != nullptr ? found : "", row.name) << verdict.message;
    }
}

// ---- Scripts ----

uvscore::CTextParser& Parser()
{
    static uvscore::CTextParser parser({"MySQL", uvparse::VersionOfParser("MySQL")}, {});
    static bool isMade = false;
    std::ostringstream text;
    CToolMessages messages("tables", text);
    isMade = isMade ||
             uvscore::MakeTables(uvscore::FindLanguageSources(UV_SOURCE_DIR "/Languages/MySQL"), messages);
    EXPECT_TRUE(isMade) << text.str();
    return parser;
}

struct SCutCase
{
    const char* script;
    std::vector<std::string> texts; // blanks around them left out
};

const SCutCase kCutCases[] = {
    {"select 1; select 2\\G select 3 \\g", {"select 1", "select 2", "select 3"}},
    // what a comment runs, whatever its version is
    {"/*!80013 set @a = 1 */;\n/*M!100203 set @b = 2 */ ; /*!999999\\- sandbox */ select '/*!40101 c */';",
     {"/*!      set @a = 1 */", "/*M!       set @b = 2 */",
      "/*!999999\\- sandbox */ select '/*!40101 c */'"}},
    {"select 1; select 2 /*!50000 + 3 */", {"select 1", "select 2 /*!      + 3 */"}},
    // a line that the client leaves out
    {"--no blank\nselect 5\n--1;", {"# no blank\nselect 5\n--1"}},
    {"delimiter //\ncreate procedure p() begin select 1; end; //\ndelimiter ;\nselect 2;",
     {"create procedure p() begin select 1; end", "select 2"}},
    {"use a\nselect 1;", {"select 1"}},
};

std::string Trimmed(const std::string& text)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \n"), text.size());
    return text.substr(begin, text.find_last_not_of(" \n") + 1 - begin);
}

TEST(MySqlScript, IsCutIntoWhatTheServerGets)
{
    for (const SCutCase& c : kCutCases) {
        SCOPED_TRACE(c.script);
        const uvscore::SParsedText parsed = Parser().ParseText(c.script, "script.sql");
        std::vector<std::string> texts;
        for (const SScriptStatement& statement : CutMySqlScript(parsed)) {
            if (statement.IsOfClient())
                continue;
            texts.push_back(Trimmed(statement.text));
            // Alone it is the same statement.
            const uvscore::SParsedText alone =
                Parser().ParseText(statement.AloneText(statement.text), "alone.sql");
            const std::vector<SScriptStatement> again = CutMySqlScript(alone);
            ASSERT_FALSE(again.empty());
            EXPECT_EQ(Trimmed(again.back().text), texts.back());
            EXPECT_EQ(again.back().statement.IsClean(), statement.statement.IsClean());
        }
        EXPECT_EQ(texts, c.texts);
    }
}

TEST_F(MySqlJudgeTest, SamplesAreRight)
{
    std::size_t taken = 0;
    for (const std::string& path : SamplePaths("MySQL")) {
        const uvscore::SParsedText parsed = uvscore::ParseForExperiments(Parser(), path);
        for (const SScriptStatement& statement : CutMySqlScript(parsed)) {
            if (statement.IsOfClient())
                continue;
            const SMySqlVerdict verdict = Judge(statement.text);
            taken += verdict.IsTaken() ? 1U : 0U;
            const bool isMySqlsOwn = statement.text.find("MySQL only\n") != std::string::npos ||
                                     FindMySqlOwnSyntax(statement.text, verdict.offset) != nullptr;
            if (!verdict.IsTaken() && isMySqlsOwn)
                continue;
            EXPECT_TRUE(verdict.IsTaken())
                << path << ": " << verdict.code << ' ' << verdict.message << ": " << statement.text;
        }
    }
    EXPECT_GT(taken, 50U);
}

// ---- The server ----

// A process that can't clean up.
TEST(MariaDbServer, GoesWithItsProcess)
{
    if (!CMariaDbServer::GetMissing().empty())
        GTEST_SKIP() << CMariaDbServer::GetMissing() << " isn't installed";
    int channel[2];
    ASSERT_EQ(pipe(channel), 0);
    const pid_t process = fork();
    if (process == 0) {
        const CMariaDbServer server;
        const ssize_t written = write(channel[1], server.GetFolder().data(), server.GetFolder().size());
        raise(written > 0 ? SIGKILL : SIGABRT);
    }
    close(channel[1]);
    std::string folder(4096, '\0');
    folder.resize(
        static_cast<std::size_t>(std::max<ssize_t>(0, read(channel[0], folder.data(), folder.size()))));
    close(channel[0]);
    int status = 0;
    waitpid(process, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    ASSERT_FALSE(folder.empty());
    // The folder goes after the server.
    const auto begin = std::chrono::steady_clock::now();
    while (std::filesystem::exists(folder) &&
           std::chrono::steady_clock::now() - begin < std::chrono::seconds(60))
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(std::filesystem::exists(folder));
}

} // namespace
