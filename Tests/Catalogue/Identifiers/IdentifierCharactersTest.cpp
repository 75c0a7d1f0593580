// What a name may consist of, and what encloses it.
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/UVDBHelpers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace {

using Uve::U8CString;

constexpr std::uint64_t kNone = ~std::uint64_t{0};

// Everything printable in ASCII but letters and digits that passes, in the order of the codes.
std::string Allowed(std::uint64_t db, unsigned long type, bool first)
{
    std::string allowed;
    for (char c = ' '; c < 0x7F; ++c) {
        const bool isRefused = first ? IsDBMSNotAllowedCharFPos({.db = db}, type, c, "", false)
                                     : IsDBMSNotAllowedChar({.db = db}, type, c, "", false);
        if (!isRefused && !std::isalnum(static_cast<unsigned char>(c)))
            allowed += c;
    }
    return allowed;
}

struct SAllowedCase
{
    std::uint64_t db;
    unsigned long type;
    const char* inside;
    const char* first;
};

constexpr SAllowedCase kAllowed[] = {
    // db type inside  first
    {2, 0, "#$@_", ""},   {2, 42, "#$@_", "#@_"}, {4, 42, "#$@_", "#@_"}, {1, 0, "#$_", ""},
    {1, 42, "#$_", ":"},  {36, 0, "#$@_", ""},    {36, 42, "#$@_", ":"},  {5, 0, "$_", ""},
    {8, 0, "$_", ""},     {118, 0, "$_", ""},     {34, 0, "_", "_"},      {34, 42, ":_", ":_"},
    {43, 42, ":_", ":_"}, {62, 0, " ()`", ""},    {68, 0, "_", "_"},      {110, 0, "_", "_"},
    {0, 0, "_", ""},      {60, 42, "_", ""},
};

TEST(IdentifierCharacters, BesideLettersAndDigitsEachKindHasItsOwn)
{
    for (const auto& c : kAllowed) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.type);
        EXPECT_EQ(Allowed(c.db, c.type, false), c.inside);
        EXPECT_EQ(Allowed(c.db, c.type, true), c.first);
    }
}

TEST(IdentifierCharacters, LettersStandAnywhereAndDigitsOnlyInside)
{
    for (std::uint64_t db = 0; db < 140; ++db)
        for (const unsigned long type : {0u, 17u, 42u}) {
            SCOPED_TRACE(testing::Message() << db << ' ' << type);
            const DB_VERSION_INFO version{.db = db};
            for (const char c : {'a', 'Z'}) {
                EXPECT_FALSE(IsDBMSNotAllowedChar(version, type, c, "", false));
                EXPECT_FALSE(IsDBMSNotAllowedCharFPos(version, type, c, "", false));
                EXPECT_FALSE(IsDBMSNotAllowedCharFPosUtf8(version, type, static_cast<unsigned>(c), ""));
            }
            EXPECT_FALSE(IsDBMSNotAllowedChar(version, type, '7', "", false));
            EXPECT_TRUE(IsDBMSNotAllowedCharFPos(version, type, '7', "", false));
            EXPECT_TRUE(IsDBMSNotAllowedCharFPos(version, type, '7', "japanese", false));
        }
}

struct SWideCase
{
    std::uint64_t db;
    unsigned int codePoint;
    const char* locale;
    bool byByte; // may not stand inside, by each of the forms
    bool byCodePoint;
    bool first;
};

constexpr SWideCase kWide[] = {
    // db code point locale       byte   utf8   first
    {5, 0x80, "", true, true, true},
    {5, 0xE9, "", true, true, true}, // the range that code pages disagree about
    {5, 0xE9, "japanese", false, true, true},
    {5, 0x100, "japanese", false, true, true},
    {5, 0x101, "", true, false, false},
    {5, 0x416, "", true, false, false},
    {5, 0x3042, "", true, false, false},
    {5, 0x20000, "", true, false, false},
    {5, 0x20AC, "", true, true, true}, // a sign is no letter
    {5, 0x663, "", true, false, true}, // a digit of another script
    {8, 0x416, "", true, true, true},  // strict kinds ask the locale
    {8, 0x416, "japanese", false, false, false},
    {2, 0x20AC, "japanese", true, true, true},
    {62, 0x20AC, "", true, false, true},
    {62, 0xE9, "", true, true, true},
    {5, 0x7FFFFFFF, "japanese", true, true, true},
};

TEST(IdentifierCharacters, BeyondAsciiLocaleAndKindDecide)
{
    for (const auto& c : kWide) {
        SCOPED_TRACE(testing::Message() << c.db << " U+" << std::hex << c.codePoint << ' ' << c.locale);
        const DB_VERSION_INFO version{.db = c.db};
        EXPECT_EQ(IsDBMSNotAllowedChar(version, 0, static_cast<int>(c.codePoint), c.locale, false), c.byByte);
        EXPECT_EQ(IsDBMSNotAllowedCharUtf8(version, 0, c.codePoint, c.locale, false), c.byCodePoint);
        EXPECT_EQ(IsDBMSNotAllowedCharFPosUtf8(version, 0, c.codePoint, c.locale), c.first);
    }
    EXPECT_TRUE(IsDBMSNotAllowedChar({.db = 5}, 0, '\xE9', "japanese", false))
        << "a negative char is no character";
}

