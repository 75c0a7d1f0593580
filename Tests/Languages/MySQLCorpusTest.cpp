// Whole scripts, and texts of a size that a bad algorithm doesn't survive.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(MySQL(), text);
}

std::size_t StatementCount(const SLanguageParse& parse)
{
    return CSyntaxTree(parse.tree).Statements().size();
}

TEST(MySQLCorpus, SamplesAreClean)
{
    CLanguage withNames("MySQL", UVDB_DB_MySQL, true); // in double quotes
    const std::vector<std::string> paths = SamplePaths("MySQL");
    EXPECT_GE(paths.size(), 30U);
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        const SLanguageParse parse = ParseWhole(ReadFile(path));
        EXPECT_TRUE(parse.IsClean() || withNames.Parse(ReadFile(path)).IsClean());
        EXPECT_GT(StatementCount(parse), 2U);
    }
}

// Set UV_CORPUS to a folder with mysql/<project>/<script> to have real scripts parsed too.
TEST(MySQLCorpus, RealScriptsParse)
{
    ExpectRealTexts(MySQL(), "mysql", 99);
}

TEST(MySQLLimits, NestingOfAnyDepth)
{
    constexpr std::size_t kDepth = 100000;
    const std::string open = Repeated("(", kDepth), close = Repeated(")", kDepth);
    EXPECT_TRUE(ParseWhole("select " + open + "1" + close + "; select 2;").IsClean());
    EXPECT_TRUE(ParseWhole("select 1 " + Repeated("+ 1 ", kDepth / 4) + ";").IsClean());
    EXPECT_TRUE(ParseWhole("select " + Repeated("not ", kDepth / 4) + "true;").IsClean());
    EXPECT_TRUE(
        ParseWhole("select " + Repeated("f(", kDepth / 4) + Repeated(")", kDepth / 4) + ";").IsClean());
    EXPECT_TRUE(ParseWhole("select " + Repeated("case when 1 then ", kDepth / 4) + "1" +
                           Repeated(" end", kDepth / 4) + ";")
                    .IsClean());
    EXPECT_FALSE(ParseWhole("select " + open + "1; select 2;").IsClean());
    EXPECT_FALSE(ParseWhole("select 1" + close + "; select 2;").IsClean());
}

TEST(MySQLLimits, BlocksOfAnyDepth)
{
    constexpr std::size_t kDepth = 10000;
    const std::string head = "create procedure p()\n", end = "\nselect 2;";
    for (const auto& [open, close] : {std::pair("begin ", "end; "),
                                      {"if a then ", "end if; "},
                                      {"while a do ", "end while; "},
                                      {"l: loop ", "end loop l; "},
                                      {"case a when 1 then ", "end case; "},
                                      {"repeat ", "until a end repeat; "}}) {
        SCOPED_TRACE(open);
        const SLanguageParse parse =
            ParseWhole(head + Repeated(open, kDepth) + "set b = 1; " + Repeated(close, kDepth) + end);
        EXPECT_TRUE(parse.IsClean());
        EXPECT_EQ(StatementCount(parse), 2U);
        EXPECT_FALSE(ParseWhole(head + Repeated(open, kDepth) + "set b = 1; " + end).IsClean());
    }
}

TEST(MySQLLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 4 << 20;
    const std::string filling = Repeated("long & <\\\\", kSize / 10);
    for (const char* const quote : {"'", "\"", "`"}) {
        SCOPED_TRACE(quote);
        EXPECT_TRUE(ParseWhole("select " + (quote + filling) + quote + ", 1;").IsClean());
    }
    EXPECT_TRUE(ParseWhole("select 'a' " + Repeated("'b' /* c */ ", kSize / 32) + ", 1;").IsClean());
    EXPECT_TRUE(ParseWhole("select 1 /* " + Repeated("* / ", kSize / 4) + "*/;").IsClean());
    EXPECT_TRUE(ParseWhole("select /*+ " + Repeated("* / ", kSize / 4) + "*/ 1;").IsClean());
    EXPECT_TRUE(ParseWhole("/*!50000 select " + Repeated("1 +\n", kSize / 64) + "1 */;").IsClean());
    EXPECT_TRUE(ParseWhole("select " + Repeated("/*!50000 1 + */ ", kSize / 64) + "1;").IsClean());
    EXPECT_TRUE(ParseWhole("-- " + filling + "\nselect 1; # " + filling).IsClean());
    EXPECT_TRUE(ParseWhole("select 0x" + Repeated("AF", kSize / 2) + ";").IsClean());
}

