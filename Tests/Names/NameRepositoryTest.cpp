#include "Names/NameRepository.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Path = std::vector<int>;
using Names = std::vector<Uve::U8CString>;

enum enType : int
{
    kTable = 0,
    kView = 2,
    kSynonym = 3,
    kSequence = 5,
    kProcedure = 6,
    kFunction = 7,
    kTrigger = 8,
    kPackage = 9,
    kUserType = 12,
    kScript = 13,
    kColumn = 17,
    kPrimaryKey = 21,
    kForeignKey = 22,
    kUniqueConstraint = 24,
    kComment = 27,
    kIndex = 33,
    kSchema = 36,
    kLabel = 37,
    kDatabase = 38,
    kCursor = 39,
    kClass = 41,
    kVariable = 42
};

Repositary2 Repository(std::uint64_t kind, int quotedCase = 3)
{
    Repositary2 repository;
    repository.Init({.db = kind}, quotedCase, false);
    return repository;
}

// The name that stands for the path; empty if there is none.
std::string NameOf(const Repositary2& repository, const Path& path, const Names& names,
                   std::string_view prefix = {})
{
    CConvertedName found;
    return repository.GetObjectStr(path, names, found, prefix, prefix.size()) ? found.name : std::string();
}

struct SNameSpaceCase
{
    std::uint64_t kind;
    int taken;
    int asked;
    bool isTaken;
};

constexpr SNameSpaceCase kNameSpaces[] = {
    {8, kFunction, kProcedure, true},
    {8, kProcedure, kFunction, false}, // the first group with functions holds them alone
    {8, kFunction, kTrigger, false},
    {8, kTrigger, kTable, true},
    {8, kTable, kTrigger, false},
    {1, kPrimaryKey, kIndex, true},
    {1, kTable, kIndex, false},
    {1, kTable, kPackage, true},
    {0, kTable, kFunction, true},
    {0, kTable, kIndex, false},
    {2, kPrimaryKey, kProcedure, true},
    {2, kColumn, kPrimaryKey, false},
    {2, kForeignKey, kTable, true},
    {2, kUniqueConstraint, kColumn, true},
    {2, kComment, kComment, false}, // shares no name with anything, not even with another comment
    {4, kTable, kView, true},
    {4, kTable, kProcedure, false},
    {5, kProcedure, kFunction, true},
    {5, kSynonym, kTable, true},
    {6, kIndex, kColumn, true},
    {71, kView, kProcedure, false},
    {60, kView, kProcedure, true},
    {500, kView, kProcedure, true},
    {19, kClass, kClass, true},
    {60, kClass, kClass, false}, // no name space of its own: never taken
    {60, kScript, kScript, false},
};

TEST(NameRepository, NameIsTakenForTheTypesThatShareItsSpace)
{
    for (const SNameSpaceCase& c : kNameSpaces) {
        SCOPED_TRACE(testing::Message()
                     << "kind " << c.kind << ", " << c.taken << " taken, " << c.asked << " asked");
        Repositary2 repository = Repository(c.kind);
        repository.SetObject({kSchema, c.taken}, {"s", "n"}, {"N", 0, c.taken});
        EXPECT_EQ(NameOf(repository, {kSchema, c.asked}, {"s", "n"}), c.isTaken ? "N" : "");
        EXPECT_EQ(repository.GetObjectType({kSchema, c.asked}, {"s", "n"}), c.isTaken ? c.taken : -1);
        EXPECT_EQ(NameOf(repository, {kSchema, c.asked}, {"other", "n"}), "");
    }
}

TEST(NameRepository, CaseCountsUnlessOneOfTheRulesIsInsensitive)
{
    struct
    {
        int quotedCase;
        int identifierCase;
        bool isOneName;
    } const cases[] = {{3, 3, false}, {1, 2, false}, {4, 3, true}, {3, 4, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.quotedCase << ", " << c.identifierCase);
        Repositary2 repository = Repository(8, c.quotedCase);
        EXPECT_EQ(repository.GetIdentifierCase(), 3);
        repository.SetIdentifierCase(c.identifierCase);
        const Path path{kSchema, kTable};
        EXPECT_TRUE(repository.SetObject(path, {"s", "Prix d'été"}, {"first"}));
        EXPECT_EQ(repository.SetObject(path, {"S", "PRIX D'ÉTÉ"}, {"second"}), !c.isOneName);
        EXPECT_EQ(NameOf(repository, path, {"s", "Prix d'été"}), "first");
        EXPECT_EQ(NameOf(repository, path, {"S", "PRIX D'ÉTÉ"}), c.isOneName ? "first" : "second");
    }
}

