// Broken text: what an error costs, and that nothing is lost by it.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"
#include "Tests/Languages/PostgreSQLStatements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

namespace {

// What a delimiter, a quote or a comment stands in, and every second one of the others.
std::vector<std::string> Script()
{
    std::vector<std::string> script = {
        "select 'it''s; fine', E'\\';', \"semi;colon\", $q$ ; $q$ from t",
        "/* a; /* b; */ */ select count(*) filter (where x > 0) over (partition by y) from z -- c;",
        "create function f(a int, out b text) returns text language sql as $$ select a; select b; $$",
        "create function g(a int) returns int begin atomic select 1; update t set b = a; end",
        "create procedure p(inout a int) language plpgsql as $p$ begin a := 1; end $p$",
        "create schema s authorization joe create table x (y int)",
        "comment on column t.a is 'the; first'",
        "begin isolation level repeatable read",
        "commit",
        "table t",
        "create rule r as on insert to t do also (select 1; delete from u)",
    };
    for (std::size_t i = 1; i < std::size(kStatements); i += 2)
        script.push_back(kStatements[i].sql);
    return script;
}

using Tokens = std::vector<std::string>;

// Each spoils the tokens of a statement; its delimiter isn't among them. None opens what has no end: a
// string, a comment, the body of a routine would take in the next statements.
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

const SSpoiler kSpoilers[] = {
    {"missing closing bracket", WithoutLast(")")},
    {"missing opening bracket", WithoutLast("(")},
    {"bracket too many", AtTheEnd(")")},
    {"square bracket open", InTheMiddle({"["})},
    {"misspelled first word", [](Tokens& tokens) { tokens.front().insert(1, "x"); }},
    {"doubled first word", [](Tokens& tokens) { tokens.insert(tokens.begin(), tokens.front()); }},
    {"swapped first words", [](Tokens& tokens) { std::swap(tokens[0], tokens[tokens.size() > 1]); }},
    {"stray word", InTheMiddle({"end"})},
    {"truncated clause",
     [](Tokens& tokens) {
         tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(tokens.size() / 2), tokens.end() - 1);
         tokens.push_back("where");
     }},
    {"reserved word as name", InTheMiddle({"from", "select"})},
    {"operator without an operand", AtTheEnd("<=")},
    {"doubled comma", InTheMiddle({",", ","})},
    {"bad number", InTheMiddle({"1x"})},
    {"byte that begins nothing", InTheMiddle({"{"})},
};

// Stands between statements: what the client takes for itself, and data that look like anything else.
constexpr char kBetween[] = "\n\\echo it's; \"so\ncopy t from stdin;\n1;'\t$$ /*\n\\.\n";

Tokens TokensToSpoil(const CSyntaxTree& tree, const SElement& statement)
{
    Tokens tokens;
    bool isInBody = false;
    for (const SElement& token : tree.Tokens(statement)) {
        if (isInBody)
            tokens.back() += ' ' + token.text;
        else if (token.name == "T__DOLLAR_QUOTED_TEXT" || token.name == "T__DOLLAR_QUOTE_END")
            tokens.back() += token.text;
        else
            tokens.push_back(token.text);
        isInBody = (isInBody || token.name == "T__BLOCK_QUOTE_BEGIN" || token.name == "T__SQL_QUOTE_BEGIN") &&
                   token.name != "T__BODY_QUOTE_END";
    }
    tokens.pop_back(); // the delimiter
    return tokens;
}

TEST(PostgreSQLErrors, OneBadStatementCostsOneStatement)
{
    std::vector<SByteRange> ranges; // of the statements in the clean text
    std::string clean;
    for (const std::string& statement : Script()) {
        ASSERT_TRUE(JudgeAccepts(statement)) << statement;
        const std::size_t from = clean.size();
        clean += statement + "\n;";
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

TEST(PostgreSQLMutations, LoseNothing)
{
    std::vector<std::string> texts = SampleTexts("PostgreSQL");
    texts.emplace_back();
    for (const std::string& statement : Script())
        texts.back() += statement + ";\n";
    ExpectSpoiledTextsLoseNothing(PostgreSQL(), texts,
                                  "'\"$;()\\*/-\n:EeUuNn&.0 \t\r\f\v\x10\x7F\x80\xC3\xFF<>&");
    texts.push_back("select 1\xEF\xBB\xBF;");
    ExpectPiecesLoseNothing(PostgreSQL(), texts, 7);
}

} // namespace
