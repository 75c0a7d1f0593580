// The language whose sources an author works on: its tables, and what its parser reads in each state.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvgrammar/GrammarSource.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

struct SLanguageSources
{
    std::string name; // of the folder
    std::string lexerPath;
    std::string parserPath;
};

// The sources in the folder of a language: one file *Lexer.l and one *Parser.y.
// Throws: CToolFailure.
SLanguageSources FindLanguageSources(const std::string& folder);

// Makes the tables of the language beside the program, in Grammar/<name>, if they aren't there or a source or the tool is
// newer. What is wrong with the sources goes to `messages`.
// Returns: false if the grammar is refused.
// Throws:  CToolFailure.
bool MakeTables(const SLanguageSources& sources, CToolMessages& messages);

// A rule that a parser is reading, with a mark where it stands, and the place of the rule in the source.
struct SRuleBeingRead
{
    SSourcePlace place;
    std::string text;
};

// The rules that the parser is reading in these states, from bison's report.
// Throws: CToolFailure.
std::map<int, std::vector<SRuleBeingRead>>
ReadParserStates(const SLanguageSources& sources, const std::set<int>& states, CToolMessages& messages);

} // namespace uvscore
