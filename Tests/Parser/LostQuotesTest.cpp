// Strings without their closing quote, and what is left of the statements after them.
#include "Interfaces/UVDBResults.h"
#include "Tests/Parser/PipelineFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

class LostQuotes : public PipelineTest
{};

// Those that were read, without the broken ones.
int Statements(std::string_view tree)
{
    int count = 0;
    for (std::size_t at = tree.find("<print_statement"); at != std::string_view::npos;
         at = tree.find("<print_statement", at + 1))
        ++count;
    return count;
}

struct SLostQuoteCase
{
    const char* text;
    std::size_t before; // unexpected tokens without the option
    std::size_t after;
    int statements; // with it
};

constexpr SLostQuoteCase kLostQuotes[] = {
    {"print 'a';\nprint 'b\nc';\nprint 'd';\n", 0, 0, 3}, // a string of two lines is none
    {"print 'a;\nprint 'b';\nprint 'c';\n", 1, 1, 2},     // its closing quote
    {"print a';\nprint 'b';\nprint 'c';\nprint 'd';\n", 1, 1, 3},
    {"print a b';\nprint 'b';\nprint 'c';\nprint 'd';\n", 1, 1, 3}, // the error stands before the quote
    {"print b c; d';\nprint 'e';\nprint 'f';\n", 1, 1, 2},          // an error that isn't told stands at it
    {"print 'a\nb' c;\nprint 'd';\n", 1, 1, 1}, // the error has nothing to do with the string
    {"print 'a;\nprint b;\n", 1, 1, 1},         // no other quote follows
};

TEST_F(LostQuotes, LostQuotesCostTheirStatement)
{
    for (const SLostQuoteCase& c : kLostQuotes) {
        SCOPED_TRACE(c.text);
        m_Options.closesLostQuotes = false;
        EXPECT_EQ(Parse(c.text), UVDB_OK);
        EXPECT_EQ(m_Parsed.findings.unexpected.size(), c.before);
        m_Options.closesLostQuotes = true;
        m_Warnings = 0;
        EXPECT_EQ(Parse(c.text), UVDB_OK);
        EXPECT_EQ(m_Parsed.findings.unexpected.size(), c.after);
        EXPECT_EQ(m_Warnings, c.after); // of the reading that stands
        EXPECT_EQ(m_Grammar.Parser()->HasErrors(), c.after > 0);
        const std::string tree = Result();
        EXPECT_EQ(TextOfTree(tree), c.text);
        EXPECT_EQ(Statements(tree), c.statements) << tree;
    }
}

// What is wrong there isn't the string. Read without its quote the statement falls to pieces, all of which are lost.
TEST_F(LostQuotes, CuttingUpWhatIsLostIsNoGain)
{
    m_Options.closesLostQuotes = true;
    EXPECT_EQ(Parse("print 'a\nb;\nc;' d;\nprint 2;\n"), UVDB_OK);
    ASSERT_EQ(m_Parsed.findings.unexpected.size(), 1U);
    EXPECT_EQ(m_Parsed.findings.unexpected.front().text, "d");
    EXPECT_EQ(Statements(Result()), 1);
}

} // namespace
