// The native flattener beside the stylesheet, and from fragments beside from text: the same bytes for every
// tree, on the first run and on the second.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/FragmentsOfText.h"
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

// Fragments in the shape of `tree`, if it is one, flattened as they are and from their text.
SDifference CompareFragments(std::string_view tree, bool canBeOdd = true)
{
    const CFragmentsOfText fragments(tree, canBeOdd);
    if (!fragments.Tree())
        return {};
    std::string raw;
    WriteTree(fragments.Tree(), raw);
    SDifference difference = Compare(raw, false);
    const std::optional<std::string> byFragments = FlattenFragments(fragments.Tree());
    if (difference.what == nullptr && byFragments != difference.natively)
        difference = {"fragments and their text differ", difference.natively, byFragments};
    return difference;
}

template <class Comparison>
void Report(const std::string& tree, const Comparison& compare)
{
    const SDifference first = compare(tree);
    const std::string small = ShrinkTree(tree, [&](const std::string& smaller) {
        const SDifference difference = compare(smaller);
        return difference.what == first.what &&
               difference.byStylesheet.has_value() == first.byStylesheet.has_value();
    });
    const SDifference difference = compare(small);
    ADD_FAILURE() << first.what << "\ntree:   " << Shown(small)
                  << "\nwanted: " << Shown(difference.byStylesheet)
                  << "\ngot:    " << Shown(difference.natively);
}

void Report(const std::string& tree, bool isPlain)
{
    Report(tree, [&](std::string_view text) { return Compare(text, isPlain); });
}

// A parse's tree, which may stay in fragments, on all roads. The stylesheet takes its time: not every tree is
// for it.
// Returns: whether there was a tree that the native flattener took.
bool ExpectSameFragments(CEngine& engine, const std::string& text, const SEngineSettings& settings,
                         bool isForStylesheet)
{
    engine.m_Parser.set_FragmentsWanted(true);
    const std::string raw = engine.Parse(text, settings).tree;
    const SFragmentTree fragments = engine.m_Parser.Tree();
    const std::optional<std::string> natively = FlattenNatively(raw);
    EXPECT_EQ(static_cast<bool>(fragments), natively.has_value());
    if (isForStylesheet && !raw.empty() && FlattenByStylesheet(raw) != natively)
        Report(raw, natively.has_value());
    if (!fragments || !natively)
        return false;
    const std::optional<std::string> byFragments = FlattenFragments(fragments);
    EXPECT_TRUE(byFragments == natively) << Shown(byFragments) << '\n' << Shown(natively);
    return true;
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
        if (CompareFragments(tree.text).what != nullptr)
            Report(tree.text, [](std::string_view text) { return CompareFragments(text); });
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
        const std::string tree = generator.LargeTree(elements);
        ASSERT_TRUE(ExpectSame(tree, true));
        ASSERT_STREQ(CompareFragments(tree, false).what, nullptr);
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
            ExpectSameFragments(engine, entry.input, entry.settings, true);
            engine.m_Parser.set_FragmentsWanted(false);
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

struct SLanguage
{
    const char* grammar;
    const char* folder; // of sources, in a corpus
    int db;
};

constexpr SLanguage kLanguages[] = {
    {"PostgreSQL", "postgresql", UVDB_DB_POSTGRESQL},
    {"JCL", "jcl", UVDB_DB_JCL},
    {"IBMCL", "cl", UVDB_DB_IBM_CL},
};

SEngineSettings SettingsOf(const SLanguage& language)
{
    SEngineSettings settings;
    settings.db = language.db;
    return settings;
}

TEST(FlattenDifferential, Samples)
{
    for (const SLanguage& language : kLanguages) {
        CEngine engine(language.grammar);
        for (const std::string& path : SamplePaths(language.grammar)) {
            SCOPED_TRACE(path);
            const std::string text = ReadFile(path);
            EXPECT_TRUE(ExpectSameFragments(engine, text, SettingsOf(language), true));
            engine.m_Parser.set_FragmentsWanted(false);
            EXPECT_TRUE(ExpectSame(engine.Parse(text, SettingsOf(language)).tree, true));
        }
    }
}

// Set UV_CORPUS to a folder of sources to have them compared too. Whatever they are written in, they have a
// tree in some language; those of the languages here have it in theirs.
TEST(FlattenDifferential, RealSources)
{
    constexpr std::size_t kMostForStylesheet = 20000; // bytes of source
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0')
        return;
    std::size_t trees = 0, sources = 0;
    for (const SLanguage& language : kLanguages) {
        CEngine engine(language.grammar);
        for (const auto& folder : fs::directory_iterator(corpus)) {
            const bool isOwn = std::ranges::any_of(
                kLanguages, [&](const SLanguage& other) { return folder.path().filename() == other.folder; });
            if (!folder.is_directory() ||
                (isOwn ? folder.path().filename() != language.folder : language.db != UVDB_DB_POSTGRESQL))
                continue;
            for (const auto& entry : fs::recursive_directory_iterator(folder)) {
                if (!entry.is_regular_file())
                    continue;
                SCOPED_TRACE(entry.path());
                const std::string text = ReadFile(entry.path().string());
                trees += ExpectSameFragments(engine, text.substr(0, text.find('\0')), SettingsOf(language),
                                             text.size() < kMostForStylesheet);
                ++sources;
            }
        }
    }
    std::cout << sources << " sources, " << trees << " trees\n";
    EXPECT_GT(trees, 0u);
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

// What decides about an element may stand far after it, or far after its end.
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
            EXPECT_STREQ(Compare(text, true).what, nullptr);
            EXPECT_STREQ(CompareFragments(text, false).what, nullptr);
        }
}

// What the walk goes back to must still be there, wherever among the statements a block of events comes to
// its end.
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
    const CFragmentsOfText fragments(tree, false);
    std::string raw;
    WriteTree(fragments.Tree(), raw);
    const std::optional<std::string> natively = FlattenNatively(raw);
    EXPECT_TRUE(natively && FlattenFragments(fragments.Tree()) == natively);
}

// A delimiter after a body is copied into the body's last statement. With bodies inside delimiters the tree
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
