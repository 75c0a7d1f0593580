// uvgrammar test: outlines of trees, files of cases, and runs over a small language of statements.
#include "Tests/Support/ProgramFixture.h"
#include "Tools/uvgrammar-test/CaseFile.h"
#include "Tools/uvgrammar-test/LineDifference.h"
#include "Tools/uvgrammar-test/Outline.h"

#include <string_view>

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

std::string Joined(const uvtest::TLines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

uvtest::TLines Split(std::string_view text)
{
    uvtest::TLines lines;
    for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
        lines.emplace_back(text.substr(at, text.find('\n', at) - at));
    return lines;
}

struct STreeCase
{
    const char* tree;
    const char* outline;
};

constexpr STreeCase kTrees[] = {
    {"<a/>", "a\n"},
    {"\n<a><b/></a><c/>\n", "a/b\nc\n"}, // what a path selects is several trees
    {"<a><b><c/></b></a>", "a/b/c\n"},
    {"<a><b><c/><d/></b></a>", "a/b\n  c\n  d\n"},
    {R"(<a><T__B type="TOKEN" line="1" pos="-1">x &lt;&#13;&amp;</T__B></a>)", "a/T__B \"x <\\r&\"\n"},
    // only the type of tokens goes without saying
    {R"(<a type="TOKEN" n="&quot;1&quot;"><b/></a>)", "a type=\"TOKEN\" n='\"1\"'\n  b\n"},
    {R"(<T__A type="OTHER">1</T__A>)", "T__A type=\"OTHER\" \"1\"\n"},
    // spaces that say something
    {"<a><T__SPACE> \n</T__SPACE><b/><T__SPACE/></a>", "a/b\n"},
    {"<a><b/><T__SPACE> \n/* c */\t</T__SPACE></a>", "a\n  b\n  T__SPACE \"/* c */\"\n"},
    {"<T__SPACE> </T__SPACE>", ""},
    {"<a>it's \"\\</a>", "a \"it's \\\"\\\\\"\n"},
    {"<a>\"</a>", "a '\"'\n"},
    {"<a>\x1A\x7F</a>", "a \"\\x1a\\x7f\"\n"},
    {"<a>\xC3\xA4\xC3 \xC3\xA4\xA4</a>", "a \"\xC3\xA4\\xc3 \xC3\xA4\\xa4\"\n"}, // half a character
    // text beside elements
    {"<a>x<b/> y<c>z</c></a>", "a\n  \"x\"\n  b\n  \" y\"\n  c \"z\"\n"},
    {"<a>x<b/></a>", "a\n  \"x\"\n  b\n"},
};

TEST(TestOutlines, SayOfATreeWhatCounts)
{
    for (const STreeCase& c : kTrees) {
        SCOPED_TRACE(c.tree);
        const uvtest::TLines lines = uvtest::OutlineOfTree(c.tree);
        EXPECT_EQ(Joined(lines), c.outline);
        EXPECT_EQ(Joined(uvtest::OutlineOfLines(lines)), c.outline); // and are read as they were written
    }
    for (const char* const broken : {"<a>", "<a></b>", "</a>", "<a><b></a></b>", "<a"})
        EXPECT_THROW(uvtest::OutlineOfTree(broken), std::runtime_error) << broken;
}

struct SLooseOutline
{
    const char* written;
    const char* meant;
};

TEST(TestOutlines, AreReadAsPeopleWriteThem)
{
    constexpr SLooseOutline kCases[] = {
        {"a\n b\n    c\n    d\n e\n", "a\n  b\n    c\n    d\n  e\n"},
        {"a\n  b\n    T__C 'x'\n", "a/b/T__C \"x\"\n"},
        {"a/b\n   c  \n   d\n", "a/b\n  c\n  d\n"},
        {"a\n  \"x\"\n", "a \"x\"\n"},
        {"a  n='1'  m=\"2\"  'x'\n", "a n=\"1\" m=\"2\" \"x\"\n"},
        {"a\n  T__SPACE ' /**/ '\n", "a/T__SPACE \"/**/\"\n"},
        {"a \"\\\"\\\\\\n\\x41\"\n", "a '\"\\\\\\nA'\n"},
    };
    for (const SLooseOutline& c : kCases) {
        SCOPED_TRACE(c.written);
        EXPECT_EQ(Joined(uvtest::OutlineOfLines(Split(c.written))), c.meant);
    }
    constexpr std::pair<const char*, std::size_t> kMistakes[] = {
        // lines, the bad one
        {"a\n    b\n  c\n", 2}, {"  a\nb\n", 1},    {"\"x\"\n", 0}, {"a\n  b \"x\n", 1},
        {"a\n  b/\n", 1},       {"a \"x\" b\n", 0}, {"a n=1\n", 0}, {"a n\n", 0},
        {"a '\\y'\n", 0},       {"a '\\x4'\n", 0},  {"\ta\n", 0},   {"a \"x\"y\n", 0}};
    for (const auto& [lines, bad] : kMistakes) {
        SCOPED_TRACE(lines);
        try {
            ADD_FAILURE() << Joined(uvtest::OutlineOfLines(Split(lines)));
        } catch (const uvtest::COutlineError& e) {
            EXPECT_EQ(e.Index(), bad) << e.what();
        }
    }
}

TEST(TestDifferences, ShowTheLinesAround)
{
    EXPECT_EQ(uvtest::DifferenceText(Split("a\nb\n"), Split("a\nb\n")), "");
    EXPECT_EQ(uvtest::DifferenceText({}, Split("a\n")), "+ a\n");
    EXPECT_EQ(uvtest::DifferenceText(Split("1\n2\n3\n4\n5\n6\n7\n8\n9\na\nb\nc\nd\n"),
                                     Split("1\n2\n3\n4\nx\n6\n7\n8\n9\na\nb\nd\n")),
              "...\n  2\n  3\n  4\n- 5\n+ x\n  6\n  7\n  8\n  9\n  a\n  b\n- c\n  d\n");
    EXPECT_EQ(uvtest::DifferenceText(Split("x\n1\n2\n3\n4\n5\n6\n7\ny\n"), Split("1\n2\n3\n4\n5\n6\n7\n")),
              "- x\n  1\n  2\n  3\n...\n  5\n  6\n  7\n- y\n");
    EXPECT_THAT(uvtest::DifferenceText(uvtest::TLines(5000, "a"), uvtest::TLines(4000, "b")),
                StartsWith("- a\n- a\n"));
}

struct STextCase
{
    const char* file;
    const char* text; // of its last case
};

TEST(TestFiles, HoldTextsByteForByte)
{
    constexpr STextCase kCases[] = {
        {"=== a\n---\n", ""},
        {"=== a\nx\n---\n", "x\n"},
        {"# c\n\n=== a\n# x\n\n=\n--\n---- \n---\n", "# x\n\n=\n--\n---- \n"},
        {"===== a\n---\n=== b\n===: raw\n------\n-----\n", "---\n=== b\n===: raw\n------\n"},
        {"=== a\r\nx\r\ny\n---\r\n", "x\r\ny\n"},
        {"=== a\n===: crlf\nx\r\n\ny\n---\n", "x\r\n\r\ny\r\n"},
        {"=== a\n===: no line end\nx\n\n---\n", "x\n"},
        {"=== a\n===: no line end\n===: crlf\nx\n---\n", "x"},
        {"===: no line end\n=== a\nx\n---\n\n=== b\ny\n---\n", "y"},
        {"\xEF\xBB\xBF=== a\nx\n---", "x\n"},
    };
    for (const STextCase& c : kCases) {
        SCOPED_TRACE(c.file);
        const uvtest::SCaseFile file = uvtest::ReadCaseFile("f", c.file);
        EXPECT_EQ(file.cases.back().text, c.text);
        EXPECT_FALSE(file.cases.back().expected);
    }
}

TEST(TestFiles, TellTheLineOfWhatTheyLack)
{
    constexpr std::pair<const char*, std::size_t> kCases[] = {
        {"x\n", 1},                              // what comes before the first case
        {"# c\n===\n", 2},                       // no name
        {"=== a\nx\n", 1},                       // no end of the text
        {"=== a\nx\n--\n----\n", 1},             // marks of other lengths
        {"=== a\nx\n=== b\ny\n---\n", 3},        // the end is missing before a headline
        {"=== a\n===: rar\nx\n---\n", 2},        //
        {"=== a\n===: show\nx\n---\n", 2},       //
        {"=== a\n===: option A\nx\n---\n", 2},   //
        {"=== a\nx\n---\na\n\nb\n", 6},          // a tree of two pieces
        {"=== a\nx\n---\n# c\na\n", 5},          //
        {"=== a\nx\n---\n\na\n    b\n  c\n", 7}, // lines of the tree
        {"=== a\nx\n---\n! b\nc\n", 5},          // after what is wrong with the text
        {"=== a\n\xFFx\n---\n", 2},
    };
    for (const auto& [file, line] : kCases) {
        SCOPED_TRACE(file);
        try {
            uvtest::ReadCaseFile("f", file);
            ADD_FAILURE();
        } catch (const uvtest::CCaseFileError& e) {
            EXPECT_EQ(e.Line(), line) << e.what();
        }
    }
}

TEST(TestFiles, KeepEverythingButTheTreesThatAreWritten)
{
    constexpr std::pair<const char*, const char*> kCases[] = {
        // before and after "n" is written into the first and the third case
        {"# 1\n=== a\nx\n---\n\no\n  p\n! q\n\n# 2\n=== b\ny\n---\n o\n=== c\nz\n---\n# 3",
         "# 1\n=== a\nx\n---\n\nn\n\n# 2\n=== b\ny\n---\n o\n=== c\nz\n---\nn\n# 3"},
        {"=== a\nx\n---\n=== b\ny\n---\n=== c\n---", "=== a\nx\n---\nn\n=== b\ny\n---\n=== c\n---\nn\n"},
        {"=== a\r\n---\r\no\r\n\r\n=== b\r\n---\r\n=== c\n---\r\no",
         "=== a\r\n---\r\nn\r\n\r\n=== b\r\n---\r\n=== c\n---\r\nn\r\n"},
    };
    for (const auto& [before, after] : kCases) {
        SCOPED_TRACE(before);
        const uvtest::SCaseFile file = uvtest::ReadCaseFile("f", before);
        ASSERT_EQ(file.cases.size(), 3u);
        const uvtest::TLines tree = {"n"};
        EXPECT_EQ(uvtest::WithTrees(file, {tree, std::nullopt, tree}), after);
        EXPECT_EQ(uvtest::WithTrees(file, {3, std::nullopt}), before);
    }
}

constexpr const char* kLexer = R"(%option noyywrap reject yylineno noecs nometa-ecs lex-compat
%s SS_GENERAL
%x COMMENT
%%
[ \t\r\n]+      { }
"/*"            { BEGIN COMMENT; ColoringFunc(6); }
<COMMENT>[^*]+  { ColoringFunc(6); }
<COMMENT>"*"    { ColoringFunc(6); }
<COMMENT>"*/"   { BEGIN m_Extension.m_nStartState; ColoringFunc(6); }
[a-z]+          { TOKEN_ACTIONE(__NAME, 2); }
"="             { TOKEN_ACTIONE(__EQUALS, 7); }
";"             { TOKEN_ACTIONE(__SEMICOLON, 8); }
.               { TOKEN_ACTION(__OTHER); }
%%
)";