TEST(MySQLLimits, RowsOfAHundredThousand)
{
    constexpr std::size_t kRows = 100000;
    const SLanguageParse parse =
        ParseWhole("insert into `t` values " + Repeated("(1,'it\\'s',NULL,-2.5,_binary 'x',0xFF),\n", kRows) +
                   "(2,b,c,d,e,f);");
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(CountOf(CSyntaxTree(parse.tree), "values_row"), kRows + 1);
}

TEST(MySQLLimits, ScriptsOfManyStatements)
{
    constexpr std::size_t kCount = 200000;
    const SLanguageParse parse = ParseWhole(Repeated("select 1;\n", kCount));
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(StatementCount(parse), kCount);
    EXPECT_LT(DepthOf(parse.tree), kCount / 100);
    // as many errors, each of which costs its statement alone
    const std::size_t errors = kCount / 20;
    const SLanguageParse bad = ParseWhole(Repeated("select from where;\nselect 1;\n", errors));
    EXPECT_GE(bad.unexpected.size(), errors);
    EXPECT_EQ(StatementCount(bad), 2 * errors);
    // and within a body
    const SLanguageParse body =
        ParseWhole("create procedure p() begin " + Repeated("set a = 1;\n", kCount / 4) + "end;");
    EXPECT_TRUE(body.IsClean());
    EXPECT_EQ(CountOf(CSyntaxTree(body.tree), "set_statement"), kCount / 4);
}

TEST(MySQLLimits, DelimitersThatChangeAllTheTime)
{
    constexpr std::size_t kChanges = 10000;
    const std::string changes =
        "delimiter $$\nselect 1 $$\ndelimiter //\nselect 2 //\ndelimiter |\nselect 3 |\n"
        "delimiter go\nselect 4 go\ndelimiter ;\nselect 5;\n";
    const SLanguageParse parse = ParseWhole(Repeated(changes, kChanges / 5));
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(StatementCount(parse), kChanges);
    // ones that end nothing, and statements that a change ends
    EXPECT_TRUE(ParseWhole(Repeated("delimiter a-b\ndelimiter $$\n", kChanges)).isComplete);
    EXPECT_EQ(CountOf(CSyntaxTree(ParseWhole(Repeated("select 1\ndelimiter $$\n", kChanges)).tree),
                      "client_command"),
              kChanges);
}

struct SRunCase
{
    const char* piece;
    std::size_t tokens; // of a run of kRunLength pieces
};

constexpr std::size_t kRunLength = 100000;
// clang-format off
constexpr SRunCase kRuns[] = {
    {"+",       kRunLength},
    {"- ",      kRunLength},
    {"-",       kRunLength},
    {"<=>",     kRunLength},
    {"|",       kRunLength / 2},
    {"!",       kRunLength},
    {"+/**/",   kRunLength},
    {"+-- \n",  kRunLength},
    {"+#\n",    kRunLength},
    {"*",       kRunLength},
    {"@",       kRunLength},
    {"?",       kRunLength},
    {".",       kRunLength / 2},
    {"->>",     kRunLength},
    {"{",       kRunLength},
    {"`",       1},   // pairs, all of them one name
    {"'",       1},
    {"\"",      1},
};
// clang-format on

TEST(MySQLLimits, LongRunsOfOperatorCharacters)
{
    for (const SRunCase& c : kRuns) {
        SCOPED_TRACE(c.piece);
        const std::string text = "select 1 " + Repeated(c.piece, kRunLength);
        const auto ranges = MySQL().Scan(text);
        const auto comments = std::ranges::count(ranges, kCommentColor, &SColoredRange::color);
        EXPECT_EQ(ranges.size() - static_cast<std::size_t>(comments), 2 + c.tokens);
        ParseWhole(text + "a; select 2;");
    }
}

TEST(MySQLLimits, TextThatIsOpenAtTheEnd)
{
    constexpr std::size_t kSize = 100000;
    for (const char* const open : {"'",          "\"",   "`",     "x'",         "n'",
                                   "_utf8'",     "@'",   "@`",    "/*",         "/*!",
                                   "/*!50000 ",  "/*M!", "/*+",   "(",          "{",
                                   "case when ", "$",    "$$",    "\\",         "begin ",
                                   "if a then ", "not ", "with ", "delimiter ", "\ndelimiter $$\n",
                                   "a.",         "@@a.", "not/*", "end -- "}) {
        SCOPED_TRACE(open);
        for (const char* const head : {"select ", "create procedure p() begin select "}) {
            ParseWhole(head + std::string(open) + Repeated("a b; ", kSize / 5));
            ParseWhole(head + std::string(open) + Repeated("a\n-- b\n", kSize / 5));
            ParseWhole(head + Repeated(std::string(open) + " ", 10000));
            ParseWhole(head + Repeated(open, 10000));
        }
    }
}

} // namespace
