#include "Catalogue/UVDBCatalogueRows.h"
#include "Catalogue/UVDBHelpers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

DB_VERSION_INFO Version(std::uint64_t db, std::uint64_t subType = kNone)
{
    return MakeDbVersionInfo(db, subType, kNone, kNone);
}

TEST(CatalogueHelpers, NameTypesCountFromOne)
{
    // A row whose four names all differ.
    const DB_VERSION_INFO version = Version(4, 1);
    const char* const expected[] = {
        "", "SYBASE_ASE", "Adaptive Server Enterprise", "Sybase", "Sybase Adaptive Server Enterprise", ""};
    for (int type = 0; type < 6; ++type)
        EXPECT_STREQ(GetDbTypedName(4, 1, kNone, kNone, static_cast<DbNameType>(type)).c_str(),
                     expected[type])
            << type;
    EXPECT_STREQ(GetDbShortName(version).c_str(), expected[1]);
    EXPECT_STREQ(GetDbFullName(version).c_str(), expected[2]);
    EXPECT_STREQ(GetDbWzdName(version).c_str(), expected[3]);
    EXPECT_STREQ(GetDbVisibleName(version).c_str(), expected[4]);

    EXPECT_STREQ(GetDbDefaultExtension(70, 1, kNone, kNone).c_str(), "per");
    EXPECT_STREQ(GetDbDefaultExtension(Version(115)).c_str(), "");
    EXPECT_EQ(GetFullNameDbInfo("adaptive server enterprise", false).resourceIndex, 5);
    EXPECT_EQ(GetDbIndexCount(), 142u);
    EXPECT_STREQ(GetDbIndexInfo(142).shortName.c_str(), "SingleStoreDB");
}

TEST(CatalogueHelpers, XmlNamesBothDatabasesOfBothSides)
{
    DB_VERSION_INFO source = Version(0, 2);
    source.db2 = 4;
    source.subType2 = 1;
    DB_VERSION_INFO target = Version(1);
    EXPECT_STREQ(
        GetDbInfoXml(source, target).c_str(),
        "<DB><SourceDataBase value='DB2 AS400'/><SourceDataBaseFull value='DB2 AS400'/>"
        "<SourceDataBase2 value='SYBASE_ASE'/><SourceDataBaseFull2 value='Adaptive Server Enterprise'/>"
        "<TargetDataBase value='ORA'/><TargetDataBaseFull value='Oracle'/>"
        "<TargetDataBase2 value='UNKNOWN'/><TargetDataBaseFull2 value='Unknown'/></DB>");
    for (const SDbInfoLiteral& row : kCatalogueRows) {
        for (const char* name : {row.shortName, row.fullName})
            EXPECT_EQ(std::string(name).find_first_of("&<>'\""), std::string::npos)
                << name << " needs escaping";
    }
}

struct SSectionCase
{
    std::uint64_t db;
    std::uint64_t subType;
    const char* section;
};

constexpr SSectionCase kSections[] = {
    {5, 1, "MARIADB"},
    {5, kNone, "MySQL"}, // no line: the short name
    {2, 0, "MSAZURESQL"},
    {2, 1, "MSAZURESQLWAREHOUSE"},
    {2, kNone, "MSSQL"},
    {8, 2, "POSTGRESPRO"},
    {8, kNone, "POSTGRE"},
    {0, 2, "DB2"}, // not the short name of the subtype's row
    {4, 3, "SYBASE"},
    {9, 0, "ENTERPRISEDB"},
    {70, 1, "4GL_INFORMIX_FORM"},
    {82, kNone, "PASCAL"},
    {83, kNone, "PASCAL"},
    {60, kNone, "UNKNOWN"},
    {115, kNone, "UNKDB"},
};

TEST(CatalogueHelpers, IniSectionGoesByKindAndSubtype)
{
    for (const auto& c : kSections)
        EXPECT_STREQ(GetIniSectionName(Version(c.db, c.subType)).c_str(), c.section)
            << c.db << '/' << c.subType;
}

} // namespace
