// What real servers say to the names that come out: to the words, to generated names as tables and columns,
// and to the cuts. Set UV_NAMES_SEED to try other names.
#include "Tests/Names/LiveServers.h"

#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Names/NormalizeNameCharacters.h"
#include "Tests/Names/NameFixture.h"
#include "Tests/Names/NameGenerator.h"
#include "Tests/Support/Repeated.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr SDatabase kPostgreSql{8, kNoSubType, 15, 0};
constexpr SDatabase kMariaDb{5, 1, 10, 11};
// SQLite has no kind of its own. That of an unknown database fits it: quotes, names that are compared without
// regard to case in them too, no list of words.
constexpr SDatabase kSqlite{UVDB_UNKNOWN_DATABASE_KIND};

// A name of the target: as it came out, and as it stands in the statement.
struct SWritten
{
    Uve::U8CString name;
    Uve::U8CString text;
};
struct STable
{
    SWritten written;
    std::vector<SWritten> columns{};
};

// The name that the database shows in its catalogue.
using CShown = std::string (*)(const SWritten& written);

std::string Digits(std::string_view text)
{
    std::string digits;
    for (const char c : text) {
        for (const int digit : {static_cast<unsigned char>(c) >> 4, c & 15})
            digits += "0123456789ABCDEF"[digit];
    }
    return digits;
}

// ---- Words ----

using CWords = std::set<std::string>;

constexpr std::string_view kWordCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";

// The lists are those of one version each.
bool HasVersion(CLiveDatabase& server, const std::string& query, const std::string& version)
{
    const std::vector<std::string> found = server.Run({query}).rows;
    const bool isIt = found == std::vector{version};
    if (!isIt)
        std::cout << "words not compared: the server is " << testing::PrintToString(found) << '\n';
    return isIt;
}

void ExpectSameWords(DB_VERSION_INFO version, const CWords& words)
{
    const std::span<const std::string_view> list = GetReservedWords(version);
    const CWords ours(list.begin(), list.end());
    std::vector<std::string> missing;
    std::vector<std::string> additional;
    std::ranges::set_difference(words, ours, std::back_inserter(missing));
    std::ranges::set_difference(ours, words, std::back_inserter(additional));
    EXPECT_THAT(missing, testing::IsEmpty()) << "not in the list";
    EXPECT_THAT(additional, testing::IsEmpty()) << "not reserved by the server";
}

// ---- Generated names ----

struct STrial
{
    const char* name;
    SDatabase from;
    SRules rules;
    const char* options;
    unsigned long mode;
};
constexpr SRules kKeepAll{.remove = false, .removeFirst = false};
constexpr STrial kTrials[] = {
    {"Oracle", {1, kNoSubType, 19, 0}, {}, "", 0},
    {"SQL Server",
     {2, kNoSubType, 15, 0},
     {.replacement = "_", .replacementFirst = "x"},
     "",
     UVDB_PREPARE_COMPARE_CASE},
    {"DB2", {0, kNoSubType, 11, 5}, kKeepAll, "", 0},
    {"Informix", {7, kNoSubType, 9, 2}, {.leftTrim = true}, "DATABASE_LOCALE=any", UVDB_PREPARE_QUOTE},
    {"Sybase", {4, 1, 16, 0}, {.alphanumOnly = true}, "DATABASE_LOCALE=any", 0},
};
constexpr std::size_t kTablesOfTrial = 400;
constexpr std::size_t kColumnsOfTrial = 400;
constexpr std::size_t kColumnsOfTable = 20;
static_assert(kTablesOfTrial * std::size(kTrials) == 2000 && kColumnsOfTrial * std::size(kTrials) == 2000);

// What the rules let through on purpose, though the database refuses it or makes another name of it.
struct SException
{
    const char* reason;
    bool (*applies)(const STrial& trial, const SWritten& written, bool isTable);
};
using CExceptions = std::span<const SException>;

