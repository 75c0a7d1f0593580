#include "Parser/UVParserReports.h"
#include "Tests/Parser/ParserFixture.h"

#include <gmock/gmock.h>

namespace {

SUnexpectedToken Token(std::size_t offset, const char* text)
{
    SUnexpectedToken token;
    token.offset = offset;
    token.length = std::string_view(text).size();
    token.text = text;
    return token;
}

TEST(UnexpectedTokens, PlacesAreCountedInLinesAndCharacters)
{
    // The second euro sign is character 3 of its line and byte 9 of the text.
    const std::string query = "a\n\xE2\x82\xAC b\xE2\x82\xAC\n\nz";
    EXPECT_EQ(FormatUnexpectedTokens(query, {Token(0, "a"), Token(7, "\xE2\x82\xAC"), Token(12, "z")},
                                     enTokenReport::Places),
              "1\t1\t0\t1\ta\n2\t4\t7\t3\t\xE2\x82\xAC\n4\t1\t12\t1\tz\n");
    // The order is that of arrival.
    EXPECT_EQ(
        FormatUnexpectedTokens("ab", {Token(1, "b"), Token(0, "a"), Token(99, "")}, enTokenReport::Places),
        "1\t2\t1\t1\tb\n1\t1\t0\t1\ta\n1\t3\t99\t0\t\n");
    // A token stays on its line of the list.
    EXPECT_EQ(FormatUnexpectedTokens("'a\tb\r\nc'", {Token(0, "'a\tb\r\nc'")}, enTokenReport::Places),
              "1\t1\t0\t8\t'a b  c'\n");
    EXPECT_EQ(FormatUnexpectedTokens("text", {}, enTokenReport::Places), "");
    // The state and what was expected, where they are wanted.
    SUnexpectedToken token = Token(0, "a");
    token.state = 7;
    token.expected = {"';'", "a\tb"};
    EXPECT_EQ(FormatUnexpectedTokens("a", {token}, enTokenReport::Expected), "1\t1\t0\t1\ta\t7\t';'\ta b\n");
    token.terminal = "T__A";
    EXPECT_EQ(FormatUnexpectedTokens("a", {token}, enTokenReport::Terminals),
              "1\t1\t0\t1\ta\t7\tT__A\t';'\ta b\n");
}

TEST(PreparationNotes, EachIsALineOfFourFields)
{
    EXPECT_EQ(FormatPreparationNotes({{true, 3, "", "no\tgood"}, {false, 0, "a\nb.h", "odd"}}),
              "error\t3\t\tno good\nwarning\t0\ta b.h\todd\n");
    EXPECT_EQ(FormatPreparationNotes({}), "");
}

class UnexpectedTokensOption : public ParserTest
{};

TEST_F(UnexpectedTokensOption, StandsOnlyWhereItIsAskedFor)
{
    constexpr char kText[] = "/*\xC3\xA9*/ print '\xC3\xA9' \"a\tb\";\n print 1; print ;";
    Start();
    Parse(kText);
    EXPECT_FALSE(m_Info->IsOptionValid("UNEXPECTED_TOKENS"));

    SetOption("REPORT_UNEXPECTED_TOKENS", "1");
    Parse(kText);
    EXPECT_EQ(Option<Uve::U8CString>("UNEXPECTED_TOKENS"), "1\t17\t18\t5\t\"a b\"\n2\t17\t41\t1\t;\n");
    Parse("print 1;");
    EXPECT_EQ(Option<Uve::U8CString>("UNEXPECTED_TOKENS"), "");

    for (const auto& [text, list] :
         {std::pair("print;", "1\t6\t5\t1\t;\n"), {"use 2;", "1\t5\t4\t1\t2\n"}, {"print 3;", ""}}) {
        m_Parser.set_Query(text);
        m_Parser.FastParse();
        EXPECT_EQ(Option<Uve::U8CString>("UNEXPECTED_TOKENS"), list) << text;
    }

    for (const auto& [value, list] : {std::pair("2", "1\t7\t6\t1\t;\t[0-9]+\tid\tstring\tnumber\t'\\('.*\n"),
                                      {"3", "1\t7\t6\t1\t;\t[0-9]+\tTSEMI\tid\tstring\tnumber\t'\\('.*\n"}}) {
        SetOption("REPORT_UNEXPECTED_TOKENS", value);
        Parse("print ;");
        EXPECT_THAT(std::string(Option<Uve::U8CString>("UNEXPECTED_TOKENS")), testing::MatchesRegex(list));
    }
}

TEST_F(UnexpectedTokensOption, AListThatCantBeHandedOverFailsTheParse)
{
    SetOption("REPORT_UNEXPECTED_TOKENS", "1");
    SetOption("UNEXPECTED_TOKENS", std::map<int, unsigned long>()); // no text goes there
    Start();
    EXPECT_LT(Parse("print 1;"), UVDB_OK);
    EXPECT_EQ(TextOfTree(Tree()), "print 1;");
}

TEST_F(UnexpectedTokensOption, TellsOfTheParseThatStands)
{
    SetOption("REPORT_UNEXPECTED_TOKENS", "1");
    SetOption("OPTION_VARYING_PARSING", "YES");
    Start();
    Parse("print \"x\"; use \"y\";"); // refused under both rules
    EXPECT_EQ(Option<Uve::U8CString>("UNEXPECTED_TOKENS"), "1\t7\t6\t3\t\"x\"\n");
    Parse("print \"x\";"); // clean under the other one
    EXPECT_EQ(Option<Uve::U8CString>("UNEXPECTED_TOKENS"), "");
}

class Coverage : public ParserTest
{
protected:
    std::string Used() { return Option<Uve::U8CString>("COVERAGE"); }
};

struct SCoverageCase
{
    const char* text;
    const char* used;
};

constexpr SCoverageCase kCoverageCases[] = {
    {"print 1;", "scanner\t1\t10\t18\t21\nparser\t2\t3\t4\t5\t14\n"},
    {"print 1 + 2; print 3;", "scanner\t1\t10\t18\t20\t21\nparser\t2\t3\t4\t5\t10\t14\n"},
    {"/*a*b*/begin end;", "scanner\t1\t3\t4\t5\t6\t13\t14\t21\nparser\t2\t3\t4\t8\n"},
    {"use x;", "scanner\t1\t11\t15\t21\nparser\t2\t3\t4\t9\n"},
    {"print 1", "scanner\t1\t10\t18\nparser\t3\t14\n"}, // a text without a tree
    {" ", "scanner\t1\nparser\t2\t3\n"},
};

TEST_F(Coverage, NamesTheRulesThatEachTextUses)
{
    Start();
    Parse("print 1;");
    EXPECT_FALSE(m_Info->IsOptionValid("COVERAGE"));
    SetOption("REPORT_COVERAGE", "1");
    for (const SCoverageCase& row : kCoverageCases) {
        SCOPED_TRACE(row.text);
        SetOption("COVERAGE", "");
        Parse(row.text);
        EXPECT_EQ(Used(), row.used);
        SetOption("COVERAGE", "");
        m_Parser.set_Query(row.text);
        m_Parser.FastParse();
        EXPECT_EQ(Used(), row.used);
    }
    Parse(""); // which nobody parses
    EXPECT_EQ(Used(), "scanner\nparser\n");
}

TEST_F(Coverage, IsOfTheParseThatStands)
{
    SetOption("REPORT_COVERAGE", "1");
    SetOption("OPTION_VARYING_PARSING", "YES");
    Start();
    // the second attempt reads the quotes otherwise, and needs no rule for errors
    Parse("print \"x\";");
    EXPECT_EQ(Used(), "scanner\t1\t10\t16\t21\nparser\t2\t3\t4\t5\t13\n");
}

class LostText : public ParserTest
{
protected:
    std::string Lost(const char* text)
    {
        Parse(text);
        return Option<Uve::U8CString>("LOST_TEXT");
    }
};

struct SLostCase
{
    const char* text;
    const char* list;
};

const SLostCase kLostCases[] = {
    {"print 1; /* closed */", ""},
    // the token stands for what goes with it
    {"print 1 2 3; print 4;", "skipped\t1\t1\t0\t11\t1\t\n"},
    // an error soon after another one is quiet, and its text isn't
    {"print ;print = 2;\nuse \"x\";", "skipped\t1\t1\t0\t5\t1\t\nskipped\t1\t8\t7\t9\t0\t\n"},
    {"use 1; use 2; use 3; use 4; use 5; use 6; use 7; use 8;",
     "skipped\t1\t1\t0\t5\t1\t\nskipped\t1\t8\t7\t5\t0\t\nskipped\t1\t15\t14\t5\t0\t\n"
     "skipped\t1\t22\t21\t5\t0\t\nskipped\t1\t29\t28\t5\t0\t\nskipped\t1\t36\t35\t5\t0\t\n"
     "skipped\t1\t43\t42\t5\t0\t\nskipped\t1\t50\t49\t5\t0\t\n"},
    // what was read before the error goes with it, characters counted as such
    {"begin print '\xC3\xA9'; print '\xC3\xA9' + ; end;", "skipped\t1\t18\t18\t12\t1\t\n"},
    // a condition that is never left is told where it began, a last one that was left isn't
    {"print 1; /* a */\nprint 2; /* b", "unfinished\t2\t10\t26\t4\t0\tCOMMENT\n"},
    // up to the very end
    {"print 1; print", "skipped\t1\t10\t9\t5\t1\t\n"},
    {"begin print 1 2; print", "skipped\t1\t7\t6\t9\t1\t\nskipped\t1\t18\t17\t5\t0\t\n"},
    {"print 1 1; /*", "skipped\t1\t1\t0\t9\t1\t\nunfinished\t1\t12\t11\t2\t0\tCOMMENT\n"},
};

TEST_F(LostText, IsTheTextThatRecoveryThrewAwayAndWhatIsOpenAtTheEnd)
{
    SetOption("REPORT_LOST_TEXT", "1");
    Start();
    for (const auto& c : kLostCases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Lost(c.text), c.list);
        m_Parser.set_Query(c.text);
        m_Parser.FastParse();
        EXPECT_STREQ(Option<Uve::U8CString>("LOST_TEXT").c_str(), c.list);
    }
}

