// What must hold of every row of every type table and every sheaf, whoever adds to them.
#include "Catalogue/Types/DataTypes/DataTypeRegistry.h"
#include "Catalogue/Types/TypeMapping/MappingRegistry.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

std::string Describe(const SDataTypeTableKey& key)
{
    return "types of " + std::string(GetDbFullName(key.Version())) + " (" + std::to_string(key.db) + ", " +
           std::to_string(key.subType) + ')';
}

std::string Describe(const SMappingSheafKey& key)
{
    return "mapping to " + std::string(GetDbFullName(key.Version())) + " (" + std::to_string(key.db) + ", " +
           std::to_string(key.subType) + ") " + std::to_string(key.major) + '.' + std::to_string(key.minor);
}

std::string Describe(const SDataTypeParams& row)
{
    return std::string(row.name) + " as " + std::to_string(row.uvdbType) + " up to " +
           std::to_string(row.columnSize);
}

std::string Describe(const SUVDBToDBMSDataType& row)
{
    return std::to_string(row.uvdbType) + " up to " + std::to_string(row.columnSize) + " as " + row.name;
}

// Calls `check(key)` for one key of each distinct table or sheaf, under a trace that names it.
template <class Keys, class Member, class Check>
void ForEachDistinct(const Keys& keys, Member member, Check check)
{
    std::set<const void*> seen;
    for (const auto& key : keys) {
        if (!seen.insert(key.*member).second)
            continue;
        SCOPED_TRACE(Describe(key));
        check(key);
    }
}

template <class Check>
void ForEachTable(Check check)
{
    ForEachDistinct(kDataTypeTables, &SDataTypeTableKey::table,
                    [&](const SDataTypeTableKey& key) { check(key, *key.table); });
}

template <class Check>
void ForEachSheaf(Check check)
{
    ForEachDistinct(kMappingSheaves, &SMappingSheafKey::sheaf,
                    [&](const SMappingSheafKey& key) { check(key, *key.sheaf); });
}

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

// One entry a pair of parentheses, each with its words.
std::vector<std::vector<std::string_view>> ParamGroups(const char* createParams)
{
    std::vector<std::vector<std::string_view>> groups;
    if (*createParams) {
        for (const std::string_view group : Split(createParams, ';'))
            groups.push_back(Split(group, ','));
    }
    return groups;
}

std::size_t CountPairs(std::string_view name)
{
    std::size_t count = 0;
    for (std::size_t at = name.find("()"); at != std::string_view::npos; at = name.find("()", at + 2))
        ++count;
    return count;
}

// ---- Type tables ----

TEST(TypeTables, NoneStandsTwice)
{
    std::set<std::pair<std::uint64_t, std::uint64_t>> keys;
    for (const SDataTypeTableKey& key : kDataTypeTables) {
        EXPECT_TRUE(keys.emplace(key.db, key.subType).second) << Describe(key);
        EXPECT_EQ(GetDBMSDataTypeParamsList(key.Version()).data(), key.table->rows.data());
    }
}

TEST(TypeTables, LaddersStandTogetherAndClimb)
{
    ForEachTable([](const SDataTypeTableKey&, const SDataTypeTable& table) {
        for (const STypeNameSpan& name : table.names) {
            for (std::size_t i = name.first + 1; i <= name.last; ++i) {
                EXPECT_STREQ(table.rows[i].name, table.rows[i - 1].name);
                EXPECT_GE(table.rows[i].columnSize, table.rows[i - 1].columnSize) << Describe(table.rows[i]);
            }
        }
    });
}

// Is there a size and scale for which the scan of the name stops at this row?
bool IsReachedBySize(const DB_VERSION_INFO& version, const SDataTypeParams& row)
{
    for (const long scale : {0L, 1L, -1L, long{row.minScale}, long{row.maxScale}}) {
        for (const unsigned long size : {row.columnSize, row.columnSize + 1}) {
            if (FindDBMSDataTypeRow(version, row.name, size, scale) == &row)
                return true;
        }
    }
    return false;
}