constexpr const char* kParser = R"(%define api.value.type {int}
%token T__NAME T__EQUALS T__SEMICOLON T__OTHER
%start SQL
%%
SQL: pairs                                { NODE; } ;
pairs: %empty                             { NODE; }
    | pairs pair                          { NODE; } ;
pair: name T__EQUALS name T__SEMICOLON    { NODE; }
    | error T__SEMICOLON                  { NODE; } ;
name: T__NAME                             { NODE; } ;
)";

constexpr const char* kGood = R"(=== good
a = b; /* c */
---
SQL
  pairs/pair
    name/T__NAME "a"
    T__EQUALS "="
    name/T__NAME "b"
    T__SEMICOLON ";"
  T__SPACE "/* c */"
)";

class UvgrammarTest : public CProgramFixture
{
protected:
    // The tables go to the folder beside the program.
    UvgrammarTest() : CProgramFixture("uvgrammar")
    {
        fs::create_directories(m_Folder / "bin");
        for (const char* file : {"uvgrammar", "uvgrammar-test", "libUVParser.so"})
            fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
        Put("Pairs/PairsLexer.l", kLexer);
        Put("Pairs/PairsParser.y", kParser);
    }

    SRunResult Test(const std::string& arguments) const
    {
        return RunProgram((m_Folder / "bin/uvgrammar").string(), "test " + arguments);
    }

