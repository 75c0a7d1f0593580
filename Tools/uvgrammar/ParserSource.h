// The forms that a parser source may have beyond bison's own, and what they mean:
//
//     %include "Names.y"             in either section: the fragment's declarations or rules come here. A fragment with a
//                                    "%%" has both; it is included among the rules, and its declarations come after all
//                                    others.
//     %keywords "SQL.words"          among the declarations: the tokens of a table of words.
//     name: %words group {action}    alternatives, one for each word of the groups that are named.
//     %list name: item ... ;         the rules of a list (see ListRules.h).
//     %replace name: ... ;           this rule stands in the place of those that other files have for the symbol.
//     %without name: a b | c ;       these alternatives, which other files have, aren't this language's.
//     { NODE; }  { NODE(name); }     CREATE_NODE, EMPTY or CREATE_NODE_WITH_ERROR with the numbers of the alternative; the
//                                    node has the name of the rule unless it is given one.
//
// Alternatives of one symbol may stand in several files. A shared rule that the start symbol doesn't lead to is left out.
#pragma once

#include "Tools/uvgrammar/GrammarSource.h"

#include <string>

// The source as bison reads it. What is wrong with these forms goes to `messages`, and the result is of no use then.
// Throws: CToolFailure if the source itself can't be read.
CGrammarSource AssembleParser(const std::string& path, CToolMessages& messages);
