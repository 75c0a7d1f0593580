#include "Catalogue/UVDBCatalogueRows.h"
#include "Catalogue/UVDBDbInfo.h"
#include "Catalogue/UVDBHelpers.h"

#include <gtest/gtest.h>

#include <climits>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

const UVDB::DbinfoHelper& Catalogue()
{
    return UVDB::DbinfoHelper::getInstance();
}

TEST(DbInfo, EveryRowAnswersForItsOwnKey)
{
    ASSERT_EQ(Catalogue().getRowCount(), std::size(kCatalogueRows));
    for (const SDbInfoLiteral& literal : kCatalogueRows) {
        SCOPED_TRACE(literal.resourceIndex);
        const DB_INFO_ROW& row = Catalogue().findDbInfo(static_cast<int>(literal.resourceIndex));
        EXPECT_STREQ(row.shortName.c_str(), literal.shortName);
        EXPECT_EQ(Catalogue().findResourceIndex(literal.db, literal.keySubType), literal.resourceIndex);
        // "Sybase" without subtype is the one key that another row takes.
        const std::int64_t answer = literal.resourceIndex == 3 ? 4 : literal.resourceIndex;
        EXPECT_EQ(Catalogue().findDbInfo(row.dbVersion).resourceIndex, answer);
        EXPECT_EQ(row.dbVersion.db2, 60u);
        EXPECT_EQ(row.dbVersion.major, kNone);
    }
}

struct SVersionCase
{
    std::uint64_t db;
    std::uint64_t subType;
    std::int64_t index;
    const char* shortName;
};

constexpr SVersionCase kVersions[] = {
    {0, 1, 58, "DB2 OS390"},
    {0, 2, 59, "DB2 AS400"},
    {0, 0, 0, "DB2"},
    {0, kNone, 0, "DB2"},
    {4, 1, 5, "SYBASE_ASE"},
    {4, 3, 57, "SybaseIQ"},
    {4, 2, 4, "SYBASE_ASA"},
    {4, kNone, 4, "SYBASE_ASA"},
    {9, 0, 67, "ENTERPRISEDB_PPSS"},
    {9, 7, 69, "ENTERPRISEDB"},
    {70, 1, 25, "4GL_INFORMIX_FORM"},
    {70, kNone, 8, "UNKDB"}, // a row for each subtype and none for the kind
    {118, kNone, 8, "UNKDB"},
    {60, kNone, 8, "UNKNOWN"}, // the unknown kind has a row of its own
    {115, kNone, 8, "UNKDB"},
    {128, kNone, 8, "UNKDB"},
    {134, kNone, 48, "MYSQL_API"},
    {kNone, kNone, 8, "UNKDB"},
};

TEST(DbInfo, KindAndSubtypeChooseTheRow)
{
    for (const auto& c : kVersions) {
        SCOPED_TRACE(testing::Message() << c.db << '/' << c.subType);
        for (const std::uint64_t versionWord : {kNone, std::uint64_t{0}}) {
            DB_VERSION_INFO version = MakeDbVersionInfo(c.db, c.subType, versionWord, versionWord);
            version.db2 = 1; // must not matter
            version.subType2 = 1;
            const DB_INFO_ROW& row = Catalogue().findDbInfo(version);
            EXPECT_EQ(row.resourceIndex, c.index);
            EXPECT_STREQ(row.shortName.c_str(), c.shortName);
            EXPECT_EQ(Catalogue().isUnknownDbInfo(row), c.index == 8);
        }
    }
}

TEST(DbInfo, KeysAreComparedAsTheyStand)
{
    const std::vector<std::pair<std::pair<std::uint64_t, std::uint64_t>, std::int64_t>> cases{
        {{4, 0}, 4},       {{4, kNone}, 3},  {{4, 2}, -1},       {{0, 0}, -1},
        {{70, kNone}, -1}, {{60, kNone}, 8}, {{115, kNone}, -1},
    };
    for (const auto& [key, index] : cases)
        EXPECT_EQ(GetDbResourceIdx(key.first, key.second), index) << key.first << '/' << key.second;
    for (const int index : {-1, 136, 143, INT_MAX, INT_MIN})
        EXPECT_STREQ(Catalogue().findDbInfo(index).shortName.c_str(), "UNKDB") << index;
}

