// The native flattener beside the stylesheet: the same bytes for every tree, on the first run and on the
// second.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/TreeGenerator.h"
#include "Tests/Support/TreeShrinker.h"
#include "Tests/Tree/FlattenRoads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostShown = 4000; // bytes of a tree in a message

struct SDifference
{
    const char* what = nullptr; // null: none
    std::optional<std::string> byStylesheet, natively;
};

// A plain tree must be flattened on both roads. The others may be left to the stylesheet.
SDifference Compare(std::string_view tree, bool isPlain)
{
    SDifference difference{nullptr, FlattenByStylesheet(tree), FlattenNatively(tree)};
    if (isPlain && !difference.byStylesheet)
        difference.what = "the stylesheet refuses a plain tree";
    else if (isPlain && !difference.natively)
        difference.what = "the native flattener leaves a plain tree";
    else if (difference.natively && !difference.byStylesheet)
        difference.what = "the stylesheet refuses what the native flattener takes";
    else if (difference.natively && difference.natively != difference.byStylesheet)
        difference.what = "the roads differ";
    return difference;
}

std::string Shown(const std::optional<std::string>& text)
{
    return !text ? "nothing" : text->substr(0, kMostShown) + (text->size() > kMostShown ? "..." : "");
}

void Report(const std::string& tree, bool isPlain)
{
    const SDifference first = Compare(tree, isPlain);
    const std::string small = ShrinkTree(tree, [&](const std::string& smaller) {
        const SDifference difference = Compare(smaller, isPlain);
        return difference.what == first.what &&
               difference.byStylesheet.has_value() == first.byStylesheet.has_value();
    });
    const SDifference difference = Compare(small, isPlain);
    ADD_FAILURE() << first.what << "\ntree:       " << Shown(small)
                  << "\nstylesheet: " << Shown(difference.byStylesheet)
                  << "\nnatively:   " << Shown(difference.natively);
}

// Compares first and second run.
// Returns: whether the native flattener took the tree.
bool ExpectSame(const std::string& tree, bool isPlain)
{
    SDifference difference = Compare(tree, isPlain);
    if (difference.what != nullptr) {
        Report(tree, isPlain);
        return false;
    }
    const bool isTaken = difference.natively.has_value();
    // an empty space as the root leaves nothing for a second run
    if (!difference.byStylesheet || *difference.byStylesheet == kFlatHeader)
        return isTaken;
    const std::string flat = std::move(*difference.byStylesheet);
    if (Compare(flat, isTaken).what != nullptr) {
        SCOPED_TRACE("second run");
        Report(flat, isTaken);
    }
    return isTaken;
}

std::uint64_t NumberFromEnvironment(const char* name, std::uint64_t otherwise)
{
    const char* const value = std::getenv(name);
    return value == nullptr || *value == '\0' ? otherwise : std::strtoull(value, nullptr, 10);
}

// Set UV_FLATTEN_SEED and UV_FLATTEN_TREES to have others, or more, compared.
TEST(FlattenDifferential, RandomTrees)
{
    const std::uint64_t seed = NumberFromEnvironment("UV_FLATTEN_SEED", 1);
    const std::uint64_t count = NumberFromEnvironment("UV_FLATTEN_TREES", 24000);
    std::cout << "seed " << seed << ", " << count << " trees\n";
    std::size_t plain = 0, taken = 0;
    for (std::uint64_t number = 0; number < count; ++number) {
        const std::uint64_t treeSeed = seed * 1000003 + number;
        const SGeneratedTree tree = CTreeGenerator(CChoices(treeSeed)).Tree();
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", tree " << number);
        plain += tree.isPlain;
        taken += ExpectSame(tree.text, tree.isPlain);
        ASSERT_FALSE(HasFailure());
    }
    std::cout << plain << " of them plain, " << taken << " flattened natively\n";
    EXPECT_GT(plain, count * 8 / 10);
}

TEST(FlattenDifferential, LargeRandomTrees)
{
    const std::uint64_t seed = NumberFromEnvironment("UV_FLATTEN_SEED", 1);
    std::cout << "seed " << seed << '\n';
    CTreeGenerator generator{CChoices(seed)};
    for (const std::size_t elements : {1000u, 3000u, 10000u, 10000u}) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << elements << " elements");
        ASSERT_TRUE(ExpectSame(generator.LargeTree(elements), true));
    }
}

