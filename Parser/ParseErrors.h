// The error record of a parse, and the message in it.
#pragma once

#include "Grammar/UVGrammarParserImplementation.h"

#include <map>
#include <string>

struct SParsedText;

// Puts a record in the place of the text's error. The texts may be null; `tokens` too, and then the record has
// none.
// Throws: std::bad_alloc, as the next one.
void SetLastError(SParsedText& parsed, long code, const char* description, const char* nativeInfo = nullptr,
                  const std::multimap<unsigned long, std::string>* tokens = nullptr);

// The same with what the grammar's parser has met: its last message, the lines around the place, and all
// unexpected tokens. `found` may be null. Traces the message.
void SetLastError(SParsedText& parsed, const CSQLGrammarParserImplementation* found);

// The number that the parser's message begins with: -1 without one, 0 if it doesn't begin with a number.
int ExtractLineNumber(const std::string& errorMessage);

// The line of `text`, from 1, with its neighbours between markers. `place` stays as it is if there is no such
// line.
void GetErrorPlace(unsigned long lineNumber, const std::string& text, std::string& place);