// Marks around a name that nobody repairs are taken for its enclosing marks.
bool IsInMarks(SDatabase to, const STrial& trial, const Uve::U8CString& name)
{
    const bool isInOwnMarks = name.size() > 1 && name.starts_with(GetDBMSEncloseCharOpen(to.Version())) &&
                              name.ends_with(GetDBMSEncloseCharClose(to.Version()));
    return !trial.rules.remove && (isInOwnMarks || TrimDelimited(name) != name);
}

struct SGenerated
{
    std::vector<STable> tables{};
    std::vector<STable> exceptions{}; // each by itself, a column in a table of its own
};

SWritten Written(const CNameHost& host, const STrial& trial, const Uve::U8CString& name, unsigned long type)
{
    // Repaired names are in order for any type. In others a dot is a dot, and a column may hold what no table
    // can.
    if (!trial.rules.remove)
        return {name, host.normaliser.PrepareSingleObjectName(name, type, host.target, trial.mode)};
    return {name, host.normaliser.PrepareObjectName(name.c_str(), host.target, trial.mode)};
}

SGenerated Generate(const STrial& trial, SDatabase to, std::uint64_t seed, CExceptions exceptions)
{
    CNameHost host(trial.from, to, trial.rules, trial.options);
    CNameGenerator generator(seed, trial.from.Version(), to.Version());
    const auto isException = [&](const SWritten& written, bool isTable) {
        return IsInMarks(to, trial, written.name) ||
               std::ranges::any_of(exceptions,
                                   [&](const SException& e) { return e.applies(trial, written, isTable); });
    };

    SGenerated result;
    std::vector<SName> sources;
    std::set<std::string> taken;
    const auto isNew = [&](Uve::U8CString name) { return taken.insert(name.MakeUpper()).second; };
    while (result.tables.size() < kTablesOfTrial) {
        const SName source{"sales", generator.Name(), ""};
        if (!isNew(source.object))
            continue;
        SName name = source;
        EXPECT_EQ(host.Normalize(UVDB_DBO_TABLE, name), 0);
        const SWritten written = Written(host, trial, name.object, UVDB_DBO_TABLE);
        if (isException(written, true)) {
            result.exceptions.push_back({written});
        } else {
            result.tables.push_back({written});
            sources.push_back(source);
        }
    }
    for (std::size_t i = 0; i < kColumnsOfTrial / kColumnsOfTable; ++i) {
        taken.clear();
        while (result.tables[i].columns.size() < kColumnsOfTable) {
            SName name = sources[i];
            name.sub = generator.Name();
            if (!isNew(name.sub))
                continue;
            EXPECT_EQ(host.Normalize(UVDB_DBO_COLUMN, name), 0);
            const SWritten written = Written(host, trial, name.sub, UVDB_DBO_COLUMN);
            if (isException(written, false)) {
                const std::string own = "own" + std::to_string(result.exceptions.size());
                result.exceptions.push_back({{own, own}, {written}});
            } else {
                result.tables[i].columns.push_back(written);
            }
        }
    }
    return result;
}

std::string CreateTable(const STable& table)
{
    std::string statement = "CREATE TABLE " + table.written.text + " (";
    for (const SWritten& column : table.columns)
        statement += column.text + " int, ";
    if (table.columns.empty())
        return statement + "id int);";
    statement.resize(statement.size() - 2);
    return statement + ");";
}

// The columns of each table, in hexadecimal digits.
using CColumns = std::map<std::string, std::string>;

CColumns Expected(const std::vector<STable>& tables, CShown shown)
{
    CColumns expected;
    for (const STable& table : tables) {
        std::string& columns = expected[Digits(shown(table.written))];
        for (const SWritten& column : table.columns)
            columns += Digits(shown(column)) + ' ';
        if (table.columns.empty())
            columns = Digits("id") + ' ';
    }
    return expected;
}