TEST(FlattenDifferential, TreesOfTheFixtureGrammars)
{
    std::size_t trees = 0;
    for (const auto& folder : fs::directory_iterator(UV_SOURCE_DIR "/Tests/Grammars")) {
        if (!fs::exists(folder.path() / "Cases.txt"))
            continue;
        const std::string name = folder.path().filename().string();
        CEngine engine(name == "Basic" ? "Common" : name);
        for (const SGrammarCase& entry : ReadGrammarCases(name)) {
            SCOPED_TRACE(testing::Message() << name << "/Cases.txt:" << entry.line);
            const std::string tree = engine.Parse(entry.input, entry.settings).tree;
            if (tree.empty())
                continue;
            // an input may hold bytes that no tree can
            if (FlattenByStylesheet(tree)) {
                EXPECT_TRUE(ExpectSame(tree, true));
                ++trees;
            } else {
                EXPECT_FALSE(FlattenNatively(tree));
            }
        }
    }
    EXPECT_GT(trees, 100u);
}

TEST(FlattenDifferential, SampleScripts)
{
    for (const std::string& path : SamplePaths("PostgreSQL")) {
        SCOPED_TRACE(path);
        const std::string tree = PostgreSQL().Parse(ReadFile(path)).tree;
        ASSERT_FALSE(tree.empty());
        EXPECT_TRUE(ExpectSame(tree, true));
    }
}

// Set UV_CORPUS to a folder with postgresql/<project>/<script>.sql to have real scripts compared too.
TEST(FlattenDifferential, RealScripts)
{
    constexpr std::uintmax_t kMostBytes = 100000; // the stylesheet takes its time
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0')
        return;
    const fs::path folder = fs::path(corpus) / "postgresql";
    ASSERT_TRUE(fs::is_directory(folder)) << folder;
    std::size_t scripts = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().extension() != ".sql" || entry.file_size() > kMostBytes)
            continue;
        SCOPED_TRACE(entry.path());
        const std::string tree = PostgreSQL().Parse(ReadFile(entry.path().string())).tree;
        if (!tree.empty() && FlattenByStylesheet(tree)) {
            EXPECT_TRUE(ExpectSame(tree, true));
        }
        ++scripts;
    }
    std::cout << scripts << " scripts\n";
    EXPECT_GT(scripts, 0u);
}

std::string FlatList(std::size_t items)
{
    const std::string list = ListTree("list", 1, true);
    const std::size_t begin = list.find("<item>"), end = list.find("</list>");
    std::string flat = std::string(kFlatHeader) + list.substr(0, begin);
    for (std::size_t i = 0; i < items; ++i)
        flat += list.substr(begin, end - begin);
    return flat + list.substr(end) + "\n";
}

// However long a list is, and whichever way its rule recurses, the native flattener sees it through; the
// stylesheet does as far as its depth is allowed to go, and gives nothing beyond.
TEST(FlattenDifferential, ListsOfAnyLength)
{
    for (const std::size_t items : {1u, 2u, 8000u, 13000u, 14000u, 39000u, 1000000u})
        for (const bool isLeftRecursive : {true, false}) {
            SCOPED_TRACE(testing::Message() << items << (isLeftRecursive ? ", left" : ", right"));
            const std::string tree = ListTree("list", items, isLeftRecursive);
            const std::string flat = FlatList(items);
            EXPECT_TRUE(FlattenNatively(tree) == flat);
            EXPECT_TRUE(FlattenNatively(flat) == flat);
            const std::optional<std::string> byStylesheet = FlattenByStylesheet(tree);
            if (items <= 13000) {
                EXPECT_TRUE(byStylesheet == flat);
            } else {
                EXPECT_FALSE(byStylesheet);
            }
        }
}

