#include "Parser/UVParserReports.h"
#include "Tests/Parser/ParserFixture.h"

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
    EXPECT_EQ(FormatUnexpectedTokens(query, {Token(0, "a"), Token(7, "\xE2\x82\xAC"), Token(12, "z")}),
              "1\t1\t0\t1\ta\n2\t4\t7\t3\t\xE2\x82\xAC\n4\t1\t12\t1\tz\n");
}

TEST(UnexpectedTokens, OrderOfArrivalIsKept)
{
    EXPECT_EQ(FormatUnexpectedTokens("ab", {Token(1, "b"), Token(0, "a"), Token(99, "")}),
              "1\t2\t1\t1\tb\n1\t1\t0\t1\ta\n1\t3\t99\t0\t\n");
}

TEST(UnexpectedTokens, TokenStaysOnItsLineOfTheList)
{
    EXPECT_EQ(FormatUnexpectedTokens("'a\tb\r\nc'", {Token(0, "'a\tb\r\nc'")}), "1\t1\t0\t8\t'a b  c'\n");
    EXPECT_EQ(FormatUnexpectedTokens("text", {}), "");
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

} // namespace
