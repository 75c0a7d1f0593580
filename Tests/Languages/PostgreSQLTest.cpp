// The shape of PostgreSQL's trees: which construct a statement becomes, what stands inside what, and how
// expressions group.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"
#include "Tests/Languages/PostgreSQLNewerStatements.h"
#include "Tests/Languages/PostgreSQLStatements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <random>
#include <set>
#include <span>

namespace {

void ExpectShapes(std::span<const SStatementCase> cases, bool areKnownToTheJudge)
{
    for (const SStatementCase& c : cases) {
        SCOPED_TRACE(c.sql);
        EXPECT_EQ(JudgeAccepts(c.sql), areKnownToTheJudge);
        // alone, and between others
        for (const std::string& text : {std::string(c.sql), ";" + std::string(c.sql) + "; select 1;"}) {
            const SLanguageParse parse = ParseWhole(PostgreSQL(), text);
            EXPECT_TRUE(parse.IsClean()) << "unexpected " << parse.unexpected.front().text;
            const CSyntaxTree tree(parse.tree);
            EXPECT_TRUE(tree.Holds(c.pattern)) << c.pattern << '\n' << tree.Shape();
        }
    }
}

TEST(PostgreSQLTrees, StatementsHaveTheirShape)
{
    ExpectShapes(kStatements, true);
}

TEST(PostgreSQLTrees, NewerStatementsHaveTheirShape)
{
    ExpectShapes(kNewerStatements, false);
    ExpectShapes(kRereadStatements, true);
}

TEST(PostgreSQLStatements, NewerOnesGoNoFurtherThanTheServer)
{
    for (const char* const sql : kNewerRefusals)
        EXPECT_FALSE(ParseWhole(PostgreSQL(), sql).IsClean()) << sql;
}

// A script's statements are counted right wherever its length falls in the chunks that lists are built of.
TEST(PostgreSQLTrees, ListsOfAnyLengthAreComplete)
{
    for (std::size_t count = 1; count <= 150; ++count) {
        const bool isClosed = count % 2 == 0;
        const std::string list = Repeated("(1, 2), ", count - 1) + "(3, 4)";
        const std::string script = Repeated("values " + list + ";\n", 2) + Repeated("select 1;", count) +
                                   (isClosed ? "" : "table t");
        const SLanguageParse parse = PostgreSQL().Parse(script);
        ASSERT_TRUE(parse.IsClean()) << count;
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), 2 + count + (isClosed ? 0 : 1));
        const auto rows = std::ranges::count(tree.Elements(), "values_row", &SElement::name);
        EXPECT_EQ(static_cast<std::size_t>(rows), 2 * count);
    }
}

// An expression with a pair of brackets for each node of the tree that groups.
std::string Grouped(const std::string& expression)
{
    const std::string head = "select ";
    const SLanguageParse parse = PostgreSQL().Parse(head + expression);
    if (!parse.IsClean())
        return "refused";
    const CSyntaxTree tree(parse.tree);
    std::string grouped;
    std::vector<std::size_t> ends;
    bool isBehindOpening = false;
    const auto close = [&](std::size_t at) {
        for (; !ends.empty() && ends.back() <= at; ends.pop_back())
            grouped += ')';
    };
    for (std::size_t at = 0; at < tree.Elements().size(); ++at) {
        const SElement& element = tree.Elements()[at];
        close(at);
        if (element.from < head.size())
            continue;
        const bool isGroup = element.name == "expression";
        if (!isGroup && !element.isToken)
            continue;
        if (!grouped.empty() && !isBehindOpening)
            grouped += ' ';
        grouped += isGroup ? "(" : element.text;
        isBehindOpening = isGroup;
        if (isGroup)
            ends.push_back(element.next);
    }
    close(tree.Elements().size());
    return grouped;
}

std::string Pick(std::mt19937& random, std::span<const char* const> words)
{
    return words[random() % words.size()];
}