CColumns Found(CLiveDatabase& database, const std::string& place)
{
    CColumns found;
    for (const std::string& row : database.Run(database.ListColumns(place)).rows) {
        const std::string digits = Uve::U8CString(row).MakeUpper();
        const std::size_t tab = digits.find('\t');
        if (tab == std::string::npos)
            ADD_FAILURE() << row;
        else
            found[digits.substr(0, tab)] += digits.substr(tab + 1) + ' ';
    }
    return found;
}

// Makes the tables.
// Returns: what the database said about them, by their statements.
std::map<std::string, std::string> Make(CLiveDatabase& database, const std::string& place,
                                        const std::vector<STable>& tables)
{
    std::vector<std::string> script = database.MakePlace(place);
    for (const STable& table : tables)
        script.push_back(CreateTable(table));
    std::map<std::string, std::string> messages;
    for (const auto& [line, message] : database.Run(script).messages)
        messages[script[line]] = message;
    return messages;
}

void ExpectTaken(CLiveDatabase& database, const std::string& place, const std::vector<STable>& tables,
                 CShown shown)
{
    for (const auto& [statement, message] : Make(database, place, tables))
        ADD_FAILURE() << statement << '\n' << message;
    const CColumns expected = Expected(tables, shown);
    EXPECT_EQ(expected.size(), tables.size()) << "two tables have one name";
    CColumns found = Found(database, place);
    EXPECT_EQ(found.size(), expected.size());
    for (const STable& table : tables) {
        const std::string name = Digits(shown(table.written));
        EXPECT_EQ(found[name], expected.at(name)) << table.written.name << "\n" << CreateTable(table);
    }
}

// An exception that isn't needed is none.
void ExpectNotTaken(CLiveDatabase& database, const std::string& place, const std::vector<STable>& tables,
                    CShown shown)
{
    Make(database, place, tables);
    CColumns found = Found(database, place);
    for (const STable& table : tables)
        EXPECT_NE(found[Digits(shown(table.written))], Expected({table}, shown).begin()->second)
            << CreateTable(table);
}

void ExpectGeneratedNamesTaken(CLiveDatabase& database, SDatabase to, CShown shown, CExceptions exceptions)
{
    const char* const text = std::getenv("UV_NAMES_SEED");
    const std::uint64_t seed = text ? std::strtoull(text, nullptr, 10) : 1;
    std::size_t exceptionCount = 0;
    for (std::size_t i = 0; i < std::size(kTrials); ++i) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", from " << kTrials[i].name);
        const SGenerated generated = Generate(kTrials[i], to, seed * 1000003 + i, exceptions);
        exceptionCount += generated.exceptions.size();
        ExpectTaken(database, "taken" + std::to_string(i), generated.tables, shown);
        ExpectNotTaken(database, "not_taken" + std::to_string(i), generated.exceptions, shown);
    }
    std::cout << "seed " << seed << ", " << exceptionCount << " exceptions\n";
}

// ---- PostgreSQL ----

std::string ShownByPostgreSql(const SWritten& written)
{
    std::string shown = written.name;
    if (!written.text.starts_with('"'))
        std::ranges::transform(shown, shown.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 32) : c; });
    return shown;
}

void ExpectPostgreSqlWords(CLiveDatabase& server)
{
    if (!HasVersion(server, "SELECT current_setting('server_version_num')::int / 10000;", "15"))
        return;
    const SScriptResult result =
        server.Run({"SELECT upper(word) FROM pg_get_keywords() WHERE catcode IN ('R', 'T');"});
    ExpectSameWords(kPostgreSql.Version(), CWords(result.rows.begin(), result.rows.end()));
}

// Names of 60 to 70 bytes, so that the limit falls on each byte of a character.
std::vector<std::string> MultiByteNames()
{
    std::vector<std::string> names;
    for (const char* const letter : {"ж", "語", "𐌰"}) {
        for (std::size_t plain = 0; plain <= 10; ++plain)
            names.push_back(std::string(plain, 'a') + Repeated(letter, 60 / std::string_view(letter).size()));
    }
    return names;
}

