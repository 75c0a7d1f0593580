// Strings that have lost their closing quote. Such a string goes on to the next quote anywhere in the text, and
// from there on text and strings have changed places. What gives it away is an unexpected token within it, or
// after it on its last line. Ended at its first line it costs one statement.
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParserImplementation.h"

#include <compare>
#include <cstddef>
#include <string_view>
#include <vector>

// How well a text was read. The lesser one is the better.
struct SReading
{
    bool isRefused = false; // there is no tree
    std::size_t lostBytes =
        0; // of the text; a token that takes in whole statements can be the only unexpected one
    std::size_t unexpectedTokens = 0;

    auto operator<=>(const SReading&) const = default;
};

// `parsed`: what the parser returned.
SReading ReadingOf(int parsed, const std::vector<SUnexpectedToken>& unexpected,
                   const std::vector<SDiscardedText>& lost);

// Where the first lines of the long texts end that one of the tokens makes suspect: bytes of `text`, each once,
// in the order of the tokens.
std::vector<std::size_t> SuspectLineEnds(std::string_view text, const std::vector<SLongText>& longTexts,
                                         const std::vector<SUnexpectedToken>& unexpected);
