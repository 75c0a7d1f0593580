// Letters of the ASCII range alone, whatever the locale: what keywords of source languages are made of.
#pragma once

#include <algorithm>
#include <string_view>

constexpr char AsciiUpper(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

// Letters, digits and "_".
constexpr bool IsAsciiWord(char byte)
{
    const char letter = AsciiUpper(byte);
    return (letter >= 'A' && letter <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_';
}

// `word` is in upper case.
constexpr bool EqualsAsciiNoCase(std::string_view text, std::string_view word)
{
    return std::ranges::equal(text, word, {}, AsciiUpper);
}

// The same for the start of `text`. A word that the text is too short for isn't there.
constexpr bool StartsWithAsciiNoCase(std::string_view text, std::string_view word)
{
    return EqualsAsciiNoCase(text.substr(0, word.size()), word);
}
