#include "Stylesheets/ConditionComments.h"

#include "Tests/Support/Repeated.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// The result, or the text of the exception in angle brackets.
std::string Outcome(const std::string& text)
{
    try {
        return ProcessGlobalVariables(text, "a", "b", "c");
    } catch (const std::runtime_error& error) {
        return std::string("<") + error.what() + ">";
    }
}

bool IsKept(const std::string& condition, const std::string& first, const std::string& second,
            const std::string& third)
{
    const std::string out =
        ProcessGlobalVariables("a<!--" + condition + "-->b<!--End Condition-->c", first, second, third);
    EXPECT_TRUE(out == "abc" || out == "ac") << out;
    return out == "abc";
}

TEST(ConditionComments, FieldsDecideWhatStays)
{
    struct SCase
    {
        const char *condition, *first, *second, *third;
        bool kept;
    };
    const SCase cases[] = {
        {"Condition:Alpha", "ALPHA", "x", "y", true},
        {"Condition:Alpha", "Alphab", "x", "y", false},
        {" \n Condition: \t Alpha", "alpha", "x", "y", true},
        {"Condition:Alpha ", "Alpha", "x", "y", false}, // a blank after a bare name: no condition
        {"Condition:Alpha/Beta", "alpha", "BETA", "y", true},
        {"Condition:Alpha/Beta", "alpha", "gamma", "y", false},
        {"Condition:Alpha/*", "alpha", "gamma", "y", true},
        {"Condition:Alpha/**", "alpha", "**", "y", true}, // two asterisks are a name like any other
        {"Condition:Alpha/**", "alpha", "gamma", "y", false},
        {"Condition:Alpha /Beta", "alpha", "beta", "y", false},
        {"Condition:*/Beta", "alpha", "beta", "y", false}, // the first name has no wildcard
        {"Condition:Alpha/*[*]", "alpha", "beta", "anything", true},
        {"Condition:Alpha/* \n[One; Two ]\n", "alpha", "beta", "two", true},
        {"Condition:Alpha/*[One;*]", "alpha", "beta", "three", true},
        {"Condition:Alpha/*[;;One;]", "alpha", "beta", "one", true},
        {"Condition:Alpha/*[One;;Two]", "alpha", "beta", "", true}, // between two semicolons stands nothing
        {"Condition:Alpha/*[One;Two;]", "alpha", "beta", "", false},
        {"Condition:Alpha/*[One Two]", "alpha", "beta", "one two", true},
        {"Condition:Alpha/*[One\n;Two]", "alpha", "beta", "two", false}, // no line feed in a list
        {"Condition:Alpha/*[One][Two]", "alpha", "beta", "one", false},
        {"Condition:Alpha[One]", "alpha", "beta", "one", false},
        {"Condition:Alpha/Beta[One", "alpha", "beta", "one", false},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << '"' << c.condition << "\" for " << c.first << ", " << c.second << ", " << c.third);
        EXPECT_EQ(IsKept(c.condition, c.first, c.second, c.third), c.kept);
    }
}

TEST(ConditionComments, CommentsPairOrThrow)
{
    constexpr char kExpectedEnd[] = "<Expected End Condition comment.>";
    constexpr char kNotClosed[] = "<The previous Condition comment is not closed.>";
    constexpr char kNotOpen[] = "<The Condition comment should be before End Condition comment.>";
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"<x/><!-- a. note --><y/>", "<x/><!-- a. note --><y/>"},
        {"<x/><!-- a note --><y/>", kExpectedEnd},
        {"<!---->", kExpectedEnd},
        {"<!--Condition:a-->1<!-- End\tCondition\n-->2", "12"},
        {"0<!--Condition:z-->1<!--End Condition-->2<!--Condition:a-->3<!--End Condition-->4", "0234"},
        {"<!--Condition:z-->1<!-- a. note -->2<!--End Condition-->3", "3"},
        {"<!--Condition:z-->1<!--EndCondition-->3", kExpectedEnd},
        {"<!--Condition:z-->1<!--end condition-->3", kExpectedEnd},
        {"<!--condition:a-->1<!--End Condition-->3", kExpectedEnd},
        {"<!--Condition:a-->1<!--Condition:a-->2", kNotClosed},
        {"1<!--End Condition-->2", kNotOpen},
        {"1<!--Condition:z-->2", "12"}, // never closed: nothing is lost
        {"<!--Condition:z--", "<!--Condition:z--"},
        {"<!--<!--Condition:z-->1<!--End Condition-->2", "<!--2"},
        {"<!--Condition:z--->1<!--End Condition-->2", kNotOpen}, // the dash is no character of such a comment
        {"<!--Condition:\xC3\xA9-->1", "<!--Condition:\xC3\xA9-->1"},
    };
    for (const auto& [text, outcome] : cases)
        EXPECT_EQ(Outcome(text), outcome) << text;
}

// Each of these takes minutes, or all of the stack, once a place is looked at twice.
TEST(ConditionComments, LongTextsAreReadOnce)
{
    constexpr std::size_t kSize = 8'000'000;
    const std::string runs[] = {std::string(kSize, ' '), std::string(kSize, ';'), std::string(kSize, 'a')};
    for (const std::string& run : runs) {
        EXPECT_EQ(ProcessGlobalVariables("<!--" + run, "a", "b", "c").size(), run.size() + 4);
        EXPECT_EQ(
            ProcessGlobalVariables("<!--Condition:a/b[" + run + "-->x<!--End Condition-->y", "a", "b", "c"),
            "y");
    }
    const std::string openings = Repeated("<!--", kSize / 4);
    EXPECT_EQ(ProcessGlobalVariables(openings, "a", "b", "c"), openings);
}

TEST(ConditionComments, DeadConditionsAreFound)
{
    struct SCase
    {
        const char* content;
        bool dead;
        enDeadCondition reason;
    };
    using enum enDeadCondition;
    const SCase cases[] = {
        {"Condition:Alpha", false, Malformed},
        {"Condition:Alpha/Beta [One] ", false, Malformed},
        {"End Condition", false, Malformed},
        {"Condition:Alpha ", true, BlankBehindName},
        {"Condition: Alpha\n", true, BlankBehindName},
        {"Condition:Alpha[One]", true, ListWithoutSecondName},
        {"Condition:Alpha [One]", true, ListWithoutSecondName},
        {"Condition:Alpha /Beta", true, Malformed},
        {"Condition:", true, Malformed},
        {"Condition:Alpha/Beta[]", true, Malformed},
    };
    std::string text = "\xC3\xA9";
    std::size_t expected = 0;
    for (const SCase& c : cases) {
        const std::size_t byteOffset = text.size();
        text += std::string("<!--") + c.content + "-->";
        const auto found = FindDeadConditions(text);
        expected += c.dead ? 1 : 0;
        ASSERT_EQ(found.size(), expected) << c.content;
        if (c.dead) {
            EXPECT_EQ(found.back().byteOffset, byteOffset);
            EXPECT_EQ(found.back().comment, c.content);
            EXPECT_EQ(found.back().reason, c.reason) << c.content;
        }
    }
}

} // namespace
