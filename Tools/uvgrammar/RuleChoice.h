// Which rules a language has, of all that its files hold: what they say of each other's rules, and what the start symbol
// leads to.
#pragma once

#include "Tools/uvgrammar/ParserRules.h"
#include "Tools/uvgrammar/SourceFile.h"

#include <set>
#include <string>
#include <vector>

// Marks as dropped
//   - the rules that %replace has others for, and what %without names;
//   - of files that other languages use too: alternatives with a token of `removedTokens` or with a symbol that is
//     dropped as a whole, and rules that the start symbol doesn't lead to.
// An empty `start` is the first rule's name. What can't be meant goes to `messages`, with its place.
void ChooseRules(std::vector<SRuleItem>& items, const CSourceFiles& files,
                 const std::set<std::string>& removedTokens, std::string start, CToolMessages& messages);
