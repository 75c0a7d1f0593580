// What has to hold for every name between every two databases. Set UV_NAMES_SEED and UV_NAMES_COUNT (names of
// one pair) to try others, or more.
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameCharacters.h"
#include "Names/NormalizeNameKinds.h"
#include "Tests/Names/NameFixture.h"
#include "Tests/Names/NameGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr SDatabase kDatabases[] = {
    {1, kNoSubType, 19, 0},  // Oracle
    {1, kNoSubType, 11, 2},  // Oracle with names of 30
    {2, kNoSubType, 15, 0},  // SQL Server
    {5, kNoSubType, 8, 0},   // MySQL
    {5, 1, 10, 11},          // MariaDB
    {8, kNoSubType, 15, 0},  // PostgreSQL
    {0, kNoSubType, 11, 5},  // DB2
    {0, 1, 8, 0},            // DB2 for z/OS, with names of 18 and 8
    {4, 1, 16, 0},           // Sybase ASE
    {7, kNoSubType, 9, 2},   // Informix with names of 18
    {34, kNoSubType, 16, 0}, // Teradata
    {37, kNoSubType, 2, 0},  // SAP HANA
    {58, kNoSubType, 1, 0},  // Redshift
    {36, kNoSubType, 3, 0},  // Firebird
    {127, kNoSubType, 1, 0}, // Snowflake
};
static_assert(std::size(kDatabases) == 15);

constexpr int kTable = 0;
constexpr int kFunction = 7;
constexpr int kTrigger = 8;
constexpr int kColumn = 17;
constexpr int kPrimaryKey = 21;
constexpr int kIndex = 33;
constexpr int kCursor = 39;
constexpr int kVariable = 42;
constexpr int kTypes[] = {kTable,  2,       5,           6,      kFunction, kTrigger, kColumn,
                          kColumn, kColumn, kPrimaryKey, kIndex, kCursor,   kVariable};

struct SVariant
{
    const char* name;
    SRules rules;
    const char* options;
};
constexpr SVariant kVariants[] = {
    {"remove", {}, ""},
    {"replace", {.replacement = "_", .replacementFirst = "x"}, "DATABASE_LOCALE=any"},
    {"replace, keep first",
     {.remove = false, .replacement = "_", .removeFirst = false, .replacementFirst = "x"},
     ""},
    {"alphanumeric", {.alphanumOnly = true}, "DATABASE_LOCALE=any"},
    {"consonants, columns upper", {.consonantsOnly = true, .consonantsStop = true, .columnCase = 1}, ""},
    {"left, no schemas", {.leftTrim = true}, "EMPTY_SCHEMA=1"},
    {"one schema", {.targetSchema = "app", .reservedWordPattern = "%RWORD%_"}, "DATABASE_LOCALE=any"},
};

// One object of the source, and what became of it.
struct SEntry
{
    int type;
    SName source;
    SName result{};

    bool IsBelowATable() const { return type >= kColumn; }
    const Uve::U8CString& GetSourceLast() const { return IsBelowATable() ? source.sub : source.object; }
    const Uve::U8CString& GetLast() const { return IsBelowATable() ? result.sub : result.object; }
};

// A catalogue, in which every name of the source is one object: names that differ in case only are of one
// type.
class CCatalogue
{
public:
    CCatalogue(std::uint64_t seed, SDatabase from, SDatabase to, std::size_t count)
        : m_Generator(seed, from.Version(), to.Version()), m_FoldsCase(FoldsCase(from.Version())),
          m_HasSchemas(!kMySqlLike.Has(from.kind))
    {
        while (m_Entries.size() < count)
            Add();
    }

    std::vector<SEntry> m_Entries;

private:
    static bool FoldsCase(DB_VERSION_INFO version)
    {
        return UVDBGetIdentifierCaseGuess(version) == UVDB_IC_INSENSITIVE ||
               UVDBGetQuotedIdentifierCaseGuess(version) == UVDB_IC_INSENSITIVE;
    }
    static std::string Folded(Uve::U8CString text) { return text.MakeUpper(); }