TEST(NameRepository, PrefixMakesASpaceOfItsOwn)
{
    Repositary2 repository = Repository(8, 4);
    const Path path{kSchema, kProcedure, kVariable};
    const Names names{"s", "p", "v"};
    repository.SetObject(path, names, {"plain"});
    repository.SetObject(path, names, {"inner"}, "block1", 5);
    EXPECT_EQ(NameOf(repository, path, names), "plain");
    EXPECT_EQ(NameOf(repository, path, names, "block"), "inner") << "cut after its length";
    EXPECT_EQ(NameOf(repository, path, names, "BLOCK"), "") << "the case rule is for names";

    Uve::U8CString key;
    EXPECT_EQ(repository.GetValidKey(path, names, key, "block1", 5), 1);
    EXPECT_EQ(key, "_/36/_S_/6/_P_/42/_V|block");
}

TEST(NameRepository, NamesOfAnyLengthStay)
{
    Repositary2 repository = Repository(8);
    const std::size_t lengths[] = {1, 4000, 5000, 100, 3000000, 2};
    for (const std::size_t length : lengths)
        EXPECT_TRUE(repository.SetObject({kSchema, kTable}, {"s", std::string(length, 'n')},
                                         {std::string(length, 'N')}));
    for (const std::size_t length : lengths)
        EXPECT_TRUE(NameOf(repository, {kSchema, kTable}, {"s", std::string(length, 'n')}) ==
                    std::string(length, 'N'))
            << length;
}

TEST(NameRepository, UnequalOrEmptyPathsAreNoObjects)
{
    Repositary2 repository = Repository(8);
    CConvertedName found{"untouched"};
    EXPECT_FALSE(repository.SetObject({}, {}, {"n"}));
    EXPECT_FALSE(repository.SetObject({kSchema, kTable}, {"s"}, {"n"}));
    EXPECT_EQ(repository.GetCount(), 0u);
    repository.SetObject({kTable}, {"s"}, {"n"});
    EXPECT_FALSE(repository.GetObjectStr({}, {}, found));
    EXPECT_FALSE(repository.GetObjectStr({kTable}, {"s", "t"}, found));
    EXPECT_EQ(found.name, "untouched");
}

TEST(NameRepository, RemovingATypeForgetsWhatStandsBelowIt)
{
    Repositary2 repository = Repository(8);
    repository.SetObject({kSchema, kProcedure}, {"s", "p"}, {"procedure"});
    repository.SetObject({kSchema, kProcedure, kVariable}, {"s", "p", "v"}, {"variable"});
    repository.SetObject({kSchema, kTable}, {"s", "t"}, {"table"});
    repository.SetObject({kSchema, kTable}, {"s", "t_/6/_"}, {"named like a key"});
    repository.RemoveRecords(kProcedure);
    EXPECT_EQ(repository.GetCount(), 2u);
    EXPECT_EQ(NameOf(repository, {kSchema, kTable}, {"s", "t_/6/_"}), "named like a key");
    EXPECT_EQ(NameOf(repository, {kSchema, kTable}, {"s", "t"}), "table");
    EXPECT_TRUE(repository.SetObject({kSchema, kProcedure}, {"s", "p"}, {"again"}));

    repository.Init({.db = 8}, 3, true);
    EXPECT_EQ(repository.GetCount(), 0u);
    EXPECT_TRUE(repository.IsOpenEdge());
}

TEST(NameRepository, RelationsDifferByKind)
{
    EXPECT_THAT(Repository(8).GetStructure().FindRelations(kDatabase), ElementsAre(kSchema));
    EXPECT_THAT(Repository(71).GetStructure().FindRelations(kDatabase), IsEmpty());
    EXPECT_THAT(Repository(8).GetStructure().FindRelations(kProcedure),
                ElementsAre(kLabel, kCursor, kVariable));
    EXPECT_THAT(Repository(8).GetStructure().FindRelations(kSchema), Contains(kIndex));
    EXPECT_THAT(Repository(5).GetStructure().FindRelations(kSchema), Not(Contains(kIndex)));
    EXPECT_THAT(Repository(5).GetStructure().FindRelations(kTable), Contains(kIndex));
    EXPECT_THAT(Repository(1).GetStructure().FindRelations(kUserType), ElementsAre(kColumn));
    EXPECT_THAT(Repository(2).GetStructure().FindRelations(kUserType), IsEmpty());
    EXPECT_THAT(Repository(8).GetGroup(kProcedure), ElementsAre(kProcedure, kFunction));
    EXPECT_THAT(Repository(8).GetGroup(kFunction), ElementsAre(kFunction));
    EXPECT_THAT(Repository(8).GetGroup(-1), IsEmpty());
}

