// FoxPro programs, whose statements go on after a ";" at the end of a line.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

struct SFoxProOptions
{
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
};

// Joins the lines of a statement. Empty lines stay, except at the end of the text, where line feeds go.
//  - A line that begins with "*" is a comment; it loses its leading white space and is never joined.
//  - A ";" at the end of a line becomes a blank, and the next line follows. In a literal that the line leaves
//    open the next line follows directly.
//  - A ";" before "&&" goes, and nothing is joined: the comment ends the statement's line. A ";" at the
//    end of the text goes too.
//  - A ";" before anything else stays, and the rest of its line with it.
// On a line with a ";" that is no comment, characters beyond ASCII come out as "`", up to the ";" that stays.
//
// In the faithful form a ";" at the end joins comments too, and one that isn't at the end is text like any
// other, also before "&&" in an open literal: what counts is how the line ends. Characters stay.
//
// Notes, in the literal form: lines that lose characters, and what is lost after ";" in an open literal.
SPreparedText FormatFoxPro(const Uve::U8CString& text, const SFoxProOptions& options = {});
