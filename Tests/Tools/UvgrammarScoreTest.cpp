// uvgrammar score over a small language of statements.
#include "Tests/Support/ProgramFixture.h"
#include "Tools/uvgrammar-score/CleanStatements.h"
#include "Tools/uvgrammar-score/SavedScore.h"
#include "Tools/uvgrammar-score/Shrink.h"
#include "Tools/uvgrammar-score/Statements.h"
#include "Tools/uvgrammar-score/Workers.h"

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <string_view>

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

TEST(ScoreWorkers, ACrashCostsOneJobAndAnExceptionNoWorker)
{
    std::vector<std::string> results(9);
    uvscore::RunJobs(
        results.size(), 2,
        [](std::size_t job) -> std::string {
            if (job == 3 || job == 4)
                raise(SIGKILL);
            if (job == 5)
                throw std::runtime_error("no way");
            return std::string(job * 100000, static_cast<char>('a' + job));
        },
        [&](std::size_t job, const uvscore::SJobResult& result) {
            results[job] = (result.isDone ? "" : result.isCrash ? "!! " : "! ") + result.text;
        });
    for (std::size_t job : {0u, 1u, 2u, 6u, 7u, 8u})
        EXPECT_TRUE(results[job] == std::string(job * 100000, static_cast<char>('a' + job))) << job;
    EXPECT_EQ(results[3], "!! crashed by signal 9");
    EXPECT_EQ(results[4], "!! crashed by signal 9");
    EXPECT_EQ(results[5], "! no way");

    const auto ignore = [](std::size_t, const uvscore::SJobResult&) {};
    EXPECT_THROW(
        uvscore::RunJobs(
            5, 2, [](std::size_t) -> std::string { throw uvscore::CCannotWork("no tables"); }, ignore),
        uvscore::CCannotWork);
}

// What a tree writes otherwise than its text has to keep its place.
TEST(ScoreStatements, StandWhereTheirTokensStandInTheText)
{
    const std::string text = "\f a\r\n<\xC3\xA9; b\x01;";
    const std::string tree =
        "<?xml version=\"1.0\" ?>\n<SQL><T__SPACE type=\"TOKEN\"> </T__SPACE>"
        "<full_pl_sql_statement><pl_sql_statement><T__A type=\"TOKEN\">a</T__A><T__SPACE "
        "type=\"TOKEN\">\n</T__SPACE>"
        "<T__B type=\"TOKEN\">&lt;\xC3\xA9</T__B></pl_sql_statement><T__E type=\"TOKEN\">;</T__E>"
        "</full_pl_sql_statement><T__SPACE type=\"TOKEN\"> "
        "</T__SPACE><full_pl_sql_statement><pl_sql_statement>"
        "<T__A type=\"TOKEN\">b^</T__A></pl_sql_statement><T__E "
        "type=\"TOKEN\">;</T__E></full_pl_sql_statement></SQL>\n";
    const std::vector<uvscore::SStatement> statements = uvscore::FindStatements(tree, text, {});
    ASSERT_EQ(statements.size(), 2u);
    EXPECT_EQ(text.substr(statements[0].begin, statements[0].end - statements[0].begin), "a\r\n<\xC3\xA9;");
    EXPECT_EQ(text.substr(statements[1].begin, statements[1].end - statements[1].begin), "b\x01;");
    // A tree of another text tells nothing of this one's statements.
    EXPECT_EQ(uvscore::FindStatements(tree, text + "x", {}).size(), 1u);
    EXPECT_TRUE(uvscore::FindTokens(tree, text + "x").empty());
}

TEST(ScoreShrink, LeavesWhatTheFailureNeeds)
{
    std::size_t asked = 0;
    const auto fails = [&](const std::string& text) {
        ++asked;
        return text.find("bad") != std::string::npos && text.find("'q u'") < text.find("end");
    };
    std::string text = "first, 'q u'\n  ";
    for (int i = 0; i < 200; ++i)
        text += "word" + std::to_string(i) + ' ';
    text += "bad\t\tend;";
    EXPECT_EQ(uvscore::ShrinkText(text, fails, 1000), "'q u' bad ");
    EXPECT_LT(asked, 200u); // halves go first
    asked = 0;
    EXPECT_LT(uvscore::ShrinkText(text, fails, 5).size(), text.size());
    EXPECT_EQ(asked, 5u);
}