// 1,000 names in groups that differ beyond the limit only.
std::vector<std::string> CollidingNames(std::size_t groups)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < 1000; ++i)
        names.push_back(std::to_string(i % groups + groups) + "ж" + Repeated("語", 21) + std::to_string(i));
    return names;
}

SWritten CutName(CNameHost& host, int type, SName name)
{
    EXPECT_EQ(host.Normalize(type, name), 0);
    const Uve::U8CString& cut = type == UVDB_DBO_COLUMN ? name.sub : name.object;
    EXPECT_LE(cut.size(), 63u);
    EXPECT_GE(cut.size(), 57u) << "a character of four bytes and a number have to fit, and no more";
    return {cut, host.normaliser.PrepareObjectName(cut.c_str(), host.target, 0)};
}

void ExpectCutNamesTaken(CLiveDatabase& server)
{
    struct SCut
    {
        const char* place;
        std::vector<std::string> names;
        SRules rules;
    };
    // The server makes an array type for every table, whose name is the table's first bytes again: of tables
    // that are alike there it takes some 160.
    const SCut cuts[] = {
        {"cut_behind", MultiByteNames(), {}},
        {"cut_in_front", MultiByteNames(), {.leftTrim = true}},
        {"cut_alike", CollidingNames(10), {}},
    };
    const SDatabase oracle{UVDB_DB_ORA, kNoSubType, 19, 0};
    for (const SCut& cut : cuts) {
        SCOPED_TRACE(cut.place);
        CNameHost host(oracle, kPostgreSql, cut.rules, "DATABASE_LOCALE=any");
        std::vector<STable> tables;
        for (const std::string& name : cut.names)
            tables.push_back({CutName(host, UVDB_DBO_TABLE, {"sales", "t" + name, ""})});
        ExpectTaken(server, cut.place, tables, ShownByPostgreSql);
    }
    SCOPED_TRACE("columns");
    CNameHost host(oracle, kPostgreSql, {}, "DATABASE_LOCALE=any");
    STable table{{"t", "t"}};
    for (const std::string& name : CollidingNames(1))
        table.columns.push_back(CutName(host, UVDB_DBO_COLUMN, {"sales", "t", "c" + name}));
    ExpectTaken(server, "cut_columns", {table}, ShownByPostgreSql);
}

TEST(LiveServers, PostgreSqlTakesWhatComesOut)
{
    CLivePostgreSql server;
    if (!server.GetMissing().empty())
        GTEST_SKIP() << "not installed: " << server.GetMissing();
    ASSERT_TRUE(server.Start());
    ExpectPostgreSqlWords(server);
    ExpectGeneratedNamesTaken(server, kPostgreSql, ShownByPostgreSql, {});
    ExpectCutNamesTaken(server);
}

// ---- MariaDB ----

std::string ShownAsItStands(const SWritten& written)
{
    return written.name;
}

// What a table's name is as that of a file: letters and digits of ASCII stand for themselves, those of the
// alphabets take three bytes, all others five.
std::size_t FileNameBytes(const Uve::U8CString& name)
{
    const CNameCharacters characters(name);
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < characters.GetCount(); ++i) {
        const unsigned int character = characters.At(i);
        const bool isPlain =
            character < 0x80 && (std::isalnum(static_cast<int>(character)) || character == '_');
        bytes += isPlain ? 1 : character >= 0xC0 && character < 0x600 ? 3 : 5;
    }
    return bytes;
}

constexpr SException kMariaDbExceptions[] = {
    {"characters beyond the first plane pass, as letters or unrepaired",
     [](const STrial&, const SWritten& written, bool) {
         return std::ranges::any_of(written.name,
                                    [](char c) { return static_cast<unsigned char>(c) >= 0xF0; });
     }},
    {"what no file name can hold goes when a table is written, and takes nobody's name away before",
     [](const STrial& trial, const SWritten& written, bool isTable) {
         return isTable && !trial.rules.remove &&
                DeleteNotValidChar(written.name, UVDB_DBO_TABLE, kMariaDb.Version()) != written.name;
     }},
    {"only columns lose blanks at the end",
     [](const STrial& trial, const SWritten& written, bool isTable) {
         return isTable && !trial.rules.remove && written.name.ends_with(' ');
     }},
    {"limits of file names aren't looked at",
     [](const STrial&, const SWritten& written, bool isTable) {
         return isTable && FileNameBytes(written.name) > 255 - std::string_view(".frm").size();
     }},
};

