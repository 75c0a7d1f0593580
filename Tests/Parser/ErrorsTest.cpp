#include "Parser/ParseErrors.h"
#include "Parser/ParsedText.h"
#include "Tests/Parser/ParserFixture.h"

namespace {

TEST(ParserErrors, LineNumberIsTheFirstPieceOfTheMessage)
{
    struct
    {
        const char* message;
        int line;
    } constexpr kCases[] = {
        {"12 'select'", 12}, {"12", -1}, {"", -1}, {"word rest", 0}, {"7x y", 7}, {"-3 x", -3},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(ExtractLineNumber(c.message), c.line) << c.message;
}

TEST(ParserErrors, PlaceQuotesTheLineWithItsNeighbours)
{
    constexpr unsigned long kNone = static_cast<unsigned long>(-1);
    struct
    {
        unsigned long line;
        const char* text;
        const char* quoted; // null: the place is left alone
    } constexpr kCases[] = {
        {1, "a", "a"},
        {1, "a\nb\nc", "a\nb"},
        {2, "a\nb\nc\nd", "a\nb\nc"},
        {3, "a\nb\nc", "b\nc"},
        {1, "a\nb", "a\nb"},
        {2, "a\nb", "a\nb"},
        {2, "a\n", "a\n"}, // a line feed opens a line, though an empty one
        {1, "a\n", "a\n"},
        {3, "\n\n\n", "\n\n"},
        {2, "a", nullptr},
        {3, "a\n", nullptr},
        {0, "a\nb", nullptr},
        {kNone, "a\nb", nullptr},
        {kNone - 1, "a\nb", nullptr},
        {1, "", nullptr},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.line << " of " << testing::PrintToString(c.text));
        std::string place = "before";
        GetErrorPlace(c.line, c.text, place);
        EXPECT_EQ(place, c.quoted ? "Code lines:\n<<<<\n" + std::string(c.quoted) + "\n>>>>\n" : "before");
    }
}

TEST(ParserErrors, RepeatedTokenStandsOnceInTheList)
{
    std::multimap<unsigned long, std::string> tokens = {{1, "x"}, {2, "x"}, {2, "y"}};
    SParsedText parsed;
    SetLastError(parsed, 3, "text", "native", &tokens);
    EXPECT_EQ(DescriptionOf(parsed.error.get()), "text");
    EXPECT_EQ(ErrorListOf(parsed.error.get()), (std::map<std::string, int>{{"x", 1}, {"y", 1}}));
    SetLastError(parsed, 3, nullptr);
    EXPECT_EQ(DescriptionOf(parsed.error.get()), "");
}

class ParserErrorRecords : public ParserTest
{};

TEST_F(ParserErrorRecords, FailedParseTellsMessagePlaceAndTokens)
{
    Start();
    EXPECT_EQ(Parse("print 1;\nprint 2 2\n+"), UVDB_ERROR);
    EXPECT_EQ(LastDescription(), "2 '2' Code lines:\n<<<<\nprint 1;\nprint 2 2\n+\n>>>>\n");
    EXPECT_EQ(LastErrorList(), (std::map<std::string, int>{{"2", 1}}));
    EXPECT_NE(m_Log.Text().find("\nFAILED: 2 '2' Code lines:\n"), std::string::npos);
    EXPECT_EQ(Tree(), "");

    EXPECT_EQ(Parse("print 1;"), UVDB_OK);
    EXPECT_EQ(LastDescription(), "");
}

TEST_F(ParserErrorRecords, WarningsAddUpOverParsesByObjectType)
{
    using Counts = std::map<int, unsigned long>;
    using Types = std::map<std::string, int>;
    Start();

    Parse("print 1;");
    EXPECT_EQ(Option<Counts>("WARNINGS_COUNT"), (Counts{{0, 0}})); // the entry stands without a warning too
    Parse("print 2 2; print 3; print 2 2;");
    EXPECT_EQ(Option<Counts>("WARNINGS_COUNT"), (Counts{{0, 2}}));
    SetOption("CONVERTED_OBJECT_TYPE", 7);
    Parse("print 5 +;");
    EXPECT_EQ(Option<Counts>("WARNINGS_COUNT"), (Counts{{0, 2}, {7, 1}}));
    EXPECT_EQ(Option<Types>("WARNINGS_TYPES"), (Types{{"2", 2}, {";", 1}}));
    Parse("print 1 1"); // a parse that fails isn't counted
    EXPECT_EQ(Option<Counts>("WARNINGS_COUNT"), (Counts{{0, 2}, {7, 1}}));
}

} // namespace