    // What --update writes below a case of these lines.
    std::string Tree(const std::string& lines)
    {
        Put("one.tests", lines);
        const SRunResult run = Test("Pairs one.tests --update");
        EXPECT_EQ(run.code, 0) << run.out << run.err;
        const std::string content = Get("one.tests");
        EXPECT_THAT(content, StartsWith(lines));
        return content.substr(lines.size());
    }
};

// The same name, and dates before those of the tables that are there.
TEST_F(UvgrammarTest, AnotherFolderOfTheSameNameGetsTablesOfItsOwn)
{
    Put("Pairs/Tests/a.tests", kGood);
    EXPECT_EQ(Test("Pairs").code, 0);
    Put("older/Pairs/PairsLexer.l", kLexer);
    std::string parser = kParser;
    parser.replace(parser.rfind("NODE;"), 5, "NODE(word);");
    Put("older/Pairs/PairsParser.y", parser);
    Put("older/Pairs/Tests/a.tests", kGood);
    for (const char* file : {"PairsLexer.l", "PairsParser.y"})
        fs::last_write_time(m_Folder / "older/Pairs" / file,
                            fs::last_write_time(m_Folder / "Pairs" / file) - std::chrono::hours(1));
    EXPECT_THAT(Test("older/Pairs").out, HasSubstr("+     word/T__NAME"));
    EXPECT_EQ(Test("Pairs").code, 0);
}

