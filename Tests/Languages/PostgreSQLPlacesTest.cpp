// What stands at the places of PostgreSQL's trees that rules are written for: one element, whatever is inside.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLNewerStatements.h"
#include "Tests/Languages/PostgreSQLStatements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <set>

namespace {

// The texts of all tokens of a name, a bar between them.
std::string TextsOf(const CSyntaxTree& tree, std::string_view name)
{
    std::string texts;
    for (const SElement& element : tree.Elements())
        if (element.name == name)
            texts += (texts.empty() ? "" : "|") + element.text;
    return texts;
}

std::vector<std::string> Scripts()
{
    std::vector<std::string> scripts = SampleTexts("PostgreSQL");
    for (const SStatementCase& c : kStatements)
        scripts.emplace_back(c.sql);
    for (const SStatementCase& c : kNewerStatements)
        scripts.emplace_back(c.sql);
    return scripts;
}

// The elements directly in one, tokens left out. One of the same name gives its own, as in the flattened tree.
void AppendParts(const CSyntaxTree& tree, std::size_t at, std::vector<std::string>& parts)
{
    const std::vector<SElement>& elements = tree.Elements();
    for (std::size_t part = at + 1; part < elements[at].next; part = elements[part].next)
        if (elements[part].name == elements[at].name)
            AppendParts(tree, part, parts);
        else if (!elements[part].isToken)
            parts.push_back(elements[part].name);
}

// Which elements stand directly in one of their own name.
std::vector<bool> PartsOfLike(const CSyntaxTree& tree)
{
    const std::vector<SElement>& elements = tree.Elements();
    std::vector<bool> isPart(elements.size());
    for (std::size_t at = 0; at < elements.size(); ++at)
        for (std::size_t part = at + 1; part < elements[at].next; part = elements[part].next)
            isPart[part] = elements[part].name == elements[at].name;
    return isPart;
}

struct SPlaceCase
{
    const char* element;
    std::initializer_list<const char*> parts; // exactly one of them is in it, once
};

// clang-format off
const SPlaceCase kPlaces[] = {
    {"parameter",         {"data_type"}},
    {"column_definition", {"column_name"}},
    {"returns_clause",    {"data_type", "column_definition_list"}},
    {"cast_expression",   {"data_type"}},
    {"typed_literal",     {"data_type"}},
    {"table_reference",   {"table_name", "function_table", "xml_table", "json_table", "subquery", "joined_table"}},
    {"from_clause",       {"from_list"}},
    {"using_clause",      {"from_list"}},
    {"sort_clause",       {"sort_list"}},
    {"group_clause",      {"group_list"}},
    {"where_clause",      {"condition", "cursor_name"}},
    {"having_clause",     {"condition"}},
    {"join_condition",    {"condition", "columns"}},
    {"set_item",          {"target_column", "columns"}},
    {"function_call",     {"function_name", "sql_identifier", "expression_list"}},
    {"subquery",          {"select_statement", "subquery"}},
    {"create_view_statement", {"select_statement"}},
};
// clang-format on

TEST(PostgreSQLPlaces, HoldOneElement)
{
    std::set<std::string> seen;
    for (const std::string& script : Scripts()) {
        const CSyntaxTree tree(PostgreSQL().Parse(script).tree);
        const std::vector<bool> isPart = PartsOfLike(tree);
        for (std::size_t at = 0; at < tree.Elements().size(); ++at)
            for (const SPlaceCase& c : kPlaces) {
                if (tree.Elements()[at].name != c.element || isPart[at])
                    continue;
                seen.insert(c.element);
                std::vector<std::string> parts;
                AppendParts(tree, at, parts);
                const auto found = std::ranges::count_if(parts, [&](const std::string& part) {
                    return std::ranges::find(c.parts, part) != c.parts.end();
                });
                EXPECT_EQ(found, 1) << c.element << " in " << script;
            }
    }
    EXPECT_EQ(seen.size(), std::size(kPlaces));
}

TEST(PostgreSQLPlaces, StatementsHaveAnElementOfTheirOwn)
{
    for (const std::string& script : Scripts()) {
        const CSyntaxTree tree(PostgreSQL().Parse(script).tree);
        for (std::size_t at = 0; at < tree.Elements().size(); ++at) {
            if (tree.Elements()[at].name != "pl_sql_statement")
                continue;
            const SElement& statement = tree.Elements()[at + 1];
            EXPECT_TRUE(statement.name.ends_with("_statement")) << statement.name << " in " << script;
            EXPECT_EQ(statement.next, tree.Elements()[at].next) << script;
        }
    }
}

struct SBetweenCase
{
    const char* script;
    const char* commands; // a bar between them, as between rows and statements
    const char* rows;
    std::size_t statements;
};

// clang-format off
constexpr SBetweenCase kBetween[] = {
    {"\\echo 'a;\nselect 1;\n\\q",                        "\\echo 'a;|\\q", "",         1},
    {"/* a */ \\a\n-- b\n\\b\nselect 1;\\c\n",            "\\a|\\b|\\c",    "",         1},
    {"select 1 \\gset\n\\echo :a\n;\\;\n\\b",             "\\echo :a|\\b",  "",         3},
    // inside of a statement they are space
    {"select 1\n\\echo a\n, a[1:2]\n\\b\n;",              "",              "",         1},
    {"select 1 + + 2 /* a */\n\\b\n;\n",                          "",              "",         1},
    {"select $$;$$\n\\echo a\n, $b$ \\ $b$;\n\\b",       "\\b",           "",         1},
    {"do $$ begin null; end $$;\\b\ndo $$ begin end $$ \\g\n\\c", "\\b|\\c",      "",         2},
    // data and what ends them
    {"copy t from stdin;\na;\n\n\\N\\.\n\\.\nselect 1;",  "",              "a;|\\N\\.", 2},
    {"copy t from stdin;\r\na\tb\r\n\\.\r\nselect 1;",    "",              "a\tb",     2},
    {"copy t from stdin; \\a\nb\nselects;\n",             "",              "b|selects;", 1},
    {"\\copy t from stdin\nselect 1;\n\\.\n\\q\nselect 2;", "\\copy t from stdin|\\q", "select 1;", 1},
};
// clang-format on

TEST(PostgreSQLPlaces, CommandsAndDataStandBetweenStatements)
{
    for (const SBetweenCase& c : kBetween) {
        SCOPED_TRACE(c.script);
        const SLanguageParse parse = ParseWhole(PostgreSQL(), c.script);
        EXPECT_TRUE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(TextsOf(tree, "T__CLIENT_COMMAND"), c.commands);
        EXPECT_EQ(TextsOf(tree, "T__COPIED_ROW"), c.rows);
        EXPECT_EQ(tree.Statements().size(), c.statements);
        EXPECT_EQ(CountOf(tree, "client_command"), CountOf(tree, "T__CLIENT_COMMAND"));
        EXPECT_EQ(CountOf(tree, "copied_row"), CountOf(tree, "T__COPIED_ROW"));
    }
}

} // namespace
