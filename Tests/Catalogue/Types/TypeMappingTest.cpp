#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Tests/Support/MemoryLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t kNone = UVDB_NO_VERSION_WORD;

DB_VERSION_INFO Oracle102()
{
    return MakeDbVersionInfo(UVDB_DB_ORA, kNone, 10, 2);
}
DB_VERSION_INFO SqlServer11()
{
    return MakeDbVersionInfo(UVDB_DB_MSSQL, kNone, 11, 0);
}

struct SVersionCase
{
    std::uint64_t db, subType, major, minor;
    std::uint64_t ofSubType, ofMajor, ofMinor; // of the sheaf
};

constexpr SVersionCase kVersions[] = {
    {UVDB_DB_ORA, kNone, 11, 2, kNone, 10, 2}, // newer than all
    {UVDB_DB_ORA, kNone, 10, 2, kNone, 10, 2},
    {UVDB_DB_ORA, kNone, 10, 1, kNone, 10, 2},
    {UVDB_DB_ORA, kNone, 9, 0, kNone, 9, 2}, // the oldest that isn't below
    {UVDB_DB_ORA, kNone, 9, 3, kNone, 9, 2}, // the major counts before the minor
    {UVDB_DB_ORA, kNone, 8, 0, kNone, 8, 3},
    {UVDB_DB_ORA, kNone, 5, 0, kNone, 8, 3},
    {UVDB_DB_ORA, kNone, kNone, kNone, kNone, 10, 2},
    {UVDB_DB_ORA, 7, 9, 0, kNone, 10, 2}, // a subtype without sheaves gets the last one, whatever its version
    {UVDB_DB_MSSQL, kNone, 10, 50, kNone, 10, 0},
    {UVDB_DB_MSSQL, kNone, 9, 0, kNone, 9, 0},
    {UVDB_DB_MSSQL, kNone, 7, 0, kNone, 8, 0},
    {UVDB_DB_MSSQL, kNone, 16, 0, kNone, 11, 0},
    {UVDB_DB_MySQL, kNone, 4, 5, kNone, 4, 1}, // no such minor: the newest of the major
    {UVDB_DB_MySQL, kNone, 4, 0, kNone, 4, 0},
    {UVDB_DB_MySQL, kNone, 3, 23, kNone, 4, 0},
    {UVDB_DB_MySQL, kNone, 5, 0, kNone, 5, 0},
    {UVDB_DB_MySQL, kNone, 8, 0, kNone, 5, 1},
    {UVDB_DB_MySQL, kNone, kNone, kNone, kNone, 5, 1},
    {UVDB_DB_MySQL, 1, 10, 3, 1, 0, 0},
    {UVDB_DB_MySQL, 2, 5, 0, 1, 0, 0}, // MariaDB's stands last
    {UVDB_DB_POSTGRESQL, kNone, 8, 1, kNone, 8, 4},
    {UVDB_DB_POSTGRESQL, kNone, 8, 2, kNone, 8, 2},
    {UVDB_DB_POSTGRESQL, kNone, 15, 0, kNone, 8, 4},
    {UVDB_DB_SYBASE, 0, 9, 0, 0, 9, 0},
    {UVDB_DB_SYBASE, 0, 11, 0, 0, 12, 0},
    {UVDB_DB_SYBASE, 1, kNone, kNone, 1, 12, 5},
    {UVDB_DB_SYBASE, 2, 9, 0, kNone, 12, 5},
    {UVDB_DB_SYBASE, 3, 15, 0, 3, 9, 0},
    {UVDB_DB_SYBASE, kNone, 9, 0, kNone, 9, 0},
    {UVDB_DB_SingleStoreDB, kNone, 7, 3, kNone, 7, 0},
    {UVDB_DB_SingleStoreDB, kNone, 6, 0, kNone, 7, 0},
};

