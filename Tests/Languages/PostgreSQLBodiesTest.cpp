// Bodies of routines in dollar quotes: which of them are parsed, and into what.
#include "Tests/Languages/PostgreSQLBodies.h"

#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"
#include "Tree/TreeFlattener.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(PostgreSQL(), text);
}

// A block that declares what the statements of the rows are about.
std::string Block(const std::string& statements)
{
    return "create function f(p int) returns setof int as $body$\n"
           "declare\n"
           "  x int; y int; t text; b bool; r record; a int[]; rc refcursor;\n"
           "  cur cursor (k int) for select k; open int; raise text; limit_ int;\n"
           "begin\n" +
           statements + "\nend $body$ language plpgsql;";
}

bool HasUnexpected(const SLanguageParse& parse, const SElement& element)
{
    return std::ranges::any_of(parse.unexpected, [&](const SUnexpectedToken& token) {
        return token.offset >= element.from && token.offset < element.end;
    });
}

// The judge knows no types, so it takes no variable for a cursor and nothing for a field of a record; what it
// says of that doesn't count.
testing::AssertionResult JudgeTakes(const std::string& statement)
{
    const std::string error = JudgeBlock(statement).error;
    if (error.starts_with("syntax error") && error.find("\"cur\"") == std::string::npos)
        return testing::AssertionFailure() << error;
    return testing::AssertionSuccess();
}

TEST(PostgreSQLBodies, StatementsHaveTheirShape)
{
    for (const auto& [statements, pattern] : kBlockStatements) {
        SCOPED_TRACE(statements);
        const std::string sql = Block(statements);
        EXPECT_TRUE(JudgeTakes(sql));
        const SLanguageParse parse = ParseWhole(sql);
        EXPECT_TRUE(parse.IsClean()) << parse.unexpected.front().text;
        const CSyntaxTree tree(parse.tree);
        EXPECT_TRUE(tree.Holds(std::string("quoted_body(") + pattern + ")")) << tree.Shape();
    }
}

TEST(PostgreSQLBodies, DeclarationsHaveTheirShape)
{
    for (const auto& [declaration, pattern] : kDeclarations) {
        SCOPED_TRACE(declaration);
        const std::string sql = std::string("do $$ declare q int; ") + declaration + " begin null; end $$;";
        EXPECT_TRUE(JudgeTakes(sql));
        const SLanguageParse parse = ParseWhole(sql);
        EXPECT_TRUE(parse.IsClean()) << parse.unexpected.front().text;
        const CSyntaxTree tree(parse.tree);
        EXPECT_TRUE(tree.Holds(std::string("declare_clause(") + pattern + ")")) << tree.Shape();
    }
}

// What isn't the language's syntax is an unexpected token, and costs nothing else.
TEST(PostgreSQLBodies, WrongStatementsAreFlagged)
{
    for (const char* const statement : kWrongStatements) {
        SCOPED_TRACE(statement);
        EXPECT_NE(JudgeBlock(Block(statement)).error, "");
        const std::string sql =
            Block(std::string("x := 1;\n") + statement + "\ny := 2;\nraise info 'i';") + "\nselect 3;";
        const SLanguageParse parse = ParseWhole(sql);
        EXPECT_FALSE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), 2U);
        EXPECT_TRUE(tree.Holds("quoted_body(assignment_statement('x' '1') raise_statement('info'))"))
            << tree.Shape();
        EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(select_statement('3'))"));
    }
}

// Flattening is what moves labels and delimiters about: none may get lost, and none is shared.
TEST(PostgreSQLBodies, FlattenedStatementsKeepLabelAndDelimiter)
{
    const std::string sql =
        "do $$ <<b>> begin x := 1; <<l>> loop exit l; end loop l; y := 2; <<m>> begin null; end m; "
        "if a then <<n>> loop null; end loop; end if; end b; $$;";
    const SLanguageParse parse = ParseWhole(sql);
    EXPECT_TRUE(parse.IsClean());
    std::string flat;
    ASSERT_TRUE(FlattenTree(parse.tree, flat));
    EXPECT_EQ(TextOfTree(flat.substr(flat.find("<SQL>"))), sql);
    std::size_t labeled = 0, statements = 0;
    for (std::size_t at = flat.find("<full_pl_"); at != flat.npos;
         at = flat.find("<full_pl_", at + 1), ++statements)
        labeled += flat.find("<pl_sql_statement_label>", at) == flat.find("<pl_sql_statement_label", at);
    EXPECT_EQ(statements, 11U);
    EXPECT_EQ(labeled, 4U);
}

TEST(PostgreSQLBodies, TheOpeningTellsWhatIsParsed)
{
    for (const auto& [statement, kind] : kOpenings) {
        SCOPED_TRACE(statement);
        const SLanguageParse parse = ParseWhole(std::string(statement) + "; select 1;");
        EXPECT_TRUE(parse.IsClean()) << parse.unexpected.front().text;
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), 2U);
        EXPECT_EQ(CountOf(tree, "T__BLOCK_QUOTE_BEGIN"), kind == enBody::Block ? 1U : 0U);
        EXPECT_EQ(CountOf(tree, "T__SQL_QUOTE_BEGIN"), kind == enBody::Sql ? 1U : 0U);
    }
}

