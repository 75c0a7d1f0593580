// Broken text: what an error costs, and that nothing is lost by it.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <random>

namespace {

// clang-format off
constexpr const char* kScript[] = {
    "select a, b from t where c = 1 order by d",
    "select 'it''s; fine', E'\\';', \"semi;colon\", $q$ ; $q$ from t",
    "/* a; /* b; */ */ select count(*) filter (where x > 0) over (partition by y) from z -- c;",
    "with r as (select 1 as n union all select 2) select * from r join s using (n) limit 3",
    "values (1, 'a'), (2, 'b')",
    "table t",
    "insert into t (a, b) values (1, default), (2, 'x') on conflict (a) do update set b = excluded.b "
        "returning *",
    "update t set (a, b) = (1, 2), c = c + 1 from u where t.id = u.id",
    "delete from t using u where a = any (array[1, 2])",
    "merge into t using u on t.a = u.a when matched then delete when not matched then insert (a) values "
        "(u.a)",
    "create table t (a int primary key, b text default 'x' check (b <> ''), foreign key (a) references u "
        "(v))",
    "create table p partition of t for values from (1) to (10)",
    "alter table t add column c int, drop column d cascade, alter e type text using e::text",
    "create index concurrently i on t using gin (a, lower(b)) where c is not null",
    "create or replace view v (a, b) as select 1, 2 with check option",
    "create materialized view m as select * from t with no data",
    "create sequence s increment by 2 start with 10 owned by t.a",
    "create type e as enum ('a', 'b')",
    "create domain d as numeric(10, 2) not null check (value >= 0)",
    "create function f(a int, out b text) returns text language sql as $$ select a; select b; $$",
    "create function g(a int) returns int begin atomic select 1; update t set b = a; end",
    "create procedure p(inout a int) language plpgsql as $p$ begin a := 1; end $p$",
    "create trigger g after insert or update of a on t for each row when (new.a > 0) execute function f()",
    "create schema s authorization joe create table x (y int)",
    "create role r with login password 'p' valid until '2030-01-01'",
    "create extension if not exists e with schema s",
    "drop table if exists t, u cascade",
    "comment on column t.a is 'the; first'",
    "grant select (a, b), update on table t to joe, public with grant option",
    "revoke all privileges on all tables in schema s from joe",
    "begin isolation level repeatable read",
    "savepoint x",
    "rollback to savepoint x",
    "commit",
    "set search_path to a, \"b\", public",
    "show all",
    "explain (analyze, format json) select a from t group by grouping sets ((a), ())",
    "do $$ begin raise notice '%', 1; end $$",
    "call p(1, b => 'x')",
    "prepare q (int) as select $1",
    "execute q (1)",
    "declare c scroll cursor for select * from t for update of t",
    "fetch next from c",
    "truncate t, only u restart identity",
    "vacuum (verbose) t (a)",
    "create rule r as on insert to t do also (select 1; delete from u)",
    "copy t (a, b) to 'file' with (format csv)",
};

// clang-format on

using Tokens = std::vector<std::string>;

// Each spoils the tokens of a statement; its delimiter isn't among them. None opens what has no end: a
// string, a comment, the body of a routine would take in the statements behind.
struct SSpoiler
{
    const char* name;
    std::function<void(Tokens&)> spoil;
};

std::function<void(Tokens&)> InTheMiddle(const Tokens& stray)
{
    return [stray](Tokens& tokens) {
        tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(tokens.size() / 2), stray.begin(),
                      stray.end());
    };
}

std::function<void(Tokens&)> AtTheEnd(const char* stray)
{
    return [stray](Tokens& tokens) { tokens.push_back(stray); };
}

std::function<void(Tokens&)> WithoutLast(const char* token)
{
    return [token](Tokens& tokens) {
        const auto found = std::find(tokens.rbegin(), tokens.rend(), token);
        // brackets around statements hold delimiters
        if (found != tokens.rend() && std::find(tokens.begin(), found.base(), ";") == found.base())
            tokens.erase(std::next(found).base());
    };
}

void Misspell(Tokens& tokens)
{
    tokens.front().insert(1, "x");
}

void DoubleFirst(Tokens& tokens)
{
    tokens.insert(tokens.begin(), tokens.front());
}

void SwapFirst(Tokens& tokens)
{
    if (tokens.size() > 1)
        std::swap(tokens[0], tokens[1]);
}

void Truncate(Tokens& tokens)
{
    tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(tokens.size() / 2), tokens.end() - 1);
    tokens.push_back("where");
}

