#include "UVEnvironment/UVEString.h"

#include <gtest/gtest.h>

#include <climits>

using Uve::UVEstring;

namespace {

struct SReplaceCase
{
    const char *text, *from, *to, *all, *first, *last;
};

constexpr SReplaceCase kReplaces[] = {
    // text    from  to     every       first     last
    {"a.b.c", ".", "..", "a..b..c", "a..b.c", "a.b..c"}, // what was put in isn't searched again
    {"aaa", "aa", "b", "ba", "ba", "ab"},
    {"abc", "", "x", "abc", "abc", "abc"},
    {"abc", "d", "x", "abc", "abc", "abc"},
    {"aa", "a", "", "", "a", "a"},
};

} // namespace

TEST(UVEstring, ReplacesEveryFirstOrLast)
{
    for (const auto& c : kReplaces) {
        SCOPED_TRACE(testing::Message() << c.text << ' ' << c.from << ' ' << c.to);
        EXPECT_EQ(UVEstring(c.text).Replace(c.from, c.to), c.all);
        EXPECT_EQ(UVEstring(c.text).ReplaceFirst(c.from, c.to), c.first);
        EXPECT_EQ(UVEstring(c.text).ReplaceLast(c.from, c.to), c.last);
    }
}

TEST(UVEstring, TrimsOneCharacterOnly)
{
    EXPECT_EQ(UVEstring("  a b\t ").Trim(), "a b\t");
    EXPECT_EQ(UVEstring("''a''").TrimLeft('\''), "a''");
    EXPECT_EQ(UVEstring("''a''").TrimRight('\''), "''a");
    EXPECT_EQ(UVEstring("'''").Trim('\''), "");
}

TEST(UVEstring, CaseIsAsciiAlone)
{
    EXPECT_EQ(UVEstring("aZ\xC3\xA9{").ToUpper(), "AZ\xC3\xA9{");
    EXPECT_EQ(UVEstring("aZ\xC3\x89[").ToLower(), "az\xC3\x89[");
    EXPECT_TRUE(UVEstring("Yes").EqualNoCase("yES"));
    EXPECT_FALSE(UVEstring("Yes").EqualNoCase("yESs"));
    EXPECT_FALSE(UVEstring("@").EqualNoCase("`"));
    EXPECT_TRUE(UVEstring("abc").Contains("bc"));
    EXPECT_FALSE(UVEstring("abc").Contains("cb"));
}

TEST(UVEstring, Numbers)
{
    EXPECT_EQ(UVEstring().itoa(-255, 16), "-ff");
    EXPECT_EQ(UVEstring().itoa(LLONG_MIN, 2).size(), 65u);
    EXPECT_EQ(UVEstring().itoa(71, 36), "1z");
    EXPECT_EQ(UVEstring("x").itoa(5, 37), "");
    EXPECT_EQ(UVEstring("x").itoa(5, 1), "");
    EXPECT_EQ(UVEstring(" -12x").atoi(), -12);
    EXPECT_EQ(UVEstring("x").atoi(), 0);
    EXPECT_EQ(UVEstring("99999999999999999999").atoi(), INT_MAX);
    UVEstring text("a");
    EXPECT_EQ(text.Format("%s%03d", text.c_str(), 7), "a007");
}
