// In which start conditions of a scanner a text may end, for the engine to tell where it ended in another
// one. The source says it: a text may end in the initial condition, in an inclusive one (%s), and in an
// exclusive one that has the rule
//     <CONDITION><<EOF>> { yyterminate(); }
#pragma once

#include "Tools/uvgrammar/Generators.h"
#include "Tools/uvgrammar/GrammarSource.h"

#include <map>
#include <string>
#include <string_view>

// True for the only action that a rule for the end of the text can have: the tables have no place for another
// one.
bool IsEndOfText(std::string_view action);

// The records of these rules, to be added to the scanner's actions: each is the number of the rule and
// nothing else.
std::string EndRecords(const CGrammarSource& source, const SGeneratedFiles& files,
                       const std::map<std::string, int>& startConditions);
