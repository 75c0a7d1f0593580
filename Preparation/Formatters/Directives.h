// Conditional directives of Pascal: conditions on symbols that are known to be defined are decided,
// conditions on others stay as they are, for the grammar to see.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <list>
#include <optional>
#include <span>
#include <string_view>

// What is taken as defined, in upper case.
std::span<const std::string_view> DefinedPascalSymbols();

// The first directive of a line: "{$NAME}" or "{$NAME SYMBOL}", with white space wherever it does no harm.
struct SDirective
{
    std::string_view text; // from brace to brace
    std::string_view symbol;
    std::string_view delimiter; // "," or ";" right after it, or empty
};

// All parts borrow `line`.
std::optional<SDirective> FindDirective(std::string_view line);

// True if the directive's text holds `word` without regard to case: "$ELSEIF" is an "$ELSE".
// `word`: upper case.
bool DirectiveHolds(const SDirective& directive, std::string_view word);

// A line without its line feed, and where it stands.
struct SDirectiveLine
{
    std::string_view text; // borrowed
    std::uint32_t sourceLine = 0;
};

// Decides the conditions in `lines`, of which each holds at least one byte.
// Only the first directive of a line is looked at, and the text beside it shares its fate. A "," or ";"
// after a directive comes back as a line before the next line that is kept. Constructs within one are
// decided when it closes; one that stays open leaves what is nested in it undecided.
// Returns: the lines that are left; they borrow what `lines` borrow.
std::list<SDirectiveLine> ResolveDirectives(const std::list<SDirectiveLine>& lines);

// Cuts at line feeds; lines without a byte are left out. All of them get `sourceLine`.
std::list<SDirectiveLine> DirectiveLines(std::string_view text, std::uint32_t sourceLine);

// Puts each braced part of a line on a line of its own, without line feeds at either end.
Uve::U8CString SplitAtBraces(std::string_view line);

// Decides the conditions in `text`. Blank lines vanish, and the result doesn't end in a line feed.
// `singleLine`: `text` is one line with whole constructs in it, and comes back as one.
void ProcessMultiLineDirective(Uve::U8CString& text, bool singleLine);
