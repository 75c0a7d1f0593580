// The head of a generated file.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// Replaces `out` by a comment of the target language that tells the program, its release and, if there is
// one, the customer, and in a second line the local date and time. `extension` is that of the file, without a
// dot and in any case; some languages have several comment styles. Null texts are empty ones.
void ComposeVersionTimestampComment(unsigned long db, Uve::U8CString& out, const char* extension,
                                    const char* release, const Uve::U8CString& customer);
