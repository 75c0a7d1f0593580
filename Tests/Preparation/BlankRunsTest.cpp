#include "Preparation/Formatters/BlankRuns.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

namespace {

constexpr std::pair<const char*, const char*> kCases[] = {
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
    for (const auto& [line, collapsed] : kCases)
        EXPECT_EQ(RemoveDuplicatedDelimiters(line), collapsed) << line;
}

TEST(BlankRuns, AnySize)
{
    const std::string blanks(10 << 20, ' ');
    EXPECT_EQ(RemoveDuplicatedDelimiters(blanks), " ");
    EXPECT_TRUE(RemoveDuplicatedDelimiters("'" + blanks) == "'" + blanks);
    EXPECT_TRUE(RemoveDuplicatedDelimiters(Repeated("a  ' ", 1 << 20)) == Repeated("a ' a  ' ", 1 << 19));
}

} // namespace
