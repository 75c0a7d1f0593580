// The faithful forms of COBOL sources, and what they share with the literal ones; Cobol.h tells what they
// are.
#pragma once

#include "Preparation/Formatters/Cobol.h"
#include "Preparation/PreparedText.h"

#include <cstddef>
#include <string_view>

inline constexpr std::size_t kCobolIndicatorColumn = 6;
inline constexpr std::size_t kCobolEndColumn = 72; // after the last one that counts
inline constexpr std::string_view kCobolMargin = "      ";

// Requests of library systems, which have no columns.
bool IsCobolIncludeLine(std::string_view line);

// A line of the fixed form from its indicator on, the tabs expanded: without letters there, but for D, and
// comments cut unless they are wanted whole. `indicator`: where it stands, in bytes.
std::string_view CobolCode(std::string_view line, std::size_t indicator, const SCobolOptions& options);

// A grammar takes no comma between the condition and what follows it.
std::string_view WithoutConditionComma(std::string_view line);

// `options.format` is Fixed or Free. No notes.
SPreparedText FormatCobolFaithfully(std::string_view source, const SCobolOptions& options);
