// Large and deep texts, and the places where something grows.
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/ModelEngine.h"
#include "Tests/Support/Repeated.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::size_t CountOf(const std::string& text, std::string_view piece)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + piece.size()))
        ++count;
    return count;
}

// Parses cleanly and keeps every byte.
SParseOutcome ParseClean(const std::string& grammar, const std::string& text)
{
    CEngine engine(grammar);
    SParseOutcome outcome = engine.Parse(text);
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.lastError, "");
    EXPECT_EQ(engine.m_strException, "");
    EXPECT_TRUE(TextOfTree(outcome.tree) == text);
    EXPECT_EQ(engine.m_Parser.Fragments().Count(), 0u);
    return outcome;
}

TEST(EngineLimits, MatchesGrowPastTheFirstTextSize)
{
    for (const std::size_t length :
         {198u, 199u, 200u, 201u, 202u, 399u, 400u, 401u, 799u, 800u, 801u, 100000u}) {
        SCOPED_TRACE(length);
        const std::string word = Repeated("a", length);
        ParseClean("Nesting", word + ";");
        ParseClean("Nesting", word + " ," + word + ";" + word + ";");
        // the growth happens while the match is to be given back to a head, or to its first byte
        EXPECT_EQ(Sketch(ParseClean("Trailing", word + " =>").tree),
                  "words(none() NAME'" + word + "' ' ' SIGN'=>')");
        EXPECT_EQ(Sketch(ParseClean("Less", "[SELECT " + word + "]").tree),
                  "words(none() subquery(OPEN'[' words(none() KEY'SELECT' ' ' WORD'" + word +
                      "') CLOSE']'))");
        CEngine engine("Nesting");
        for (int round = 0; round < 2; ++round) // the second text grows anew
            EXPECT_EQ(engine.Parse(word).lastError, "1 '" + word + "'");
    }
}

TEST(EngineLimits, StacksGrowWithTheNesting)
{
    // the states of the start and the list's beginning lie below the brackets
    for (const std::size_t depth :
         {195u, 196u, 197u, 198u, 199u, 200u, 395u, 396u, 397u, 398u, 399u, 400u, 1000u}) {
        SCOPED_TRACE(depth);
        const std::string text = Repeated("(", depth) + "a" + Repeated(")", depth) + ";";
        const SParseOutcome outcome = ParseClean("Nesting", text);
        EXPECT_EQ(CountOf(outcome.tree, "<nested>"), depth);
        EXPECT_EQ(CModelEngine("Nesting").Parse(text), outcome);
    }
}

TEST(EngineLimits, TheFullParserStackReachesAnyDepth)
{
    constexpr std::size_t kDepth = 100000;
    const SParseOutcome outcome =
        ParseClean("Nesting", Repeated("(", kDepth) + "a" + Repeated(")", kDepth) + ";");
    EXPECT_EQ(CountOf(outcome.tree, "<nested>"), kDepth);
    EXPECT_EQ(CountOf(outcome.tree, "</nested>"), kDepth);
}

TEST(EngineLimits, ListsNestAsDeepAsTheyAreLong)
{
    constexpr std::size_t kItems = 300000;
    const SParseOutcome outcome = ParseClean("Nesting", Repeated("a, ", kItems - 1) + "b;");
    EXPECT_EQ(CountOf(outcome.tree, "<list>"), kItems - 1);
    EXPECT_EQ(CountOf(outcome.tree, "<item>"), kItems);
}

TEST(EngineLimits, OneLineOfMegabytes)
{
    const std::string word(5 << 20, 'a');
    ParseClean("Nesting", word + ";");
    ParseClean("Nesting", Repeated("a,b,(c),", (1 << 20) / 8) + "d;");
}

TEST(EngineLimits, SkippedTextOfMegabytes)
{
    const std::string comment = "/*" + std::string(5 << 20, '-') + "*/";
    const SParseOutcome outcome = ParseClean("Nesting", "a " + comment + "\n;");
    EXPECT_EQ(Sketch(outcome.tree), "lists(none() item(WORD'a') ' " + comment + "\\n' SEMI';')");
    // in small pieces, which all belong to one call of the scanner
    ParseClean("Nesting", "a" + Repeated(" /*-*/\n", 200000) + ";");
}

