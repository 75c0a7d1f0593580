// Whole scripts beside a second opinion, and texts of a size that a bad algorithm doesn't survive.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

namespace {

// The script without what the judge doesn't know: the client's own lines and copied data become blanks, and a
// client command that sends the statement becomes its delimiter.
std::string ForTheJudge(const std::string& script)
{
    std::string text(script.size(), ' ');
    for (std::size_t at = script.find('\n'); at != script.npos; at = script.find('\n', at + 1))
        text[at] = '\n';
    for (const SColoredRange& range : PostgreSQL().Scan(script)) {
        if (range.color == kCommentColor)
            continue;
        if (script[range.from] == '\\')
            text[range.from] = ';';
        else
            text.replace(range.from, range.end - range.from, script, range.from, range.end - range.from);
    }
    return text;
}

struct SCoverage
{
    int judged = 0; // statements that the judge accepts
    int clean = 0;  // those without an unexpected token

    double Percent() const { return judged == 0 ? 0.0 : 100.0 * clean / judged; }
};

// Parses a script, which must keep every byte, and compares it statement by statement.
void Cover(const std::string& path, SCoverage& coverage, bool namesBadStatements)
{
    SCOPED_TRACE(path);
    const std::string script = ReadFile(path);
    const SLanguageParse parse = PostgreSQL().Parse(script);
    ASSERT_TRUE(parse.isComplete);
    std::string shown = script;
    std::erase(shown, '\f');
    EXPECT_TRUE(TextOfTree(parse.tree) == shown);

    const std::string text = ForTheJudge(script);
    auto statements = JudgeSplit(text);
    if (!statements) {
        // one that it can't scan hides the others: take them apart by their delimiters
        statements.emplace();
        for (std::size_t from = 0; from < text.size();) {
            const std::size_t end = std::min(text.find(';', from), text.size());
            statements->push_back({from, end});
            from = end + 1;
        }
    }
    for (const SByteRange& statement : *statements) {
        const std::string sql = text.substr(statement.from, statement.end - statement.from);
        if (sql.find_first_not_of(" \t\r\n\f\v") == sql.npos || !JudgeAccepts(sql))
            continue;
        ++coverage.judged;
        const auto bad = std::ranges::find_if(parse.unexpected, [&](const SUnexpectedToken& token) {
            return token.offset >= statement.from && token.offset <= statement.end;
        });
        coverage.clean += bad == parse.unexpected.end();
        if (namesBadStatements && bad != parse.unexpected.end())
            ADD_FAILURE() << "unexpected " << bad->text << " in\n" << sql;
    }
}

TEST(PostgreSQLCorpus, SamplesParseAsTheServerParsesThem)
{
    SCoverage coverage;
    for (const std::string& path : SamplePaths("PostgreSQL")) {
        ASSERT_NO_FATAL_FAILURE(Cover(path, coverage, true));
        // what the judge doesn't know, such as the client's variables, is no error either
        EXPECT_TRUE(PostgreSQL().Parse(ReadFile(path)).IsClean()) << path;
    }
    EXPECT_GE(coverage.judged, 25);
}

// Set UV_CORPUS to a folder with postgresql/<project>/<script>.sql to have real scripts covered too.
TEST(PostgreSQLCorpus, RealScriptsParse)
{
    std::vector<std::string> paths = CorpusPaths("postgresql");
    std::erase_if(paths, [](const std::string& path) { return !path.ends_with(".sql"); });
    if (paths.empty())
        return;
    SCoverage coverage;
    for (const std::string& path : paths)
        ASSERT_NO_FATAL_FAILURE(Cover(path, coverage, false));
    std::cout << paths.size() << " scripts, " << coverage.judged
              << " statements that the server's grammar accepts, " << coverage.clean
              << " without an unexpected token (" << coverage.Percent() << " %)\n";
    RecordProperty("judged", coverage.judged);
    RecordProperty("clean", coverage.clean);
    EXPECT_GE(coverage.Percent(), 70.0);
}

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(PostgreSQL(), text);
}

TEST(PostgreSQLLimits, NestingOfAnyDepth)
{
    constexpr std::size_t kDepth = 100000;
    const std::string open = Repeated("(", kDepth), close = Repeated(")", kDepth);
    EXPECT_TRUE(ParseWhole("select " + open + "1" + close + "; select 2;").IsClean());
    EXPECT_TRUE(ParseWhole("select 1 " + Repeated("+ 1 ", kDepth / 4) + ";").IsClean());
    EXPECT_TRUE(ParseWhole("select " + Repeated("not ", kDepth / 4) + "true;").IsClean());
    EXPECT_TRUE(ParseWhole("select " + Repeated("a.", kDepth / 4) + "b;").IsClean());
    EXPECT_TRUE(ParseWhole(Repeated("/*", kDepth) + Repeated("*/", kDepth) + "select 1").IsClean());
    EXPECT_FALSE(ParseWhole("select " + open + "1; select 2;").IsClean());
    EXPECT_FALSE(ParseWhole("select 1" + close + "; select 2;").IsClean());
}