    void Add()
    {
        const int type = kTypes[m_Generator.Below(std::size(kTypes))];
        SEntry entry{type, {m_HasSchemas ? (m_Generator.Below(3) ? "sales" : "stock") : "", "", ""}};
        const Uve::U8CString name = m_Generator.Name();
        if (name.CollateNoCase("dual") == 0)
            return;
        if (entry.IsBelowATable()) {
            const std::vector<SName>& parents = type == kVariable || type == kCursor ? m_Routines : m_Tables;
            if (parents.empty())
                return;
            entry.source = parents[m_Generator.Below(parents.size())];
            entry.source.sub = name;
        } else {
            entry.source.object = name;
        }
        const std::string scope =
            entry.source.schema + "." + (entry.IsBelowATable() ? entry.source.object : "");
        const auto known = m_Types.emplace(Folded(scope + "." + name), type).first;
        const std::string identity = scope + "." + name;
        if (known->second != type || !m_Names.insert(m_FoldsCase ? Folded(identity) : identity).second)
            return;
        if (type == kTable && m_Tables.size() < 12)
            m_Tables.push_back(entry.source);
        if (type == 6 && m_Routines.size() < 4)
            m_Routines.push_back(entry.source);
        m_Entries.push_back(entry);
    }

    CNameGenerator m_Generator;
    bool m_FoldsCase;
    bool m_HasSchemas;
    std::map<std::string, int> m_Types;
    std::set<std::string> m_Names;
    std::vector<SName> m_Tables;
    std::vector<SName> m_Routines;
};

struct SPair
{
    SDatabase from;
    SDatabase to;
    const SVariant& variant;
};

// ---- What the rules let through on purpose ----

struct SException
{
    const char* reason;
    bool (*applies)(const SPair& pair, const SEntry& entry);
};

bool IsDigits(const Uve::U8CString& text)
{
    return text.find_first_not_of("0123456789") == std::string::npos;
}

// Characters that stay although the target takes them in marks only.
constexpr SException kRefusedFirst[] = {
    {"a number stays a number", [](const SPair&, const SEntry& entry) { return IsDigits(entry.GetLast()); }},
    {"trimming looks at no positions",
     [](const SPair& pair, const SEntry&) {
         const SRules& rules = pair.variant.rules;
         return rules.alphanumOnly || rules.consonantsOnly || rules.leftTrim;
     }},
    {"an inserted first character is the host's choice",
     [](const SPair& pair, const SEntry& entry) {
         return entry.GetLast().starts_with('x') && *pair.variant.rules.replacementFirst != '\0';
     }},
};
constexpr SException kRefusedAnywhere[] = {
    {"a reserved variable stands in quotes",
     [](const SPair& pair, const SEntry& entry) {
         return entry.type == kVariable && kQuotedVariables.Has(pair.to.kind) &&
                entry.GetLast().starts_with('"');
     }},
    {"a script's own names take no replacement",
     [](const SPair& pair, const SEntry& entry) {
         return (entry.type == kVariable || entry.type == kCursor) && !pair.variant.rules.remove;
     }},
};

// Two objects that may have one name.
constexpr SException kShared[] = {
    {"PostgreSQL's triggers are called like their functions, and Oracle keeps both",
     [](const SPair& pair, const SEntry& entry) {
         return pair.from.kind == 8 && pair.to.kind == 1 &&
                (entry.type == kTrigger || entry.type == kFunction);
     }},
};

// Schemas that differ without a reason in the report.
constexpr SException kUnexplainedSchemas[] = {
    {"the host asked for this one",
     [](const SPair& pair, const SEntry& entry) {
         return entry.result.schema == pair.variant.rules.targetSchema;
     }},
    {"cursors and variables name none",
     [](const SPair&, const SEntry& entry) { return entry.type == kCursor || entry.type == kVariable; }},
    {"a function of SQL Server needs an owner",
     [](const SPair& pair, const SEntry& entry) { return entry.type == kFunction && pair.to.kind == 2; }},
    {"an index or a key names none where its table has it",
     [](const SPair& pair, const SEntry& entry) {
         return (entry.type == kIndex || entry.type == kPrimaryKey) && kKeysWithoutSchema.Has(pair.to.kind);
     }},
};

// A variable's or a cursor's name without what depends on the language: sigil, marks, blanks at the end, the
// "2" of a reserved word.
Uve::U8CString Bare(Uve::U8CString name)
{
    name = TrimDelimited(name);
    for (const char* mark : {"@", "v_", "\""})
        name.Replace(mark, "");
    return name.MakeUpper().TrimRight(" 2");
}

