// JCL, whose lines end at column 71.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

struct SJclOptions
{
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
};

// Cuts every line to its first 72 characters, which takes the sequence numbers away. Empty lines vanish, the
// line feeds at the end stay. The host asks for this by JCLANSIFORMAT, "1" or "YES"; there are no other
// options. In the faithful form empty lines stay: they may be records of data.
SPreparedText FormatJcl(const Uve::U8CString& text, const SJclOptions& options = {});
