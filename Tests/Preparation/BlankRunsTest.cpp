#include "Preparation/Formatters/BlankRuns.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

namespace {

struct SBlanksCase
{
    const char* line;
    const char* collapsed;
};

constexpr SBlanksCase kCases[] = {
    {"", ""},
    {"   ", " "},
    {"A  'x  y'  B", "A 'x  y' B"},
    {"A \t B\f\vC\tD", "A B C\tD"},      // a single tab stays what it is
    {"A\r  B\r\rC", "A\r B\r\rC"},       // "\r" is no blank
    {"'it''s  ok'  x", "'it''s  ok' x"}, // a doubled quote closes nothing
    {"''  x  ''", "'' x ''"},            // and opens nothing
    {"'a  \"  b", "'a  \" b"},           // any lone quote closes
    {"'''a  b'''  c", "'''a  b''' c"},
    {"'a  ''''  b", "'a  '''' b"}, // an even run of four or more closes
    {"''''  b  '", "'''' b '"},
    {"\"'  a", "\"' a"}, // two runs, not one
    {"'  open", "'  open"},
};

TEST(BlankRuns, LiteralsKeepTheirBlanks)
{
    for (const SBlanksCase& c : kCases)
        EXPECT_EQ(RemoveDuplicatedDelimiters(c.line), c.collapsed) << c.line;
}

// The rule as two expressions: one finds the runs of blanks, the other the quotes in front of each.
std::string CollapseByExpressions(const std::string& line)
{
    static const boost::regex blanks("[\\t\\f\\v ][\\t\\f\\v ]+");
    static const boost::regex quotes("(?<!')'(?!')|(?<!\")\"(?!\")|\"\"\"+|'''+");
    char state = ' ';
    std::string::const_iterator from = line.begin();
    return boost::regex_replace(line, blanks, [&](const boost::smatch& match) -> std::string {
        for (boost::sregex_iterator hit(from, match[0].first, quotes), end; hit != end; ++hit) {
            const bool isOdd = hit->length() % 2 != 0;
            state = isOdd && state == ' ' ? *(*hit)[0].first : ' ';
        }
        from = match[0].second;
        return state == ' ' ? " " : match.str();
    });
}

TEST(BlankRuns, AgreeWithExpressions)
{
    std::mt19937 random(20);
    for (int round = 0; round < 4000; ++round) {
        const std::string line = RandomText(random, {"a", "'", "\"", " ", "  ", "\t", "''"}, 16);
        ASSERT_EQ(RemoveDuplicatedDelimiters(line), CollapseByExpressions(line)) << line;
    }
}

TEST(BlankRuns, AnySize)
{
    const std::string blanks(10 << 20, ' ');
    EXPECT_EQ(RemoveDuplicatedDelimiters(blanks), " ");
    EXPECT_TRUE(RemoveDuplicatedDelimiters("'" + blanks) == "'" + blanks);
    EXPECT_TRUE(RemoveDuplicatedDelimiters(Repeated("a  ' ", 1 << 20)) == Repeated("a ' a  ' ", 1 << 19));
}

} // namespace
