#include "UVEnvironment/UVECharacter.h"
#include "UVEnvironment/UVEUnicode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace Uve;

namespace {

// A copy that ends where its memory ends, so that a sanitizer sees each byte read too far.
class CTightText
{
public:
    explicit CTightText(std::string_view text) : m_Bytes(new char[text.size()]), m_Size(text.size())
    {
        std::ranges::copy(text, m_Bytes.get());
    }
    operator std::string_view() const { return {m_Bytes.get(), m_Size}; }

private:
    std::unique_ptr<char[]> m_Bytes;
    std::size_t m_Size;
};

} // namespace

TEST(Unicode, EncodingWidthsChangeAtTheirEdges)
{
    using namespace std::string_view_literals;
    constexpr std::pair<char32_t, std::string_view> kCases[] = {
        {0, "\0"sv},
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x1FFFFF, "\xF7\xBF\xBF\xBF"},
        {0x200000, "\xF8\x88\x80\x80\x80"},
        {0x3FFFFFF, "\xFB\xBF\xBF\xBF\xBF"},
        {0x4000000, "\xFC\x84\x80\x80\x80\x80"},
        {0x7FFFFFFF, "\xFD\xBF\xBF\xBF\xBF\xBF"},
    };
    std::u32string codePoints;
    std::string text;
    for (const auto& [codePoint, utf8] : kCases) {
        SCOPED_TRACE(static_cast<unsigned long>(codePoint));
        EXPECT_EQ(utf8_from_codepoint(codePoint), utf8);
        const auto read = utf8_decode(utf8.data(), utf8.data() + utf8.size());
        EXPECT_EQ(read.codePoint, codePoint);
        EXPECT_EQ(read.bytes, utf8.size());
        EXPECT_TRUE(read.wellFormed);
        EXPECT_EQ(utf8_skip_data[static_cast<unsigned char>(utf8[0])], utf8.size());
        codePoints += codePoint;
        text += utf8;
    }
    EXPECT_EQ(utf8_to_ucs4_fast(text), codePoints);
    EXPECT_EQ(g_ucs4_to_utf8(codePoints), text);
    EXPECT_EQ(utf8_strlen(text), std::size(kCases));
    EXPECT_EQ(g_ucs4_to_utf8(U"a" + std::u32string(1, static_cast<char32_t>(0x80000000))), std::nullopt);
}

TEST(Unicode, MalformedTextIsWalkedByLeadBytesToItsEnd)
{
    struct SCase
    {
        const char* text;
        std::size_t length;
        bool wellFormed; // the first character
    };
    constexpr SCase kCases[] = {
        {"\xE2\x82", 1, false}, // cut off
        {"\xE2", 1, false},
        {"\x80\x80", 2, false}, // no lead byte
        {"\xFE\xFF", 2, false}, // never lead bytes
        {"\xE2zz,", 2, false},  // a lead byte takes what follows
        {"\xC1\x81", 1, false}, // longer than needed
        {"\xC3\xA9\xFD\x80", 2, true},
    };
    for (const auto& c : kCases) {
        const CTightText tight(c.text);
        const std::string_view text = tight;
        SCOPED_TRACE(testing::PrintToString(std::string(text)));
        EXPECT_EQ(utf8_strlen(text), c.length);
        EXPECT_EQ(utf8_decode(text.data(), text.data() + text.size()).wellFormed, c.wellFormed);
        EXPECT_EQ(utf8_to_ucs4_fast(text).size(), c.length);
        EXPECT_EQ(utf8_strlen(c.text), c.length);
        utf8_to_codepoint(c.text);
        for (const bool upper : {false, true})
            EXPECT_EQ(upper ? utf8_to_uppercase(text) : utf8_to_lowercase(text),
                      c.wellFormed && upper ? "\xC3\x89\xFD\x80" : std::string(text));
        EXPECT_EQ(utf8_casefold(text), text);
        EXPECT_TRUE(utf8_normalize(text, NormalizeMode::CompatibilityComposition).has_value());
    }
}

TEST(Unicode, OffsetsCountBothWays)
{
    const char text[] = "a\xC3\xA9\xE2\x82\xACz";
    EXPECT_EQ(utf8_pointer_to_offset(text, text + 6), 3);
    EXPECT_EQ(utf8_pointer_to_offset(text + 6, text + 1), -2);
    EXPECT_EQ(utf8_strlen(text, 3), 2u);
    EXPECT_EQ(utf8_strlen(text, 100), 4u); // the NUL comes first
    EXPECT_EQ(utf8_strlen(static_cast<const char*>(nullptr)), 0u);
    EXPECT_EQ(utf8_to_codepoint(text + 3), U'\u20AC');
    EXPECT_EQ(utf8_to_codepoint(""), U'\0');
}

