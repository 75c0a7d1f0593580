// Texts through the macro processor, and token lists in a form to compare.
#pragma once

#include "Preparation/MacroPreprocessorChecker.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct SMacroRun
{
    bool isDone = false;
    std::string text;
    std::string errors;
    std::vector<std::uint32_t> sourceLines;
    MacroPreprocessorChecker::UndefinesTokens undefines;
};

inline SMacroRun RunMacros(int command, const std::string& source,
                           const MacroPreprocessorChecker::DefaultPresetValues& presets = {},
                           const std::string& path = "main.c")
{
    SMacroRun run;
    Uve::U8CString result;
    Uve::U8CString errors;
    const auto undefines = std::make_shared<MacroPreprocessorChecker::UndefinesTokens>();
    run.isDone = MacroPreprocessorChecker::Checker::PreprocessFile(path, source, result, {command}, presets,
                                                                   errors, undefines, &run.sourceLines);
    run.text = result;
    run.errors = errors;
    run.undefines = *undefines;
    return run;
}

// The tokens of a text, white space left out.
inline std::vector<std::string> MacroTokens(const MacroPreprocessorChecker::internal::TokenList& list)
{
    std::vector<std::string> texts;
    for (const auto* token = list.first; token != nullptr; token = token->next)
        if (!token->SkipWhenNextOrPrev())
            texts.push_back(token->str);
    return texts;
}

// A folder of its own for each test; nothing in it has been looked for before.
class CMacroFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        std::string pattern = testing::TempDir() + "macro-" + test->name() + "-XXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        m_Folder = pattern;
    }
    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_Folder, ignored);
    }

    std::string Path(const std::string& name) const { return m_Folder.string() + '/' + name; }
    void Write(const std::string& name, std::string_view text) const
    {
        const std::filesystem::path path = Path(name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }

    std::filesystem::path m_Folder;
};