TEST_F(UvgrammarTest, ComparesTreesAndTellsWhereTheyDiffer)
{
    Put("Pairs/Tests/a.tests", kGood);
    Put("Pairs/Tests/no-cases.txt", "x");
    SRunResult run = Test("Pairs");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "language Pairs\n  cases: 1\n  passed: 1\n  failed: 0\n");

    std::string bad = kGood;
    bad.replace(bad.find("/T__NAME \"b\""), 12, "");
    bad.replace(bad.find("=== good"), 8, "\n=== bad");
    const std::string missing = "=== missing\na = c;\n---\n";
    Put("Pairs/Tests/b.tests", bad + missing);
    run = Test("Pairs");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out,
              "Pairs/Tests/b.tests:2: bad\n...\n    pairs/pair\n      name/T__NAME \"a\"\n"
              "      T__EQUALS \"=\"\n-     name\n+     name/T__NAME \"b\"\n      T__SEMICOLON \";\"\n"
              "    T__SPACE \"/* c */\"\n\n"
              "Pairs/Tests/b.tests:12: missing\n  no tree is expected yet; --update writes the one "
              "that there is\n\nlanguage Pairs\n  cases: 3\n  passed: 1\n  failed: 2\n");
    EXPECT_EQ(Test("Pairs Pairs/Tests/a.tests").code, 0);
    EXPECT_THAT(Test("Pairs --filter miss").out, HasSubstr("  cases: 1\n"));

    run = Test("Pairs --update --filter ba");
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "updated: Pairs/Tests/b.tests:2: bad\nlanguage Pairs\n  cases: 1\n  passed: 0\n"
                       "  updated: 1\n  failed: 0\n");
    const std::string mended = std::string("\n=== bad") + (kGood + 8);
    EXPECT_EQ(Get("Pairs/Tests/b.tests"), mended + missing);
}

