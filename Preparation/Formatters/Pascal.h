// Pascal: decides conditional directives before the grammar sees them.
#pragma once

#include "Preparation/PreparedText.h"

#include <string_view>

struct SPascalOptions
{
    bool isFaithful = false; // SOURCE_FORMS is "FAITHFUL"
};

// Conditions on symbols that are taken as defined are decided, others stay. Blank lines vanish.
//
// Literal form: only lines are looked at, see Directives.h. What a condition without an end holds is lost,
// down to the end of the source. An "$ENDIF" too many is carried as a debt: the next condition of several
// lines is then decided by its first line alone.
//
// Faithful form: what a compiler would see, see PascalDirectives.h; symbols and directives in any case of
// letters. A decided directive goes, and text beside it shares the fate of its own branch; lines keep their
// order. A dead branch takes its directives along. What follows a branch that is known to be dead becomes the
// first one: "{$ELSEIF X}" comes out as "{$IF X}". A symbol that a live "$UNDEF" names counts as unknown from
// there on. Directives without a partner stay, and so does all between them.
//
// Notes, in both forms: directives without a partner. In the literal form also the lines that only the
// faithful one keeps.
SPreparedText FormatPascal(std::string_view source, const SPascalOptions& options = {});
