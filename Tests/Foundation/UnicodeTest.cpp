#include "UVEnvironment/UVECharacter.h"
#include "UVEnvironment/UVEUnicode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

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
    struct SCase
    {
        char32_t codePoint;
        std::string_view utf8;
    };
    using namespace std::string_view_literals;
    constexpr SCase kCases[] = {
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
    for (const auto& c : kCases) {
        SCOPED_TRACE(static_cast<unsigned long>(c.codePoint));
        EXPECT_EQ(utf8_from_codepoint(c.codePoint), c.utf8);
        const auto read = utf8_decode(c.utf8.data(), c.utf8.data() + c.utf8.size());
        EXPECT_EQ(read.codePoint, c.codePoint);
        EXPECT_EQ(read.bytes, c.utf8.size());
        EXPECT_TRUE(read.wellFormed);
        EXPECT_EQ(utf8_skip_data[static_cast<unsigned char>(c.utf8[0])], c.utf8.size());
        codePoints += c.codePoint;
        text += c.utf8;
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

TEST(Unicode, CaseOfOneCodePoint)
{
    struct SCase
    {
        char32_t codePoint;
        char32_t upper;
        char32_t lower;
    };
    constexpr SCase kCases[] = {
        {U'a', U'A', U'a'},
        {U'Z', U'Z', U'z'},
        {0x00DF, 0x00DF, 0x00DF}, // the full mapping is two letters
        {0x00FF, 0x0178, 0x00FF}, // one byte wider
        {0x0130, 0x0130, U'i'},
        {0x01C5, 0x01C4, 0x01C6}, // title case
        {0x1F88, 0x1F88, 0x1F80}, // title case without an upper case of one code point
        {0x2170, 0x2170, 0x2170}, // a numeral, not a letter
        {0x10428, 0x10400, 0x10428},
        {0x1E900, 0x1E900, 0x1E922},
        {0x110000, 0x110000, 0x110000},
        {0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(UnicodeToUpper(c.codePoint), c.upper)
            << std::hex << static_cast<unsigned long>(c.codePoint);
        EXPECT_EQ(UnicodeToLower(c.codePoint), c.lower)
            << std::hex << static_cast<unsigned long>(c.codePoint);
    }
    EXPECT_EQ(UnicodeToAttribute(U'a'), U'A');
    EXPECT_GE(UnicodeToAttribute(0xDF), 0x1000000u);
    EXPECT_EQ(UnicodeToAttribute(U'1'), 0u);
}

TEST(Unicode, CaseOfTexts)
{
    struct SCase
    {
        const char32_t* text;
        const char32_t* upper;
        const char32_t* lower;
        const char32_t* folded;
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
    EXPECT_EQ(utf8_to_uppercase("i", "tr_TR.UTF-8"), "\xC4\xB0");
    EXPECT_EQ(utf8_to_lowercase("I\xC4\xB0", "az"), "\xC4\xB1i");
    EXPECT_EQ(utf8_to_uppercase("i", "en_US"), "I");
    EXPECT_EQ(utf8_to_uppercase(std::string_view("a\0b", 3)), std::string_view("A\0B", 3));
}

TEST(Unicode, MarksAreOrderedByClass)
{
    // Classes 230, 202, 230, 0, 220: the starter parts the runs, equal classes keep their order.
    std::u32string marks = U"\u0301\u0327\u0300a\u0323";
    g_unicode_canonical_ordering(marks.data(), marks.size());
    EXPECT_EQ(marks, U"\u0327\u0301\u0300a\u0323");

    // A run of a million: exchanging neighbours would never end.
    std::u32string run;
    for (int i = 0; i < 500'000; ++i)
        run += U"\u0301\u0327";
    g_unicode_canonical_ordering(run.data(), run.size());
    EXPECT_EQ(run.find(U'\u0301'), 500'000u);
    EXPECT_EQ(run.rfind(U'\u0327'), 499'999u);
}

TEST(Unicode, CollationSeesThroughNormalisation)
{
    EXPECT_EQ(utf8_collate("e\xCC\x81", "\xC3\xA9"), 0);
    EXPECT_EQ(utf8_collate("\xEF\xBC\xA1", "A"), 0); // the wide form
    EXPECT_LT(utf8_collate("a", "b"), 0);
    EXPECT_GT(utf8_collate("b", "a"), 0);
    EXPECT_EQ(utf8_collate(nullptr, "a"), 0);
    EXPECT_EQ(utf8_collate("a", nullptr), 0);
}

TEST(Unicode, WhiteSpaceIsTheseAlone)
{
    std::set<char32_t> narrow = {9, 10, 11, 12, 13, 32};
    std::set<char32_t> wide = narrow;
    for (char32_t codePoint = 8192; codePoint <= 8202; ++codePoint)
        if (codePoint != 8199)
            wide.insert(codePoint);
    wide.insert({5760, 6158, 8232, 8233, 8287, 12288});
    for (char32_t codePoint = 0; codePoint < 0x11000; ++codePoint) {
        ASSERT_EQ(UChar::isspace(codePoint), narrow.contains(codePoint))
            << static_cast<unsigned long>(codePoint);
        ASSERT_EQ(u8char::iswspace(codePoint), wide.contains(codePoint))
            << static_cast<unsigned long>(codePoint);
        ASSERT_EQ(u8char::isnewline(codePoint), codePoint == 10 || codePoint == 13);
    }
}

TEST(Unicode, AlphanumericsByReach)
{
    struct SCase
    {
        char32_t codePoint;
        bool ascii;
        bool any;
        bool letter;
        bool digit;
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
