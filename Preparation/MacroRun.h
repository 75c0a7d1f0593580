// The state of one run of the macro processor, shared by the sources of the Checker.
#pragma once

#include "Preparation/MacroExpansion.h"
#include "Preparation/MacroPreprocessorChecker.h"

#include <set>
#include <string>
#include <vector>

namespace MacroPreprocessorChecker {

struct Checker::SRun
{
    // What becomes of the lines under a conditional directive.
    enum enState
    {
        STATE_TRUE = 0,
        STATE_ELSE_IS_TRUE = 1,
        STATE_ALWAYS_FALSE = 2
    };

    struct SConditional
    {
        enState state = STATE_TRUE;
        internal::Location opened;
    };

    struct SPosition
    {
        internal::Token* token = nullptr;
        std::string file; // a key of fileData, or the main source's path
    };

    SRun(Command command, internal::TokenStore& store, const DefaultPresetValues& presets,
         UndefinesTokens* undefined, internal::MacroExpander::Follow follow)
        : isVerbatim(command.value == 0), isExpanding(command.value == 2), undefinesTokens(undefined),
          macros(store.names), expander(macros, store, presets.expansionLimit, std::move(follow))
    {}

    bool IsLive() const { return conditionals.back().state == STATE_TRUE; }

    bool isVerbatim;  // every line stays
    bool isExpanding; // macros are expanded, and their definitions go
    UndefinesTokens* undefinesTokens;

    internal::MacroTable macros;
    internal::MacroExpander expander;
    std::vector<SConditional> conditionals; // the first entry is the text outside of them
    std::vector<SPosition> positions;       // where the files that include the current one go on
    SPosition current;
    std::set<std::string> onceFiles;
    std::size_t enteredBytes = 0;

    // Command 2: the text before the next token comes from an expansion, and what it ends with.
    bool isBehindExpansion = false;
    std::string lastText;
    std::uint32_t expansionLine = 0; // where the call ended

    // Other commands: calls of macros that end a statement, by the parentheses open before each.
    std::vector<std::size_t> statementCalls;
    std::size_t parentheses = 0;
};

} // namespace MacroPreprocessorChecker