TEST_F(UvgrammarTest, FollowsAChangedGrammar)
{
    Put("Pairs/Tests/a.tests", kGood);
    ASSERT_EQ(Test("Pairs").code, 0);
    std::string parser = kParser;
    parser.replace(parser.find("name: T__NAME                             { NODE; }"), 51,
                   "name: T__NAME { NODE(word); }");
    Put("Pairs/PairsParser.y", parser);
    EXPECT_THAT(Test("Pairs").out, HasSubstr("\n-     name/T__NAME \"b\"\n+     word/T__NAME \"b\"\n"));
    Put("Pairs/PairsParser.y", "%%\n");
    EXPECT_EQ(Test("Pairs").code, 1);
}

TEST_F(UvgrammarTest, ShowsMistakesAndPartsOfTrees)
{
    const struct
    {
        const char* lines;
        const char* tree;
    } kCases[] = {
        {"=== part\n===: show //name[2]\na = b; c = d;\n---\n", "name/T__NAME \"b\"\nname/T__NAME \"d\"\n"},
        {"=== unexpected\na = b;\r\n\xC3\xA4;\nc == d;\n---\n",
         "SQL/pairs\n  pair\n    name/T__NAME \"a\"\n    T__EQUALS \"=\"\n    name/T__NAME \"b\"\n"
         "    T__SEMICOLON \";\"\n  T__SPACE \"\xC3\xA4\"\n  pair/T__SEMICOLON \";\"\n  T__SPACE \"c == d\"\n"
         "  pair/T__SEMICOLON \";\"\n! unexpected T__OTHER \"\\xc3\" at 2:1\n"
         "! unexpected T__EQUALS \"=\" at 3:4\n"},
        {"=== the end is missing\n===: no line end\na =\n---\n", "! not parsed\n! unexpected end at 1:4\n"},
        {"=== nothing\n---\n", "! nothing to parse\n"},
        {"=== open\n===: show //name\na = b; /* c\n---\n",
         "name/T__NAME \"a\"\nname/T__NAME \"b\"\n! never closed COMMENT at 1:8\n"},
        {"=== lists nest in the raw tree\n===: raw\na = b;\n---\n",
         "SQL/SQL/pairs\n  pairs\n  pair\n    name/T__NAME \"a\"\n    T__EQUALS \"=\"\n    name/T__NAME "
         "\"b\"\n"
         "    T__SEMICOLON \";\"\n"},
        {"=== line ends\n===: crlf\n===: show //T__SPACE\na /*\n*/ = b;\n---\n", "T__SPACE \"/*\\n*/\"\n"},
        {"=== raw line ends\n===: crlf\n===: raw\na /*\n*/ = b;\n---\n",
         "SQL/SQL/pairs\n  pairs\n  pair\n    name/T__NAME \"a\"\n    T__SPACE \"/*\\r\\n*/\"\n    T__EQUALS "
         "\"=\"\n"
         "    name/T__NAME \"b\"\n    T__SEMICOLON \";\"\n"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.lines);
        EXPECT_EQ(Tree(c.lines), c.tree);
    }
}

TEST_F(UvgrammarTest, FailsWhateverIsExpectedIfAPathSelectsNothing)
{
    for (const char* const path : {"//nobody", "//pair[", "count(//pair)"}) {
        SCOPED_TRACE(path);
        const std::string content = std::string("=== a\n===: show ") + path + "\na = b;\n---\npair\n";
        Put("one.tests", content);
        const SRunResult run = Test("Pairs one.tests --update");
        EXPECT_EQ(run.code, 1);
        EXPECT_THAT(run.out,
                    AllOf(StartsWith("one.tests:1: a\n  "), HasSubstr(path), HasSubstr("failed: 1")));
        EXPECT_EQ(Get("one.tests"), content);
    }
    Put("one.tests", "=== a\n===: show //name\n= b;\n---\n");
    EXPECT_THAT(Test("Pairs one.tests").out, HasSubstr("tree\n  ! unexpected T__EQUALS \"=\" at 1:1\n\n"));
}