TEST(ScoreSamples, AreSharedByTheStatementsThatAreClean)
{
    std::vector<uvscore::SScoredFile> files(3);
    for (std::size_t i = 0; i < 3; ++i) {
        files[i].statements.assign(10 * (i + 1), {.isRead = true});
        files[i].statements.push_back({}); // fails
    }
    EXPECT_THAT(uvscore::ShareSamples(files, 1000), ElementsAre(10, 20, 30));
    EXPECT_THAT(uvscore::ShareSamples(files, 6), ElementsAre(1, 2, 3));
    const std::vector<std::size_t> few = uvscore::ShareSamples(files, 1);
    EXPECT_EQ(few[0] + few[1] + few[2], 1u);
}

struct SComparisonCase
{
    const char* before; // statements: clean or failing, ten bytes each, by the letter of their text
    const char* now;
    bool isChanged; // the file was
    std::size_t better;
    std::size_t worse;
};

// Capitals fail. A letter's number of repetitions is the statement's size.
uvscore::SScoredFile FileOf(std::string_view statements, std::uint64_t hash)
{
    uvscore::SScoredFile file{.path = "f"};
    file.hash = hash;
    for (std::size_t at = 0; at < statements.size();) {
        const std::size_t end = std::min(statements.find_first_not_of(statements[at], at), statements.size());
        const char letter = statements[at];
        const bool isClean = letter >= 'a';
        file.statements.push_back({.begin = at,
                                   .size = end - at,
                                   .line = at + 1,
                                   .hash = static_cast<std::uint64_t>(letter) & 0x1F,
                                   .isRead = isClean});
        at = end;
    }
    return file;
}

TEST(ScoreComparison, StatementsGetBetterAndWorseWhereTheyStandOrByTheirText)
{
    constexpr SComparisonCase kCases[] = {
        // before    now     changed  better worse
        {"aaBBcc", "aaBBcc", false, 0, 0},
        {"aaBBcc", "aabbCC", false, 1, 1},
        {"aabbcc", "AAAAAA", false, 0, 3}, // one failure took three statements
        {"AAAAAA", "aabbcc", false, 3, 0},
        {"aaaa", "bbcc", false, 0, 0}, // cut otherwise, and read all the same
        {"aaBBcc", "ddaabbCC", true, 1, 1},
        {"aAbc", "abcAA", true, 0, 0},
        {"ab", "dE", true, 0, 0}, // nobody knows what became of them
    };
    for (const SComparisonCase& row : kCases) {
        SCOPED_TRACE(testing::Message() << row.before << " -> " << row.now);
        const uvscore::SComparison comparison =
            uvscore::CompareScores({FileOf(row.before, 1)}, {FileOf(row.now, row.isChanged ? 2 : 1)});
        EXPECT_EQ(comparison.better, row.better);
        EXPECT_EQ(comparison.worse.size(), row.worse);
    }
}

constexpr const char* kLexer = R"(%option noyywrap reject yylineno noecs nometa-ecs lex-compat
%s SS_GENERAL
%%
[ \t\r\n]+      { }
"/*"[^*]*"*/"   { ColoringFunc(6); }
"let"           { TOKEN_ACTIONE(__LET, 1); }
"print"         { TOKEN_ACTIONE(__PRINT, 1); }
[a-z]+          { TOKEN_ACTIONE(__NAME, 2); }
[0-9]+          { TOKEN_ACTIONE(__NUMBER, 5); }
"="             { TOKEN_ACTIONE(__EQUALS, 7); }
"+"             { TOKEN_ACTIONE(__PLUS, 7); }
";"             { TOKEN_ACTIONE(__SEMICOLON, 8); }
.               { TOKEN_ACTION(__OTHER); }
%%
)";

constexpr const char* kParser = R"(%define api.value.type {int}
%token T__LET T__PRINT T__NAME T__NUMBER T__EQUALS T__PLUS T__SEMICOLON T__OTHER
%left T__PLUS
%start SQL
%%
SQL: statements { NODE; } ;
statements: %empty { NODE(pl_sql_statements); }
    | statements delimited { NODE(pl_sql_statements); } ;