TEST(IdentifierCharacters, TextIsUtf8OnlyIfItIsMoreThanAsciiAndSound)
{
    EXPECT_FALSE(IsIdentifierInUtf8(""));
    EXPECT_FALSE(IsIdentifierInUtf8("plain_1"));
    EXPECT_TRUE(IsIdentifierInUtf8("na\xC3\xAFve"));
    EXPECT_FALSE(IsIdentifierInUtf8("na\xEFve"));
    EXPECT_FALSE(IsIdentifierInUtf8("na\xC3"));
}

struct SDeletedCase
{
    std::uint64_t db;
    unsigned long type;
    const char* name;
    const char* rest;
};

constexpr SDeletedCase kDeleted[] = {
    {2, 17, " a b \t\n", " a b"},
    {2, 0, "a ", "a "},
    {5, 0, "a.b\\/c:*?\"<>|[d]'`;", "abcd"},
    {130, 0, "\xC3\xA4.\xE2\x82\xAC", "\xC3\xA4\xE2\x82\xAC"},
    {42, 0, "...", ""},
    {5, 17, "a.b", "a.b"},
    {1, 0, "a.b ", "a.b "},
};

TEST(IdentifierCharacters, WhatNoNameCanHoldIsDeleted)
{
    for (const auto& c : kDeleted) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.type << ' ' << c.name);
        U8CString name(c.name);
        EXPECT_GE(name.GetLength(), 0); // the length is remembered, and must be forgotten
        name = DeleteNotValidChar(name, c.type, {.db = c.db});
        EXPECT_EQ(name, c.rest);
        EXPECT_EQ(name.GetLength(), U8CString(c.rest).GetLength());
    }
}

struct SMarkCase
{
    std::uint64_t db;
    std::uint64_t subType;
    std::uint64_t major;
    std::uint64_t minor;
    const char* open;
    const char* close;
};

constexpr SMarkCase kMarks[] = {
    {2, kNone, 7, 0, "[", "]"},    {2, kNone, 6, 5, "\"", "\""},       {2, kNone, 6, 50, "\"", "\""},
    {2, kNone, 6, 51, "[", "]"},   {2, kNone, kNone, kNone, "[", "]"}, {4, 1, 13, 0, "[", "]"},
    {4, 1, 12, 49, "\"", "\""},    {4, 1, 12, 50, "[", "]"},           {4, 1, 11, 0, "[", "]"},
    {4, 1, 10, 90, "\"", "\""},    {4, 0, 16, 0, "\"", "\""},          {5, kNone, 8, 0, "`", "`"},
    {130, kNone, 8, 0, "`", "`"},  {19, kNone, 0, 0, "", ""},          {114, kNone, 0, 0, "", ""},
    {8, kNone, 15, 0, "\"", "\""},
};

TEST(EnclosingMarks, FollowKindSubtypeAndVersion)
{
    for (const auto& c : kMarks) {
        SCOPED_TRACE(testing::Message() << c.db << '/' << c.subType << ' ' << c.major << '.' << c.minor);
        const DB_VERSION_INFO version = MakeDbVersionInfo(c.db, c.subType, c.major, c.minor);
        EXPECT_EQ(GetDBMSEncloseCharOpen(version), c.open);
        EXPECT_EQ(GetDBMSEncloseCharClose(version), c.close);
        EXPECT_EQ(GetDBMSEncloseOpenAsChar(version), *c.open);
        EXPECT_EQ(GetDBMSEncloseCloseAsChar(version), *c.close);
    }
}

TEST(EnclosingMarks, QuotesAreDoubledWhereTheyEnclose)
{
    const DB_VERSION_INFO postgres{.db = 8};
    for (const char* const text : {"", "\"", "a\"b", "\"\"\"", "a\"\"", "\xC3\xA4\"\xC3\xA4"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(UnEscIdentifier(postgres, EscIdentifier(postgres, text)), text);
    }
    EXPECT_EQ(EscIdentifier(postgres, "a\"b"), "a\"\"b");
    EXPECT_EQ(EscIdentifier({.db = 5}, "a\"b"), "a\"b");
    EXPECT_EQ(UnEscIdentifier({.db = 5}, "a\"\"b"), "a\"\"b");
}

TEST(EnclosingMarks, PairsAreTrimmedAndHalvesStay)
{
    struct SCase
    {
        const char* name;
        const char* trimmed;
    };
    constexpr SCase kCases[] = {
        {"\"[a]\"", "a"},       {"[a]", "a"},   {"\"a\"", "a"}, {"[\"a\"]", "a"}, {"[[a]]", "[a]"},
        {"\"\"a\"\"", "\"a\""}, {"[a", "[a"},   {"a\"", "a\""}, {"\"", "\""},     {"[]", ""},
        {"\"\"", ""},           {"`a`", "`a`"}, {"", ""},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(TrimDelimited(c.name), c.trimmed) << c.name;
}

} // namespace