TEST(PostgreSQLLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 10 << 20;
    EXPECT_TRUE(ParseWhole("select '" + Repeated("long & <", kSize / 8) + "', 1;").IsClean());
    for (const char* const quote : {"\"", "$$", "$tag$"}) {
        const std::string text =
            "select " + std::string(quote) + Repeated("long & <", kSize / 256) + quote + ", 1;";
        EXPECT_TRUE(ParseWhole(text).IsClean()) << quote;
    }
    EXPECT_TRUE(ParseWhole("select 1 /* " + Repeated("* ", kSize / 64) + "*/;").IsClean());
    EXPECT_TRUE(
        ParseWhole("insert into t values " + Repeated("(1, 'a', null), ", kSize / 256) + "(2, 'b', c);")
            .IsClean());
    EXPECT_FALSE(ParseWhole("select 1 " + Repeated("| ", kSize / 128) + ";").IsClean());
}

struct SRunCase
{
    const char* piece;
    std::size_t tokens; // of a run of kRunLength pieces
};

constexpr std::size_t kRunLength = 100000;
// clang-format off
constexpr SRunCase kRuns[] = {
    {"+",        kRunLength},
    {"- ",       kRunLength},
    {"+-",   2 * kRunLength},
    {"-+",   2 * kRunLength},
    {"+/**/",    kRunLength},
    {"+--\n",    kRunLength},
    {"/+",   2},   // the last plus stands alone
    {"*-",   2},
    {"@+",   1},
    {"/",    1},
    {"*",    1},
};
// clang-format on

// Where an operator ends is seen at the end of the run that it stands in.
TEST(PostgreSQLLimits, LongRunsOfOperatorCharacters)
{
    for (const SRunCase& c : kRuns) {
        SCOPED_TRACE(c.piece);
        const std::string run = Repeated(c.piece, kRunLength);
        const auto count = [](const std::string& text) {
            const auto ranges = PostgreSQL().Scan(text);
            const auto comments = std::ranges::count(ranges, kCommentColor, &SColoredRange::color);
            return ranges.size() - static_cast<std::size_t>(comments);
        };
        EXPECT_EQ(count("select 1 " + run + "a;"), 4 + c.tokens);
        EXPECT_EQ(count("select 1 " + run), 2 + c.tokens);
        EXPECT_EQ(count("copy t from stdin where 1 < " + run + "a;\n1\n\\.\n;"), 10 + c.tokens);
    }
}

// Whether a row is a statement is seen at the end of the data, or of the text if they have none.
TEST(PostgreSQLLimits, LongDataAndManyOfThem)
{
    constexpr std::size_t kSize = 4 << 20;
    const std::string head = "copy t from stdin;\n";
    const std::string rows = Repeated("12\tit's\n", kSize / 8);
    EXPECT_TRUE(ParseWhole(head + "select 1;\n" + rows + "\\.\nselect 2;").IsClean());
    EXPECT_FALSE(ParseWhole(head + "select 1;\n" + rows).IsClean());
    EXPECT_TRUE(ParseWhole(head + Repeated("select 1;\n", kSize / 16) + "\\.\nselect 2;").IsClean());
    EXPECT_TRUE(ParseWhole(Repeated(head + "select 1;\n1\n\\.\n", kSize / 512)).IsClean());
    EXPECT_TRUE(ParseWhole(Repeated(head + "select 1;\n\\.x\n", kSize / 512)).isComplete);
    EXPECT_TRUE(ParseWhole(Repeated(head + "select 1;\n", kSize / 512)).IsClean());
}

TEST(PostgreSQLLimits, ScriptsOfManyStatements)
{
    constexpr std::size_t kCount = 200000;
    const std::string text = Repeated("select 1;\n", kCount);
    const SLanguageParse parse = ParseWhole(text);
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(CSyntaxTree(parse.tree).Statements().size(), kCount);
    EXPECT_LT(DepthOf(parse.tree), kCount / 100);
    // as many errors, each of which costs its statement alone
    const std::size_t errors = kCount / 20;
    const SLanguageParse bad = ParseWhole(Repeated("select from where;\nselect 1;\n", errors));
    EXPECT_GE(bad.unexpected.size(), errors);
    EXPECT_EQ(CSyntaxTree(bad.tree).Statements().size(), 2 * errors);
}

TEST(PostgreSQLLimits, TextThatIsOpenAtTheEnd)
{
    constexpr std::size_t kSize = 100000;
    for (const char* const open :
         {"'", "\"", "E'", "U&'", "x'", "$$", "$tag$", "/*", "/* /*", "(", "[", "case when ", "$", "\\"}) {
        SCOPED_TRACE(open);
        ParseWhole("select 1; select " + std::string(open) + Repeated("a b; ", kSize / 5));
        ParseWhole("select 1; select " + Repeated(std::string(open) + " ", 10000));
    }
}

} // namespace
