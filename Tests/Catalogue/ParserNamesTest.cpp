#include "Catalogue/UVDBHelpers.h"
#include "Catalogue/UVDBParserNames.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

std::string ModuleName(std::uint64_t db, std::uint64_t subType)
{
    return GetParserModuleName(MakeDbVersionInfo(db, subType, 1, 0));
}

TEST(ParserNames, ModuleNamesLeadBackToTheirKind)
{
    const std::map<std::uint64_t, int> differences{
        {109, 60}, {110, 60}, {111, 60}, {112, 60}, {113, 60}, // modules without a number
        {131, 60}, {132, 60}, {133, 60}, {134, 60},            // plug-ins by file name
        {116, 82}, {117, 83},                                  // dialects that share a grammar
    };
    int withModule = 0;
    for (std::uint64_t db = 0; db < 200; ++db) {
        for (const std::uint64_t subType : {kNone, std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{3}}) {
            const std::string name = ModuleName(db, subType);
            if (name == "Common")
                continue;
            SCOPED_TRACE(testing::Message() << db << '/' << subType << ' ' << name);
            const auto difference = differences.find(db);
            EXPECT_EQ(UVDBGetNumberByParserName(name),
                      difference == differences.end() ? static_cast<int>(db) : difference->second);
            withModule += subType == kNone;
        }
    }
    EXPECT_EQ(withModule, 110);
    EXPECT_EQ(UVDBGetNumberByParserName("Common"), 64);
}

struct SModuleCase
{
    std::uint64_t db;
    std::uint64_t subType;
    const char* name;
};

constexpr SModuleCase kModules[] = {
    {4, 0, "SybaseASA"},
    {4, 1, "SybaseASE"},
    {4, 2, "SybaseASA"},
    {4, 3, "SybaseIQ"},
    {4, kNone, "SybaseASA"},
    {9, 0, "EnterpriseDBPPSS"},
    {9, kNone, "EnterpriseDBPPAS"},
    {70, 1, "Informix4GLForm"},
    {70, kNone, "Informix4GL"},
    {118, 1, "Sea4GLForm"},
    {118, kNone, "Sea4GL"},
    {0, 1, "DB2"}, // other kinds don't ask for the subtype
    {8, 2, "PostgreSQL"},
    {64, kNone, "Common"},
    {60, kNone, "Common"},
    {129, kNone, "Common"},
    {135, kNone, "Common"},
    {kNone, kNone, "Common"},
};

TEST(ParserNames, SubtypesChooseWithinFourKinds)
{
    for (const auto& c : kModules)
        EXPECT_EQ(ModuleName(c.db, c.subType), c.name) << c.db << '/' << c.subType;
}

TEST(ParserNames, NumbersAreFoundByTheExactName)
{
    EXPECT_EQ(UVDBGetNumberByParserName("ABAP4"), 95); // first and last of the table
    EXPECT_EQ(UVDBGetNumberByParserName("vPostgres"), 39);
    EXPECT_EQ(UVDBGetNumberByParserName(std::string_view("DB2xyz", 3)), 0);
    for (const char* name : {"", "db2", "DB2 ", "zzz", "A", "Unknown"})
        EXPECT_EQ(UVDBGetNumberByParserName(name), 60) << name;
}

} // namespace
