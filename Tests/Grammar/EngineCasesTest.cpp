// The engine over the inputs of the fixture grammars: what comes out is what stands beside them, is what the
// model makes of them, and loses nothing of the text.
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/ModelEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace {

// Grammars of which actions change the text of tokens, or make tokens without text.
constexpr std::string_view kChangeText[] = {"CopyToken", "Indent"};
constexpr int kMutations = 40; // of each input

// The folder Grammar.CR holds the same tables.
void MakeCrFolder(const std::string& grammar)
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(GrammarFolder(grammar, "Lexer")).parent_path().parent_path();
    const fs::path target = folder.parent_path().parent_path() / "Grammar.CR" / grammar;
    fs::create_directories(target.parent_path());
    fs::copy(folder, target, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

std::string Joined(const std::multimap<unsigned long, std::string>& errors)
{
    std::string text;
    for (const auto& [line, token] : errors)
        text += (text.empty() ? "" : "; ") + std::to_string(line) + " '" + token + "'";
    return text;
}

std::string Joined(std::string coloring)
{
    if (!coloring.empty() && coloring.back() == '\n')
        coloring.pop_back();
    for (std::size_t at = coloring.find('\n'); at != std::string::npos; at = coloring.find('\n', at))
        coloring.replace(at, 1, "; ");
    return coloring;
}

// A text that differs from `text` in a few places. NUL ends a text, so none is put in.
std::string Mutated(std::string text, const std::vector<SGrammarCase>& cases, std::mt19937& random)
{
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (std::size_t changes = 1 + below(3); changes > 0; --changes) {
        const std::size_t at = below(text.size() + 1);
        switch (below(5)) {
        case 0:
            text.resize(at);
            break;
        case 1:
            text.insert(at, 1, static_cast<char>(1 + below(255)));
            break;
        case 2:
            if (at < text.size())
                text[at] = static_cast<char>(1 + below(255));
            break;
        case 3:
            text.erase(at, 1 + below(4));
            break;
        default: {
            // a piece of another input
            const std::string& other = cases[below(cases.size())].input;
            text.insert(at, other.substr(below(other.size() + 1), 1 + below(8)));
        }
        }
    }
    return text;
}

class EngineCases : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        if (std::any_of(m_Cases.begin(), m_Cases.end(),
                        [](const auto& entry) { return entry.settings.isCr; }))
            MakeCrFolder(m_Grammar);
    }

    bool KeepsText() const
    {
        return std::find(std::begin(kChangeText), std::end(kChangeText), m_Grammar) == std::end(kChangeText);
    }

    const std::string m_Grammar = GetParam();
    const std::vector<SGrammarCase> m_Cases = ReadGrammarCases(m_Grammar);
};

TEST_P(EngineCases, GiveWhatStandsBesideThem)
{
    for (const SGrammarCase& entry : m_Cases) {
        SCOPED_TRACE(testing::Message() << "Cases.txt:" << entry.line);
        CEngine engine(m_Grammar, entry.settings.isCr);
        const SParseOutcome outcome = engine.Parse(entry.input, entry.settings);
        const std::string sketch = outcome.tree.empty() ? "-" : Sketch(outcome.tree);
        if (!entry.isBroken) {
            EXPECT_EQ(sketch, entry.tree);
            EXPECT_EQ(outcome.result, entry.tree == "-" ? 1 : 0);
            EXPECT_EQ(Joined(outcome.errors), entry.errors);
        }
        if (!entry.coloring.empty()) {
            EXPECT_EQ(Joined(outcome.coloring), entry.coloring);
        }
        if (!outcome.tree.empty() && KeepsText()) {
            EXPECT_EQ(TextOfTree(outcome.tree), entry.input);
        }
        EXPECT_EQ(engine.m_Parser.Fragments().Count(), 0u);
        EXPECT_EQ(CModelEngine(m_Grammar, entry.settings.isCr).Parse(entry.input, entry.settings), outcome);
    }
}

TEST_P(EngineCases, AgreeWithTheModelWhenMutatedAndOneAfterAnother)
{
    std::mt19937 random(1);
    CEngine engine(m_Grammar);
    CEngine compressed(m_Grammar);
    compressed.UseCompressedTables();
    CEngine watched(m_Grammar);
    CModelEngine model(m_Grammar);
    for (const SGrammarCase& entry : m_Cases)
        for (int i = 0; i < kMutations; ++i) {
            const std::string input = Mutated(entry.input, m_Cases, random);
            SCOPED_TRACE(testing::Message()
                         << "Cases.txt:" << entry.line << ", mutation " << i << ": " << input);
            SEngineSettings settings = entry.settings;
            settings.isCr = false;
            const SParseOutcome outcome = engine.Parse(input, settings);
            ASSERT_EQ(model.Parse(input, settings), outcome);
            ASSERT_EQ(compressed.Parse(input, settings), outcome);
            // every third text finds the rules with their own operations again
            watched.m_Lexer.WatchRules(i % 3 != 2);
            watched.m_Parser.WatchRules(i % 3 != 2);
            ASSERT_EQ(watched.Parse(input, settings), outcome);
            if (!outcome.tree.empty() && KeepsText() && FitsIntoXml(input)) {
                ASSERT_EQ(TextOfTree(outcome.tree), input);
            }
        }
}

// What texts leave in an object: positions, symbols, open branches, quotes taken off, errors, grown stacks.
TEST_P(EngineCases, NothingOfForgottenTextsShows)
{
    std::map<bool, CEngine> engines;
    for (const SGrammarCase& entry : m_Cases) {
        SCOPED_TRACE(testing::Message() << "Cases.txt:" << entry.line);
        CEngine& engine =
            engines.try_emplace(entry.settings.isCr, m_Grammar, entry.settings.isCr).first->second;
        engine.m_Lexer.ForgetTexts();
        engine.m_Parser.ForgetTexts();
        CEngine fresh(m_Grammar, entry.settings.isCr);
        EXPECT_EQ(engine.Parse(entry.input, entry.settings), fresh.Parse(entry.input, entry.settings));
        EXPECT_EQ(engine.m_Parser.m_Extension.m_lstDiscarded.size(),
                  fresh.m_Parser.m_Extension.m_lstDiscarded.size());
        engine.Parse(std::string(500, '(') + std::string(1000, 'a') + "&", entry.settings);
    }
}

INSTANTIATE_TEST_SUITE_P(Fixtures, EngineCases,
                         testing::Values("Coloring", "CopyToken", "Directives", "Heredoc", "Indent", "Less",
                                         "Nesting", "Nonassoc", "Order", "Patterns", "Pending", "Recovery",
                                         "Saved", "States", "Stuck", "Switch", "Tiny", "Trailing"),
                         [](const auto& entry) { return std::string(entry.param); });

} // namespace
