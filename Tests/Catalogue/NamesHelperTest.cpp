#include "Catalogue/UVDBCatalogueRows.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBKindLists.h"
#include "Catalogue/UVDBNamesHelper.h"

#include <gtest/gtest.h>

#include <set>

namespace {

const UVDB::NamesHelper& Names()
{
    return UVDB::NamesHelper::getInstance();
}

TEST(NamesHelper, EnumeratorsAreSpelledExactly)
{
    EXPECT_EQ(Names().GetDBType("UVDB_DB_ORA"), 1u);
    EXPECT_EQ(Names().GetDBType("UVDB_DB_ADVANTAGE"), 61u); // after the number without a name
    EXPECT_EQ(Names().GetDBType("UVDB_DB_PostgresPro"), 129u);
    EXPECT_EQ(Names().GetDBType("UVDB_DB_SingleStoreDB"), 130u);
    for (const char* name : {"uvdb_db_ora", "ORA", "UVDB_DB_ORA ", "", static_cast<const char*>(nullptr)})
        EXPECT_EQ(Names().GetDBType(name), 60u) << (name ? name : "null");
}

TEST(NamesHelper, EveryKindIsDatabaseOrApplication)
{
    for (std::uint64_t db = 0; db < 200; ++db) {
        SCOPED_TRACE(db);
        EXPECT_EQ(Names().isApp(db), db >= 60 && db <= 127);
        EXPECT_EQ(Names().isDatabase(db), db < 60 || db == 129 || db == 130);
        EXPECT_EQ(Names().isValid(db), db < 131);
    }
    EXPECT_FALSE(Names().isValid(~std::uint64_t{0}));
}

TEST(NamesHelper, ListsHoldKindsOfTheCatalogueOnce)
{
    std::set<std::uint64_t> withRow{UVDB_DB_Etalon}; // a kind without a row
    for (const SDbInfoLiteral& row : kCatalogueRows)
        withRow.insert(row.db);
    for (const auto kinds : {kDatabaseKinds, kApplicationKinds, kStatisticsKinds}) {
        std::set<std::uint64_t> seen;
        for (const std::uint64_t db : kinds) {
            EXPECT_TRUE(seen.insert(db).second) << db;
            EXPECT_TRUE(withRow.contains(db)) << db;
        }
    }
    EXPECT_TRUE(Names().isNeedStatisticsCollection(UVDB_DB_COBOL));
    EXPECT_FALSE(Names().isNeedStatisticsCollection(UVDB_DB_ORA));
}

} // namespace
