// Names in one piece and in parts: their case, their owners.
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using testing::ElementsAreArray;
using Uve::U8CString;

TEST(IdentifierCase, GuessesFollowTheKind)
{
    struct SCase
    {
        std::uint64_t db;
        std::uint64_t subType;
        long plain;
        long quoted;
    };
    constexpr SCase kCases[] = {
        {0, 0, 1, 4},   {0, 1, 1, 3},   {1, 0, 1, 3},   {2, 0, 1, 4},  {5, 0, 1, 4},
        {7, 0, 4, 4},   {8, 0, 2, 3},   {10, 0, 2, 3},  {19, 0, 3, 3}, {60, 0, 1, 4},
        {112, 0, 3, 3}, {130, 0, 1, 4}, {200, 0, 1, 3},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.db);
        EXPECT_EQ(UVDBGetIdentifierCaseGuess({.db = c.db, .subType = c.subType}), c.plain);
        EXPECT_EQ(UVDBGetQuotedIdentifierCaseGuess({.db = c.db, .subType = c.subType}), c.quoted);
    }
}

TEST(IdentifierCase, PlainNamesFoldByTheTarget)
{
    struct SCase
    {
        std::uint64_t target;
        std::uint64_t source;
        long letterCase;
        const char* folded;
    };
    constexpr SCase kCases[] = {
        // target source case
        {1, 8, 2, "N\xC3\x84ME"}, // Oracle has its own opinion
        {37, 8, 3, "N\xC3\x84ME"}, {8, 1, 2, "n\xC3\xA4me"},  {8, 1, 1, "N\xC3\x84ME"},
        {8, 1, 4, "N\xC3\xA4me"},  {1, 11, 1, "N\xC3\xA4me"}, // the source keeps it, whatever the target says
        {5, 1, 1, "N\xC3\xA4me"},  {42, 1, 1, "N\xC3\xA4me"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.source << " to " << c.target << ", " << c.letterCase);
        EXPECT_EQ(NormalizeRegularIdentifier("N\xC3\xA4me", {.db = c.target}, {.db = c.source}, c.letterCase),
                  c.folded);
    }
    EXPECT_EQ(NormalizeRegularIdentifier(nullptr, {}, {}, 1), "");
}

TEST(IdentifierCase, TheFrontOfANameTellsWhetherItIsQuoted)
{
    struct SCase
    {
        std::uint64_t target;
        const char* quote;
        const char* name;
        const char* expected;
    };
    // plain names go to upper case here, quoted ones to lower case
    constexpr SCase kCases[] = {
        {8, "\"", "Name", "NAME"},
        {8, "\"", "\"Name\"", "name"},
        {8, "", "\"Name\"", "name"},
        {8, "'", "'Name'", "name"},
        {8, "<<", "<<Name>>", "name"},
        {8, "", "[Name]", "[NAME]"},
        {2, "", "[Name]", "name"},
        {2, "", "`Name`", "`Name`"},
        {5, "", "`Name`", "name"},
        {8, "\"", "\"", ""},
        {8, "\"", "", ""},
        {8, nullptr, nullptr, ""},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.target << ' ' << (c.name ? c.name : "null"));
        EXPECT_EQ(
            NormalizeIdentifier(c.name, {.db = c.target}, {.db = 8}, UVDB_IC_UPPER, c.quote, UVDB_IC_LOWER),
            c.expected);
    }
    EXPECT_FALSE(IsIdentifierQuoted("a", {}, ""));
    EXPECT_FALSE(IsIdentifierQuoted(nullptr, {}, "\""));
}

struct SSplitCase
{
    std::uint64_t db;
    const char* full;
    const char* owner;
    const char* table;
    std::vector<std::string> parts;
};

const std::vector<SSplitCase>& SplitCases()
{
    static const std::vector<SSplitCase> kCases = {
        // db full              owner        table      parts
        {8, "A.B.C", "A.B", "C", {"A", "B", "C"}},
        {8, "A", "", "A", {"A"}},
        {8, "", "", "", {""}},
        {8, ".", "", "", {""}},
        {8, "..B", "", "B", {"B"}},
        {8, "A..B", "A.", "B", {"A", "", "B"}},
        {8, "A.", "A", "", {"A", ""}},
        {8, "\"a.b\".c", "\"a.b\"", "c", {"\"a.b\"", "c"}},
        {8, "\"a\"\".b\".c", "\"a\"\"", "b\".c", {"\"a\"\"", "b\".c"}},
        {8, "\"a.b", "", "\"a.b", {"\"a.b"}},
        {2, "[a.b].[c]", "[a.b]", "[c]", {"[a.b]", "[c]"}},
        {2, "[a]b.c].d", "[a]b.c]", "d", {"[a]b.c]", "d"}}, // a mark in mid-name closes nothing
        {2, "\"a.b\"", "\"a", "b\"", {"\"a", "b\""}},       // another kind's marks are characters
        {5, "`a.b`.c", "`a.b`", "c", {"`a.b`", "c"}},
        {19, "\"a.b\"", "\"a", "b\"", {"\"a", "b\""}},
        {8, "\xC3\xA4.\xF0\x9F\x98\x80", "\xC3\xA4", "\xF0\x9F\x98\x80", {"\xC3\xA4", "\xF0\x9F\x98\x80"}},
        {8, "\xFF.\xC3", "\xFF", "\xC3", {"\xFF", "\xC3"}},
    };
    return kCases;
}

TEST(SplitNames, DotsOutsideOfMarksSeparate)
{
    for (const auto& c : SplitCases()) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.full);
        const DB_VERSION_INFO version{.db = c.db};
        U8CString owner("before");
        U8CString table("before");
        SplitTableName(c.full, owner, table, version);
        EXPECT_EQ(owner, c.owner);
        EXPECT_EQ(table, c.table);
        EXPECT_THAT(SplitObjectName(c.full, version), ElementsAreArray(c.parts));

        U8CString inPlace(c.full);
        SplitTableName(inPlace, owner, inPlace, version);
        EXPECT_EQ(inPlace, c.table);
        U8CString column;
        GetOnlyColumnName(c.full, column, version);
        EXPECT_EQ(column, c.table);
    }
}

// Cutting off the table until no owner is left gives the same parts.
TEST(SplitNames, PartsAreThoseOfRepeatedCutting)
{
    for (const auto& c : SplitCases()) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.full);
        std::vector<U8CString> parts;
        U8CString rest(c.full);
        do {
            U8CString table;
            SplitTableName(rest, rest, table, {.db = c.db});
            parts.insert(parts.begin(), table);
        } while (!rest.empty());
        EXPECT_EQ(SplitObjectName(c.full, {.db = c.db}), parts);
    }
}

TEST(SplitNames, TheOwnerGivenStandsWhereDatabasesHaveOwners)
{
    struct SCase
    {
        std::uint64_t db;
        const char* given;
        const char* full;
        const char* owner;
    };
    constexpr SCase kCases[] = {
        {2, "sa", "t", "dbo"}, {4, "SA", "t", "dbo"},   {1, "sa", "t", "sa"},  {2, "scott", "t", "scott"},
        {8, "scott", "t", ""}, {37, "a.b", "t", "a.b"}, {2, "sa", "o.t", "o"}, {2, "sab", "t", "sab"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.given << ' ' << c.full);
        U8CString owner;
        U8CString table;
        SplitTableNameWithOwner(c.given, c.full, owner, table, {.db = c.db});
        EXPECT_EQ(owner, c.owner);
        EXPECT_EQ(table, "t");
    }
}

} // namespace
