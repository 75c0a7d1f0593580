// The raw tree's text, as it is written from fragments.
#include "Tree/FragmentTree.h"

#include <gtest/gtest.h>

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

} // namespace
