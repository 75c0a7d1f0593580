#include "Catalogue/UVDBHelpers.h"
#include "Metadata/Options/wzdoptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

struct SNamedOption
{
    std::string_view enumerator;
    int number;
};

constexpr SNamedOption kEnumerators[] = {
#define UVDB_WIZARD_OPTION(name, number, section, key) {#name, name},
#include "Metadata/Options/UVWizardOptionRows.inc"
#undef UVDB_WIZARD_OPTION
};

std::string UpperCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

// An enumerator that has slipped a row against its number would read somebody else's option.
TEST(WizardOptions, EnumeratorsSpellSectionAndKey)
{
    for (const auto& [enumerator, number] : kEnumerators) {
        std::string section = GetOptionSection(number);
        section.erase(0, section.find_first_not_of('_'));
        const std::string key = number == 11 ? "NULL" : GetOptionName(number);
        EXPECT_EQ(enumerator, "WZDOPT_" + UpperCase(section) + (section.empty() ? "" : "_") + UpperCase(key));
    }
}

TEST(WizardOptions, EachPlaceOfTheFileHasOneNumber)
{
    std::set<std::pair<std::string, std::string>> places;
    std::set<std::string> keys;
    for (int number = 0; number < WZDOPT_END; ++number) {
        ASSERT_EQ(GetOptionName(number) == nullptr, GetOptionSection(number) == nullptr) << number;
        if (!GetOptionName(number))
            continue;
        EXPECT_TRUE(places.insert({GetOptionSection(number), GetOptionName(number)}).second) << number;
        keys.insert(GetOptionName(number));
    }
    EXPECT_EQ(places.size(), 736u);
    EXPECT_EQ(keys.size(), 359u);
    EXPECT_STREQ(GetOptionName(11), "(null)"); // literal text, not an absent row
    EXPECT_STREQ(GetOptionSection(702), "");
}

TEST(WizardOptions, RawValuesGoByTheExactKey)
{
    EXPECT_FALSE(IsAllowedValuePreprocessing("IMPORT_CLIENT_OPTIONS"));
    EXPECT_FALSE(IsAllowedValuePreprocessing("BCP_COMMAND_LINE_CUSTOM_PARAMETERS"));
    for (const char* key : {"import_client_options", "IMPORT_CLIENT_OPTIONS ", "PWD", ""})
        EXPECT_TRUE(IsAllowedValuePreprocessing(key)) << key;
}

struct SSectionCase
{
    const char* section;
    std::uint64_t db, subType;
    bool isValid, isTarget;
};

constexpr SSectionCase kSections[] = {
    {"mssql", 2, kNone, true, true},
    {"MSAZURESQL", 2, 0, true, true},
    {"MSAZURESQL", 2, 1, false, false},
    {"MariaDB", 5, 1, true, true},
    {"MariaDB", 45, 0, false, false}, // a subtype of MySQL here, not the kind
    {"POSTGRE", 8, 2, true, true},
    {"PostgrePro", 129, kNone, true, true},
    {"POSTGRESPRO", 1, kNone, true, false}, // claimed by nobody
    {"splice_machine", 13, kNone, true, true},
    {"CPP", 68, 0, false, false}, // never, although the kind exists
    {"ODBC", 1, kNone, false, false},
    {"", 1, kNone, true, false},
    {"Oracle ", 2, kNone, true, false},
};

TEST(WizardSections, KindAndSubtypeClaimThem)
{
    for (const auto& c : kSections) {
        SCOPED_TRACE(testing::Message() << c.section << ' ' << c.db << '/' << c.subType);
        EXPECT_EQ(IsSectionValid(c.section, c.db, c.subType), c.isValid);
        EXPECT_EQ(IsSectionTarget(c.section, c.db, c.subType), c.isTarget);
    }
}

// A database that may not read its own section would never get an option. Refused are kinds whose section is
// claimed by a subtype of another kind, and C++, whose section nobody gets.
TEST(WizardSections, ADatabaseMayReadItsOwnSection)
{
    const std::set<std::uint64_t> refused{45, 68, 122, 123};
    for (std::uint64_t db = 0; db < 135; ++db) {
        for (const std::uint64_t subType : {kNone, std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{2}}) {
            const Uve::U8CString section = GetIniSectionName(MakeDbVersionInfo(db, subType, kNone, kNone));
            EXPECT_EQ(IsSectionValid(section, db, subType), !refused.contains(db))
                << section.c_str() << ' ' << db;
        }
    }
}

// Between the two tests stand only the sections that nobody claims.
TEST(WizardSections, TargetAndSourceDifferInUnclaimedSectionsAlone)
{
    std::set<std::string> sections;
    for (int number = 0; number < WZDOPT_END; ++number) {
        if (GetOptionSection(number))
            sections.insert(GetOptionSection(number));
    }
    std::set<std::string> unclaimed;
    for (const std::string& section : sections) {
        int valid = 0;
        for (std::uint64_t db = 0; db < 135; ++db) {
            for (const std::uint64_t subType : {kNone, std::uint64_t{0}, std::uint64_t{1}}) {
                EXPECT_LE(IsSectionTarget(section, db, subType), IsSectionValid(section, db, subType))
                    << section;
                valid += IsSectionValid(section, db, subType);
            }
        }
        if (valid == 135 * 3)
            unclaimed.insert(section);
        else
            EXPECT_EQ(valid > 0, section != "ODBC") << section;
    }
    // clang-format off
    const std::set<std::string> expected{
        "", "4DSQLSERVER", "ADABAS", "COMMON", "DATA", "DDL", "JAVASCRIPT", "OPTIMIZATION", "PASCAL",
        "PBSCRIPTS", "POSTGRESPRO", "PROGRESS4GL", "UNIX", "WINDOWS", "_WZD_COMMON", "_WZD_DATA",
        "_WZD_DDL", "_WZD_SOURCE_DB", "_WZD_SOURCE_DB2"};
    // clang-format on
    EXPECT_EQ(unclaimed, expected);
}

struct STargetCase
{
    unsigned int index;
    const char* version;
    std::uint64_t db, subType, major, minor;
};

constexpr STargetCase kTargets[] = {
    {0, "", 2, kNone, kNone, kNone},
    {1, "10", 2, 2, 10, 0},
    {5, "7.3", 0, 2, 7, 3},
    {28, "1.0", 60, kNone, 1, 0}, // a position that is kept free
    {34, "5.7.30", 5, 0, 5, 7},   // the third part isn't read
    {42, "12.", 8, 2, 12, 0},
    {43, ".5", 14, kNone, kNone, kNone}, // without a major part nothing is known
    {44, "9.1", 60, kNone, 9, 1},
    {UINT_MAX, "x.2", 60, kNone, 0, 2},
    {2, "-1.-2", 1, kNone, kNone, kNone - 1},
    {2, "4294967301.0", 1, kNone, 5, 0}, // cut to 32 bits
};

TEST(WizardTargets, PositionAndVersionText)
{
    for (const auto& c : kTargets) {
        SCOPED_TRACE(testing::Message() << c.index << " \"" << c.version << '"');
        DB_VERSION_INFO info{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
        GetTargetDbmsInfo(c.index, c.version, &info);
        EXPECT_EQ(info.db, c.db);
        EXPECT_EQ(info.subType, c.subType);
        EXPECT_EQ(info.major, c.major);
        EXPECT_EQ(info.minor, c.minor);
        EXPECT_EQ(info.db2, 60u);
        EXPECT_EQ(info.reserved1 & info.reserved4 & info.subType2 & info.minor2, kNone);
    }
    GetTargetDbmsInfo(0, "1.0", nullptr);
}

} // namespace
