// Fragments: the raw tree's text, as it is written from them, and what they say about it.
#include "Tree/FragmentTree.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// A data link escape becomes a word of many bytes. Wherever in the writer's block it falls, what follows
// comes whole.
TEST(FragmentText, ReplacementsAtTheEndOfABlock)
{
    const std::string word = "ORVANTA_DATA_LINK_ESCAPE_REPLACER";
    const std::string rest(70000, 'y');
    for (std::size_t length = 16300; length < 16400; ++length) {
        const std::string blanks(length, 'x');
        const std::string query = blanks + '\x10' + rest;
        CFragmentPool pool;
        FragmentRef first = kNoFragment, last = kNoFragment;
        const auto append = [&](FragmentRef fragment) {
            SpliceFragments(pool, first, last, fragment, fragment);
        };
        append(pool.NewSpace(0, static_cast<std::uint32_t>(length + 1)));
        append(
            pool.NewSpace(static_cast<std::uint32_t>(length + 1), static_cast<std::uint32_t>(rest.size())));
        std::string text;
        WriteTree({&pool, first, query}, text);
        const std::string open = "<T__SPACE type=\"TOKEN\">", close = "</T__SPACE>";
        ASSERT_TRUE(text == open + blanks + word + close + open + rest + close) << length;
    }
}

// The memory of a text of usual size is there for the next one; a large one's is given back.
TEST(FragmentText, PoolsServeOneTextAfterTheOther)
{
    CFragmentPool pool;
    const std::uint32_t element = pool.Names().Intern("a");
    for (const std::uint32_t count : {3U, 3000000U, 1000U, 3U}) {
        FragmentRef first = kNoFragment, last = kNoFragment;
        for (std::uint32_t i = 0; i < count; ++i) {
            const FragmentRef fragment = pool.NewTag(enFragment::Empty, element);
            SpliceFragments(pool, first, last, fragment, fragment);
        }
        std::uint32_t found = 0;
        ForEachFragment({&pool, first, ""}, [&](FragmentRef at) { found += pool[at].Element() == element; });
        EXPECT_EQ(found, count);
        for (FragmentRef at = first; at != kNoFragment;) {
            const FragmentRef next = pool[at].next;
            pool.Drop(at);
            at = next;
        }
        pool.Release();
        EXPECT_EQ(pool.Count(), 0U);
    }
}

// What a parse can make and flattening doesn't take, each alone: until the next Release the tree isn't plain.
TEST(FragmentText, OddPiecesMakeATreeOdd)
{
    const std::string query = "a\xC3\xA9 b";
    CFragmentPool pool;
    const std::uint32_t element = pool.Names().Intern("a");
    const struct
    {
        const char* what;
        bool isPlain;
        std::function<void()> make;
    } cases[] = {
        {"an element with a child", true,
         [&] { pool.TakeChild(element, pool.NewTag(enFragment::Empty, element)); }},
        {"one child in two places", false,
         [&] {
             const FragmentRef child = pool.NewTag(enFragment::Empty, element);
             pool.TakeChild(element, child);
             pool.TakeChild(element, child);
         }},
        {"whole characters", true, [&] { pool.TakeSlice(query.c_str(), 1, 2); }},
        {"the end of the query", true, [&] { pool.TakeSlice(query.c_str(), 3, 2); }},
        {"the first byte of a character", false, [&] { pool.TakeSlice(query.c_str(), 0, 2); }},
        {"the last byte of a character", false, [&] { pool.TakeSlice(query.c_str(), 2, 1); }},
        {"a text of its own", true, [&] { pool.NewTokenText(element, "\xC3\xA9", 1, 0); }},
        {"a text that is none", false, [&] { pool.NewTokenText(element, "\xC3", 1, 0); }},
        {"a space that holds elements", false,
         [&] { pool.NewTag(enFragment::Open, pool.Names().Intern("T__SPACE")); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        c.make();
        EXPECT_EQ(pool.IsPlain(), c.isPlain);
        pool.Release();
        EXPECT_TRUE(pool.IsPlain());
    }
}

} // namespace
