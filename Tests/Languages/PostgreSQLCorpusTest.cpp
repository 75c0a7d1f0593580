// Whole scripts, and texts of a size that a bad algorithm doesn't survive.
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(PostgreSQL(), text);
}

TEST(PostgreSQLCorpus, SamplesHoldTheirStatements)
{
    std::size_t statements = 0;
    for (const std::string& script : SampleTexts("PostgreSQL")) {
        const SLanguageParse parse = ParseWhole(script);
        EXPECT_TRUE(parse.IsClean());
        statements += CSyntaxTree(parse.tree).Statements().size();
    }
    EXPECT_EQ(statements, 79U);
}

// Set UV_CORPUS to a folder with postgresql/<project>/<script> to have real scripts parsed too.
TEST(PostgreSQLCorpus, RealScriptsParse)
{
    ExpectRealTexts(PostgreSQL(), "postgresql");
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
        EXPECT_EQ(count("copy t from stdin where 1 < " + run + "a;\n1\n\\.\n;"), 11 + c.tokens);
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