TEST(TypeTables, EveryRungIsReached)
{
    ForEachTable([](const SDataTypeTableKey& key, const SDataTypeTable& table) {
        const DB_VERSION_INFO version = key.Version();
        for (const SDataTypeParams& row : table.rows) {
            // Names with small letters are for those who look into the table themselves.
            if (NormalizeTypeName(row.name, version) != row.name)
                continue;
            EXPECT_TRUE(IsReachedBySize(version, row) ||
                        &GetDBMSDataTypeParams(version, row.name, row.uvdbType) == &row)
                << Describe(row) << (row.isSynonym ? " (synonym)" : "");
            if (!row.isSynonym) {
                EXPECT_TRUE(IsReachedBySize(version, row)) << Describe(row);
            }
        }
    });
}

// A synonym either respells a type declared before it, or lets a further type come back to a name of its own.
TEST(TypeTables, SynonymsBelongToARowThatIsNone)
{
    ForEachTable([](const SDataTypeTableKey&, const SDataTypeTable& table) {
        std::set<std::int64_t> declaredTypes;
        std::set<std::string_view> declaredNames;
        for (const SDataTypeParams& row : table.rows) {
            if (!row.isSynonym)
                declaredNames.insert(row.name);
        }
        for (const SDataTypeParams& row : table.rows) {
            if (!row.isSynonym)
                declaredTypes.insert(row.uvdbType);
            EXPECT_TRUE(declaredTypes.contains(row.uvdbType) || declaredNames.contains(row.name))
                << Describe(row);
        }
    });
}

TEST(TypeTables, ParameterWordsFillThePairsOfTheName)
{
    const std::set<std::string_view> words{"LENGTH", "MAX LENGTH", "PRECISION", "SCALE", "LEADING PRECISION"};
    ForEachTable([&](const SDataTypeTableKey&, const SDataTypeTable& table) {
        for (const SDataTypeParams& row : table.rows) {
            SCOPED_TRACE(Describe(row) + ": " + row.createParams);
            const auto groups = ParamGroups(row.createParams);
            for (const auto& group : groups) {
                for (const std::string_view word : group)
                    EXPECT_TRUE(words.contains(word)) << word;
            }
            // A name without a pair takes one at its end.
            const std::size_t pairs = CountPairs(row.name);
            EXPECT_TRUE(pairs == groups.size() || (pairs == 0 && groups.size() == 1)) << pairs << " pairs";
        }
    });
}

TEST(TypeTables, ParameterWordsHaveTheirLimits)
{
    ForEachTable([](const SDataTypeTableKey&, const SDataTypeTable& table) {
        for (const SDataTypeParams& row : table.rows) {
            SCOPED_TRACE(Describe(row) + ": " + row.createParams);
            const bool hasLength = TakesParameter(row, "LENGTH") || TakesParameter(row, "MAX LENGTH");
            const bool hasPrecision = TakesParameter(row, "PRECISION");
            const bool hasScale = TakesParameter(row, "SCALE");
            EXPECT_FALSE(hasLength && hasPrecision);
            if (hasLength) {
                EXPECT_EQ(row.columnSizePurpose, UVDB_SIZE_IS_LENGTH);
            }
            if (hasPrecision) {
                EXPECT_EQ(row.columnSizePurpose, UVDB_SIZE_IS_PRECISION);
            }
            if (hasLength || hasPrecision) {
                EXPECT_GT(row.columnSize, 0u);
            }
            if (hasScale) {
                EXPECT_TRUE(row.isScaleValid);
            }
            EXPECT_LE(row.minScale, row.maxScale);
            if (TakesParameter(row, "LEADING PRECISION")) {
                EXPECT_TRUE(row.isLeadingPrecisionValid);
            }
            EXPECT_EQ(row.leadingPrecision > 0, row.isLeadingPrecisionValid);
        }
    });
}

// ---- Sheaves ----

TEST(MappingSheaves, NoneStandsTwice)
{
    std::set<std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t>> keys;
    for (const SMappingSheafKey& key : kMappingSheaves) {
        EXPECT_TRUE(keys.emplace(key.db, key.subType, key.major, key.minor).second) << Describe(key);
    }
}

