#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/TreeText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {

struct SRunResult
{
    int code = -1;
    std::string out;
    std::string err;
};

// The built program in a folder of its own, run by the shell as users run it.
class UvparseProgram : public testing::Test
{
protected:
    void Put(const std::string& name, const std::string& content)
    {
        fs::create_directories((m_Folder / name).parent_path());
        std::ofstream(m_Folder / name, std::ios::binary) << content;
    }

    std::string Get(const std::string& name) const { return ReadWholeFile((m_Folder / name).string()); }
    bool Has(const std::string& name) const { return fs::exists(m_Folder / name); }

    // `arguments` is shell text; standard input is the file "in" if there is one.
    SRunResult Run(const std::string& arguments) const
    {
        return RunProgram(UV_BIN_DIR "/uvparse", arguments);
    }

    SRunResult RunProgram(const std::string& program, const std::string& arguments) const
    {
        const std::string command = "cd '" + m_Folder.string() + "' && '" + program +
                                    "' >out.txt 2>err.txt <" + (Has("in") ? "in" : "/dev/null") + ' ' +
                                    arguments;
        SRunResult result;
        const int status = std::system(command.c_str());
        result.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        result.out = Get("out.txt");
        result.err = Get("err.txt");
        return result;
    }

    // In the build folder, so that programs can be linked into it.
    CTemporaryFolder m_Owner{UV_BIN_DIR "/../uvparse-test-"};
    fs::path m_Folder = m_Owner.Path();
};

const char kScript[] = "-- two of them\nselect 'a<b' as x;\n\nselect \xC3\xA9, 2 from t where a > 1;\n";

TEST_F(UvparseProgram, TreeOfEveryByteGoesToStandardOutput)
{
    Put("a.sql", kScript);
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify a.sql "s + mode);
        EXPECT_EQ(run.code, 0) << run.err;
        ASSERT_FALSE(run.out.empty());
        EXPECT_EQ(run.out.back(), '\n');
        EXPECT_NE(run.out[run.out.size() - 2], '\n');
        EXPECT_FALSE(uvparse::FindTreeDifference(run.out, kScript + "\n"s));
        EXPECT_EQ(uvparse::CountStatements(run.out), 2u);
        EXPECT_EQ(run.err, "a.sql: verified: the tree holds the " + std::to_string(sizeof(kScript) - 1) +
                               " bytes of the text\n");
    }
}

TEST_F(UvparseProgram, StandardInputIsAFileLikeAnyOther)
{
    Put("a.sql", kScript);
    Put("in", kScript);
    const SRunResult file = Run("a.sql");
    const SRunResult input = Run("--db postgresql -");
    EXPECT_EQ(input.code, 0) << input.err;
    EXPECT_EQ(input.out, file.out);
    EXPECT_EQ(Run("-").code, 2); // nothing tells its language
}

TEST_F(UvparseProgram, UnexpectedTokensAreShownInTheirPlace)
{
    Put("a.sql", "select 1;\nselect '\xC3\xA9\xC3\xA9', from from t;\nselect 2;\n");
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify --stat a.sql "s + mode);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.err.find("a.sql:2:14: error: unexpected token 'from'\n"
                               "    select '\xC3\xA9\xC3\xA9', from from t;\n"
                               "                 ^\n"),
                  0u)
            << run.err;
        EXPECT_NE(run.err.find("verified"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("3 statements, 1 unexpected tokens, 48 bytes, "), std::string::npos)
            << run.err;
        EXPECT_NE(run.out.find(">2</"), std::string::npos); // the statement behind it is there
    }
    EXPECT_EQ(Run("--quiet a.sql").err, "");
}

TEST_F(UvparseProgram, TextsDoNotInfluenceEachOther)
{
    Put("a.sql", kScript);
    Put("bad.sql", "select from from;\n");
    Put("b.sql", "select 1, 2 as b;");
    for (const std::string mode : {"", "--raw "}) {
        SCOPED_TRACE(mode);
        const std::string alone =
            Run(mode + "a.sql").out + Run(mode + "bad.sql").out + Run(mode + "b.sql").out;
        const SRunResult together = Run(mode + "a.sql bad.sql b.sql");
        EXPECT_EQ(together.code, 1);
        EXPECT_EQ(together.out, alone);
    }
}

