// What uvgrammar elements says of a language, against the trees of the language's cases and samples.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Support/ElementTrees.h"
#include "Tools/uvgrammar-elements/TreeElements.h"
#include "Tools/uvgrammar-score/ScoredFile.h"
#include "Tools/uvgrammar-test/CaseFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <map>

namespace fs = std::filesystem;

namespace {

class LanguageElements : public testing::TestWithParam<const char*>
{};

TEST_P(LanguageElements, AreAllThatTreesHold)
{
    const std::string name = GetParam();
    const fs::path folder = fs::path(UV_SOURCE_DIR) / "Languages" / name;
    CToolMessages messages("test", std::cerr);
    messages.SetQuiet(true);
    uvelements::SNodeRules rules;
    uvelements::ReadNodeRules(uvscore::FindLanguageSources(folder.string()), messages, rules);
    ASSERT_EQ(messages.ErrorCount(), 0u);
    CElementTrees trees(uvelements::DescribeElements(rules));

    const uvparse::SLanguage language{name, uvparse::VersionOfParser(name)};
    std::map<uvparse::TOptions, uvscore::CTextParser> parsers;
    const auto check = [&](const std::string& text, const std::string& path,
                           const uvparse::TOptions& options) {
        uvscore::CTextParser& parser = parsers.try_emplace(options, language, options).first->second;
        const uvparse::SParseResult result = parser.ParseSource(text, path).result;
        trees.Check(result.output, result.isParsed && result.findings.empty());
    };
    for (const auto& entry : fs::directory_iterator(folder / "Tests")) {
        const std::string path = entry.path().string();
        for (const uvtest::SCase& one : uvtest::ReadCaseFile(path, ReadFile(path)).cases) {
            SCOPED_TRACE(path + ':' + std::to_string(one.line));
            check(one.text, path, one.options);
        }
    }
    const std::vector<std::string> samples = SamplePaths(name.c_str());
    ASSERT_FALSE(samples.empty());
    for (const std::string& path : samples) {
        SCOPED_TRACE(path);
        check(ReadFile(path), path, {});
    }
    EXPECT_GT(trees.Trees(), 20);
    EXPECT_THAT(trees.Unsaid(), testing::IsEmpty());
    RecordProperty("pairs", static_cast<int>(trees.Said()));
    RecordProperty("pairs_that_never_occurred", static_cast<int>(trees.Unseen().size()));
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageElements, testing::Values("IBMCL", "JCL", "PostgreSQL"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace
