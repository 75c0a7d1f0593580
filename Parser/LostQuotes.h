// Strings that have lost one of their quotes. Such a string goes on to the next quote anywhere in the text, and
// from there on text and strings have changed places. What gives it away is an unexpected token within it, right
// after it, or before it if the string is lost with it: without its opening quote a string is words, and its closing
// quote opens the long one. Ended at its first line it costs one statement.
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParserImplementation.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

// How well a text was read. The lesser one is the better.
struct SReading
{
    bool isRefused = false;    // there is no tree
    std::size_t lostBytes = 0; // a token that takes in whole statements can be the only unexpected one
    std::size_t unexpectedTokens = 0;

    bool operator<(const SReading& other) const
    {
        return std::tie(isRefused, lostBytes, unexpectedTokens) <
               std::tie(other.isRefused, other.lostBytes, other.unexpectedTokens);
    }
};

// `parsed`: what the parser returned. `lost`: of `text`, in its order. A delimiter between two lost pieces is lost too:
// a reading that only cuts what it loses into more pieces is no better.
SReading ReadingOf(int parsed, const std::vector<SUnexpectedToken>& unexpected,
                   const std::vector<SDiscardedText>& lost, const std::optional<SUnfinishedText>& unfinished,
                   std::string_view text);

// Where the scan can go on as if a long text that one of the tokens makes suspect had not been opened, or had
// ended at its first line: bytes of the text, each once, in the order of the tokens, and then of lost text without one.
std::vector<std::size_t> SuspectPlaces(const std::vector<SLongText>& longTexts,
                                       const std::vector<SUnexpectedToken>& unexpected,
                                       const std::vector<SDiscardedText>& lost);
