// How well a language reads a text, and which of several reads it best.
#pragma once

#include "Tools/uvparse/ParserHost.h"
#include "Tools/uvparse/TreeText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

// Offsets are bytes of the text that was read; all lists ascend. Where a preparation has changed the text they are
// scaled, so that readings of one text can be compared.
struct SLanguageReading
{
    std::string language;
    bool isRefused = false;     // the text as a whole
    bool hasTree = true;        // without one there are no tokens and no statements
    std::vector<SStretch> lost; // disjoint
    std::vector<std::size_t> unexpected;
    std::vector<std::size_t> tokens;
    std::vector<SStretch> statements; // disjoint
    // What the text's end leaves open begins here, and is no evidence: the end may be that of a piece. The size of
    // the text if nothing is open.
    std::size_t openAt = 0;
    std::size_t faultAt = 0; // where the first fault is told
    std::string fault;       // "line:column: what it is"; empty: there is none
};

// What `language` made of a text. `prepared`: the text that was parsed. `size`: of the text before it was prepared.
// `isCut`: more of the text follows. Of the first fault only the place is told.
SLanguageReading ReadingOf(const std::string& language, const SParseResult& result, std::string_view prepared,
                           std::size_t size, bool isCut);

// Counts of a reading up to where the evidence ends.
struct SReadingCounts
{
    std::size_t lostBytes = 0;
    std::size_t unexpectedTokens = 0;
    std::size_t tokens = 0;
    std::size_t statements = 0; // read and lost
    std::size_t cleanStatements = 0;
    bool isPassing = false; // the language passes over the text, as one does that takes whole lines for data
};

struct SLanguageVerdict
{
    std::size_t best = 0;           // of the readings
    std::vector<std::size_t> alike; // the others that are as good
    bool isBad = false;             // the best one reads the text badly, too
    bool hasStatements = false;     // a tree tells statements, so that they can be counted
    std::size_t evidence = 0;       // bytes of the text that all readings tell of
    std::vector<SReadingCounts> counts;
};

// Compares readings of one text, at least one. The evidence ends where the first of them has something open. The best
// one isn't refused, doesn't make less than half as many tokens of the text as another does, loses the fewest bytes,
// has the fewest unexpected tokens; and of those that are alike it is the first.
SLanguageVerdict JudgeReadings(const std::vector<SLanguageReading>& readings);

// "taken for MySQL: 40 of 40 statements are clean; PostgreSQL: 12 of 40, first at 3:14: unexpected token '`'".
// `looked`: bytes of the text's beginning that were read; 0: the whole text was.
std::string VerdictText(const std::vector<SLanguageReading>& readings, const SLanguageVerdict& verdict,
                        std::size_t looked);

} // namespace uvparse
