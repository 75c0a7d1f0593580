// COBOL sources, whose columns mean something, as text for a free-form grammar.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

enum class enCobolFormat
{
    None,  // any other value: there is no prepared text
    Fixed, // COBOLFORMAT is "ANSI", in any case of letters
    Free   // COBOLFORMAT is "FREE", in any case of letters
};

struct SCobolOptions
{
    enCobolFormat format = enCobolFormat::None;
    bool savesDebugInfo = false; // SAVE_COBOL_DEBUG_INFO is "YES": comments aren't cut
    bool removesFormatting =
        false;        // REMOVE_SRC_FORMATTING is "1": runs of blanks collapse, short lines vanish
    int tabWidth = 4; // COBOL_TAB_WIDTH: the blanks that stand for a tab; below 1 there are none
};

// Columns count characters from 0, tabs being expanded. Empty lines vanish in both forms, and both drop the
// "," at the end of a line that begins with "IF ".
//
// Fixed form: columns 0 to 5 become blanks, and a letter other than D in column 6 goes. What is behind
// column 71 goes too, except behind "$" in column 6 and, with savesDebugInfo, behind "*". A line without a
// column 6 becomes six blanks. Other lines that begin with "-INC" or "ZMEMBER" are only cut. A line with "-"
// in column 6 goes on with the line before, which is filled up to column 71, so that a literal keeps the
// blanks that stood at its end. The line feeds at the end of the text stay.
//
// Free form: the first six characters become blanks if there are so many. A line with "-" in column 6 goes on
// with the last line that is no comment, right at its end; where there is none, it stays as it is. Each line
// ends in "\n".
SPreparedText FormatCobol(const Uve::U8CString& text, const SCobolOptions& options);
