#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/MessageForms.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace uvparse;

namespace {

struct SPlace
{
    std::size_t offset;
    std::size_t length;
};

std::string WriteAll(enMessageForm form, const std::vector<SMessage>& messages)
{
    std::string written;
    const auto writer = MakeMessageWriter(form, [&](std::string_view piece) { written += piece; });
    for (const SMessage& message : messages)
        writer->Write(message);
    return written;
}

std::string Messages(const std::string& text, const std::vector<SPlace>& tokens,
                     const std::vector<SFinding>& others = {})
{
    std::vector<SFinding> findings = others;
    for (const SPlace& token : tokens)
        findings.push_back({enFinding::UnexpectedToken, token.offset, token.length});
    return WriteAll(enMessageForm::Text, MessagesOf({"f.sql", "PostgreSQL", text, {}},
                                                    SPreparation{text, text, {}, {}}, std::move(findings)));
}

TEST(UvparseTokens, MessagesPointAtTheToken)
{
    EXPECT_EQ(Messages("select\n\t\xC3\xA9 form t;", {{11, 4}}), "f.sql:2:4: error: unexpected token 'form'\n"
                                                                 "     \xC3\xA9 form t;\n"
                                                                 "       ^\n");
    EXPECT_EQ(Messages("a b", {{2, 1}, {0, 1}}),
              "f.sql:1:1: error: unexpected token 'a'\n    a b\n    ^\n"
              "f.sql:1:3: error: unexpected token 'b'\n    a b\n      ^\n");
    EXPECT_EQ(Messages("a\n", {{2, 0}}), "f.sql:2:1: error: unexpected end of text\n");
    EXPECT_EQ(Messages("'x\ny'", {{0, 5}}), "f.sql:1:1: error: unexpected token ''x...'\n    'x\n    ^\n");
    EXPECT_EQ(Messages("\x1B[2J", {{0, 4}}), "f.sql:1:1: error: unexpected token ' [2J'\n     [2J\n    ^\n");
    EXPECT_EQ(Messages("ab", {{7, 9}}), "f.sql:1:3: error: unexpected end of text\n    ab\n      ^\n");
}

struct SCaretCase
{
    const char* before; // the token, of one character
    const char* shown;
    std::size_t column;
    std::size_t cell; // of the caret
};

const SCaretCase kCaretCases[] = {
    {"a\t\tb", "a  b", 5, 4},                                          // a tab is one blank
    {"\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x97\xA5\xE6\x9C\xAC", 3, 4},    // wide characters
    {"\xF0\x9F\x98\x80 ", "\xF0\x9F\x98\x80 ", 3, 3},                  // wide, beyond the first plane
    {"e\xCC\x81", "e\xCC\x81", 3, 1},                                  // an accent of its own
    {"\xE2\x80\xAE\xC2\x9B", "\xEF\xBF\xBD\xEF\xBF\xBD", 3, 2},        // what a terminal must not obey
    {"\xEF\xBC\xA1\t\xE3\x81\xAF", "\xEF\xBC\xA1 \xE3\x81\xAF", 4, 5}, // both together
};

TEST(UvparseTokens, CaretsCountTheCellsOfATerminal)
{
    for (const auto& c : kCaretCases) {
        SCOPED_TRACE(c.shown);
        const std::string before = c.before;
        EXPECT_EQ(Messages(before + "x", {{before.size(), 1}}),
                  "f.sql:1:" + std::to_string(c.column) + ": error: unexpected token 'x'\n    " + c.shown +
                      "x\n    " + std::string(c.cell, ' ') + "^\n");
    }
}

TEST(UvparseTokens, MessagesTellWhatWasExpected)
{
    std::vector<SFinding> findings;
    ReadUnexpectedTokens("1\t1\t0\t1\ta\t7\tT__A\t';'\tend of "
                         "text\n1\t3\t2\t1\tb\t8\tT__B\tname\n1\t5\t4\t1\tc\t9\tT__C\t1\t2\t3\t4\t5\n"
                         "1\t6\t5\t0\t\t9\t\n",
                         findings);
    ASSERT_EQ(findings.size(), 4u);
    EXPECT_EQ(findings[1].state, 8);
    EXPECT_EQ(findings[1].name, "T__B");
    EXPECT_EQ(findings[3].name, ""); // nothing is called the end of the text
    EXPECT_EQ(Messages("a b c", {}, findings),
              "f.sql:1:1: error: unexpected token 'a'; expected ';' or end of text\n    a b c\n    ^\n"
              "f.sql:1:3: error: unexpected token 'b'; expected name\n    a b c\n      ^\n"
              "f.sql:1:5: error: unexpected token 'c'; expected 1, 2, 3 or 4\n    a b c\n        ^\n"
              "f.sql:1:6: error: unexpected end of text\n    a b c\n         ^\n");
}

TEST(UvparseTokens, LongLinesAreShownAroundThePlace)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "\xC3\xA9";
    const std::string shown = Messages(text + "!" + text, {{2000, 1}});
    const std::size_t line = shown.find("\n    ") + 5;
    const std::size_t lineEnd = shown.find('\n', line);
    EXPECT_EQ(shown.substr(0, line), "f.sql:1:1001: error: unexpected token '!'\n    ");
    EXPECT_EQ(lineEnd - line, 2 * (60 + 59) + 1u);
    EXPECT_EQ(shown.substr(lineEnd), "\n    " + std::string(60, ' ') + "^\n");
}

TEST(UvparseTokens, LostTextHasMessagesOfItsOwnUnlessATokenStandsForIt)
{
    EXPECT_EQ(Messages("a b;\nc\nd; /* e", {{2, 1}},
                       {{enFinding::UnfinishedText, 10, 4},
                        {enFinding::SkippedText, 5, 3},
                        {enFinding::SkippedText, 0, 3, true}}),
              "f.sql:1:3: error: unexpected token 'b'\n    a b;\n      ^\n"
              "f.sql:2:1: error: skipped 'c...'\n    c\n    ^\n"
              "f.sql:3:4: error: never closed: '/* e'\n    d; /* e\n       ^\n");
    // one place, one message
    EXPECT_EQ(Messages("/* e", {{0, 2}}, {{enFinding::UnfinishedText, 0, 4}}),
              "f.sql:1:1: error: never closed: '/* e'\n    /* e\n    ^\n");
}

TEST(UvparseTokens, ListsAreReadWhateverTheirTextsHold)
{
    std::vector<SFinding> lost;
    ReadLostText("skipped\t1\t1\t3\t4\t1\t\nx\nunfinished\t2\t1\t9\t5\t0\tA B\n", lost);
    ASSERT_EQ(lost.size(), 2u);
    EXPECT_EQ(lost[0].kind, enFinding::SkippedText);
    EXPECT_TRUE(lost[0].isReported);
    EXPECT_EQ(lost[1].kind, enFinding::UnfinishedText);
    EXPECT_EQ(lost[1].offset, 9u);
    EXPECT_EQ(lost[1].length, 5u);

    std::vector<SFinding> tokens;
    ReadUnexpectedTokens("1\t2\t3\t4\tfoo bar\n\n2\t1\t10\t0\t\nnonsense\n3\t1\t12\t1\t\t\n", tokens);
    ASSERT_EQ(tokens.size(), 3u);
    EXPECT_EQ(tokens[0].offset, 3u);
    EXPECT_EQ(tokens[0].length, 4u);
    EXPECT_EQ(tokens[1].offset, 10u);
    EXPECT_EQ(tokens[2].offset, 12u);
}

} // namespace
