// Places that no match goes beyond, and tokens that cover several lines.
#include "Grammar/UVGrammarLexer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

// The colored ranges, of which each is "color from to" on a line, moved by `by` bytes.
std::string Moved(const std::string& coloring, int by)
{
    std::istringstream in(coloring);
    std::string moved;
    for (int color = 0, from = 0, to = 0; in >> color >> from >> to;)
        moved +=
            std::to_string(color) + ' ' + std::to_string(from + by) + ' ' + std::to_string(to + by) + '\n';
    return moved;
}

std::string Coloring(CSQLGrammarLexer& lexer, const std::string& text, std::vector<std::size_t> walls)
{
    lexer.m_Extension.m_strColoring.clear();
    lexer.set_Query(text, 0);
    lexer.set_Walls(std::move(walls));
    while (lexer.yylex() != 0) {
    }
    return Moved(lexer.m_Extension.m_strColoring, 0);
}

// A comment, a string or a word never goes beyond a wall, and what follows is scanned as a text of its own.
TEST(ScannerWalls, EachPartIsScannedByItself)
{
    CSQLGrammarLexer lexer("Common", false);
    lexer.yycreate();
    std::mt19937 random(1);
    const std::string bytes = "ab'' \n*/-\";1";
    for (int run = 0; run < 2000; ++run) {
        std::string text;
        std::vector<std::size_t> walls;
        std::string expected;
        for (int part = 0; part < 3; ++part) {
            std::string piece;
            while (piece.empty() || random() % 12 != 0)
                piece += bytes[random() % bytes.size()];
            expected += Moved(Coloring(lexer, piece, {}), static_cast<int>(text.size()));
            text += piece;
            walls.push_back(text.size());
        }
        walls.push_back(text.size() + 5); // beyond the end
        ASSERT_EQ(Coloring(lexer, text, walls), expected) << text;
        ASSERT_EQ(lexer.yylineno, 1 + std::ranges::count(text, '\n')) << text;
    }
    // A wall counts for one text.
    EXPECT_EQ(Coloring(lexer, "'ab'", {2}), "0 0 0\n2 1 1\n2 2 2\n0 3 3\n");
    EXPECT_EQ(Coloring(lexer, "'ab'", {}), "4 0 3\n");
}

// The delimiter of a string that a wall cuts off isn't that of the strings after it.
TEST(ScannerWalls, NoDelimiterIsKept)
{
    CSQLGrammarLexer lexer("Saved", false);
    lexer.yycreate();
    Coloring(lexer, "$a$ x $b$ y $b$ z", {6});
    EXPECT_FALSE(lexer.Unfinished());
    Coloring(lexer, "$a$ x $b$ y $a$ z", {6});
    ASSERT_TRUE(lexer.Unfinished());
    EXPECT_EQ(lexer.Unfinished()->offset, 6U);
}

TEST(ScannerWalls, LongTextsAreTokensOfSeveralLines)
{
    struct SRow
    {
        const char* text;
        std::vector<std::string> longTexts; // each with the number of its last line
    };
    const SRow rows[] = {
        {"print 'a'; print 'b'", {}},
        {"print 'a\nb' + 'c\n\nd';", {"'a\nb' 2", "'c\n\nd' 4"}},
        {"/* a\nb */ print 'c\nd' /*\n*/", {"'c\nd' 3"}},
        {"print 'a\n", {}}, // the quote is a token of its own
    };
    CSQLGrammarLexer lexer("Common", false);
    lexer.yycreate();
    lexer.set_LongTextsWanted(true);
    for (const SRow& row : rows) {
        const std::string text = row.text;
        Coloring(lexer, text, {});
        std::vector<std::string> longTexts;
        for (const SLongText& found : lexer.LongTexts())
            longTexts.push_back(text.substr(found.begin, found.end - found.begin) + ' ' +
                                std::to_string(found.lastLine));
        EXPECT_EQ(longTexts, row.longTexts) << text;
    }
    lexer.set_LongTextsWanted(false);
    Coloring(lexer, "'a\nb'", {});
    EXPECT_TRUE(lexer.LongTexts().empty());
}

} // namespace