delimited: pl_sql_statement delimiter { NODE(delimited_pl_sql_statement); }
    | delimiter { NODE(delimited_pl_sql_statement); }
    | error delimiter { NODE(delimited_pl_sql_statement); } ;
delimiter: T__SEMICOLON { NODE(pl_sql_statement_delimiter); } ;
pl_sql_statement: statement { NODE; } ;
statement: T__LET T__NAME T__EQUALS value { NODE(let); }
    | T__PRINT value { NODE(print); } ;
value: T__NAME { NODE; }
    | T__NUMBER { NODE; }
    | value T__PLUS value { NODE; } ;
)";

class UvgrammarScore : public CProgramFixture
{
protected:
    // The tables go to the folder beside the program.
    UvgrammarScore() : CProgramFixture("uvgrammar")
    {
        fs::create_directories(m_Folder / "bin");
        for (const char* file : {"uvgrammar", "uvgrammar-score", "libUVParser.so"})
            fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
        Put("Notes/NotesLexer.l", kLexer);
        Put("Notes/NotesParser.y", kParser);
        Put("texts/a.txt", "let a = 1;\nlet b = ;\nprint b;\n;\nlet\n  = 2;\n");
        Put("texts/below/b.txt", "print 1 + 2; let c /* here */ = ; print 3 +; print 1;");
    }

    SRunResult Score(const std::string& arguments) const
    {
        return RunProgram((m_Folder / "bin/uvgrammar").string(), "score " + arguments);
    }
};

TEST_F(UvgrammarScore, CountsStatementsAndGroupsWhatFails)
{
    const SRunResult run = Score("Notes texts");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, StartsWith("language Notes\n  files: 2\n  statements: 8\n  clean: 4 (50.00 %)\n"
                                    "  unexpected tokens: 4\n  lost stretches: 4\n  bytes: 96\n"));
    // Both lets lack a value in the same state; the shorter one is shown.
    EXPECT_THAT(run.out, HasSubstr("\n2 x unexpected T__SEMICOLON in state "));
    EXPECT_THAT(
        run.out,
        HasSubstr("    reading Notes/NotesParser.y:14: statement: T__LET T__NAME T__EQUALS . value\n"));
    EXPECT_THAT(run.out, HasSubstr("    expected name, number\n    texts/a.txt:2: let b = ;\n"));
    EXPECT_THAT(run.out, HasSubstr("    texts/a.txt:5: let = 2;\n"));
    EXPECT_THAT(Score("Notes texts --groups 1").out, HasSubstr("and 2 more groups\n"));
}

TEST_F(UvgrammarScore, MakesTheTablesThatAreOlderThanTheirSources)
{
    ASSERT_EQ(Score("Notes texts/a.txt").code, 0);
    const auto made = fs::last_write_time(m_Folder / "bin/Grammar/Notes/manifest.txt");
    ASSERT_EQ(Score("Notes texts/a.txt").code, 0);
    EXPECT_EQ(fs::last_write_time(m_Folder / "bin/Grammar/Notes/manifest.txt"), made);

    std::string better = kParser;
    better.replace(better.find("T__LET T__NAME T__EQUALS value {"), 0,
                   "T__LET T__NAME T__EQUALS { NODE(let); } | ");
    Put("Notes/NotesParser.y", better);
    EXPECT_THAT(Score("Notes texts/a.txt").out, HasSubstr("  clean: 3 (75.00 %)\n"));
    Put("Notes/NotesParser.y", "%%\n");
    EXPECT_EQ(Score("Notes texts/a.txt").code, 1);
}

