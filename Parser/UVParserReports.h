#pragma once

#include "Grammar/UVGrammarParser.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <string_view>
#include <vector>

// The unexpected tokens of a parse of `query`, one line each in order of arrival:
//     line, column, offset, length, token
// parted by tabs. Line and column count from 1, columns in code points; offset and length are bytes of the
// query. All four tell where the token starts. A tab, line feed or carriage return in the token is shown as a
// blank.
Uve::U8CString FormatUnexpectedTokens(std::string_view query, const std::vector<SUnexpectedToken>& tokens);