// The same for objects and what stands below them.
constexpr SException kUnexplainedNames[] = {
    {"the host asked for this column case",
     [](const SPair& pair, const SEntry& entry) {
         return entry.type == kColumn && pair.variant.rules.columnCase != 0 &&
                entry.result.sub == Uve::U8CString(entry.source.sub).MakeUpper();
     }},
    {"cursors and variables name no routine",
     [](const SPair&, const SEntry& entry) {
         return (entry.type == kCursor || entry.type == kVariable) && entry.result.object.empty() &&
                Bare(entry.result.sub) == Bare(entry.source.sub);
     }},
    {"a key called like its table is called otherwise",
     [](const SPair&, const SEntry& entry) {
         return entry.result.sub == entry.source.sub + "_cns" ||
                entry.result.sub == entry.source.sub + "_idx";
     }},
};

template <std::size_t count>
bool IsException(const SException (&exceptions)[count], const SPair& pair, const SEntry& entry)
{
    return std::ranges::any_of(exceptions, [&](const SException& e) { return e.applies(pair, entry); });
}

// ---- The properties ----

void ExpectLegal(const SPair& pair, const SEntry& entry)
{
    const DB_VERSION_INFO version = pair.to.Version();
    const auto type = static_cast<unsigned long>(entry.type);
    const Uve::U8CString& name = entry.GetLast();
    const std::string locale =
        std::string_view(pair.variant.options).starts_with("DATABASE_LOCALE") ? "any" : "";
    ASSERT_FALSE(name.empty());

    if (!IsException(kRefusedAnywhere, pair, entry)) {
        const CNameCharacters characters(name);
        EXPECT_TRUE(!characters.IsRefusedFirst(0, version, type, locale) ||
                    IsException(kRefusedFirst, pair, entry))
            << name;
        for (std::size_t i = 1; i < characters.GetCount(); ++i)
            EXPECT_FALSE(characters.IsRefused(i, version, type, locale)) << name << " at " << i;
    }
    const long limit = GetDBMSMaxIdentifierSize(type, version, "");
    const long length = pair.to.kind == 8 ? static_cast<long>(name.size()) : name.GetLength();
    EXPECT_TRUE(limit <= 0 || length <= limit) << name << " has " << length << " of " << limit;
}

void ExpectReported(const SPair& pair, const SEntry& entry)
{
    CObjects key{
        CNormalizeName::GetIdentidierName({entry.source.schema, entry.source.object, entry.source.sub}),
        entry.type};
    const Uve::U8CString result =
        CNormalizeName::GetIdentidierName({entry.result.schema, entry.result.object, entry.result.sub});
    const bool keepsSchema = !kMySqlLike.Has(pair.from.kind);
    if (!keepsSchema)
        key.name = CNormalizeName::GetIdentidierName({entry.source.object, entry.source.sub});
    updateHashValue(key);
    auto found = m_ReportMap.find(key);
    if (found == m_ReportMap.end() && entry.type == kIndex) {
        key.name = entry.source.sub + "_idx"; // called like its table, and then by itself
        updateHashValue(key);
        found = m_ReportMap.find(key);
    }
    if (found == m_ReportMap.end() && kMySqlLike.Has(pair.to.kind))
        return; // a table "con" is reported under the name that it can have
    ASSERT_NE(found, m_ReportMap.end()) << key.name;
    EXPECT_EQ(found->second.name, result);
    if (found->second.reasons != 0)
        return;
    const bool hasSourceSchema =
        entry.result.schema == (keepsSchema ? entry.source.schema : Uve::U8CString());
    const bool hasSourceNames =
        entry.result.object == entry.source.object && entry.result.sub == entry.source.sub;
    EXPECT_TRUE((hasSourceSchema || IsException(kUnexplainedSchemas, pair, entry)) &&
                (hasSourceNames || IsException(kUnexplainedNames, pair, entry)))
        << key.name << " became " << result << " for no reason";
}

// The name as the target compares it.
std::string Compared(const CNameHost& host, const SPair& pair, const Uve::U8CString& name, int type)
{
    Uve::U8CString written =
        host.normaliser.PrepareSingleObjectNameSource(name, static_cast<unsigned long>(type), host.target, 0);
    const DB_VERSION_INFO version = pair.to.Version();
    const bool isQuoted = written.starts_with(GetDBMSEncloseCharOpen(version));
    if (isQuoted && UVDBGetQuotedIdentifierCaseGuess(version) != UVDB_IC_INSENSITIVE)
        return written;
    return TrimDelimited(written).MakeUpper();
}

