// The examples that rule authors read.
#include "Tests/Tree/FlattenRoads.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

// The text without line ends and what blanks begin a line.
std::string InOneLine(const std::string& block)
{
    std::string text;
    bool isLineStart = true;
    for (const char c : block) {
        if (c == '\n')
            isLineStart = true;
        else if (c != ' ' || !isLineStart) {
            text += c;
            isLineStart = false;
        }
    }
    return text;
}

// A block "xml tree" is an input, "xml flat" what it becomes, and "xml again", where there is one, what that
// becomes in a second run; otherwise a second run leaves it.
TEST(FlattenDocument, ExamplesAreTrue)
{
    std::ifstream file(UV_SOURCE_DIR "/Documentation/FlattenedTree.md");
    ASSERT_TRUE(file);
    const std::string document{std::istreambuf_iterator<char>(file), {}};

    const auto expectFlat = [](const std::string& tree, const std::string& flat) {
        EXPECT_EQ(FlattenByStylesheet(tree).value_or("nothing"), flat);
        EXPECT_EQ(FlattenNatively(tree).value_or("nothing"), flat);
    };
    const std::string open = "```xml ", close = "\n```\n";
    std::string tree, flat;
    int examples = 0;
    const auto endExample = [&] {
        if (!flat.empty())
            expectFlat(flat, flat);
        flat.clear();
    };
    for (std::size_t at = document.find(open); at != document.npos; at = document.find(open, at)) {
        const std::size_t lineEnd = document.find('\n', at);
        const std::string kind = document.substr(at + open.size(), lineEnd - at - open.size());
        const std::size_t end = document.find(close, lineEnd);
        ASSERT_NE(end, document.npos);
        const std::string text = InOneLine(document.substr(lineEnd, end - lineEnd));
        const std::string whole = std::string(kFlatHeader) + text + "\n";
        SCOPED_TRACE(text);
        if (kind == "tree") {
            endExample();
            tree = text;
        } else if (kind == "flat") {
            ASSERT_FALSE(tree.empty());
            expectFlat(tree, whole);
            flat = whole;
            tree.clear();
            ++examples;
        } else if (kind == "again") {
            ASSERT_FALSE(flat.empty());
            EXPECT_NE(flat, whole);
            expectFlat(flat, whole);
            flat.clear();
        } else {
            ADD_FAILURE() << "a block of xml " << kind;
        }
        at = end;
    }
    endExample();
    EXPECT_GE(examples, 8);
    EXPECT_TRUE(tree.empty());
}

} // namespace
