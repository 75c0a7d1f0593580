// What a migration expects of its types: between eight databases, each type as a person writes it and its
// text in each of the other seven. The rows say what is right from the databases' own manuals, so a change of
// a table that shows here is a change for every migration.
#include "Catalogue/Types/UVDBTypeText.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace {

struct SGoldenDatabase
{
    const char* name;
    DB_VERSION_INFO version;
};

// The columns of the rows stand in this order, without the source's own.
constexpr SGoldenDatabase kDatabases[] = {
    {"Oracle 19", {.db = UVDB_DB_ORA, .major = 19, .minor = 0}},
    {"SQL Server 2019", {.db = UVDB_DB_MSSQL, .major = 15, .minor = 0}},
    {"MySQL 8.0", {.db = UVDB_DB_MySQL, .major = 8, .minor = 0}},
    {"PostgreSQL 14", {.db = UVDB_DB_POSTGRESQL, .major = 14, .minor = 0}},
    {"DB2 11", {.db = UVDB_DB_DB2, .major = 11, .minor = 5}},
    {"Sybase ASE 16", {.db = UVDB_DB_SYBASE, .subType = 1, .major = 16, .minor = 0}},
    {"Informix 14", {.db = UVDB_DB_INFORMIX, .major = 14, .minor = 10}},
    {"Teradata 17", {.db = UVDB_DB_TERADATA, .major = 17, .minor = 0}},
};
constexpr std::size_t kTargets = std::size(kDatabases) - 1;

struct SGoldenRow
{
    const char* source;
    std::array<const char*, kTargets> targets;
};

// clang-format off
constexpr SGoldenRow kOracle[] = {
#include "Tests/Catalogue/Types/TypeGolden/Oracle.inc"
};
constexpr SGoldenRow kSqlServer[] = {
#include "Tests/Catalogue/Types/TypeGolden/SqlServer.inc"
};
constexpr SGoldenRow kMySql[] = {
#include "Tests/Catalogue/Types/TypeGolden/MySql.inc"
};
constexpr SGoldenRow kPostgreSql[] = {
#include "Tests/Catalogue/Types/TypeGolden/PostgreSql.inc"
};
constexpr SGoldenRow kDb2[] = {
#include "Tests/Catalogue/Types/TypeGolden/Db2.inc"
};
constexpr SGoldenRow kSybaseAse[] = {
#include "Tests/Catalogue/Types/TypeGolden/SybaseAse.inc"
};
constexpr SGoldenRow kInformix[] = {
#include "Tests/Catalogue/Types/TypeGolden/Informix.inc"
};
constexpr SGoldenRow kTeradata[] = {
#include "Tests/Catalogue/Types/TypeGolden/Teradata.inc"
};
// clang-format on

constexpr std::span<const SGoldenRow> kSources[] = {kOracle, kSqlServer, kMySql,    kPostgreSql,
                                                    kDb2,    kSybaseAse, kInformix, kTeradata};
static_assert(std::size(kSources) == std::size(kDatabases));
static_assert(std::ranges::all_of(kSources, [](auto rows) { return rows.size() >= 25; }));

// The whole way of a type text. Empty if the source can't read it.
std::string Converted(DB_VERSION_INFO source, DB_VERSION_INFO target, std::string_view text)
{
    STypeText type = ReadTypeText(source, text);
    if (!type.isKnown)
        return {};
    CompleteTypeNumbers(source, type);
    return ConvertDataType(source, target, SourceTypeOf(source, type)).text.c_str();
}

// Calls `check` with each row's source and target, and the text that stands there.
template <class TCheck>
void ForEachPair(std::size_t source, TCheck check)
{
    for (const SGoldenRow& row : kSources[source]) {
        std::size_t column = 0;
        for (std::size_t target = 0; target < std::size(kDatabases); ++target) {
            if (target == source)
                continue;
            SCOPED_TRACE(testing::Message() << kDatabases[source].name << ' ' << row.source << " to "
                                            << kDatabases[target].name);
            check(row.source, kDatabases[target].version, row.targets[column++]);
        }
    }
}

class TypeGolden : public testing::TestWithParam<std::size_t>
{};

TEST_P(TypeGolden, ATypeIsCalledWhatItsMigrationNeeds)
{
    ForEachPair(GetParam(), [](const char* text, DB_VERSION_INFO target, const char* expected) {
        EXPECT_EQ(Converted(kDatabases[GetParam()].version, target, text), expected);
    });
}

// A type arrives as one that the target itself can read, and stays what it is there.
TEST_P(TypeGolden, TheTargetKnowsWhatItIsGiven)
{
    ForEachPair(GetParam(), [](const char*, DB_VERSION_INFO target, const char* expected) {
        const STypeText type = ReadTypeText(target, expected);
        EXPECT_TRUE(type.isKnown) << expected << ' ' << type.error.c_str();
    });
}

INSTANTIATE_TEST_SUITE_P(EightDatabases, TypeGolden, testing::Range(std::size_t{0}, std::size(kDatabases)));

} // namespace
