// The forms that a scanner source may have beyond flex's own, each a line of its own from the first column on:
//
//     %include "Strings.l"            in either section: the fragment's definitions or rules come here. A fragment with a
//                                     "%%" has both; it is included among the rules, and its definitions come after all
//                                     others.
//     %keywords "SQL.words"           among the rules: a rule for each spelling of each word of a table.
//     <A,B>%keywords "SQL.words"      the same in start conditions.
#pragma once

#include "Tools/uvgrammar/GrammarSource.h"

#include <string>

// The source as flex reads it. What is wrong with these forms goes to `messages`, and the result is of no use then.
// Throws: CToolFailure if the source itself can't be read.
CGrammarSource AssembleScanner(const std::string& path, CToolMessages& messages);

// A line of such a source for people: what a table of words gave has its word in quotes in the place of the classes that
// stand there for its letters.
std::string ReadableRule(const std::string& line);