TEST(SheafChoice, VersionsAreServedByTheOldestThatIsNotBelow)
{
    for (const SVersionCase& c : kVersions) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.subType << ' ' << c.major << '.' << c.minor);
        const long index = GetIndex(MakeDbVersionInfo(c.db, c.subType, c.major, c.minor));
        const SMappingSheafKey& key = kMappingSheaves[static_cast<std::size_t>(index)];
        EXPECT_EQ(key.db, c.db);
        EXPECT_EQ(key.subType, c.ofSubType);
        EXPECT_EQ(key.major, c.ofMajor);
        EXPECT_EQ(key.minor, c.ofMinor);
    }
}

TEST(SheafChoice, EachSheafServesTheVeryVersionItIsDeclaredFor)
{
    for (std::size_t i = 0; i < kMappingSheaves.size(); ++i) {
        EXPECT_EQ(GetIndex(kMappingSheaves[i].Version()), static_cast<long>(i));
    }
}

TEST(SheafChoice, UnknownDatabasesAreServedByCommonIfItIsThere)
{
    const long common = GetIndex(MakeDbVersionInfo(UVDB_DB_COMMON, kNone, kNone, kNone));
    for (const std::uint64_t db : {std::uint64_t{60}, std::uint64_t{127}, std::uint64_t{5000}, kNone})
        EXPECT_EQ(GetIndex(MakeDbVersionInfo(db, 1, 2, 3)), common) << db;
    EXPECT_EQ(kMappingSheaves[static_cast<std::size_t>(common)].db, UVDB_DB_COMMON);

    const auto withoutCommon = kMappingSheaves.first(static_cast<std::size_t>(common));
    EXPECT_EQ(ChooseMappingSheaf(withoutCommon, MakeDbVersionInfo(60, kNone, kNone, kNone)), -1);
    EXPECT_EQ(ChooseMappingSheaf({}, Oracle102()), -1);
}

std::vector<std::string> Names(DB_VERSION_INFO version, long type, unsigned long size, long scale,
                               bool smaller)
{
    UVDB::CArray<const SUVDBToDBMSDataType*> rows;
    UVDBToDBMSDataTypesRange(version, type, size, 0, scale, rows, smaller);
    std::vector<std::string> names;
    for (const auto* row : rows)
        names.push_back(row->name + (' ' + std::to_string(row->columnSize)));
    return names;
}

TEST(MappingRange, LastRungFitsAlwaysAndIsNeverSmaller)
{
    const DB_VERSION_INFO sql = SqlServer11();
    EXPECT_THAT(Names(sql, 0, 0, 0, false), ElementsAre("CHAR 2", "CHAR 8000", "VARCHAR(MAX) 2147483647"));
    EXPECT_THAT(Names(sql, 0, 3, 0, false), ElementsAre("CHAR 8000", "VARCHAR(MAX) 2147483647"));
    EXPECT_THAT(Names(sql, 0, ~0ul, 0, false), ElementsAre("VARCHAR(MAX) 2147483647"));
    EXPECT_THAT(Names(sql, 0, 3, 5, false), ElementsAre("VARCHAR(MAX) 2147483647"))
        << "scales count for texts too";
    EXPECT_THAT(Names(sql, 0, 2, 0, true), IsEmpty());
    EXPECT_THAT(Names(sql, 0, 3, 9, true), ElementsAre("CHAR 2")) << "what is too small is so at any scale";
    EXPECT_THAT(Names(sql, 0, ~0ul, 0, true), ElementsAre("CHAR 2", "CHAR 8000"));
    EXPECT_THAT(Names(sql, 6, 1, 0, false), IsEmpty());

    UVDB::CArray<const SUVDBToDBMSDataType*> rows(3);
    UVDBToDBMSDataTypesRange(sql, -1, 1, 0, 0, rows, false);
    EXPECT_EQ(rows.size(), 3u);
    UVDBToDBMSDataTypesRange(sql, 1, 5000, 0, 0, rows, false);
    EXPECT_EQ(rows.size(), 5u) << "appended";
}

