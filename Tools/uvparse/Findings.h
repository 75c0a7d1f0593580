// The tokens that the parser met where no rule has a place for them, and the messages about them.
#pragma once

#include "Tools/Support/ToolMessages.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

struct SUnexpectedToken
{
    std::size_t offset = 0; // bytes into the prepared text
    std::size_t length = 0;
};

// Reads the library's list, a line each: line, column, offset, length, token, parted by tabs. Lines of
// another form are passed over.
std::vector<SUnexpectedToken> ReadTokenList(const std::string& list);

// Writes one message for each token, with the line that it stands in and a caret below: a long line is shown
// around the place. Offsets count in `prepared`, the messages are of the source. Sorts the tokens by offset.
void WriteUnexpectedTokens(CToolMessages& messages, std::ostream& stream, CSourcePlaces& places,
                           std::string_view prepared, std::vector<SUnexpectedToken> tokens);

} // namespace uvparse
