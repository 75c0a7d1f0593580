#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The character database as generate_unicode_tables.py lays it out. Only the Unicode sources look into it.
namespace Uve::Tables {

// Values of all code points in pages of 64: `pages` names the page of `values` that a code point's upper bits
// mean. Equal pages stand once.
template <class Value, class Page, std::size_t PageCount>
struct STwoLevel
{
    static constexpr unsigned kShift = 6;

    std::array<Page, (0x110000u >> kShift)> pages;
    std::array<std::array<Value, 1u << kShift>, PageCount> values;

    constexpr Value At(char32_t codePoint) const
    {
        return values[pages[codePoint >> kShift]][codePoint & ((1u << kShift) - 1)];
    }
};

// A title case letter with its counterparts in the form of attribute values.
struct STitleCase
{
    char32_t title;
    std::uint32_t upper;
    std::uint32_t lower;
};

// A code point whose folding isn't its lower case. Closed by a NUL.
struct SFolding
{
    char32_t codePoint;
    char text[8];
};

// Complete decompositions, as ranges of the decomposition texts. No canonical one: length 0.
struct SDecomposition
{
    std::uint16_t canonical;
    std::uint16_t compatibility;
    std::uint8_t canonicalLength;
    std::uint8_t compatibilityLength;
};

struct SComposition
{
    char32_t first;
    char32_t second;
    char32_t composed;
};

// All of these take code points below 0x110000.
std::uint8_t TypeAt(char32_t codePoint);
std::uint32_t AttributeAt(char32_t codePoint);
std::uint8_t CombiningClassAt(char32_t codePoint);
// Number of the row in `decompositions`; row 0 stands for having none.
std::uint16_t DecompositionAt(char32_t codePoint);

// Attribute values from here on are offsets into `specialCases`.
inline constexpr std::uint32_t kSpecialCase = 0x1000000;

// At each offset: the counterpart of one code point (the letter itself if it has none), the full mapping, 0.
extern const std::span<const char32_t> specialCases;
extern const std::span<const STitleCase> titleCases; // ascending
extern const std::span<const SFolding> foldings;     // ascending
extern const std::span<const SDecomposition> decompositions;
extern const std::span<const char32_t> decompositionTexts;
extern const std::span<const SComposition> compositions; // ascending by first, then second

} // namespace Uve::Tables
