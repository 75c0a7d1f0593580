// Regular expressions of stylesheets and name masks. Patterns come from outside: matching is bounded in
// steps, stack and time, and one that doesn't compile or goes beyond a bound matches nothing and leaves a
// trace line.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// The text with a backslash before each character that is special outside of a class.
Uve::U8CString UVDBESCRegExp(const char* text);

// Whether the whole name fits the mask, without regard to case: "*" stands for any text, "?" for one
// character, "[...]" for one of a class. A mask without these three is compared exactly. A backslash takes
// the meaning from the character after it. Null texts are empty ones.
bool UVDBMatchRegExp(const char* name, const char* mask);

// Every match of the pattern (PCRE syntax) in `text`, left to right, with its capture groups as attributes:
//     <Items><Item res1='a' res2='' ></Item></Items>
// Groups that took no part are empty. `flags` holds the letters i (ignore case), m (lines), s (the dot takes
// line ends too), x (extended) and U (ungreedy); other letters say nothing, and neither does the word "C++".
// A pattern and a text that are both UTF-8 match by characters, others by bytes.
// Returns: an element without items for a pattern that doesn't compile or exceeds a bound.
Uve::U8CString UVDBRegExp2Nodeset(const Uve::U8CString& text, const Uve::U8CString& regExp,
                                  const Uve::U8CString& flags);