TEST(Mapping, SizeChoosesTheName)
{
    const auto name = [](DB_VERSION_INFO target, long type, unsigned long size, long scale) {
        return std::string(UVDBToDBMSDataType2(target, type, size, 0, scale));
    };
    EXPECT_EQ(name(Oracle102(), 1, 100, 0), "VARCHAR2");
    EXPECT_EQ(name(Oracle102(), 1, 5000, 0), "CLOB");
    const DB_VERSION_INFO postgreSql = MakeDbVersionInfo(UVDB_DB_POSTGRESQL, kNone, 8, 4);
    EXPECT_EQ(name(postgreSql, 27, 1, 0), "BOOLEAN");
    EXPECT_EQ(name(postgreSql, 27, 2, 0), "BIT");
    EXPECT_EQ(name(postgreSql, 25, 500, 7), "DECIMAL");
}

// For whichever target, type and size there is an answer, the first of the fitting rows, and VARCHAR's where
// the type has none.
TEST(Mapping, EveryTypeIsAnsweredForEveryTarget)
{
    for (const SMappingSheafKey& key : kMappingSheaves) {
        const DB_VERSION_INFO target = key.Version();
        SCOPED_TRACE(testing::Message()
                     << key.db << ' ' << key.subType << ' ' << key.major << '.' << key.minor);
        const auto first = GetUVDBToDBMSDataTypeMapFirst(target);
        const auto last = GetUVDBToDBMSDataTypeMapLast(target);
        for (long type = -2; type < 200; ++type) {
            for (const unsigned long size : {0ul, 1ul, 38ul, 4000ul, 2147483648ul, ~0ul}) {
                const SUVDBToDBMSDataType* const row = FindMappingRow(target, type, size, 2);
                ASSERT_NE(row, nullptr);
                UVDB::CArray<const SUVDBToDBMSDataType*> rows;
                UVDBToDBMSDataTypesRange(target, type, size, 0, 2, rows, false);
                EXPECT_EQ(rows.empty(), !first.find(type));
                EXPECT_EQ(row, rows.empty() ? FindMappingRow(target, 1, size, 0) : rows.front()) << type;
                EXPECT_EQ(row->uvdbType, rows.empty() ? 1 : type);
                if (!rows.empty()) {
                    EXPECT_EQ(rows.back(), &GetUVDBToDBMSDataTypeList(target)[*last.find(type)]);
                }
            }
        }
    }
}

TEST(Mapping, IdentityHasNamesOfItsOwn)
{
    const auto name = [](std::uint64_t db, long type, bool identity) {
        return std::string(
            UVDBToDBMSDataType(MakeDbVersionInfo(db, kNone, kNone, kNone), type, 5, 0, 0, identity));
    };
    EXPECT_EQ(name(UVDB_DB_PERVASIVE, 34, true), "SMALLIDENTITY");
    EXPECT_EQ(name(UVDB_DB_PERVASIVE, 35, true), "IDENTITY");
    EXPECT_EQ(name(UVDB_DB_SYBASE, 35, true), "NUMERIC");
    EXPECT_NE(name(UVDB_DB_PERVASIVE, 34, false), "SMALLIDENTITY");
    EXPECT_EQ(name(UVDB_DB_MSSQL, 34, true), name(UVDB_DB_MSSQL, 34, false));
}

TEST(Mapping, DefaultIsAVarcharOf255)
{
    long type = 99, precision = 9, scale = 9;
    unsigned long size = 9;
    EXPECT_STREQ(GetDefaultDBMSDataType(Oracle102(), type, size, precision, scale), "VARCHAR2");
    EXPECT_EQ(type, 1);
    EXPECT_EQ(size, 255u);
    EXPECT_EQ(precision, 0);
    EXPECT_EQ(scale, 0);
}

TEST(Mapping, ChoiceIsTracedOnce)
{
    const CLogCapture log;
    UVDBToDBMSDataType2(SqlServer11(), 25, 10, 0, 2);
    UVDBToDBMSDataType2(SqlServer11(), -1, 4000, 0, 2); // served as VARCHAR
    EXPECT_THAT(log.Lines(), ElementsAre("\nDatatype mapping: DECIMAL, 38, 0, 38",
                                         "\nDatatype mapping: VARCHAR, 4000, 0, 0"));
}

} // namespace