TEST_F(UvparseProgram, OneBadInputDoesNotStopTheOthers)
{
    Put("good.sql", "select 1;\n");
    Put("latin.sql", "select 'caf\xE9';\n");
    Put("nul.sql", "select 1;\0select 2;"s);
    fs::create_directory(m_Folder / "folder.sql");
    const std::string good = Run("good.sql").out;
    const SRunResult run = Run("missing.sql latin.sql nul.sql folder.sql none.xyz good.sql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, good);
    for (const char* part : {"missing.sql: ", "latin.sql: not valid UTF-8: byte 0xE9 at byte offset 11",
                             "nul.sql: NUL byte", "offset 9\n", "folder.sql: ", "none.xyz: ", "PostgreSQL"})
        EXPECT_NE(run.err.find(part), std::string::npos) << part << " in\n" << run.err;
}

TEST_F(UvparseProgram, ByteOrderMarksAreUnderstood)
{
    Put("plain.sql", "select '\xC3\xA9';\n");
    Put("utf8.sql", "\xEF\xBB\xBFselect '\xC3\xA9';\n");
    Put("utf16.sql", "\xFF\xFEs\0e\0l\0e\0c\0t\0 \0'\0\xE9\0'\0;\0\n\0"s);
    const SRunResult plain = Run("plain.sql");
    EXPECT_EQ(plain.code, 0);
    EXPECT_EQ(Run("utf8.sql").out, plain.out);
    EXPECT_EQ(Run("utf16.sql").out, plain.out);
}

TEST_F(UvparseProgram, OutputFolderTakesOneFilePerInput)
{
    Put("x/a.sql", kScript);
    Put("y/a.sql", "select 1;\n");
    Put("y/b.sql", "select 2;\n");
    const std::string tree = Run("x/a.sql").out;
    const SRunResult run = Run("--output deep/er x/a.sql y/b.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Get("deep/er/a.sql.xml"), tree);
    EXPECT_TRUE(Has("deep/er/b.sql.xml"));

    const SRunResult clash = Run("--output other x/a.sql y/a.sql");
    EXPECT_EQ(clash.code, 2);
    EXPECT_NE(clash.err.find("'x/a.sql' and 'y/a.sql' would both be written"), std::string::npos)
        << clash.err;
    EXPECT_FALSE(Has("other"));
}

TEST_F(UvparseProgram, LostWritesAreNeverASuccess)
{
    Put("a.sql", kScript);
    Put("plain", "");
    EXPECT_EQ(Run("a.sql >/dev/full").code, 2);
    EXPECT_EQ(Run("--help >/dev/full").code, 2);
    EXPECT_EQ(Run("--list-languages >/dev/full").code, 2);
    EXPECT_EQ(Run("--trace /dev/full a.sql").code, 2);
    EXPECT_EQ(Run("--trace missing/trace a.sql").code, 2);
    EXPECT_EQ(Run("--output plain a.sql").code, 2);
    EXPECT_EQ(Run("a.sql >&-").code, 2);
}

TEST_F(UvparseProgram, ColorPrintsRangesOfBytes)
{
    Put("a.sql", "select \xC3\xA9 -- x\n from t");
    const SRunResult run = Run("--color a.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    // color, first and last byte: keyword, identifier, comment, keyword, identifier
    EXPECT_EQ(run.out, "1 0 5\n2 7 8\n6 10 13\n1 16 19\n2 21 21\n");
}

TEST_F(UvparseProgram, TraceHoldsWhatTheLibrarySays)
{
    Put("a.sql", kScript);
    EXPECT_EQ(Run("--trace trace.txt a.sql").code, 0);
    const std::string trace = Get("trace.txt");
    EXPECT_NE(trace.find("\nUVParserPostgreSQL : Creation...OK"), std::string::npos) << trace;
    EXPECT_NE(trace.find("\nParsing..."), std::string::npos) << trace;
}

TEST_F(UvparseProgram, OptionsReachTheLibrary)
{
    // A text from a file of this extension is wrapped as it stands.
    Put("a.properties", "x = <y>\n");
    const SRunResult own = Run("-l PostgreSQL a.properties");
    EXPECT_NE(own.out.find("<SQL>x = <y>\n</SQL>"), std::string::npos) << own.out;

    // A child of another tool gives up where others go on.
    Put("bad.sql", "select from from t;\n");
    EXPECT_NE(Run("bad.sql").out, "");
    const SRunResult child = Run("-o ORVA_CHILD=1 bad.sql");
    EXPECT_EQ(child.code, 1);
    EXPECT_EQ(child.out, "");

    EXPECT_EQ(Run("-o NOVALUE bad.sql").code, 2);
    EXPECT_EQ(Run("-l ../Grammar/PostgreSQL bad.sql").code, 2);
}

TEST_F(UvparseProgram, DamagedTablesAreReportedByName)
{
    fs::create_directories(m_Folder / "bin/Grammar/Broken");
    for (const char* file : {"uvparse", "libUVParser.so"})
        fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
    Put("a.sql", "select 1;");
    const SRunResult run = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.sql a.sql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Broken/"), std::string::npos) << run.err;

    fs::remove(m_Folder / "bin/libUVParser.so");
    const SRunResult without = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.sql");
    EXPECT_EQ(without.code, 2);
    EXPECT_NE(without.err.find("Unable to load 'libUVParser.so'"), std::string::npos) << without.err;
}

} // namespace
