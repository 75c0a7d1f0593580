// What a parse tells beyond its result, as lists for a host that asked for them. A tab, line feed or carriage
// return in a text is shown as a blank.
#pragma once

#include "Grammar/UVGrammarParser.h"
#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <string_view>
#include <vector>

// The unexpected tokens of a parse of `query`, one line each in order of arrival:
//     line, column, offset, length, token
// separated by tabs. Line and column count from 1, columns in code points; offset and length are bytes of the
// query. All four tell where the token starts.
Uve::U8CString FormatUnexpectedTokens(std::string_view query, const std::vector<SUnexpectedToken>& tokens);

// What the preparation has to say, one line each:
//     "error" or "warning", line, file, text
// separated by tabs. Line 0 is none; an empty file is the text itself.
Uve::U8CString FormatPreparationNotes(const std::vector<SPreparationNote>& notes);
