// Texts through the macro processor, and token lists in a form to compare.
#pragma once

#include "Preparation/MacroPreprocessorChecker.h"
#include "Tests/Preparation/ToldNotes.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct SMacroRun
{
    bool isDone = false;
    std::string text;
    std::string errors;
    std::vector<std::uint32_t> sourceLines;
    MacroPreprocessorChecker::UndefinesTokens undefines;
    std::string notes; // a line each: "E" or "W", file:line, text
};

inline SMacroRun RunMacros(int command, const std::string& source,
                           const MacroPreprocessorChecker::DefaultPresetValues& presets = {},
                           const std::string& path = "main.c")
{
    SMacroRun run;
    Uve::U8CString result;
    CPreparationNotes notes;
    Uve::U8CString errors;
    const auto undefines = std::make_shared<MacroPreprocessorChecker::UndefinesTokens>();
    run.isDone = MacroPreprocessorChecker::Checker::PreprocessFile(
        path, source, result, {command}, presets, errors, undefines, &run.sourceLines, &notes);
    run.text = result;
    run.errors = errors;
    run.undefines = *undefines;
    run.notes = Told(notes.Take());
    return run;
}

// The tokens of a text, white space left out.
inline std::vector<std::string> MacroTokens(const MacroPreprocessorChecker::internal::TokenList& list)
{
    std::vector<std::string> texts;
    for (const auto* token = list.first; token != nullptr; token = token->next)
        if (!token->SkipWhenNextOrPrev())
            texts.emplace_back(token->str);
    return texts;
}

// A folder of its own for each test; nothing in it has been looked for before.
class CMacroFolder : public testing::Test, protected CScratchFolder
{};