TEST(Unicode, CaseOfTexts)
{
    struct SCase
    {
        const char32_t *text, *upper, *lower, *folded;
    };
    const SCase kCases[] = {
        {U"Select 1", U"SELECT 1", U"select 1", U"select 1"},
        {U"Stra\u00DFe", U"STRASSE", U"stra\u00DFe", U"strasse"},
        {U"\uFB03", U"FFI", U"\uFB03", U"ffi"},
        {U"\u0130", U"\u0130", U"i\u0307", U"i\u0307"},
        {U"\u1F88", U"\u1F08\u0399", U"\u1F80", U"\u1F00\u03B9"},
        {U"\u03A3\u03C2", U"\u03A3\u03A3", U"\u03C3\u03C2", U"\u03C3\u03C3"}, // both small sigmas fold to one
        {U"\u13A0\uAB70", U"\u13A0\u13A0", U"\uAB70\uAB70", U"\u13A0\u13A0"}, // folds to its upper case
        {U"\u2C65", U"\u023A", U"\u2C65", U"\u2C65"},                         // shorter in upper case
        {U"\U0001F600", U"\U0001F600", U"\U0001F600", U"\U0001F600"},
    };
    const auto utf8 = [](const char32_t* text) { return g_ucs4_to_utf8(text).value(); };
    for (const auto& c : kCases) {
        SCOPED_TRACE(utf8(c.text));
        EXPECT_EQ(utf8_to_uppercase(utf8(c.text)), utf8(c.upper));
        EXPECT_EQ(utf8_to_lowercase(utf8(c.text)), utf8(c.lower));
        EXPECT_EQ(utf8_casefold(utf8(c.text)), utf8(c.folded));
    }
    for (const char* const locale : {"tr", "tr_TR.UTF-8", "tr-TR", "tr.UTF-8", "az@latin"})
        EXPECT_EQ(utf8_to_uppercase("i", locale), "\xC4\xB0") << locale;
    EXPECT_EQ(utf8_to_lowercase("I\xC4\xB0", "az"), "\xC4\xB1i");
    EXPECT_EQ(utf8_to_uppercase("i", "en_US"), "I");
    EXPECT_EQ(utf8_to_uppercase(std::string_view("a\0b", 3)), std::string_view("A\0B", 3));
}

TEST(Unicode, MarksAreOrderedByClass)
{
    // A run of a million: exchanging neighbours would never end.
    std::u32string run;
    for (int i = 0; i < 500'000; ++i)
        run += U"\u0301\u0327";
    g_unicode_canonical_ordering(run.data(), run.size());
    EXPECT_EQ(run.find(U'\u0301'), 500'000u);
    EXPECT_EQ(run.rfind(U'\u0327'), 499'999u);
}

TEST(Unicode, WhatHasNoLetterIsItsOwnCase)
{
    for (const char32_t codePoint : {0x110000u, 0x7FFFFFFFu}) {
        EXPECT_EQ(UnicodeToUpper(codePoint), codePoint);
        EXPECT_EQ(UnicodeToLower(codePoint), codePoint);
    }
    EXPECT_EQ(UnicodeToAttribute(U'a'), U'A');
    EXPECT_GE(UnicodeToAttribute(0xDF), 0x1000000u);
    EXPECT_EQ(UnicodeToAttribute(U'1'), 0u);
    EXPECT_EQ(utf8_collate("e\xCC\x81", "\xC3\xA9"), 0);
    EXPECT_LT(utf8_collate("a", "b"), 0);
    EXPECT_EQ(utf8_collate(nullptr, "a"), 0);
    for (const char32_t blank :
         {0x1680u, 0x180Eu, 0x2000u, 0x2006u, 0x2008u, 0x200Au, 0x2028u, 0x2029u, 0x205Fu, 0x3000u})
        EXPECT_TRUE(u8char::iswspace(blank) && !UChar::isspace(blank)) << static_cast<unsigned long>(blank);
    EXPECT_FALSE(u8char::iswspace(8199) || u8char::iswspace(0xA0)); // blanks that don't break
}

TEST(Unicode, AlphanumericsByReach)
{
    struct SCase
    {
        char32_t codePoint;
        bool ascii, any, letter, digit;
    };
    constexpr SCase kCases[] = {
        {U'z', true, true, true, false},          {U'0', true, true, false, true},
        {U'_', false, false, false, false},       {U'\u00E9', false, true, true, false},
        {U'\u0661', false, true, false, false},   {U'\u4E00', false, true, true, false},
        {0x141, false, true, true, false}, // its low byte is 'A'
        {0x7FFFFFFF, false, false, false, false},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(static_cast<unsigned long>(c.codePoint));
        EXPECT_EQ(UChar::isalnum(c.codePoint), c.ascii);
        EXPECT_EQ(UChar::iswalnum(c.codePoint), c.any);
        EXPECT_EQ(UChar::iswalpha(c.codePoint), c.letter);
        EXPECT_EQ(UChar::iswdigit(c.codePoint), c.digit);
        // Independent of the process's locale, which is "C" here.
        EXPECT_EQ(UChar::iswalnum_l(c.codePoint), c.any);
    }
}
