// The language whose sources an author works on: its tables, and what its parser reads in each state.
#pragma once

#include "Tools/Support/ToolMessages.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

struct SGeneratedGrammar;

namespace uvscore {

class CLanguageRules;

struct SLanguageSources
{
    std::string name; // of the folder
    std::string lexerPath;
    std::string parserPath;
};

// The sources in the folder of a language: one file *Lexer.l and one *Parser.y.
// Throws: CToolFailure.
SLanguageSources FindLanguageSources(const std::string& folder);

// Makes the tables of the language beside the program, in Grammar/<name>, if those that are there aren't of these sources or the tool
// is newer. What is wrong with the sources goes to `messages`.
// `rules`, unless null, get what the generators make, which needn't run for them again.
// Returns: false if the grammar is refused.
// Throws:  CToolFailure.
bool MakeTables(const SLanguageSources& sources, CToolMessages& messages, CLanguageRules* rules = nullptr);

// A rule that a parser is reading, with a mark where it stands, and the place of the rule in the source.
struct SRuleBeingRead
{
    SSourcePlace place;
    std::string text;
};

// A rule as its author wrote it. A list, and the words of a group, are one rule to the author and many in the tables.
struct SLanguageRule
{
    SSourcePlace place;
    std::string text;
    std::vector<int> numbers; // in the tables
};

// What the sources say, as the generators understand them. These run when they are first needed, unless they have for the
// tables; what is wrong with the sources is passed over.
class CLanguageRules
{
public:
    explicit CLanguageRules(SLanguageSources sources);
    ~CLanguageRules();

    void Take(std::unique_ptr<const SGeneratedGrammar> generated);

    // All of these throw CToolFailure.

    // The rules that the parser is reading in these states.
    std::map<int, std::vector<SRuleBeingRead>> ReadStates(const std::set<int>& states);
    // In the order of their numbers.
    std::vector<SLanguageRule> ParserRules();
    std::vector<SLanguageRule> ScannerRules();

private:
    const SGeneratedGrammar& Generated();

    SLanguageSources m_Sources;
    std::unique_ptr<const SGeneratedGrammar> m_Generated;
};

} // namespace uvscore
