// COBOL sources, whose columns mean something, as text for a free-form grammar.
#pragma once

#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <string_view>

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
        false;               // REMOVE_SRC_FORMATTING is "1": runs of blanks collapse, short lines vanish
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
    std::string_view formatName = {}; // what COBOLFORMAT holds, for a note; borrowed
    int tabWidth = 4; // COBOL_TAB_WIDTH: the blanks that stand for a tab; below 1 there are none
};

// Columns count characters from 0, tabs being expanded. Empty lines vanish in all forms, and all drop the
// "," at the end of a line that begins with "IF ".
//
// Fixed form: columns 0 to 5 become blanks, and a letter other than D in column 6 goes. What comes after
// column 71 goes too, except after "$" in column 6 and, with savesDebugInfo, after "*". A line without a
// column 6 becomes six blanks. Other lines that begin with "-INC" or "ZMEMBER" are only cut. A line with "-"
// in column 6 goes on with the line before, which is filled up to column 71, so that a literal keeps the
// blanks that stood at its end. The line feeds at the end of the text stay.
//
// Free form: the first six characters become blanks if there are so many. A line with "-" in column 6 goes on
// with the last line that is no comment, right at its end; where there is none, it stays as it is. Each line
// ends in "\n".
//
// The faithful forms differ from these in what goes on and in tabs:
//  - A line goes on with the last one that is neither blank nor a comment; those come out after it.
//  - A literal that this one leaves open is filled up to column 71 (not in the free form) and loses the quote
//    that opens it once more. Two quotes after one in column 71 are one within the literal. A word goes on
//    right after its last letter. An inline comment comes after all of that.
//  - A tab goes on to the next multiple of tabWidth, one before column 7 to the first one after column 6.
//  - "\r" at the end of a line goes.
//  - Blanks collapse when a line is complete.
// With nothing to go on with, a line with "-" in column 6 is a line like others.
//
// Notes: a format that is none; lines too short to have a column 6 that hold more than a number.
SPreparedText FormatCobol(const Uve::U8CString& text, const SCobolOptions& options);
