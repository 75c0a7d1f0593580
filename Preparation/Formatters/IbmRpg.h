// RPG in fixed form: the columns of a line become short rows that begin with a label, so that a grammar can
// tell the fields apart.
//
//     C                   IF        A = B            C                   VelmoraBegIF        A = B
//                                              =>    $
//     C                   ENDIF                      C                   VelmoraEndENDIF
//                                                    #
//
// A row of "$" ends each line that was cut; "#" stands there instead when the line closed an outermost block.
// Columns count from 0. They are bytes, and characters in the faithful form.
#pragma once

#include "Preparation/PreparedText.h"

#include <string>
#include <string_view>

// The two column layouts. With any other number the prepared text is empty.
inline constexpr int kRpgLayoutWithDefinitions = 0; // with D and P lines and free-form sections
inline constexpr int kRpgLayoutOlder = 1;           // with E and L lines

struct SIbmRpgOptions
{
    int layout = 2;          // what the option IBMRPG_VERSION holds, and what counts without it
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
};

// A carriage return at the end of a line counts as a column. Lines that specify nothing known are dropped,
// and so are lines of fewer than 7 columns.
//
// In the faithful form columns are characters, and rows keep the order of their lines. With definitions lines
// without a letter are free form if they begin with blanks in columns 5 and 6, and go out from there on. Data
// begins with "**" at the start of a line, as a source does that is free form as a whole ("**FREE"): that
// line and all after it are copied, however short.
//
// Notes: lines that were dropped, but for those that hold nothing from column 5 on; an unknown layout.
SPreparedText FormatIbmRpg(std::string_view source, const SIbmRpgOptions& options);

// Marks the operation that opens or closes a block in `piece`: the letter "C" and a calculation line from
// column 6 on. `countsCharacters`: its columns are characters. `depth`: of the open blocks; -1 as long as the
// pass hasn't answered the close of an outermost one.
void format_section(std::string& piece, int layout, int& depth, bool countsCharacters = false);
