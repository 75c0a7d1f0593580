// Pascal: decides conditional directives before the grammar sees them.
#pragma once

#include "Preparation/PreparedText.h"

#include <string_view>

// Blank lines vanish. What a condition without an end holds is lost, down to the end of the source. An
// "$ENDIF" too many is carried as a debt: the next condition of several lines is then decided by its first
// line alone.
SPreparedText FormatPascal(std::string_view source);
