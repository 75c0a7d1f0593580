// Runs of blanks in one line of a source.
#pragma once

#include <string>
#include <string_view>

// Replaces each run of two or more blanks, tabs, "\f" and "\v" by one blank, but for those inside a literal.
// A lone quote or a run of three or more decides what is a literal: one of odd length opens it, or closes the
// open one, whichever of ' and " that began with; after one of even length there is none. A doubled quote
// means nothing, so that one inside a literal stays there.
// `line` holds no line feed.
std::string RemoveDuplicatedDelimiters(std::string_view line);
