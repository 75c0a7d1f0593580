// Where the characters of a text lie in the file that it was read from.
#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace uvparse {

// What a character of the text takes in its file.
enum class enFileBytes
{
    Unknown, // its place there can't be told
    Utf8,
    Utf16,
    Utf32,
    One // a byte for each
};

struct SFileBytes
{
    enFileBytes form = enFileBytes::Unknown;
    std::size_t markLength = 0; // of a byte order mark before the text, in bytes
    std::size_t recordLength =
        0; // the text has a line feed after as many bytes, the file has none; 0: as it is
};

struct SLineColumn
{
    std::size_t line = 0;   // from 1; 0: none
    std::size_t column = 0; // code points, from 1; 0: none

    // The check takes the comparison with 0 that the compiler writes for a null pointer.
    auto operator<=>(const SLineColumn&) const = default; // NOLINT(modernize-use-nullptr)
};

struct SFilePlace
{
    std::size_t textOffset = 0;            // bytes into the text
    std::size_t character = 0;             // code points before it in the text
    std::optional<std::size_t> fileOffset; // bytes into the file
};

// Finds all `places` in one walk through `text`, in whatever order they are. One beyond a line or the text
// counts as its end.
// Returns: one for each place; nothing for those without a line or a column.
std::vector<std::optional<SFilePlace>> FindFilePlaces(std::string_view text, const SFileBytes& bytes,
                                                      const std::vector<SLineColumn>& places);

} // namespace uvparse
