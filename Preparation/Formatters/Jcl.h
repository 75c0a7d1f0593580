// JCL, whose lines end at column 71.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

// Cuts every line to its first 72 characters, which takes the sequence numbers away. Empty lines vanish, the
// line feeds at the end stay. The host asks for this by JCLANSIFORMAT, "1" or "YES"; there are no other
// options.
SPreparedText FormatJcl(const Uve::U8CString& text);