const SSpoiler kSpoilers[] = {
    {"missing closing bracket", WithoutLast(")")},
    {"missing opening bracket", WithoutLast("(")},
    {"bracket too many", AtTheEnd(")")},
    {"square bracket open", InTheMiddle({"["})},
    {"misspelled first word", Misspell},
    {"doubled first word", DoubleFirst},
    {"swapped first words", SwapFirst},
    {"stray word", InTheMiddle({"end"})},
    {"truncated clause", Truncate},
    {"reserved word as name", InTheMiddle({"from", "select"})},
    {"wrong operator", InTheMiddle({"==", "<="})},
    {"operator without an operand", AtTheEnd("<=")},
    {"doubled comma", InTheMiddle({",", ","})},
    {"bad number", InTheMiddle({"1x"})},
    {"byte that begins nothing", InTheMiddle({"{"})},
    {"dangling dot", AtTheEnd(".")},
};

// Stands between statements: what the client takes for itself, and data that look like anything else.
constexpr char kBetween[] = "\n\\echo it's; \"so\ncopy t from stdin;\n1;'\t$$ /*\n\\.\n";

Tokens TokensToSpoil(const CSyntaxTree& tree, const SElement& statement)
{
    Tokens tokens;
    for (const SElement& token : tree.Tokens(statement)) {
        if (token.name == "T__DOLLAR_QUOTED_TEXT" || token.name == "T__DOLLAR_QUOTE_END")
            tokens.back() += token.text;
        else
            tokens.push_back(token.text);
    }
    tokens.pop_back(); // the delimiter
    return tokens;
}

TEST(PostgreSQLErrors, OneBadStatementCostsOneStatement)
{
    std::vector<SByteRange> ranges; // of the statements in the clean text
    std::string clean;
    for (const char* const statement : kScript) {
        ASSERT_TRUE(JudgeAccepts(statement)) << statement;
        const std::size_t from = clean.size();
        clean += std::string(statement) + "\n;";
        ranges.push_back({from, clean.size()});
        clean += ranges.size() % 8 == 0 ? kBetween : "\n";
    }
    const SLanguageParse cleanParse = PostgreSQL().Parse(clean);
    ASSERT_TRUE(cleanParse.IsClean()) << cleanParse.unexpected.front().text;
    const CSyntaxTree cleanTree(cleanParse.tree);
    const std::vector<SElement> cleanStatements = cleanTree.Statements();
    ASSERT_EQ(cleanStatements.size(), ranges.size() + ranges.size() / 8);

    int spoiled = 0;
    for (const SByteRange& range : ranges) {
        const auto statement = std::ranges::find(cleanStatements, range.end, &SElement::end);
        ASSERT_NE(statement, cleanStatements.end());
        for (const SSpoiler& spoiler : kSpoilers) {
            Tokens tokens = TokensToSpoil(cleanTree, *statement);
            spoiler.spoil(tokens);
            std::string broken;
            for (const std::string& token : tokens)
                broken += token + ' ';
            if (JudgeAccepts(broken)) {
                EXPECT_TRUE(PostgreSQL().Parse(broken).IsClean()) << broken;
                continue;
            }
            ++spoiled;
            broken += ';';
            SCOPED_TRACE(spoiler.name + (": " + broken));
            const std::size_t badEnd = range.from + broken.size();
            const std::string text = clean.substr(0, range.from) + broken + clean.substr(range.end);

            const SLanguageParse parse = PostgreSQL().Parse(text);
            ASSERT_TRUE(parse.isComplete);
            const CSyntaxTree tree(parse.tree);
            ASSERT_EQ(tree.Text(), text);
            EXPECT_FALSE(parse.unexpected.empty());
            for (const SUnexpectedToken& token : parse.unexpected) {
                EXPECT_GE(token.offset, range.from);
                EXPECT_LT(token.offset, badEnd) << token.text;
                EXPECT_EQ(text.substr(token.offset, token.length), token.text);
            }
            std::map<std::size_t, std::string> markups; // by last byte: the first ones may be comments
            for (const SElement& each : tree.Statements())
                markups[each.end] = tree.Markup(each);
            for (const SElement& other : cleanStatements) {
                if (other.end == range.end)
                    continue;
                const std::size_t end = other.end < range.end ? other.end : other.end + badEnd - range.end;
                ASSERT_EQ(markups[end], cleanTree.Markup(other));
            }
        }
    }
    EXPECT_GT(spoiled, 500);
}