// Errors in what a later error throws away as a whole.
TEST(LostTextList, AStretchInsideALongerOneIsPartOfIt)
{
    CSQLGrammarParserImplementation found;
    const std::string query = "0123 5678 ABCD";
    found.set_Query(query);
    found.m_lstDiscarded = {{true, 2, 3}, {false, 1, 8}, {false, 5, 6}, {true, 14, 14}, {false, 10, 14}};
    const std::vector<SDiscardedText> stretches = found.DiscardedStretches();
    ASSERT_EQ(stretches.size(), 2u);
    EXPECT_EQ(stretches[0].begin, 1u);
    EXPECT_EQ(stretches[0].end, 8u);
    EXPECT_TRUE(stretches[0].isReported);
    EXPECT_EQ(stretches[1].begin, 10u);
    EXPECT_EQ(stretches[1].end, 14u);
    EXPECT_FALSE(stretches[1].isReported);
}

TEST(LostTextList, PlacesBeyondTheTextAreItsEnd)
{
    EXPECT_EQ(FormatLostText("a\nb", {}, SUnfinishedText{"COMMENT", 9}),
              "unfinished\t2\t2\t3\t0\t0\tCOMMENT\n");
}

TEST_F(LostText, IsThatOfTheAttemptThatStands)
{
    SetOption("REPORT_LOST_TEXT", "1");
    SetOption("OPTION_VARYING_PARSING", "YES");
    Start();
    EXPECT_EQ(Lost("print \"x\"; use \"y\"; /*"),
              "skipped\t1\t1\t0\t9\t1\t\nunfinished\t1\t21\t20\t2\t0\tCOMMENT\n");
    EXPECT_EQ(Lost("print \"x\";"), "");
}

