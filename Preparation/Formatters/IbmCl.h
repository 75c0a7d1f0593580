// IBM CL, whose commands may go on over several lines.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

struct SIbmClOptions
{
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
};

// Joins the lines of a command: after a "+" at the end of a line the next one loses its leading white space,
// after a "-" it keeps it. A blank after the sign makes it text. Empty lines vanish, and so does "\r" at
// the ends of lines; the line feeds at the end stay. Then the last character of the text goes, whatever it
// is: a text that doesn't end in a line feed loses more than that. A second run takes another one.
//
// In the faithful form blanks after the sign don't make it text, and the last character goes only if it is a
// line feed.
//
// Notes: a last character that goes and is none.
SPreparedText FormatIbmCl(const Uve::U8CString& text, const SIbmClOptions& options = {});
