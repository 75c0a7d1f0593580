// What a parse found wrong with its text, and the messages about it.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <cstddef>
#include <iosfwd>
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
    bool isReported = false; // skipped text that an unexpected token stands for
    int state = 0;           // of the parser, at an unexpected token
    std::string name = {};   // of the token in the grammar, or of the scanner's state that never ended
    std::vector<std::string> expected = {}; // instead of an unexpected token, the likeliest first
};

// Both read a list of the library, a line each with fields separated by tabs, and add to `findings`:
//     line, column, offset, length, token, state, name, { expected }
//     what, line, column, offset, length, reported, condition
// Lines of another form are passed over.
void ReadUnexpectedTokens(const std::string& list, std::vector<SFinding>& findings);
void ReadLostText(const std::string& list, std::vector<SFinding>& findings);

// Counts those of one kind.
std::size_t CountFindings(const std::vector<SFinding>& findings, enFinding kind);

// Writes one message for each that has none yet, with the line that it stands in and a caret below: a long
// line is shown around the place. Offsets count in `prepared`, the messages are of the source and come in its
// order.
void WriteFindings(CToolMessages& messages, std::ostream& stream, CSourcePlaces& places,
                   std::string_view prepared, std::vector<SFinding> findings);

} // namespace uvparse