struct SNameCase
{
    int category;
    const char* name;
    std::int64_t exact;
    std::int64_t ignoreCase;
};

constexpr SNameCase kNames[] = {
    {0, "ORA", 1, 1},
    {0, "ora", 8, 1},
    {1, "ORA", 8, 8}, // another column
    {1, "oracle", 8, 1},
    {1, "SYBASE", 8, 3},
    {2, "Sybase", 57, 57}, // shared: the first row
    {2, "DB2", 58, 58},
    {2, "sybase", 8, 57},
    {3, "visual basic.net", 8, 22},
    {3, "Visual Basic", 21, 21},
    {1, "UNKNOWN_DB", 8, 8}, // the row of failed searches isn't searched
    {4, "DB2", 8, 8},        // no such column
    {-1, "DB2", 8, 8},
    {0, "", 8, 8},
    {0, nullptr, 8, 8},
    {1, "Oracle ", 8, 8},
    {0, "ＤＢ２", 0, 0}, // wide forms collate as the plain letters
};

TEST(DbInfo, NamesAreSoughtInOneColumn)
{
    for (const auto& c : kNames) {
        SCOPED_TRACE(testing::Message() << c.category << ' ' << (c.name ? c.name : "null"));
        const auto category = static_cast<DbInfoNameCategory>(c.category);
        EXPECT_EQ(Catalogue().findDbInfo(category, c.name).resourceIndex, c.exact);
        EXPECT_EQ(Catalogue().findDbInfoIgnoreCase(category, c.name).resourceIndex, c.ignoreCase);
        EXPECT_EQ(Catalogue().containsName(category, c.name), c.exact != 8);
        EXPECT_EQ(Catalogue().containsNameIgnoreCase(category, c.name), c.ignoreCase != 8);
    }
}

struct SAnyNameCase
{
    const char* name;
    std::int64_t withWizardName;
    std::int64_t withoutWizardName;
};

constexpr SAnyNameCase kAnyNames[] = {
    {"db2", 58, 0}, // the wizard name of an earlier row goes before the full name of a later one
    {"sybase", 57, 3}, {"EnterpriseDB", 67, 69}, {"Postgre", 18, -1}, {"C#", 23, 23},
    {"c++", 20, 20},   {"Unknown", -1, -1},      {"UNKDB", -1, -1},   {"", -1, -1},
};

TEST(DbInfo, AnyNameBelongsToTheEarliestRow)
{
    for (const auto& c : kAnyNames) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Catalogue().findResourceIndexAnyNameIgnoreCase(c.name, false), c.withWizardName);
        EXPECT_EQ(GetDbIndexByName(c.name), c.withoutWizardName);
        EXPECT_EQ(Catalogue().containsAnyNameIgnoreCase(c.name), c.withWizardName != -1);
        EXPECT_EQ(Catalogue().isSupportedDbms(c.name), c.withWizardName != -1);
    }
    EXPECT_TRUE(Catalogue().isSupportedDbms(std::string_view("DB2 AS400 and more", 9)))
        << "a view has no end mark";
}

TEST(DbInfo, FamiliesAreNoDirections)
{
    const auto names = Catalogue().getIndexesFullnames();
    EXPECT_EQ(names.size(), 139u);
    for (const int family : {3, 8, 69})
        EXPECT_FALSE(names.contains(family)) << family;
    EXPECT_STREQ(names.at(5).c_str(), "Adaptive Server Enterprise");
    EXPECT_TRUE(Catalogue().IsNonExistentDirection("SyBase"));
    EXPECT_FALSE(Catalogue().IsNonExistentDirection("SybaseIQ"));
    EXPECT_FALSE(Catalogue().IsNonExistentDirection(nullptr));
}

} // namespace
