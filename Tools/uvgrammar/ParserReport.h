// bison's report of a grammar, as far as it describes the rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct SGrammarRule
{
    int number = 0; // of the tables and of the action texts, one more than the report says
    std::string left;
    std::vector<std::string> right; // names, aliases with their quotes, or characters with their quotes
};

struct SParserReport
{
    std::vector<SGrammarRule> rules; // by number; rules that can't be derived aren't among them
    int shiftReduceConflicts = 0;
    int reduceReduceConflicts = 0;
    std::vector<std::string> uselessNonterminals;
    std::vector<std::string> uselessRules; // in grammar and in parser, as the report prints them
    int terminals = 0;
    int nonterminals = 0;
};

// The report's sections:
//     "Nonterminals useless in grammar", "Rules useless in ...", { "State" number "conflicts:" counts },
//     "Grammar" rules, "Terminals, with rules where they appear" ..., "Nonterminals, ..." ...
//     rule = number ( left ":" | "|" ) { symbol }          an empty right side is %empty
// Throws: CToolFailure if the text has no grammar section.
SParserReport ReadParserReport(std::string_view text);
