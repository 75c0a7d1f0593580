// The faithful form of Pascal sources; Pascal.h tells what it is.
#pragma once

#include "Preparation/Formatters/PascalDirectives.h"
#include "Preparation/PreparedText.h"

#include <string_view>
#include <vector>

// `directives`: of `source`. No notes.
SPreparedText FormatPascalFaithfully(std::string_view source,
                                     const std::vector<SPascalDirective>& directives);