std::string RandomExpression(std::mt19937& random, int depth)
{
    // clang-format off
    static constexpr const char* kOperands[] = {
        "a", "b.c", "1", "2.5", "'x'", "null", "f(a, b)", "$1", "row(a, b)", "(a, b)", "(select 1)",
        "array[a]", "case when a then b end", "date 'x'", "current_date", "a[1]", "(a).b", "count(*)",
        "exists (select 1)"};
    static constexpr const char* kInfixes[] = {
        "or", "and", "=", "<", "<=", "<>", "!=", "+", "-", "*", "/", "%", "^", "||", "->>", "@>", "~", "<=-",
        "operator(a.+)", "is distinct from", "is not distinct from", "like", "not like", "ilike",
        "similar to", "not similar to", "at time zone", "overlaps"};
    static constexpr const char* kPrefixes[] = {
        "not", "-", "+", "@", "~", "!!", "operator(-)"};
    static constexpr const char* kPostfixes[] = {
        "is null", "is not null", "isnull", "notnull", "is true", "is not unknown", "::int", "::numeric(3)[]",
        "collate \"c\"", "in (1, a)", "not in (select 1)", "= any (array[a])", "< all (select 1)",
        "is document", "is not normalized", "is nfc normalized", "like any (b)", "escape 'x'"};
    static constexpr const char* kRanges[] = {
        "between", "not between", "between symmetric", "not between asymmetric"};
    // clang-format on
    if (depth == 0)
        return Pick(random, kOperands);
    const auto inner = [&] {
        return RandomExpression(random, static_cast<int>(random() % static_cast<unsigned>(depth)));
    };
    switch (random() % 8) {
    case 0:
        return Pick(random, kPrefixes) + " " + inner();
    case 1:
    case 2:
        return inner() + " " + Pick(random, kPostfixes);
    case 3:
        return inner() + " " + Pick(random, kRanges) + " " + inner() + " and " + inner();
    case 4:
        return "(" + inner() + ")";
    default:
        return inner() + " " + Pick(random, kInfixes) + " " + inner();
    }
}

// Brackets where the tree groups change nothing for the server's own parser.
TEST(PostgreSQLExpressions, RandomOnesGroupAsTheServerGroupsThem)
{
    std::mt19937 random(20150);
    int judged = 0;
    for (int round = 0; round < 3000; ++round) {
        const std::string expression = RandomExpression(random, 5);
        const auto expected = JudgeTree("select " + expression);
        if (!expected)
            continue; // a chain of comparisons, or two that don't mix
        ++judged;
        const std::string grouped = Grouped(expression);
        ASSERT_EQ(JudgeTree("select " + grouped), expected) << expression << "\nis grouped as\n" << grouped;
    }
    EXPECT_GT(judged, 1000);
}

std::vector<std::string> TokensOf(const std::string& sql)
{
    std::vector<std::string> tokens;
    for (const SColoredRange& range : PostgreSQL().Scan(sql))
        tokens.push_back(sql.substr(range.from, range.end - range.from));
    return tokens;
}

// Statements with tokens dropped, replaced and taken in from other statements: what is still good for the
// server is good here, and little else is. The bounds leave room for oddities that nobody writes.
TEST(PostgreSQLStatements, EditedOnesAreTakenWhenTheServerTakesThem)
{
    using Tokens = std::vector<std::string>;
    std::vector<Tokens> statements;
    for (const SStatementCase& c : kStatements)
        statements.push_back(TokensOf(c.sql));

    std::mt19937 random(8);
    const auto below = [&](std::size_t limit) { return static_cast<std::ptrdiff_t>(random() % limit); };
    int accepted = 0, refused = 0, missed = 0, extra = 0;
    std::string misses;
    for (int round = 0; round < 12000; ++round) {
        Tokens tokens = statements[random() % statements.size()];
        const Tokens& other = statements[random() % statements.size()];
        const auto at = tokens.begin() + below(tokens.size());
        const auto from = other.begin() + below(other.size());
        switch (random() % 4) {
        case 0:
            tokens.erase(
                at, at + 1 + below(static_cast<std::size_t>(std::min<std::ptrdiff_t>(tokens.end() - at, 3))));
            break;
        case 1:
            *at = *from;
            break;
        default:
            tokens.insert(
                at, from,
                from + 1 + below(static_cast<std::size_t>(std::min<std::ptrdiff_t>(other.end() - from, 5))));
        }
        std::string sql;
        for (const std::string& token : tokens)
            sql += token + ' ';
        if (sql.find('$') != sql.npos)
            continue; // the judge takes a parameter in more places than the server does
        const bool isAccepted = JudgeAccepts(sql);
        const bool isClean = PostgreSQL().Parse(sql).IsClean();
        accepted += isAccepted;
        refused += !isAccepted;
        extra += isClean && !isAccepted;
        if (isAccepted && !isClean) {
            ++missed;
            misses += sql + '\n';
        }
    }
    EXPECT_GT(accepted, 500);
    EXPECT_LE(missed * 200, accepted) << misses;
    EXPECT_LE(extra * 400, refused);
}