// Every byte of it takes six in the tree.
TEST(EngineLimits, TextOfNothingButEntities)
{
    const std::string quotes(50000, '"');
    ParseClean("Nesting", "/*" + quotes + "*/a;");
    CEngine engine("Saved");
    const std::string text = "$a$" + quotes + "$a$";
    EXPECT_TRUE(TextOfTree(engine.Parse(text).tree) == text);
}

TEST(EngineLimits, AnyNumberOfTokensIsThrownAway)
{
    CEngine engine("Recovery");
    const SParseOutcome outcome = engine.Parse("#" + Repeated(" a", 150000) + ";");
    EXPECT_EQ(engine.m_strException, "");
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.lastError, "1 'a'");
}

TEST(EngineLimits, ParsesGiveTheirFragmentsBack)
{
    CEngine engine("Nesting");
    for (const char* const text : {"a;", "((((a", "a;b", ")", "", "(a;"}) {
        engine.Parse(text);
        EXPECT_EQ(engine.m_Parser.Fragments().Count(), 0u) << text;
    }
    CEngine copies("CopyToken");
    copies.Parse("abbr abbr");
    EXPECT_EQ(copies.m_Parser.Fragments().Texts().size(), 0u);
    CEngine stuck("Stuck");
    EXPECT_TRUE(stuck.Parse("a y").hasThrown);
    EXPECT_EQ(stuck.m_Parser.Fragments().Count(), 0u);
}

TEST(EngineLimits, AScannerThatMatchesNothingStopsAndGoesOnWithTheNextText)
{
    CEngine engine("Stuck");
    EXPECT_TRUE(engine.Parse("y").hasThrown);
    EXPECT_NE(engine.m_strException, "");
    // one match of nothing, in the place where the last text got stuck
    const SParseOutcome next = engine.Parse("u");
    EXPECT_FALSE(next.hasThrown);
    EXPECT_EQ(Sketch(next.tree), "words(none() WORD'u')");
}

// A rule that pops more than the stack holds, and rules that are reduced for ever: no single entry is wrong.
TEST(EngineLimits, TablesThatReduceWithoutEndAreStopped)
{
    const struct
    {
        const char *file, *actions;
        std::vector<int> (*damage)(std::vector<int>);
    } damages[] = {
        {"Parser/r2.dat", "2 EMPTY SQL\n",
         [](std::vector<int> lengths) { return std::vector<int>(lengths.size(), 300); }},
        {"Parser/defgoto.dat", "2 CREATE_NODE SQL 1\n",
         [](std::vector<int> states) {
             // all but that of the whole text
             std::fill(states.begin() + 2, states.end(), 0);
             return states;
         }},
    };
    for (const auto& [file, actions, damage] : damages) {
        const CGrammarCopy copy("Tiny");
        copy.SetTable(file, damage(copy.Table(file)));
        copy.Write("Parser/actions.dat", actions);
        CEngine engine(copy.Name());
        EXPECT_TRUE(engine.Parse("ab ").hasThrown) << file;
        EXPECT_EQ(engine.m_Parser.Fragments().Count(), 0u) << file;
    }
}

TEST(EngineLimits, AnEndThatIsShiftedAgainAndAgainStops)
{
    // in the place of the last reduction the end is shifted, to any state
    const CGrammarCopy copy("Tiny");
    std::vector<int> table = copy.Table("Parser/table.dat");
    ASSERT_EQ(table[0], -2);
    const int states = static_cast<int>(copy.Table("Parser/pact.dat").size());
    int stopped = 0;
    for (int state = 1; state < states; ++state) {
        table[0] = state;
        copy.SetTable("Parser/table.dat", table);
        CEngine engine(copy.Name());
        for (const char* const text : {"", "ab ", "x", "aab b "})
            stopped += engine.Parse(text).hasThrown ? 1 : 0;
    }
    EXPECT_GT(stopped, 0);
}

} // namespace
