// The tokens that the parser met where no rule has a place for them, and the messages about them.
#pragma once

#include "Tools/Support/ToolMessages.h"

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

struct STextPlace
{
    std::size_t line = 1;   // from 1
    std::size_t column = 1; // code points, from 1
    std::size_t lineStart = 0;
    std::size_t lineEnd = 0; // without the line feed
};

// Lines and columns of byte offsets. Asking by ascending offset walks the text once, however long its lines
// are.
class CTextPlaces
{
public:
    explicit CTextPlaces(std::string_view text) : m_Text(text) {}

    // An offset beyond the text counts as its end.
    STextPlace Find(std::size_t offset);

private:
    void Advance(std::size_t offset);

    std::string_view m_Text;
    std::size_t m_Offset = 0;
    STextPlace m_Place;
    bool m_KnowsLineEnd = false;
};

// Writes one message for each token, with the line that it stands in and a caret below: a long line is shown
// around the place. Sorts the tokens by offset.
void WriteUnexpectedTokens(CToolMessages& messages, std::ostream& stream, const std::string& file,
                           std::string_view text, std::vector<SUnexpectedToken> tokens);

} // namespace uvparse