TEST(NameObjects, NameAndTypeTellThemApart)
{
    CObjects first{.name = "a1", .type = 1};
    CObjects second{.name = "a", .type = 11};
    updateHashValue(first);
    updateHashValue(second);
    EXPECT_FALSE(first == second);
    CObjects third{.name = "a1", .type = 1};
    updateHashValue(third);
    EXPECT_TRUE(first == third);
    EXPECT_EQ(CObjectsHash{}(first), CObjectsHash{}(third));
    updateHashValue(third = {.name = "a1", .type = 2});
    EXPECT_NE(CObjectsHash{}(first), CObjectsHash{}(third));
}

// The repository as it is told: one map by whole keys, a key tried for each type of a group.
class CPlainRepository
{
public:
    explicit CPlainRepository(const Repositary2& rules) : m_Rules(rules) {}

    bool Get(const Path& path, const Names& names, CConvertedName& out, std::string_view prefix) const
    {
        if (path.empty() || path.size() != names.size())
            return false;
        for (const int type : m_Rules.GetGroup(path.back())) {
            if (std::find(path.begin(), path.end() - 1, type) != path.end() - 1)
                continue;
            Path tried = path;
            tried.back() = type;
            if (const auto found = m_Records.find(Key(tried, names, prefix)); found != m_Records.end()) {
                out = found->second;
                return true;
            }
        }
        return false;
    }

    bool Set(const Path& path, const Names& names, const CConvertedName& record, std::string_view prefix)
    {
        return m_Records.emplace(Key(path, names, prefix), record).second;
    }

    void Remove(int type)
    {
        std::erase_if(m_Records, [&](const auto& entry) {
            return std::ranges::find(entry.first.path, type) != entry.first.path.end();
        });
    }

    std::size_t GetCount() const { return m_Records.size(); }

private:
    struct SKey
    {
        Path path;
        std::vector<std::string> names;
        std::string prefix;

        auto operator<=>(const SKey&) const = default;
    };

    SKey Key(const Path& path, const Names& names, std::string_view prefix) const
    {
        const bool foldsCase = m_Rules.GetQuotedCase() == Repositary2::kCaseInsensitive;
        SKey key{path, {}, std::string(prefix)};
        for (Uve::U8CString name : names)
            key.names.push_back(foldsCase ? name.MakeUpper() : name);
        return key;
    }

    const Repositary2& m_Rules;
    std::map<SKey, CConvertedName> m_Records;
};

// Few names and few types, so that paths meet; names that look like parts of keys, which must not meet.
TEST(NameRepository, AnswersLikeAPlainMapOfWholeKeys)
{
    // clang-format off
    const Names names{
        "a", "A", "b", "é", "É", "", "_", "/_", "_/", "/5/_z", "_/17/_", "_/17/_b", "_/0/_a", "b_/007/_",
        "b_/-1/_", "c_/-0/_", "x|y", "x_/0", "5/_z", "_/5", "_/_/5/_", "_/-/_", "_/9999999999/_"};
    // clang-format on
    const int types[] = {0, 2, 3, 6, 7, 8, 12, 17, 33, 36, 38, 42, -1, 70, 1234567890};
    const std::string_view prefixes[] = {"", "", "y", "_/6/_"};
    const std::uint64_t kinds[] = {0, 1, 2, 4, 5, 8, 60, 71};

    const unsigned seed = 7101;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto pick = [&random](const auto& from) { return from[random() % std::size(from)]; };
    int hitCount = 0;
    for (int round = 0; round < 40; ++round) {
        Repositary2 repository = Repository(pick(kinds), random() % 2 ? 4 : 3);
        CPlainRepository plain(repository);
        for (int step = 0; step < 1500; ++step) {
            Path path(1 + random() % 3);
            Names of(path.size());
            std::ranges::generate(path, [&] { return pick(types); });
            std::ranges::generate(of, [&] { return pick(names); });
            const std::string_view prefix = pick(prefixes);
            if (random() % 100 == 0)
                repository.RemoveRecords(path[0]), plain.Remove(path[0]);
            if (random() % 3 == 0) {
                const CConvertedName record{std::to_string(step), random() % 512,
                                            static_cast<int>(random() % 43)};
                ASSERT_EQ(repository.SetObject(path, of, record, prefix, prefix.size()),
                          plain.Set(path, of, record, prefix));
            }
            CConvertedName found, expected;
            const bool isThere = plain.Get(path, of, expected, prefix);
            Uve::U8CString key;
            repository.GetValidKey(path, of, key, prefix, prefix.size());
            ASSERT_EQ(repository.GetObjectStr(path, of, found, prefix, prefix.size()), isThere) << key;
            ASSERT_EQ(found.name, expected.name) << key;
            ASSERT_EQ(found.reasons, expected.reasons);
            ASSERT_EQ(repository.GetObjectType(path, of, prefix, prefix.size()),
                      isThere ? expected.type : -1);
            ASSERT_EQ(repository.GetCount(), plain.GetCount());
            hitCount += isThere;
        }
    }
    EXPECT_GT(hitCount, 5000);
}

} // namespace
