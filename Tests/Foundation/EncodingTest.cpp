#include "UVEnvironment/UVECodePoints.h"
#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEU8String.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace UTF8 = Uve::Encoding::UTF8;
using namespace std::string_literals;
using namespace std::string_view_literals;

// One encoding form of the edges, as the conversions of this file see it.
struct SForm
{
    const char* name;
    int unitSize;
    bool isBigEndian;
    Uve::U8CString (*toString)(const char*, std::size_t);
    std::size_t (*toBuffer)(const unsigned char*, std::size_t, unsigned char*, std::size_t);
};

const SForm kForms[] = {
    {"UTF-16LE", 2, false, UTF8::FromUTF16LE, UTF8::UTF16LEToUTF8},
    {"UTF-16BE", 2, true, UTF8::FromUTF16BE, UTF8::UTF16BEToUTF8},
    {"UTF-32LE", 4, false, UTF8::FromUTF32LE, UTF8::UTF32LEToUTF8},
    {"UTF-32BE", 4, true, UTF8::FromUTF32BE, UTF8::UTF32BEToUTF8},
};

// Units of a form as bytes, without regard to what they mean.
std::string Bytes(const SForm& form, const std::vector<unsigned int>& units)
{
    std::string bytes;
    for (const unsigned int unit : units) {
        for (int i = 0; i < form.unitSize; ++i) {
            const int shift = 8 * (form.isBigEndian ? form.unitSize - 1 - i : i);
            bytes.push_back(static_cast<char>(unit >> shift & 0xFF));
        }
    }
    return bytes;
}

std::vector<unsigned int> Units(const SForm& form, unsigned int codePoint)
{
    if (form.unitSize == 4 || codePoint < 0x10000)
        return {codePoint};
    return {0xD7C0 + (codePoint >> 10), 0xDC00 | (codePoint & 0x3FF)};
}

