// What a parse found wrong with its text, and the messages about it.
#pragma once

#include "Tools/uvparse/FilePlaces.h"
#include "Tools/uvparse/Message.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

enum class enFinding
{
    UnexpectedToken, // no rule has a place for it
    SkippedText,     // thrown away in the recovery from an error
    UnfinishedText   // a comment, quote or the like that is open at the end of the text
};

struct SFinding
{
    enFinding kind = enFinding::UnexpectedToken;
    std::size_t offset = 0; // bytes into the prepared text
    std::size_t length = 0;
    bool isReported = false;                // skipped text that an unexpected token stands for
    std::vector<std::string> expected = {}; // instead of an unexpected token, the likeliest first
    std::optional<int> state = {};          // of the parser at an unexpected token
    std::string name = {};                  // of an unexpected token in the grammar
    std::string condition = {};             // of the scanner, of an unfinished text
};

// The text that messages are about, as it was read.
struct SSource
{
    std::string path; // "-" is standard input
    std::string language;
    std::string_view text; // borrowed
    SFileBytes bytes;
};

// Both read a list of the library, a line each with fields separated by tabs, and add to `findings`:
//     line, column, offset, length, token, state, name, { expected }
//     what, line, column, offset, length, reported, condition
// Lines of another form are passed over.
void ReadUnexpectedTokens(const std::string& list, std::vector<SFinding>& findings);
void ReadLostText(const std::string& list, std::vector<SFinding>& findings);

// Counts those of one kind.
std::size_t CountFindings(const std::vector<SFinding>& findings, enFinding kind);

// One message for each that has none yet, in the order of the text, with its place in the source and in the
// file. `preparation` is of the same source; offsets of findings count in its prepared text.
std::vector<SMessage> MessagesOf(const SSource& source, const SPreparation& preparation,
                                 std::vector<SFinding> findings);

// Takes the place and what is shown of it, without the remark.
void SetPlace(SMessage& message, SMessagePlace found);

} // namespace uvparse
