#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Texts as plain vectors of code points, and all short ones over an alphabet with a character of each width,
// a delimiter and white space.
namespace StringModel {

struct SLetter
{
    char32_t codePoint;
    std::string_view utf8;
};

inline constexpr std::array<SLetter, 6> kAlphabet = {{
    {U'a', "a"},
    {U'\u00E9', "\xC3\xA9"},
    {U'\u20AC', "\xE2\x82\xAC"},
    {U'\U0001F600', "\xF0\x9F\x98\x80"},
    {U',', ","},
    {U' ', " "},
}};

inline std::string Utf8(std::u32string_view text)
{
    std::string result;
    for (const char32_t codePoint : text)
        for (const SLetter& letter : kAlphabet)
            if (letter.codePoint == codePoint)
                result += letter.utf8;
    return result;
}

// Every text of at most `maximalLength` letters, the empty one first.
inline std::vector<std::u32string> AllTexts(std::size_t maximalLength)
{
    std::vector<std::u32string> texts = {U""};
    for (std::size_t first = 0; maximalLength > 0; --maximalLength) {
        const std::size_t end = texts.size();
        for (; first < end; ++first)
            for (const SLetter& letter : kAlphabet)
                texts.push_back(texts[first] + letter.codePoint);
    }
    return texts;
}

inline std::u32string Mid(const std::u32string& text, int first, int count)
{
    const auto start = static_cast<std::size_t>(first < 0 ? 0 : first);
    return count <= 0 || start >= text.size() ? U"" : text.substr(start, static_cast<std::size_t>(count));
}

inline int Index(std::size_t position)
{
    return position == std::u32string::npos ? -1 : static_cast<int>(position);
}

} // namespace StringModel