const unsigned char* Input(const std::string& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

TEST(Encoding, CodePointsOfAllPlanesTravelThroughEveryForm)
{
    // All that have up to two bytes, then every thirteenth, which meets every value of a trailing byte.
    for (unsigned int codePoint = 0; codePoint <= Uve::CodePoints::kLast;
         codePoint += codePoint < 0x1000 ? 1 : 13) {
        if (Uve::CodePoints::IsSurrogate(codePoint))
            continue;
        char utf8[4];
        const std::string expected(utf8, static_cast<std::size_t>(UTF8::cp2UTF8(codePoint, utf8)));
        const std::wstring wide(1, static_cast<wchar_t>(codePoint));
        bool agrees = Uve::UTF8ToWide(expected) == wide && Uve::WideToUTF8(wide) == expected &&
                      UVDB::IsValidUTF8(expected);
        for (const SForm& form : kForms) {
            const std::string bytes = Bytes(form, Units(form, codePoint));
            agrees = agrees && form.toString(bytes.data(), bytes.size()) == expected;
        }
        const std::vector<Uve::SqlWchar> sql = Uve::UTF8StringToSqlWchar(expected);
        agrees =
            agrees && Uve::SqlWcharToUTF8String(sql.data(), static_cast<long>(sql.size()) - 1) == expected;
        ASSERT_TRUE(agrees) << "U+" << std::hex << codePoint;
    }
}

TEST(Encoding, KnownCharactersHaveTheirKnownBytes)
{
    const std::pair<unsigned int, const char*> cases[] = {
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x1F600, "\xF0\x9F\x98\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
        {0xD800, "\xEF\xBF\xBD"},
        {0x110000, "\xEF\xBF\xBD"},
        {0xFFFFFFFF, "\xEF\xBF\xBD"},
    };
    for (const auto& [codePoint, utf8] : cases) {
        char bytes[4];
        EXPECT_EQ(std::string(bytes, static_cast<std::size_t>(UTF8::cp2UTF8(codePoint, bytes))), utf8)
            << std::hex << codePoint;
    }
}

TEST(Encoding, LoneSurrogatesAndImpossibleNumbersAreReplaced)
{
    struct SCase
    {
        std::vector<unsigned int> units;
        const char *utf16, *utf32;
    };
    const SCase cases[] = {
        {{0xDC00, 'a'}, "\uFFFDa", "\uFFFDa"},
        {{0xD800, 'a'}, "\uFFFDa", "\uFFFDa"},
        {{0xD83D, 0xD83D, 0xDE00, 'a'}, "\uFFFD\U0001F600a", "\uFFFD\uFFFD\uFFFDa"},
        {{'a', 0xD83D}, "a", "a\uFFFD"}, // cut off in the one form, lone in the other
        {{'a', 0x110000}, nullptr, "a\uFFFD"},
    };
    for (const SCase& c : cases) {
        for (const SForm& form : kForms) {
            const char* const expected = form.unitSize == 2 ? c.utf16 : c.utf32;
            if (expected == nullptr)
                continue;
            const std::string bytes = Bytes(form, c.units);
            EXPECT_EQ(form.toString(bytes.data(), bytes.size()), expected) << form.name;
        }
    }
}

TEST(Encoding, InputAndOutputMayEndAnywhere)
{
    const std::string text = "a\u00E9\u20AC\U0001F600";
    for (const SForm& form : kForms) {
        std::string bytes;
        for (const unsigned int codePoint : {0x61u, 0xE9u, 0x20ACu, 0x1F600u})
            bytes += Bytes(form, Units(form, codePoint));
        for (std::size_t inputSize = 0; inputSize <= bytes.size(); ++inputSize) {
            for (std::size_t outputSize = 0; outputSize <= text.size(); ++outputSize) {
                SCOPED_TRACE(testing::Message() << form.name << ' ' << inputSize << ' ' << outputSize);
                // Exactly as large as told, so that a sanitizer sees one byte too many.
                const std::vector<unsigned char> input(
                    bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(inputSize));
                std::vector<unsigned char> output(outputSize);
                const std::size_t written =
                    form.toBuffer(input.data(), input.size(), output.data(), output.size());
                ASSERT_LE(written, outputSize);
                EXPECT_EQ(std::string(output.begin(), output.begin() + static_cast<std::ptrdiff_t>(written)),
                          text.substr(0, written));
                EXPECT_TRUE(UVDB::IsValidUTF8(text.substr(0, written)));
                if (inputSize == bytes.size()) {
                    EXPECT_GT(written + 4, outputSize); // only a character that doesn't fit stays away
                }
            }
        }
    }
}

TEST(Encoding, ReportingConvertersTellWhatTheyDid)
{
    struct SCase
    {
        int (*convert)(unsigned char*, int*, const unsigned char*, int*);
        std::string input;
        int room, result;
        std::string output;
        int consumed;
    };
    const SCase cases[] = {
        {UVDB::UTF16LEToUTF8, "a\0\xAC\x20"s, 10, 4, "a\u20AC", 4},
        {UVDB::UTF16LEToUTF8, "a\0\xAC\x20"s, 3, 1, "a", 2},  // no room for the second one
        {UVDB::UTF16LEToUTF8, "a\0\x3D\xD8"s, 10, 1, "a", 2}, // its other half may still come
        {UVDB::UTF16LEToUTF8, "a\0\x3D\xD8 \0"s, 10, -2, "a", 2},
        {UVDB::UTF16BEToUTF8, "\xD8\x3D\xDE\x00\0"s, 10, 4, "\U0001F600", 4},
        {UVDB::UTF8ToUTF16LE, "a\u20AC", 10, 4, "a\0\xAC\x20"s, 4},
        {UVDB::UTF8ToUTF16LE, "a\U0001F600", 5, 2, "a\0"s, 1},
        {UVDB::UTF8ToUTF16LE, "\U0001F600", 4, 4, "\x3D\xD8\x00\xDE"s, 4},
        {UVDB::UTF8ToUTF16LE, "a\xE2\x82", 10, 2, "a\0"s, 1},
        {UVDB::UTF8ToUTF16LE, "a\xE2 ", 10, -2, "a\0"s, 1},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.input));
        std::vector<unsigned char> out(static_cast<std::size_t>(c.room));
        int outSize = c.room;
        int inSize = static_cast<int>(c.input.size());
        EXPECT_EQ(c.convert(out.data(), &outSize, Input(c.input), &inSize), c.result);
        EXPECT_EQ(std::string(out.begin(), out.begin() + outSize), c.output);
        EXPECT_EQ(inSize, c.consumed);
    }
    int size = 1;
    EXPECT_EQ(UVDB::UTF8ToUTF16LE(nullptr, &size, Input("a"), &size), -1);
    unsigned char out[4] = {};
    for (const auto& [room, count] : {std::pair(-1, 1), {4, -1}}) {
        int outSize = room;
        int inSize = count;
        EXPECT_EQ(UVDB::UTF8ToUTF16LE(out, &outSize, Input("a"), &inSize), -1) << room << ' ' << count;
    }
}

