// What the standard output is, for results that are laid out for reading.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Character cells in a line of the terminal; where there is none, what the environment's COLUMNS says, else
// 130.
std::size_t StandardOutputWidth();

// Whether colours are wanted: on a terminal that knows them, unless the environment has a NO_COLOR that isn't
// empty.
bool StandardOutputTakesColors();

// Puts texts into cells of a line. Holds the locale that tells how wide characters are.
class CCellText
{
public:
    CCellText();
    ~CCellText();
    CCellText(const CCellText&) = delete;
    CCellText& operator=(const CCellText&) = delete;

    // Appends what fits into `width` cells (1 at least) to `out`; where the text goes on, the last cell is an
    // ellipsis. A tab fills up to the next multiple of 8. Other control characters get the signs that Unicode
    // has for them, and what a terminal must not see (bytes that are no UTF-8, changes of direction, further
    // control characters) the replacement character. Reads no more of `text` than it shows.
    // Returns: the cells used.
    std::size_t Append(std::string_view text, std::size_t width, std::string& out) const;

private:
    std::size_t WidthOf(char32_t codePoint) const;

    void* m_Locale; // a locale_t, which only POSIX headers know; null if there is none that fits
};