// By name space: the place, and the first of the types that share it.
void ExpectUnique(const CNameHost& host, const SPair& pair, const std::vector<SEntry>& entries)
{
    Repositary2 names;
    names.Init(pair.to.Version(), 3, false);
    std::map<std::tuple<std::string, int, std::string>, const SEntry*> taken;
    for (const SEntry& entry : entries) {
        const std::set<int> group = names.GetGroup(entry.type);
        if (group.empty())
            continue;
        // What stands below something may come without it.
        const std::string place = entry.IsBelowATable()
                                      ? "in " + entry.source.schema + "." + entry.source.object
                                      : std::string(entry.result.schema);
        const auto [other, isNew] = taken.try_emplace(
            {place, *group.begin(), Compared(host, pair, entry.GetLast(), entry.type)}, &entry);
        if (!isNew && !(IsException(kShared, pair, entry) && IsException(kShared, pair, *other->second)))
            ADD_FAILURE() << other->second->source.Text() << " and " << entry.source.Text() << " are both "
                          << entry.result.Text();
    }
}

// Names that could have wanted the same name: alike in the first characters.
std::string Rivals(const SEntry& entry)
{
    Uve::U8CString name = entry.GetLast();
    name.Trim("\"").MakeUpper();
    while (!name.empty() && name.back() >= '0' && name.back() <= '9')
        name.pop_back();
    return name.Left(4);
}

// The same entries, rivals among themselves in the old order, and tables before what stands below them.
std::vector<std::size_t> OtherOrder(const std::vector<SEntry>& entries, std::uint64_t seed)
{
    std::mt19937_64 random(seed);
    std::map<std::string, std::uint64_t> places;
    for (const SEntry& entry : entries)
        places.try_emplace(Rivals(entry), random());
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t i) {
        return std::pair(entries[i].IsBelowATable(), places[Rivals(entries[i])]);
    });
    return order;
}

void Try(const SPair& pair, std::uint64_t seed, std::size_t count)
{
    std::vector<SEntry> entries = CCatalogue(seed, pair.from, pair.to, count).m_Entries;
    // Tables come first, as a host reads them.
    std::ranges::stable_sort(entries, {}, &SEntry::IsBelowATable);

    m_ReportMap.clear();
    CNameHost host(pair.from, pair.to, pair.variant.rules, pair.variant.options);
    const auto convert = [](CNameHost& by, const SEntry& entry) {
        SName name = entry.source;
        EXPECT_EQ(by.Normalize(entry.type, name), 0);
        return name;
    };
    for (SEntry& entry : entries) {
        SCOPED_TRACE(testing::Message() << "type " << entry.type << ", " << entry.source.Text());
        entry.result = convert(host, entry);
        ExpectLegal(pair, entry);
        ExpectReported(pair, entry);
    }
    ExpectUnique(host, pair, entries);

    const std::vector<std::size_t> order = OtherOrder(entries, seed);
    CNameHost other(pair.from, pair.to, pair.variant.rules, pair.variant.options);
    for (const std::size_t i : order) {
        SCOPED_TRACE(testing::Message() << "type " << entries[i].type << ", " << entries[i].source.Text());
        EXPECT_EQ(convert(host, entries[i]).Text(), entries[i].result.Text()) << "on the second call";
        EXPECT_EQ(convert(other, entries[i]).Text(), entries[i].result.Text()) << "in another order";
    }
}

std::uint64_t NumberFromEnvironment(const char* name, std::uint64_t otherwise)
{
    const char* const text = std::getenv(name);
    return text ? std::strtoull(text, nullptr, 10) : otherwise;
}

class NameProperties : public testing::TestWithParam<std::size_t>
{};

TEST_P(NameProperties, HoldBetweenThisAndAllDatabases)
{
    constexpr std::size_t kDatabaseCount = std::size(kDatabases);
    const std::uint64_t seed = NumberFromEnvironment("UV_NAMES_SEED", 1);
    const std::size_t count = NumberFromEnvironment("UV_NAMES_COUNT", 450);
    std::cout << "seed " << seed << ", " << count * kDatabaseCount << " names\n";

    const SDatabase& from = kDatabases[GetParam()];
    for (std::size_t i = 0; i < kDatabaseCount; ++i) {
        const std::size_t number = GetParam() * kDatabaseCount + i;
        const SPair pair{from, kDatabases[i], kVariants[number % std::size(kVariants)]};
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << from.kind << " to " << pair.to.kind
                                        << ", " << pair.variant.name);
        Try(pair, seed * 1000003 + number, count);
        if (testing::Test::HasFailure())
            return; // the first pair that fails says enough
    }
}

INSTANTIATE_TEST_SUITE_P(Sources, NameProperties, testing::Range(std::size_t{0}, std::size(kDatabases)));

} // namespace