TEST(Encoding, OdbcTextEndsWhereItIsTold)
{
    const Uve::SqlWchar text[] = {'a', 0x20AC, 0xD83D, 0xDE00, 0, 'b'};
    EXPECT_EQ(Uve::SqlWcharToUTF8String(text), "a\u20AC\U0001F600");
    EXPECT_EQ(Uve::SqlWcharToUTF8String(text, 2), "a\u20AC");
    EXPECT_EQ(Uve::SqlWcharToUTF8String(text, 6), "a\u20AC\U0001F600\0b"s);
    EXPECT_EQ(Uve::SqlWcharToUTF8String(text, 0), "");
    EXPECT_EQ(Uve::SqlWcharToUTF8String(nullptr, 5), "");

    char out[5] = "xxxx";
    EXPECT_EQ(Uve::SqlWcharToUTF8Char(text, -1, out, sizeof out),
              4u); // the last four bytes have no room left
    EXPECT_STREQ(out, "a\u20AC");
    EXPECT_EQ(Uve::SqlWcharToUTF8Char(text, -1, out, 1), 0u);
    EXPECT_STREQ(out, "");
}

TEST(Utf8Validity, FirstBadSequenceIsFoundWhereverItStands)
{
    struct SCase
    {
        std::string_view text;
        std::size_t length; // of the sound part
    };
    const SCase cases[] = {
        {"\x80", 0},     // continuation without a lead
        {"\xC0\x80", 0}, // overlong
        {"\xE0\x9F\xBF", 0}, {"\xF0\x8F\xBF\xBF", 0},
        {"\xED\xA0\x80", 0},                          // surrogates
        {"\xED\xBF\xBF", 0}, {"\xF4\x90\x80\x80", 0}, // above the last code point
        {"\xFF", 0},         {"\xC2", 0},             // cut off
        {"\xF0\x9F\x98", 0}, {"\xE2\x82 ", 0},
        {"\u00E9\xA9", 2},   {"\uD7FF\uE000\U0010FFFF\xF8", 10},
    };
    // Every distance from the words of eight bytes that plain text is skipped by, with and without text
    // after it.
    for (const SCase& c : cases) {
        for (std::size_t before = 0; before < 20; ++before) {
            for (const std::size_t behind : {0u, 1u, 16u}) {
                const std::string text =
                    std::string(before, 'a') + std::string(c.text) + std::string(behind, 'b');
                EXPECT_EQ(UVDB::FindInvalidUTF8(text), before + c.length)
                    << testing::PrintToString(c.text) << ' ' << before << ' ' << behind;
                EXPECT_FALSE(UVDB::IsValidUTF8(text));
            }
        }
    }
    EXPECT_TRUE(UVDB::IsValidUTF8(""));
    EXPECT_TRUE(UVDB::IsValidUTF8("a\0b"sv));
}

