// Directives by which generated sources say where their lines come from: "#line 7 \"file\"", "# 7 \"file\"",
// "# file \"file\"" and "# endfile".
#pragma once

#include "Preparation/MacroTokens.h"

#include <cstdint>
#include <optional>
#include <string>

namespace MacroPreprocessorChecker::internal {

struct SLineDirective
{
    enum enKind
    {
        KIND_NONE,
        KIND_FILE, // what follows is of another file, from its first line on
        KIND_LINE, // what follows stands on another line
        KIND_END_OF_FILE
    };

    enKind kind = KIND_NONE;
    std::uint32_t line = 0;
    std::optional<std::string> file; // without: the current one
};

// What the last line of the list says, which isn't empty.
SLineDirective LineDirectiveOf(const TokenList& list);

} // namespace MacroPreprocessorChecker::internal