TEST(MappingSheaves, RungsOfATypeClimb)
{
    ForEachSheaf([](const SMappingSheafKey&, const SMappingSheaf& sheaf) {
        EXPECT_NE(sheaf.Find(1), nullptr) << "VARCHAR serves what has no rows";
        for (std::size_t i = 0; i < sheaf.rows.size(); ++i) {
            const SUVDBToDBMSDataType& row = sheaf.rows[i];
            SCOPED_TRACE(Describe(row));
            EXPECT_LE(row.minScale, row.maxScale);
            const STypeRungs* const rungs = sheaf.Find(row.uvdbType);
            ASSERT_NE(rungs, nullptr);
            if (static_cast<std::size_t>(rungs->first) == i)
                continue;
            EXPECT_GE(row.columnSize, sheaf.rows[i - 1].columnSize);
        }
    });
}

TEST(MappingSheaves, EveryRungIsReached)
{
    ForEachSheaf([](const SMappingSheafKey& key, const SMappingSheaf& sheaf) {
        const DB_VERSION_INFO version = key.Version();
        for (const SUVDBToDBMSDataType& row : sheaf.rows) {
            const auto isFoundAt = [&](long scale) {
                return FindMappingRow(version, row.uvdbType, row.columnSize, scale) == &row;
            };
            EXPECT_TRUE(isFoundAt(0) || isFoundAt(row.minScale) || isFoundAt(row.maxScale)) << Describe(row);
        }
    });
}

// Names that stand in no row of the target's table.
struct SForeignName
{
    std::uint64_t db;
    std::uint64_t major;
    const char* name;
};

constexpr SForeignName kForeignNames[] = {
    {UVDB_DB_ORA, 8, "JSON"},
};

bool IsForeign(const SMappingSheafKey& key, std::string_view name)
{
    return std::ranges::any_of(kForeignNames, [&](const SForeignName& foreign) {
        return key.db == foreign.db && key.major == foreign.major && name == foreign.name;
    });
}

// What a type of theirs may take nobody knows, so their names are written without parameters.
TEST(MappingSheaves, FewTargetsHaveNoTypesOfTheirOwn)
{
    std::set<std::uint64_t> targets;
    for (const SMappingSheafKey& key : kMappingSheaves) {
        if (GetDBMSDataTypeParamsList(key.Version()).empty())
            targets.insert(key.db);
    }
    EXPECT_EQ(targets,
              (std::set<std::uint64_t>{UVDB_DB_COMMON, UVDB_DB_ORACLE_SQL_FORMS, UVDB_DB_FOXPRO_PROGRAMS}));
}

TEST(MappingSheaves, NamesAreTypesOfTheTarget)
{
    ForEachSheaf([](const SMappingSheafKey& key, const SMappingSheaf& sheaf) {
        const DB_VERSION_INFO version = key.Version();
        const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
        if (table.rows.empty())
            return;
        for (const SUVDBToDBMSDataType& row : sheaf.rows) {
            // By its key as well: SQL Server's VARCHAR(MAX) is in the table as VARCHAR.
            EXPECT_TRUE(table.Find(row.name) || table.Find(NormalizeTypeName(row.name, version)) ||
                        IsForeign(key, row.name))
                << Describe(row);
        }
    });
}

// A length above the limit of the target's row would be cut to it when the name is written.
TEST(MappingSheaves, LengthsFitTheTypesOfTheTarget)
{
    ForEachSheaf([](const SMappingSheafKey& key, const SMappingSheaf& sheaf) {
        const SDataTypeTable& table = SetDBMSDataTypeParamsList(key.Version());
        for (const SUVDBToDBMSDataType& row : sheaf.rows) {
            const STypeNameSpan* const name = table.Find(row.name);
            if (!name)
                continue;
            const SDataTypeParams& longest = table.rows[name->last];
            if (TakesParameter(longest, "LENGTH")) {
                EXPECT_LE(row.columnSize, longest.columnSize) << Describe(row);
            }
        }
    });
}

} // namespace