void ExpectMariaDbWords(CLiveDatabase& server)
{
    if (!HasVersion(server, "SELECT SUBSTRING_INDEX(VERSION(), '.', 2);", "10.11"))
        return;
    std::vector<std::string> words = server.Run({"SELECT WORD FROM information_schema.KEYWORDS;"}).rows;
    std::erase_if(words, [](const std::string& word) {
        return word.find_first_not_of(kWordCharacters) != std::string::npos;
    });
    EXPECT_GT(words.size(), 600u);

    std::vector<std::string> script = server.MakePlace("words");
    const std::size_t first = script.size();
    for (const std::string& word : words) {
        script.push_back("CREATE TABLE " + word + " (a int);");
        script.push_back("CREATE TABLE t_" + word + " (" + word + " int);");
    }
    CWords tables;
    CWords columns;
    for (const auto& [line, message] : server.Run(script).messages)
        ((line - first) % 2 == 0 ? tables : columns).insert(words[(line - first) / 2]);
    EXPECT_EQ(tables, columns);
    ExpectSameWords(kMariaDb.Version(), tables);
}

TEST(LiveServers, MariaDbTakesWhatComesOut)
{
    CLiveMariaDb server;
    if (!server.GetMissing().empty())
        GTEST_SKIP() << "not installed: " << server.GetMissing();
    ASSERT_TRUE(server.Start());
    ExpectMariaDbWords(server);
    ExpectGeneratedNamesTaken(server, kMariaDb, ShownAsItStands, kMariaDbExceptions);
}

// ---- SQLite ----

// The words that SQLite takes in marks only.
// clang-format off
constexpr std::string_view kSqliteWords[] = {
    "ADD", "ALL", "ALTER", "AND", "AS", "AUTOINCREMENT", "BETWEEN", "CASE", "CHECK", "COLLATE", "COMMIT",
    "CONSTRAINT", "CREATE", "DEFAULT", "DEFERRABLE", "DELETE", "DISTINCT", "DROP", "ELSE", "ESCAPE",
    "EXCEPT", "EXISTS", "FOREIGN", "FROM", "GROUP", "HAVING", "IF", "IN", "INDEX", "INSERT", "INTERSECT",
    "INTO", "IS", "ISNULL", "JOIN", "LIMIT", "NOT", "NOTHING", "NOTNULL", "NULL", "ON", "OR", "ORDER",
    "PRIMARY", "REFERENCES", "RETURNING", "SELECT", "SET", "TABLE", "THEN", "TO", "TRANSACTION", "UNION",
    "UNIQUE", "UPDATE", "USING", "VALUES", "WHEN", "WHERE",
};
// clang-format on

bool IsSqliteWord(Uve::U8CString name)
{
    return std::ranges::binary_search(kSqliteWords, std::string_view(name.MakeUpper()));
}

constexpr SException kSqliteExceptions[] = {
    {"a database that nobody knows reserves no words",
     [](const STrial&, const SWritten& written, bool isTable) {
         // "if" is refused only where IF NOT EXISTS could stand.
         return !written.text.starts_with('"') && IsSqliteWord(written.name) &&
                (isTable || written.name.CollateNoCase("IF") != 0);
     }},
};

TEST(LiveServers, SqliteTakesWhatComesOut)
{
    CLiveSqlite database;
    if (!database.GetMissing().empty())
        GTEST_SKIP() << "not installed: " << database.GetMissing();
    ASSERT_TRUE(database.Start());
    ExpectGeneratedNamesTaken(database, kSqlite, ShownAsItStands, kSqliteExceptions);
}

} // namespace
