// Masks and regular expressions, patterns that mean harm among them.
#include "Catalogue/Identifiers/UVDBRegExp.h"
#include "Tests/Support/MemoryLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <string>

namespace {

using testing::HasSubstr;
using Uve::U8CString;

struct SMaskCase
{
    const char* name;
    const char* mask;
    bool fits;
};

constexpr SMaskCase kMasks[] = {
    {"Abc", "a*", true},
    {"bAc", "a*", false},
    {"Abc", "abc", false}, // without wildcards a mask is compared exactly
    {"a.c", "a.c", true},
    {"abc", "a.c", false},
    {"abc", "a?c", true},
    {"ac", "a?c", false},
    {"a\xC3\xA4"
     "c",
     "a?c", true}, // a character, not a byte
    {"\xC3\x84pfel", "\xC3\xA4*", true},
    {"a\xFF"
     "c",
     "a?c", true}, // malformed names go by bytes
    {"abcd", "a?c", false},
    {"a.c", "a.*", true},
    {"abc", "a.*", false},
    {"f(x) y", "f(x)*", true},
    {"a+b|c", "?+b|c", true},
    {"$a^{2}", "*^{2}", true},
    {"a1", "a[0-9]", true},
    {"A1", "a[0-9]", true},
    {"ax", "a[0-9]", false},
    {"a\nb", "a*", true},
    {"ab\n", "a?", false},
    {"", "*", true},
    {"", "?", false},
    {nullptr, nullptr, true},
    {"a", nullptr, false},
};

TEST(Masks, FitWholeNamesWithoutRegardToCase)
{
    for (const auto& c : kMasks) {
        SCOPED_TRACE(testing::Message()
                     << (c.name ? c.name : "null") << " by " << (c.mask ? c.mask : "null"));
        EXPECT_EQ(UVDBMatchRegExp(c.name, c.mask), c.fits);
    }
}

TEST(Masks, EscapingTakesTheMeaningFromSpecialCharacters)
{
    EXPECT_EQ(UVDBESCRegExp("a*+?{^.$|(["), "a\\*\\+\\?\\{\\^\\.\\$\\|\\(\\[");
    EXPECT_EQ(UVDBESCRegExp("a)]}\\-\xC3\xA4"), "a)]}\\-\xC3\xA4");
    EXPECT_EQ(UVDBESCRegExp(nullptr), "");
}

struct SNodesCase
{
    const char* text;
    const char* pattern;
    const char* flags;
    const char* items;
};

constexpr SNodesCase kNodes[] = {
    {"a=1, b=22", "(\\w)=(\\d+)", "", "<Item res1='a' res2='1' ></Item><Item res1='b' res2='22' ></Item>"},
    {"abc", "z", "", ""},
    {"", "x*", "", "<Item ></Item>"},
    {"abab", "^ab", "", "<Item ></Item>"},
    {"xay", "x|(a)|y", "", "<Item res1='' ></Item><Item res1='a' ></Item><Item res1='' ></Item>"},
    // groups at the end that took no part are there all the same
    {"a", "(a)|(b)", "", "<Item res1='a' res2='' ></Item>"},
    {"aab", "(a*)", "", "<Item res1='aa' ></Item><Item res1='' ></Item><Item res1='' ></Item>"},
    {"<&>'\"\x10\x0C", "(.+)", "",
     "<Item res1='&lt;&amp;&gt;&apos;&quot;ORVANTA_DATA_LINK_ESCAPE_REPLACER' ></Item>"},
    {"\xC3\xA4\xE2\x82\xAC", "(.)", "", "<Item res1='\xC3\xA4' ></Item><Item res1='\xE2\x82\xAC' ></Item>"},
    {"A\nb", "^(\\w)$", "", ""},
    {"A\nb", "^(\\w)$", "m", "<Item res1='A' ></Item><Item res1='b' ></Item>"},
    {"A", "(a)", "", ""},
    {"A", "(a)", "gi", "<Item res1='A' ></Item>"},
    {"aXa", "a.a", "C++", "<Item ></Item>"},
    {"ab", "a b # c", "x", "<Item ></Item>"},
    {"a\nb", "a.b", "s", "<Item ></Item>"},
    {"aaa", "(a+)", "U", "<Item res1='a' ></Item><Item res1='a' ></Item><Item res1='a' ></Item>"},
    {"112a3", "\\G(\\d)", "", "<Item res1='1' ></Item><Item res1='1' ></Item><Item res1='2' ></Item>"},
    {"abc", "(?=ab\\K)", "", "<Item ></Item><Item ></Item>"}, // an end before the start: it goes on
};

TEST(RegExpNodes, EachMatchIsAnItemAndEachGroupAnAttribute)
{
    for (const auto& c : kNodes) {
        SCOPED_TRACE(testing::Message() << c.text << " by " << c.pattern);
        EXPECT_EQ(UVDBRegExp2Nodeset(c.text, c.pattern, c.flags),
                  U8CString("<Items>") + c.items + "</Items>");
    }
}

TEST(RegExpNodes, BadPatternsGiveNoItemsAndATraceLine)
{
    struct SCase
    {
        std::string text;
        std::string pattern;
    };
    const SCase kCases[] = {
        {"a", "("},
        {"a", "[a"},
        {"a", "a**"},
        {"a", "(?<n>"},
        {"a", std::string(300, '(') + std::string(300, ')')},
        {"a", "((a{1,1000}){1,1000}){1,1000}"},
        {"\xFF", "(*UTF8)(.)"},                     // the text isn't UTF-8, whatever is claimed
        {std::string(60, 'a') + "!", "(a+)+$"},     // exponential in steps
        {std::string(3'000'000, 'a'), "(?:a|b)*c"}, // a level of stack for each character
        {std::string(100'000, '('), "(\\((?1)*\\))"},
        {std::string(100'000, 'a'), "(?:(?:a|b)*(?:a|c)*)*d"},
        {std::string(1'000'000, 'a'), "[a]{0,1000}[a]{0,900}b"}, // each place is cheap, all places aren't
        {std::string(1'000'000, 'a'), ".*.*x"},                  // a step runs over the whole text
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.pattern.substr(0, 40));
        CLogCapture log;
        const std::clock_t start = std::clock();
        EXPECT_EQ(UVDBRegExp2Nodeset(c.text, c.pattern, ""), "<Items></Items>");
        EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 15.0);
        EXPECT_THAT(log.Text(), HasSubstr("UVDBRegExp2Nodeset"));
        EXPECT_THAT(log.Text(), HasSubstr("FAILED"));
    }
}

TEST(RegExpNodes, BadMasksFitNothing)
{
    for (const char* const mask : {"a[b", "*\\", "[z-a]"}) {
        SCOPED_TRACE(mask);
        CLogCapture log;
        EXPECT_FALSE(UVDBMatchRegExp("a[b", mask));
        EXPECT_THAT(log.Text(), HasSubstr("FAILED"));
    }
    CLogCapture log;
    EXPECT_FALSE(UVDBMatchRegExp(std::string(5000, 'a').c_str(), "*a*a*a*a*a*a*b"));
    EXPECT_FALSE(UVDBMatchRegExp(std::string(5000, 'a').c_str(), (std::string(9000, '*') + "b").c_str()));
}

// A long text with many matches takes a time that grows with it.
TEST(RegExpNodes, ManyMatchesAreAllFound)
{
    std::string text;
    for (int i = 0; i < 100'000; ++i)
        text += "\xC3\xA4=1;";
    const U8CString nodes = UVDBRegExp2Nodeset(text, "(.)=(\\d);", "");
    const std::string item = "<Item res1='\xC3\xA4' res2='1' ></Item>";
    EXPECT_EQ(nodes.size(), std::string("<Items></Items>").size() + 100'000 * item.size());
}

} // namespace