// The end of a text delimits its last statement; what is open there takes nothing that stands before it.
TEST(PostgreSQLErrors, OpenTextLeavesWhatStandsBeforeIt)
{
    for (const char* const open :
         {"select 'a; select 2;\n", "select \"a; select 2;", "select $a$ $b$ $ $$ $a; select 2;",
          "select /* a /* b */ ; select 2;", "select E'a\\'; select 2;", "select 1 + ", "select (((",
          "create function f() returns int begin atomic select 1;", "select U&'a", "select x'1", "select $",
          "select 1 from", "copy t from stdin", "copy t from stdin;\n1\t2\n\\x\n"}) {
        SCOPED_TRACE(open);
        const std::string text = "select 1;\n" + std::string(open);
        const SLanguageParse parse = PostgreSQL().Parse(text);
        ASSERT_TRUE(parse.isComplete);
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Text(), text);
        ASSERT_FALSE(tree.Statements().empty());
        EXPECT_EQ(tree.Statements().front().end, 9u);
        EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(select_statement('1') ';')"));
    }
}

// What a tree shows of a text whose spaces hold one of the two control characters that XML has no place for.
// Inside of tokens they stay.
std::string ShownText(std::string text)
{
    std::erase(text, '\f');
    for (std::size_t at = text.find('\x10'); at != text.npos; at = text.find('\x10', at))
        text.replace(at, 1, "ORVANTA_DATA_LINK_ESCAPE_REPLACER");
    return text;
}

void ExpectLossless(const std::string& text)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point begin = Clock::now();
    const SLanguageParse parse = PostgreSQL().Parse(text);
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(10)) << text;
    ASSERT_TRUE(parse.isComplete) << text;
    ASSERT_EQ(ShownText(SourceOfTree(parse.tree)), ShownText(text));
}

class PostgreSQLMutations : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const std::string& path : SamplePaths("PostgreSQL"))
            m_lstTexts.push_back(ReadFile(path));
        ASSERT_FALSE(m_lstTexts.empty());
        for (const char* const statement : kScript)
            m_strScript += std::string(statement) + ";\n";
        m_lstTexts.push_back(m_strScript);
    }

    std::size_t Random(std::size_t below)
    {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(m_Random);
    }

    std::mt19937 m_Random{15};
    std::vector<std::string> m_lstTexts;
    std::string m_strScript;
};

TEST_F(PostgreSQLMutations, ChangedBytes)
{
    constexpr std::string_view kFavourites = "'\"$;()\\*/-\n:EeUuNn&.0 \t\r\f\v\x10\x7F\x80\xC3\xFF<>&";
    for (const std::string& original : m_lstTexts)
        for (int round = 0; round < 150; ++round) {
            std::string text = original;
            for (std::size_t changes = 1 + Random(8); changes > 0; --changes) {
                const std::size_t at = Random(text.size());
                const char byte = Random(3) == 0 ? static_cast<char>(Random(255) + 1)
                                                 : kFavourites[Random(kFavourites.size())];
                switch (Random(3)) {
                case 0:
                    text[at] = byte;
                    break;
                case 1:
                    text.insert(at, 1, byte);
                    break;
                default:
                    text.erase(at, 1 + Random(3));
                }
            }
            ASSERT_NO_FATAL_FAILURE(ExpectLossless(text));
        }
}

TEST_F(PostgreSQLMutations, DroppedAndDoubledTokens)
{
    for (const std::string& original : m_lstTexts) {
        const std::vector<SColoredRange> tokens = PostgreSQL().Scan(original);
        for (int round = 0; round < 150; ++round) {
            std::string text = original;
            // from the back, so that the ranges in front stay where they are
            std::vector<std::size_t> chosen;
            for (std::size_t changes = 1 + Random(5); changes > 0; --changes)
                chosen.push_back(Random(tokens.size()));
            std::ranges::sort(chosen, std::greater());
            for (const std::size_t at : chosen) {
                const std::string token = original.substr(tokens[at].from, tokens[at].end - tokens[at].from);
                const SColoredRange& place = tokens[Random(2) == 0 ? at : Random(at + 1)];
                if (Random(2) == 0)
                    text.erase(tokens[at].from, token.size());
                else
                    text.insert(place.from, token + ' ');
            }
            ASSERT_NO_FATAL_FAILURE(ExpectLossless(text));
        }
    }
}

TEST_F(PostgreSQLMutations, Truncations)
{
    for (const std::string& original : m_lstTexts)
        for (std::size_t length = 0; length < original.size(); length += 1 + length % 13)
            ASSERT_NO_FATAL_FAILURE(ExpectLossless(original.substr(0, length))) << length << " bytes";
}

TEST_F(PostgreSQLMutations, BytesOfAnyKind)
{
    for (int round = 0; round < 200; ++round) {
        std::string text(Random(2000), ' ');
        for (char& c : text)
            c = static_cast<char>(Random(255) + 1);
        ASSERT_NO_FATAL_FAILURE(ExpectLossless(text));
    }
    ExpectLossless("");
    ExpectLossless(";");
    ExpectLossless(" \n");
    ExpectLossless("select 1\xEF\xBB\xBF;");
}

} // namespace