TEST_F(UvgrammarScore, TellsWhatGotWorseSinceARunThatWasKept)
{
    ASSERT_EQ(Score("Notes texts --save kept").code, 0);
    SRunResult same = Score("Notes texts --against kept");
    EXPECT_EQ(same.code, 0);
    EXPECT_THAT(same.out,
                HasSubstr("\n  better: 0\n  worse: 0\n  clean: 4 of 8 (50.00 %), now 4 of 8 (50.00 %)\n"));

    std::string worse = kParser;
    worse.replace(worse.find("    | value T__PLUS value { NODE; }"), 35, "");
    worse.replace(worse.find("T__LET T__NAME T__EQUALS value {"), 0,
                  "T__LET T__EQUALS T__NUMBER { NODE(let); } | ");
    Put("Notes/NotesParser.y", worse);
    const SRunResult run = Score("Notes texts --against kept");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.out, HasSubstr("\n  better: 1\n  worse: 1\n    texts/below/b.txt:1: print 1 + 2;\n"));

    Put("kept", "something else\n");
    EXPECT_EQ(Score("Notes texts --against kept").code, 2);
}

TEST_F(UvgrammarScore, ShrinksTheFirstFailure)
{
    Put("c.txt", "print 1;\nlet a = 1 + 2 + b\n  + 4 + + 5 + 6;\nlet = 1;\n");
    const SRunResult run = Score("Notes --shrink c.txt");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out,
                testing::MatchesRegex("c.txt:2: unexpected T__PLUS in state [0-9]+\nlet a = 1 . . ?\n"));
    Put("good.txt", "print 1;");
    EXPECT_EQ(Score("Notes --shrink good.txt").code, 2);
}

TEST_F(UvgrammarScore, FindsWhereACommentIsNoBlank)
{
    Put("texts/a.txt", "let a = 1 + 2;\nlet b = 3;\nprint;");
    const SRunResult good = Score("Notes texts/a.txt --comments");
    EXPECT_THAT(good.out, HasSubstr("\ncomments\n  statements: 2\n  gaps between tokens: 10\n"
                                    "  gaps where a comment needs a blank before it: 0\n"
                                    "  gaps where a comment changes the tree: 0\n"));
    // A rule that looks on for a number takes no comment for a blank.
    std::string lexer = kLexer;
    lexer.replace(lexer.find("\"=\" "), 0, "\"=\"/[ ]*[0-9]      { TOKEN_ACTIONE(__EQUALS, 7); }\n");
    lexer.replace(lexer.find("\"=\"  "), 3, "\"#\"");
    // And one takes the beginning of a comment for its own.
    lexer.insert(lexer.find("[0-9]+ "), "[0-9]+\"/\"      { TOKEN_ACTIONE(__NUMBER, 5); }\n");
    Put("Notes/NotesLexer.l", lexer);
    EXPECT_THAT(Score("Notes texts/a.txt --comments").out,
                HasSubstr("a blank before it: 2\n  gaps where a comment changes the tree: 2\n"
                          "    2 x between T__EQUALS and T__NUMBER\n"
                          "      texts/a.txt:2: let b = /* c */3;\n"));
}

TEST_F(UvgrammarScore, CountsTheStatementsThatAFaultLeavesAlone)
{
    std::string text;
    for (int i = 0; i < 50; ++i)
        text += "let a = 1 + 2;\n";
    Put("texts/a.txt", text);
    const std::string arguments = "Notes texts/a.txt --groups 0 --recovery --samples 40";
    const std::string out = Score(arguments).out;
    EXPECT_THAT(out, HasSubstr("token deleted: "));
    EXPECT_THAT(
        out, HasSubstr(
                 "other statements kept 100 %, all of them in 100 %, median lost 0, message after 0 tokens"));
    // Without its delimiter a statement costs the next one, and those are not other ones.
    EXPECT_THAT(out, testing::ContainsRegex("delimiter dropped: [1-9][0-9]* faults, other"));
    EXPECT_THAT(out, HasSubstr("quote dropped: 0 faults, other statements kept -"));
    const auto recovery = [](const std::string& printed) { return printed.substr(printed.find("recovery")); };
    EXPECT_EQ(recovery(Score(arguments).out), recovery(out)); // the same faults

    // Where nothing ends an error, it costs the rest of the text.
    std::string grammar = kParser;
    grammar.replace(grammar.find("error delimiter"), 15, "T__OTHER error delimiter");
    Put("Notes/NotesParser.y", grammar);
    EXPECT_THAT(recovery(Score(arguments).out), Not(HasSubstr("kept 100 %")));
}