// A statement with words that are newer than the judge, in words of the same class that it knows and that go on alike.
std::string InOlderWords(std::string sql)
{
    static constexpr const char* kWords[][2] = {
        {"json_array(1)", "coalesce(1)"},
        {"json_arrayagg(1)", "coalesce(1)"},
        {"json_object(1)", "coalesce(1)"},
        {"json_scalar(1)", "coalesce(1)"},
        {"json_serialize(1)", "coalesce(1)"},
        {"json(1)", "coalesce(1)"},
        {"json_table", "xmltable"},
        {"json_arrayagg", "nullif"},
        {"json_array", "nullif"},
        {"json_exists", "nullif"},
        {"json_objectagg", "nullif"},
        {"json_object", "nullif"},
        {"json_query", "nullif"},
        {"json_scalar", "nullif"},
        {"json_serialize", "nullif"},
        {"json_value", "nullif"},
        {"merge_action", "nullif"},
        {"json", "time"},
        {"system_user", "session_user"},
    };
    for (const auto& [newer, older] : kWords)
        if (const std::size_t at = sql.find(newer); at != sql.npos)
            return sql.replace(at, std::strlen(newer), older);
    return sql;
}

// Where a word may stand as a name follows from its class: each place takes exactly the words that the server
// takes.
TEST(PostgreSQLKeywords, AreNamesWhereTheServerTakesThemAsNames)
{
    // clang-format off
    constexpr const char* kPlaces[] = {
        "select @ from t", "select 1 as @", "select 1 @", "select @.a", "select a.@", "select @(1)",
        "select @ 'x'", "select a::@", "select 'a' collate @", "select f(@ => 1)", "select 1 from t @",
        "select 1 from @(1)", "select 1 from t join u on @", "select 1 from t group by @", "select 1 limit @",
        "select case @ when 1 then 2 end", "select (@).a", "select sum(1) over @", "table @",
        "with @ as (select 1) select 2", "insert into t (@) values (1)", "insert into t @ values (1)",
        "update t set @ = 1", "create table @ (a int)", "create table t (@ int)", "create table t (a @)",
        "create table t (a int default @)", "create table t (constraint @ check (a))",
        "create table t (a int) with (@ = 1)", "create index @ on t (a)", "create index on t (a @)",
        "create function @() returns int return 1", "create function f(@ int) returns int return 1",
        "create trigger @ before insert on t execute function f()", "alter table t add @ int",
        "alter table t @", "drop function @", "drop @ a", "set @ = 1", "set a = @", "show @",
        "copy @ from stdin", "copy t from stdin (@ 1)", "grant @ on t to a", "explain (@) select 1",
        "vacuum @", "lock table t in @ mode", "prepare @ as select 1", "declare @ cursor for select 1",
        "fetch @", "call @()", "@", "@ a"};
    // clang-format on
    const CEngine engine("PostgreSQL");
    std::set<std::string> words;
    for (const auto& [name, number] : engine.m_Parser.m_mapDefines) {
        if (!name.starts_with("T__"))
            continue;
        std::string word = name.substr(3);
        for (char& c : word)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        words.insert(word);
    }
    EXPECT_GT(words.size(), 400u);
    int differences = 0;
    for (const char* const place : kPlaces)
        for (const std::string& word : words) {
            std::string sql = place;
            sql.replace(sql.find('@'), 1, word);
            const bool isAccepted = PostgreSQL().Parse(sql).IsClean();
            if (isAccepted != JudgeAccepts(InOlderWords(sql))) {
                ADD_FAILURE() << sql << (isAccepted ? ": accepted, the server refuses it" : ": refused");
                ASSERT_LT(++differences, 50);
            }
        }
}

} // namespace