// What decides about an element may stand far behind it, or far behind its end.
TEST(FlattenDifferential, DecisionsFromFarAway)
{
    constexpr const char* kTrees[] = {
        "<q><l>@<l><i/></l></l></q>",
        "<q><delimited_pl_sql_statement>@<labeled_pl_sql_statement>@</labeled_pl_sql_statement>@"
        "<pl_sql_statement_delimiter>1</pl_sql_statement_delimiter>@<labeled_pl_sql_statement/>@"
        "<pl_sql_statement_delimiter>@</pl_sql_statement_delimiter></delimited_pl_sql_statement></q>",
        "<q><program_data_division_clause/>@<delimited_pl_sql_statement>@</delimited_pl_sql_statement></q>",
        "<q><body_pl_sql_statements><delimited_pl_sql_statement>@</delimited_pl_sql_statement>@"
        "<pl_sql_statement_delimiter>@</pl_sql_statement_delimiter>@</body_pl_sql_statements>@"
        "<pl_sql_statement_delimiter>@2</pl_sql_statement_delimiter>@<j/></q>",
        "<q><body_pl_sql_statements><delimited_pl_sql_statement/>@<delimited_pl_sql_statement/>"
        "</body_pl_sql_statements>@<j/></q>",
        "<q><body_pl_sql_statements><delimited_pl_sql_statement><body_pl_sql_statements>"
        "<delimited_pl_sql_statement/>@</body_pl_sql_statements>@<pl_sql_statement_delimiter>1"
        "</pl_sql_statement_delimiter>@</delimited_pl_sql_statement>@<pl_sql_statement_delimiter>2"
        "</pl_sql_statement_delimiter></body_pl_sql_statements></q>",
        // what is to be gone back to inside what is to be gone back to
        "<q><delimited_pl_sql_statement><pl_sql_statement_delimiter>1</pl_sql_statement_delimiter>"
        "<labeled_pl_sql_statement><a><delimited_pl_sql_statement><labeled_pl_sql_statement/>"
        "</delimited_pl_sql_statement></a>@</labeled_pl_sql_statement></delimited_pl_sql_statement></q>",
        "<q><body_pl_sql_statements><delimited_pl_sql_statement/>@<pl_sql_statement_delimiter>"
        "<body_pl_sql_statements><delimited_pl_sql_statement/>@<pl_sql_statement_delimiter>@"
        "</pl_sql_statement_delimiter></body_pl_sql_statements>@</pl_sql_statement_delimiter>@"
        "<delimited_pl_sql_statement/></body_pl_sql_statements></q>",
        "<q><T__SPACE><a>@</a></T__SPACE><T__SPACE><a>@</a>x</T__SPACE></q>",
        "<q><T__q><a>@</a>{x=<a>@</a>y}@</T__q></q>",
    };
    for (const char* const tree : kTrees)
        for (const char* const filler : {"<T__a/>", "<T__SPACE><!--c--></T__SPACE>", "t<!--c-->"}) {
            SCOPED_TRACE(testing::Message() << tree << ", " << filler);
            std::string text = tree;
            for (std::size_t at = text.find('@'); at != text.npos; at = text.find('@')) {
                text.erase(at, 1);
                text.insert(at, Repeated(filler, 4200));
            }
            const SDifference difference = Compare(text, true);
            EXPECT_STREQ(difference.what, nullptr);
        }
}

// The result is written over the text that has been read. What the walk goes back to must still be there,
// wherever among the statements a block of output comes to its end.
TEST(FlattenDifferential, ManyStatementsWithTheirDelimitersBehindThem)
{
    const auto make = [](int statements, std::string& tree, std::string& flat) {
        tree = "<q><body_pl_sql_statements>";
        flat = std::string(kFlatHeader) + "<q><pl_sql_statements>";
        for (int i = 0; i < statements; ++i) {
            const std::string content =
                "<a>" + std::string(static_cast<std::size_t>(i % 61 + 1), 'x') + "</a>";
            const std::string token = "<T__b>" + std::to_string(i) + "</T__b>";
            const std::string delimiter = "<pl_sql_statement_delimiter>;</pl_sql_statement_delimiter>";
            tree.append("<delimited_pl_sql_statement>").append(content);
            tree.append("</delimited_pl_sql_statement>").append(token).append(delimiter);
            flat.append("<full_pl_sql_statement delimited=\"1\" labeled=\"1\"><pl_sql_statement_label/>");
            flat.append(content).append(delimiter).append("</full_pl_sql_statement>").append(token);
        }
        tree += "</body_pl_sql_statements></q>";
        flat += "</pl_sql_statements></q>\n";
    };
    std::string tree, flat;
    make(5, tree, flat);
    EXPECT_EQ(FlattenByStylesheet(tree), flat);
    make(50000, tree, flat);
    EXPECT_TRUE(FlattenNatively(tree) == flat);
}

// A delimiter behind a body is copied into the body's last statement. With bodies inside delimiters the tree
// doubles at each level, which must end before memory does.
TEST(FlattenDifferential, DelimitersThatMultiply)
{
    const auto nested = [](int depth) {
        std::string open, close;
        for (int i = 0; i < depth; ++i) {
            open += "<q><body_pl_sql_statements><delimited_pl_sql_statement/></body_pl_sql_statements>"
                    "<pl_sql_statement_delimiter>";
            close += "</pl_sql_statement_delimiter></q>";
        }
        return "<a>" + open + close + "</a>";
    };
    EXPECT_TRUE(ExpectSame(nested(8), true));
    EXPECT_THROW((void)FlattenNatively(nested(60)), std::length_error);
}

// The same depth without a list: elements that nest on purpose.
TEST(FlattenDifferential, NestingOfAnyDepth)
{
    for (const std::size_t depth : {1000u, 1000000u}) {
        SCOPED_TRACE(depth);
        std::string tree;
        for (std::size_t i = 0; i < depth; ++i)
            tree += "<expression>";
        tree += "a";
        for (std::size_t i = 0; i < depth; ++i)
            tree += "</expression>";
        EXPECT_TRUE(FlattenNatively(tree) == std::string(kFlatHeader) + tree + "\n");
        const std::optional<std::string> byStylesheet = FlattenByStylesheet(tree);
        EXPECT_EQ(byStylesheet.has_value(), depth == 1000);
        if (byStylesheet) {
            EXPECT_TRUE(byStylesheet == std::string(kFlatHeader) + tree + "\n");
        }
    }
}

} // namespace
