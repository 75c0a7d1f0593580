// What a parse tells beyond its result, as lists for a host that asked for them. A tab, line feed or carriage
// return in a text is shown as a blank.
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"
#include "Grammar/UVGrammarRuleWatch.h"
#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <optional>
#include <string_view>
#include <vector>

// What is told of an unexpected token.
enum class enTokenReport
{
    Places,
    Expected,
    Terminals
};

// The unexpected tokens of a parse of `query`, one line each in order of arrival:
//     line, column, offset, length, token
// separated by tabs. Line and column count from 1, columns in code points; offset and length are bytes of the
// query. All four tell where the token starts. With `Expected` the parser's state follows and then, each in a field of its
// own, what was expected; with `Terminals` the token's name in the grammar comes between.
Uve::U8CString FormatUnexpectedTokens(std::string_view query, const std::vector<SUnexpectedToken>& tokens,
                                      enTokenReport report);

// The text that was not read, one line for each stretch of it:
//     what, line, column, offset, length, reported, condition
// separated by tabs. `what` is "skipped" where the recovery from an error threw the text away; it stands in
// the tree as space. It is "unfinished" where the text ended in a start condition in which it mustn't: the
// place is where that condition was entered, and the length goes up to the end. Places are as above.
// `reported` is 1 if an unexpected token stands for the stretch, otherwise 0; `condition` is that of an
// unfinished text, by its name in the source of the language, and empty for a skipped one.
Uve::U8CString FormatLostText(std::string_view query, const std::vector<SDiscardedText>& discarded,
                              const std::optional<SUnfinishedText>& unfinished);

// What the preparation has to say, one line each:
//     "error" or "warning", line, file, text
// separated by tabs. Line 0 is none; an empty file is the text itself.
Uve::U8CString FormatPreparationNotes(const std::vector<SPreparationNote>& notes);

// The rules that a text has used, in two lines:
//     "scanner" or "parser", { number }
// separated by tabs. The numbers are those of the tables.
Uve::U8CString FormatCoverage(const SUsedRules& rules);