// In a body, a word of PL/pgSQL is a keyword; anywhere else it is a name.
TEST(PostgreSQLBodies, WordsAreNamesOutside)
{
    const std::string sql =
        "select loop, raise, elsif, exception when_, a << b >> c, cursor(1), execute, strict "
        "from perform while where exit = open and get in (query) and alias;";
    const SLanguageParse parse = ParseWhole("do $$ begin null; end $$; " + sql);
    EXPECT_TRUE(parse.IsClean());
    const CSyntaxTree tree(parse.tree);
    for (const char* const token :
         {"T__LOOP", "T__RAISE", "T__ELSIF", "T__EXCEPTION", "T__LABEL_BEGIN", "T__PERFORM", "T__WHILE",
          "T__EXIT", "T__OPEN", "T__GET", "T__QUERY", "T__ALIAS"})
        EXPECT_EQ(CountOf(tree, token), 0U) << token;
}

// A token of a routine goes missing or comes twice: the statements around it stay as they are.
TEST(PostgreSQLBodies, TheClosingQuoteHolds)
{
    const std::string head = "select 1;\n", tail = "\nselect 2;\ndo $$ begin null; end $$;";
    std::string statements;
    for (std::size_t i = 0; i < std::size(kBlockStatements); i += 3)
        statements += std::string(kBlockStatements[i].statements) + '\n';
    const std::string body = Block(statements);
    const SLanguageParse clean = ParseWhole(head + body + tail);
    ASSERT_TRUE(clean.IsClean());
    const CSyntaxTree cleanTree(clean.tree);
    const std::vector<SElement> wanted = cleanTree.Statements();
    ASSERT_EQ(wanted.size(), 4U);
    std::size_t bad = 0;
    for (const SElement& token : cleanTree.Tokens(wanted[1])) {
        if (token.name == "T__BODY_QUOTE_END")
            break;
        if (token.name == "T__BLOCK_QUOTE_BEGIN" || token.name.starts_with("T__DOLLAR"))
            continue;
        for (const std::string& instead : {std::string(" "), token.text + " " + token.text}) {
            std::string text = head + body + tail;
            text.replace(token.from, token.text.size(), instead);
            SCOPED_TRACE(text.substr(std::max<std::size_t>(token.from, 20) - 20, 60));
            const SLanguageParse parse = ParseWhole(text);
            const CSyntaxTree tree(parse.tree);
            const std::vector<SElement> found = tree.Statements();
            ASSERT_EQ(found.size(), 4U);
            for (const std::size_t i : {0U, 2U, 3U})
                ASSERT_EQ(tree.Markup(found[i]), cleanTree.Markup(wanted[i]));
            for (const SUnexpectedToken& unexpected : parse.unexpected)
                ASSERT_LT(unexpected.offset, found[1].end);
            bad += !parse.IsClean();
        }
    }
    EXPECT_GT(bad, 500U);
}

TEST(PostgreSQLBodies, LongAndOpenBodies)
{
    constexpr std::size_t kCount = 30000;
    EXPECT_TRUE(ParseWhole(Block(Repeated("x := x + 1; /* it's */\n", kCount))).IsClean());
    EXPECT_TRUE(ParseWhole(Block(Repeated("if b then\n", kCount) + Repeated("end if;\n", kCount))).IsClean());
    EXPECT_TRUE(ParseWhole("create function f() returns int as $$ " + Repeated("select 1;\n", kCount) + "$$;")
                    .IsClean());
    for (const char* const piece :
         {"x := 1; ", "as $$ begin ", "$$ begin ", "do $$", "/* ", "loop ", "$a$ ", "end "}) {
        SCOPED_TRACE(piece);
        EXPECT_FALSE(ParseWhole("select 1; do $x$ begin " + Repeated(piece, kCount)).IsClean());
        EXPECT_FALSE(ParseWhole("create function f() returns int as $$ select 1;" + Repeated(piece, kCount))
                         .IsClean());
    }
}

// Set UV_CORPUS to a folder with postgresql/<project>/<script>: the blocks in dollar quotes that the judge
// takes are parsed clean, and where it finds a syntax error there is an unexpected token.
TEST(PostgreSQLBodies, RealBlocksParse)
{
    std::size_t taken = 0, clean = 0;
    for (const std::string& path : CorpusPaths("postgresql")) {
        const std::string text = ReadFile(path);
        const SLanguageParse parse = ParseWhole(text);
        const CSyntaxTree tree(parse.tree);
        for (const SElement& statement : tree.Statements()) {
            const std::vector<SElement> tokens = tree.Tokens(statement);
            const auto holds = [&](const char* name) {
                return std::ranges::find(tokens, name, &SElement::name) != tokens.end();
            };
            // the judge dies of a routine without a string
            if (!holds("T__BLOCK_QUOTE_BEGIN") &&
                !(holds("T__DOLLAR_QUOTE_BEGIN") &&
                  (holds("T__FUNCTION") || holds("T__PROCEDURE") || holds("T__DO"))))
                continue;
            const std::string sql = text.substr(statement.from, statement.end - statement.from);
            SCOPED_TRACE(path + ": " + sql);
            const SBlockVerdict verdict = JudgeBlock(sql);
            if (!verdict.isBlock)
                continue;
            const bool isBad = HasUnexpected(parse, statement);
            if (verdict.error.empty()) {
                ++taken;
                clean += !isBad && holds("T__BLOCK_QUOTE_BEGIN");
            } else if (verdict.error.starts_with("syntax error")) {
                EXPECT_TRUE(isBad) << verdict.error;
            }
        }
    }
    RecordProperty("taken", std::to_string(taken));
    RecordProperty("clean", std::to_string(clean));
    EXPECT_GE(1000 * clean, 999 * taken);
}

} // namespace
