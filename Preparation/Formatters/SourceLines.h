// The lines of a source text and the columns of a line, as the passes see them. Columns count characters from
// 0, everything else counts bytes.
//
// A character is a lead byte and the continuation bytes that really follow it, so that a text in some 8-bit
// encoding keeps its columns too, a byte each, and no broken sequence swallows a line feed or a quote.
#pragma once

#include "UVEnvironment/UVEUnicode.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct SSourceLine
{
    std::string_view text;    // without its line feed; a "\r" is text
    std::uint32_t number = 0; // from 1
};

// Walks over a text, which it borrows. What follows the last line feed is a line if there is anything.
class CSourceLines
{
public:
    explicit CSourceLines(std::string_view source) : m_Rest(source) {}

    // Returns: false, with `line` as it was, after the last line.
    bool Next(SSourceLine& line);
    // The same without lines of no length.
    bool NextFilled(SSourceLine& line);

    // The lines that have been passed.
    std::uint32_t Count() const { return m_Number; }

private:
    std::string_view m_Rest;
    std::uint32_t m_Number = 0;
};

// Bytes of the character at byte `at`, which lies inside `text`.
inline std::size_t CharacterLength(std::string_view text, std::size_t at)
{
    const std::size_t longest = Uve::utf8_skip_data[static_cast<unsigned char>(text[at])];
    std::size_t length = 1;
    while (length < longest && at + length < text.size() && Uve::utf8_is_continuation(text[at + length]))
        ++length;
    return length;
}

// The byte where `column` begins; the line's size if it has no such column.
std::size_t ColumnOffset(std::string_view line, std::size_t column);

// The line's characters, at most `most`.
std::size_t CountCharacters(std::string_view line, std::size_t most);

// Without the white space (9 to 13 and 32) at the start, at the end, at both.
std::string_view WithoutLeadingBlanks(std::string_view text);
std::string_view WithoutTrailingBlanks(std::string_view text);
std::string_view WithoutOuterBlanks(std::string_view text);

std::size_t CountFinalLineFeeds(std::string_view text);

// Gives a prepared text the line feeds back that stood at the end of `source`, which has `lineCount` lines.
// `sourceLines` has an entry for each line of `text`, the last of which is still open, and gets one for each
// line that this adds.
void AppendFinalLineFeeds(std::string_view source, std::uint32_t lineCount, std::string& text,
                          std::vector<std::uint32_t>& sourceLines);