TEST_F(UvgrammarScore, NamesTheRulesThatNoFileUses)
{
    std::string lexer = kLexer;
    const std::size_t words = lexer.find("\"let\"");
    lexer.replace(words, lexer.find("[a-z]+") - words, "%keywords \"Notes.words\"\n");
    Put("Notes/NotesLexer.l", lexer);
    Put("Notes/Notes.words", "let\nprint\nold name\nnew name \"new\" \"fresh\"\n");
    std::string grammar = kParser;
    grammar.replace(grammar.find("T__LET T__PRINT"), 15, "");
    grammar.insert(grammar.find("%token"), "%keywords \"Notes.words\"\n");
    grammar.replace(grammar.find("T__PRINT value"), 14, "T__PRINT values");
    grammar += "%list values: value %separator T__EQUALS ;\nvalue: %words name { NODE; } ;\n";
    Put("Notes/NotesParser.y", grammar);
    Put("texts/a.txt", "let a = 1 + 2;\n");
    Put("texts/below/b.txt", "print old; let;");

    const SRunResult run = Score("Notes texts/a.txt --coverage");
    EXPECT_EQ(run.code, 0) << run.err;
    // The rules of a list are one, and so are those of the words of a group. A scanner has one for each spelling.
    EXPECT_THAT(run.out, testing::EndsWith(R"(
coverage
  rules of the parser in use: 9 of 15 (60.00 %)
  rules of the scanner in use: 7 of 13 (53.85 %)
  not used by any file, of the parser
    Notes/NotesParser.y:11: delimited: delimiter
    Notes/NotesParser.y:12: delimited: error delimiter
    Notes/NotesParser.y:16: statement: T__PRINT values
    Notes/NotesParser.y:17: value: T__NAME
    Notes/NotesParser.y:20: %list values: value %separator T__EQUALS ;
    Notes/NotesParser.y:21: value: %words name { NODE; } ;
  not used by any file, of the scanner
    Notes/NotesLexer.l:5: "/*"[^*]*"*/" { ColoringFunc(6); }
    Notes/Notes.words:4: "new" { TOKEN_ACTIONE(__NEW, 1); }
    Notes/Notes.words:4: "fresh" { TOKEN_ACTIONE(__NEW, 1); }
    Notes/Notes.words:3: "old" { TOKEN_ACTIONE(__OLD, 1); }
    Notes/Notes.words:2: "print" { TOKEN_ACTIONE(__PRINT, 1); }
    Notes/NotesLexer.l:12: . { TOKEN_ACTION(__OTHER); }
)"));

    const SRunResult all = Score("Notes texts --fail-on-unused");
    EXPECT_EQ(all.code, 1);
    EXPECT_THAT(all.out, HasSubstr("parser in use: 13 of 15 (86.67 %)\n"));
    Put("texts/below/b.txt", "/* all */ print old = a; let; ; new fresh $;");
    const SRunResult used = Score("Notes texts --fail-on-unused");
    EXPECT_EQ(used.code, 0);
    EXPECT_THAT(used.out, testing::EndsWith("parser in use: 15 of 15 (100 %)\n"
                                            "  rules of the scanner in use: 13 of 13 (100 %)\n"));
}

TEST_F(UvgrammarScore, PassesOverWhatIsNoText)
{
    Put("texts/c.txt", "let \xFF;");
    const SRunResult run = Score("Notes texts");
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.err, HasSubstr("texts/c.txt: warning: not valid UTF-8"));
    EXPECT_THAT(run.out, HasSubstr("  files: 2\n"));
    EXPECT_THAT(run.out, HasSubstr("  files that can't be read: 1\n"));
}

TEST_F(UvgrammarScore, RefusesWhatItCannotRun)
{
    for (const char* arguments :
         {"", "Notes", "Notes nowhere", "nowhere texts", "texts texts", "Notes texts --group 3",
          "Notes texts --save ''", "Notes texts --shrink texts/a.txt"}) {
        SCOPED_TRACE(arguments);
        const SRunResult run = Score(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, StartsWith("uvgrammar score: error: "));
    }
    EXPECT_THAT(Score("--help").out, HasSubstr("--against"));
}

} // namespace