TEST_F(UvgrammarTest, LeavesABrokenFileAloneAndRunsTheOthers)
{
    const std::string broken = "=== a\na = b;\n---\n\n=== b\na = c;\n";
    Put("Pairs/Tests/a.tests", kGood);
    Put("Pairs/Tests/broken.tests", broken);
    const SRunResult run = Test("Pairs --update");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, StartsWith("Pairs/Tests/broken.tests:5: error: the case has no line '---'"));
    EXPECT_THAT(run.out, HasSubstr("  passed: 1\n"));
    EXPECT_EQ(Get("Pairs/Tests/broken.tests"), broken);
}

TEST_F(UvgrammarTest, NamesTheRulesThatNeitherCasesNorSamplesUse)
{
    Put("Pairs/Tests/a.tests", kGood);
    const std::string clean = "language Pairs\n  cases: 1\n  passed: 1\n  failed: 0\n";
    EXPECT_EQ(Test("Pairs").out, clean); // only where it is asked for
    // A language needs no folder of samples.
    SRunResult run = Test("Pairs --coverage");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, clean + R"(
coverage
  rules of the parser in use: 5 of 6 (83.33 %)
  rules of the scanner in use: 7 of 9 (77.78 %)
  not used by any case or sample, of the parser
    Pairs/PairsParser.y:9: pair: error T__SEMICOLON
  not used by any case or sample, of the scanner
    Pairs/PairsLexer.l:8: <COMMENT>"*" { ColoringFunc(6); }
    Pairs/PairsLexer.l:13: . { TOKEN_ACTION(__OTHER); }
)");

    // A sample may have mistakes, and be in any folder below.
    Put("Pairs/Samples/below/b.pairs", "a ! b;\n");
    run = Test("Pairs --coverage");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.out,
                AllOf(HasSubstr("parser in use: 6 of 6 (100 %)\n"), Not(HasSubstr("PairsParser.y"))));
    Put("Pairs/Samples/a.pairs", "/* * */ a = b;\n");
    run = Test("Pairs --coverage");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, clean + "\ncoverage\n  rules of the parser in use: 6 of 6 (100 %)\n"
                               "  rules of the scanner in use: 9 of 9 (100 %)\n");

    Put("Pairs/Samples/c.pairs", "\xFF");
    run = Test("Pairs --coverage");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, StartsWith("uvgrammar test: error: Pairs/Samples/c.pairs: "));
    fs::remove(m_Folder / "Pairs/Samples/c.pairs");

    // Cases of other options, and those that fail, have used their rules too.
    fs::remove_all(m_Folder / "Pairs/Samples");
    Put("Pairs/Tests/b.tests", "=== raw\n===: raw\n/* * */ a = b;\n---\nnobody\n\n=== option\n"
                               "===: option A=B\n! a;\n---\n");
    run = Test("Pairs --coverage");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.out, HasSubstr("failed: 2\n\ncoverage\n  rules of the parser in use: 6 of 6 (100 %)\n"
                                   "  rules of the scanner in use: 9 of 9 (100 %)\n"));
}

TEST_F(UvgrammarTest, RefusesWhatItCannotRun)
{
    Put("Pairs/Tests/a.tests", kGood);
    fs::create_directories(m_Folder / "None/Tests");
    Put("None/NoneLexer.l", kLexer);
    Put("None/NoneParser.y", kParser);
    Put("empty.tests", "# nothing\n");
    for (const char* arguments : {"", "nowhere", "None", "Pairs nowhere.tests", "Pairs empty.tests",
                                  "Pairs --filter nobody", "Pairs --upd", "Pairs --filter"}) {
        SCOPED_TRACE(arguments);
        const SRunResult run = Test(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith("uvgrammar test: error: "));
    }
    EXPECT_THAT(Test("--help").out, HasSubstr("--update"));
}

} // namespace
