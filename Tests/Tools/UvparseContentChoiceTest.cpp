#include "Tools/uvparse/ContentChoice.h"
#include "Tools/uvparse/LanguageReading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace uvparse;

namespace {

constexpr std::size_t kSize = 1000;

// `tokens` and `statements` lie evenly in the text.
SLanguageReading Reading(const char* language, std::size_t tokens, std::size_t statements,
                         std::vector<SStretch> lost = {}, std::vector<std::size_t> unexpected = {})
{
    SLanguageReading reading;
    reading.language = language;
    reading.openAt = kSize;
    reading.faultAt = unexpected.empty() ? kSize : unexpected.front();
    reading.fault = unexpected.empty() ? "" : "1:9: unexpected token 'x'";
    reading.lost = std::move(lost);
    reading.unexpected = std::move(unexpected);
    for (std::size_t i = 0; i < tokens; ++i)
        reading.tokens.push_back(i * kSize / tokens);
    for (std::size_t i = 0; i < statements; ++i)
        reading.statements.push_back({i * kSize / statements, (i + 1) * kSize / statements});
    return reading;
}

SLanguageReading OpenAt(std::size_t place, SLanguageReading reading)
{
    reading.openAt = place;
    return reading;
}

SLanguageReading Refused(const char* language, std::size_t at)
{
    SLanguageReading reading = Reading(language, 0, 0, {{at, kSize}}, {at});
    reading.isRefused = true;
    reading.hasTree = false;
    return reading;
}

struct SVerdictCase
{
    const char* rule;
    std::vector<SLanguageReading> readings;
    const char* text;
};

const SVerdictCase kVerdictCases[] = {
    {"what loses less",
     {Reading("A", 80, 8, {{0, 125}, {500, 510}}, {50}), Reading("B", 90, 10)},
     "taken for B: 10 of 10 statements are clean; A: 6 of 8, first at 1:9: unexpected token 'x'"},
    {"bytes say more than tokens",
     {Reading("A", 90, 10, {{0, 300}}, {50}), Reading("B", 90, 10, {{0, 5}, {300, 305}}, {1, 302})},
     "taken for B: 8 of 10 statements are clean, first at 1:9: unexpected token 'x'; A: 7 of 10, first at "
     "1:9: "
     "unexpected token 'x'"},
    {"then unexpected tokens",
     {Reading("A", 90, 10, {}, {50, 60}), Reading("B", 90, 10, {}, {50})},
     "taken for B: 9 of 10 statements are clean, first at 1:9: unexpected token 'x'; A: 9 of 10, first at "
     "1:9: "
     "unexpected token 'x'"},
    {"whole lines that are taken for data are no reading",
     {Reading("A", 20, 20), Reading("B", 90, 10, {{0, 90}}, {50})},
     "taken for B: 9 of 10 statements are clean, first at 1:9: unexpected token 'x'; A: 20 tokens instead of "
     "90"},
    {"nor is a comment that holds the text",
     {Reading("A", 0, 0), Reading("B", 90, 1)},
     "taken for B: 1 of 1 statement is clean; A: 0 tokens instead of 90"},
    {"half as many tokens are enough",
     {Reading("A", 45, 10), Reading("B", 90, 10, {{0, 9}})},
     "taken for A: 10 of 10 statements are clean; B: 9 of 10"},
    {"the first of two that are alike",
     {Reading("A", 90, 10), Reading("B", 90, 10), Reading("C", 90, 10, {{0, 9}})},
     "taken for A, though B reads it alike: 10 of 10 statements are clean; C: 9 of 10"},
    {"no token tells anything",
     {Reading("A", 0, 0), Reading("B", 0, 0), Reading("C", 0, 0)},
     "taken for A, though B and C read it alike: nothing is lost"},
    {"the best is bad, too",
     {Reading("A", 4, 1, {{100, 1000}}, {150}), Reading("B", 4, 1, {{100, 900}}, {150})},
     "taken for B, which reads it badly: 0 of 1 statement is clean, first at 1:9: unexpected token 'x'; A: 0 "
     "of 1, "
     "first at 1:9: unexpected token 'x'"},
    {"trees without statements",
     {Reading("A", 40, 0, {{100, 200}}, {150}), Reading("B", 40, 0, {{100, 110}, {300, 310}}, {150})},
     "taken for B: 20 of 1000 bytes are lost, first at 1:9: unexpected token 'x'; A: 100 of 1000 bytes are "
     "lost, "
     "first at 1:9: unexpected token 'x'"},
    {"a refusal is worse than any loss",
     {Refused("A", 990), Reading("B", 40, 1, {{0, 900}}, {5})},
     "taken for B, which reads it badly: 0 of 1 statement is clean, first at 1:9: unexpected token 'x'; A: "
     "can't be "
     "read, first at 1:9: unexpected token 'x'"},
    {"of two refusals the later one",
     {Refused("A", 10), Refused("B", 700)},
     "taken for B, which reads it badly: can't be read, first at 1:9: unexpected token 'x'; A: can't be "
     "read, first "
     "at 1:9: unexpected token 'x'"},
    {"a statement that the cut leaves open is no loss",
     {OpenAt(600, Reading("A", 90, 10, {{600, 1000}})),
      Reading("B", 90, 10, {{300, 310}, {700, 710}}, {305, 705})},
     "taken for A: 6 of 6 statements are clean; B: 5 of 6, first at 1:9: unexpected token 'x'"},
    {"nor is what comes after it evidence",
     {OpenAt(600, Reading("A", 90, 10, {{600, 1000}})), Reading("B", 90, 10, {{700, 710}}, {705})},
     "taken for A, though B reads it alike: 6 of 6 statements are clean"},
};

TEST(UvparseContentChoice, BestReaderIsTold)
{
    for (const auto& c : kVerdictCases) {
        SCOPED_TRACE(c.rule);
        EXPECT_EQ(VerdictText(c.readings, JudgeReadings(c.readings), 0), c.text);
    }
    const std::vector<SLanguageReading> two = {Reading("A", 9, 3), Reading("B", 9, 3, {{0, 2}})};
    EXPECT_EQ(VerdictText(two, JudgeReadings(two), kSize),
              "taken for A by its first 1000 bytes: 3 of 3 statements are clean; B: 2 of 3");
}

SFinding Finding(enFinding kind, std::size_t offset, std::size_t length, bool isReported = false)
{
    SFinding finding;
    finding.kind = kind;
    finding.offset = offset;
    finding.length = length;
    finding.isReported = isReported;
    return finding;
}

struct SOpenCase
{
    std::vector<SFinding> findings;
    std::size_t openAt; // of the piece
};

TEST(UvparseContentChoice, FaultsOfTheCutAreKnown)
{
    using enum enFinding;
    const std::string text = "select 1;\nselect a,\n b from\n"; // cut after a line
    const SOpenCase cases[] = {
        {{}, 28},
        {{Finding(UnexpectedToken, 7, 1), Finding(SkippedText, 0, 8, true)}, 28},
        {{Finding(UnfinishedText, 10, 4)}, 10},
        {{Finding(UnexpectedToken, 27, 0), Finding(SkippedText, 10, 17, true)}, 10}, // the end was unexpected
        {{Finding(UnexpectedToken, 17, 1), Finding(SkippedText, 10, 17, true)}, 28}, // a token before it was
        {{Finding(UnexpectedToken, 7, 1), Finding(SkippedText, 10, 17)}, 10},        // nobody knows
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        SParseResult result;
        result.isParsed = true;
        result.findings = c.findings;
        EXPECT_EQ(ReadingOf("A", result, text, text.size(), true).openAt, c.openAt);
        EXPECT_EQ(ReadingOf("A", result, text, text.size(), false).openAt, text.size());
    }
    // A parser without recovery gives up there, and has read all the same.
    SParseResult given;
    given.findings = {Finding(UnexpectedToken, 27, 0)};
    EXPECT_FALSE(ReadingOf("A", given, text, text.size(), true).isRefused);
    EXPECT_TRUE(ReadingOf("A", given, text, text.size(), false).isRefused);
    given.findings = {Finding(UnexpectedToken, 7, 1)};
    const SLanguageReading refused = ReadingOf("A", given, text, text.size(), true);
    EXPECT_TRUE(refused.isRefused);
    ASSERT_EQ(refused.lost.size(), 1u);
    EXPECT_EQ(refused.lost.front().begin, 7u);
}

TEST(UvparseContentChoice, TreesTellTokensAndStatementsByTheirPlaceInTheText)
{
    // Flattening has taken the carriage returns; the statement of a delimiter alone isn't one.
    const std::string text = "--\r\na<b\r\n;\f ; c";
    const std::string tree = "<?xml version=\"1.0\" ?>\n<SQL><T__SPACE type=\"TOKEN\">--\n</T__SPACE>"
                             "<full_pl_sql_statement><T__ID>a</T__ID><T__LESS>&lt;</T__LESS><T__ID>b</T__ID>"
                             "<T__SPACE>\n</T__SPACE><pl_sql_statement_delimiter><T__SEMI>;</T__SEMI>"
                             "</pl_sql_statement_delimiter></full_pl_sql_statement><T__SPACE> </T__SPACE>"
                             "<full_pl_sql_statement><pl_sql_statement_delimiter><T__SEMI>;</T__SEMI>"
                             "</pl_sql_statement_delimiter></full_pl_sql_statement><T__SPACE> </T__SPACE>"
                             "<full_pl_sql_statement><T__ID>c</T__ID></full_pl_sql_statement></SQL>";
    const STreeOutline outline = OutlineOf(tree, text);
    EXPECT_EQ(outline.tokens, (std::vector<std::size_t>{4, 5, 6, 9, 12, 14}));
    ASSERT_EQ(outline.statements.size(), CountStatements(tree));
    ASSERT_EQ(outline.statements.size(), 2u);
    EXPECT_EQ(outline.statements[0].begin, 4u);
    EXPECT_EQ(outline.statements[1].begin, 14u);
    EXPECT_EQ(outline.statements[1].end, text.size());
}

TEST(UvparseContentChoice, BeginningEndsAfterALineOrACharacter)
{
    EXPECT_EQ(BeginningOf("ab\ncd\nef", 8), "ab\ncd\nef");
    EXPECT_EQ(BeginningOf("ab\ncd\nef", 7), "ab\ncd\n");
    EXPECT_EQ(BeginningOf("ab\ncd\nef", 6), "ab\ncd\n");
    EXPECT_EQ(BeginningOf("ab\ncd\nef", 5), "ab\n");
    EXPECT_EQ(BeginningOf("a\xC3\xA9\xC3\xA9", 4), "a\xC3\xA9");
}

} // namespace