TEST(Utf8Validity, BadBytesBecomeReplacementsAndTheTextGoesOn)
{
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"\xFF"
         "a",
         L"\uFFFDa"},
        {"\xE2\x82"
         "a",
         L"\uFFFDa"},
        {"\xE2\x82\u20AC", L"\uFFFD\u20AC"},
        {"\xC0\x80", L"\uFFFD\uFFFD"},
        {"a\xE2\x82", L"a"},
    };
    for (const auto& [utf8, wide] : cases)
        EXPECT_EQ(Uve::UTF8ToWide(utf8), wide) << testing::PrintToString(utf8);
}

TEST(CodePages, Windows1252DiffersFromUnicodeInItsThirtyTwo)
{
    const std::pair<int, int> cases[] = {
        {127, 127}, {128, 0x20AC}, {129, 0},   {141, 0},   {142, 0x17D}, {143, 0},         {144, 0},
        {157, 0},   {159, 0x178},  {160, 160}, {255, 255}, {-1, -1},     {0x20AC, 0x20AC},
    };
    for (const auto& [character, codePoint] : cases)
        EXPECT_EQ(UVDB::CP1252ToUnicode(character), codePoint) << character;
    EXPECT_EQ(UVDB::CP1252ToUnicode(128, '0', 4), "~u20AC");
    EXPECT_EQ(UVDB::CP1252ToUnicode(static_cast<unsigned char>('A'), '0', 4), "~u0041");
    EXPECT_EQ(UVDB::CP1252ToUnicode(static_cast<unsigned char>(129), '.', 2), "~u.0");
    EXPECT_EQ(UVDB::UTF8ToUnicode(0x1F600, L'0', 4), L"~u1F600");
}

TEST(NumberLists, TextComesBackFromEitherBase)
{
    const std::wstring text = L"A\u00E9,\U0001F600";
    EXPECT_EQ(UVDB::GetUTF8ListFromString(text, 16), L"41,E9,2C,1F600,");
    EXPECT_EQ(UVDB::GetUTF8ListFromString(text, 10), L"65,233,44,128512,");
    for (const int base : {10, 16}) {
        const std::wstring list = UVDB::GetUTF8ListFromString(text, base);
        EXPECT_EQ(UVDB::ConvertUTF8ListToString(list, base), text);
        EXPECT_EQ(UVDB::ConvertUTF8ListToString(UVDB::ws2s(list), base), UVDB::ws2s(text));
    }
    EXPECT_EQ(UVDB::ConvertUTF8ListToString(",,41,,42"s, 16), "AB");
    EXPECT_EQ(UVDB::ConvertUTF8ListToString("-1,110000"s, 16), "\uFFFD\uFFFD");
}

TEST(ReplaceSymbols, PlaceholdersInLiteralsBecomeConstants)
{
    // In the cases, E stands for the escape's placeholder, F and T for two of the separators'.
    const std::pair<const char*, const char*> cases[] = {
        {R"("{E}")", R"(Sep.E)"},
        {R"("a{E}b")", R"("a" + Sep.E + "b")"},
        {R"("a{E}b{E}c")", R"("a" + Sep.E + "b" + Sep.E + "c")"},
        {R"("{E}{E}")", R"(Sep.E + "" + Sep.E)"},
        {R"("a{T}b{F}c")", R"("a" + Sep.C + "b" + Sep.D + "c")"},
        {R"({E} = "x{E}" + {E})", R"({E} = "x" + Sep.E + {E})"},
        {R"("a\"{E}")", R"("a\"" + Sep.E)"},
        {R"("a\"{E})", R"("a\"{E})"}, // never closed
        {R"("x" "{E})", R"("x" "{E})"},
        {"", ""},
    };
    const auto spell = [](Uve::U8CString text) {
        text.Replace("{E}", "ORVANTA_REPLACE_ESCAPE");
        text.Replace("{F}", "ORVANTA_REPLACE_INFORMATION_SEPARATOR_FOUR");
        text.Replace("{T}", "ORVANTA_REPLACE_INFORMATION_SEPARATOR_THREE");
        return std::string(text.c_str());
    };
    for (const auto& [source, expected] : cases) {
        std::string text = spell(source);
        UVDB::HandleOrvantaReplaceSymbols(text);
        EXPECT_EQ(text, spell(expected)) << source;
    }
}

} // namespace