TEST_F(LostText, TheSourceOfTheLanguageSaysWhereATextMayEnd)
{
    SetOption("REPORT_LOST_TEXT", "1");
    Start("-cb");
    EXPECT_EQ(Lost("print 1; -- a"), "");
}

TEST(UnfinishedText, IsThatOfTheInnermostConditionAndOfItsOwnBeginning)
{
    constexpr struct
    {
        const char* text;
        const char* condition; // empty: none
        std::size_t offset;
    } kCases[] = {
        {"a /* b */ -- c", "LINE", 10},
        {"a -- c\n", "", 0}, // back in the first condition, not in that which texts begin in
        {"a /* b */ /* c", "COMMENT", 10},
        {"", "", 0},
    };
    CSQLGrammarLexer lexer("States", false);
    lexer.yycreate();
    // entered from outside: a condition, another one in it, and back
    const std::string first = "a";
    lexer.set_Query(first, 60);
    for (const char* const condition : {"COMMENT", "LINE", "COMMENT"})
        lexer.SetState(lexer.m_mapStartConditions.at(condition));
    EXPECT_EQ(lexer.yylex(), 0);
    ASSERT_TRUE(lexer.Unfinished());
    EXPECT_EQ(lexer.Unfinished()->condition, "COMMENT");
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        const std::string text = c.text;
        lexer.set_Query(text, 60);
        while (lexer.yylex() != 0) {
        }
        EXPECT_EQ(lexer.Unfinished() ? lexer.Unfinished()->condition : "", c.condition);
        EXPECT_EQ(lexer.Unfinished() ? lexer.Unfinished()->offset : 0, c.offset);
    }
}

} // namespace
