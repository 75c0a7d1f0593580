// The same schema, queries and routines in several dialects of SQL: what a rule asks for by its role has the same
// element in all of them, so one expression finds the same texts.
#include "Tests/Languages/LanguageFixture.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/ParserHost.h"
#include "Tools/uvparse/Selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <regex>
#include <string_view>

namespace {

// The statements of the first script are the same in both dialects but for their quotes. The second one has what each
// dialect writes in its own way.
constexpr std::array kScripts = {"", "Routines"};

class CDialect
{
public:
    explicit CDialect(const std::string& language)
    {
        uvparse::CParserHost host({language, uvparse::VersionOfParser(language)}, {});
        for (std::size_t i = 0; i < kScripts.size(); ++i) {
            const std::string path =
                UV_SOURCE_DIR "/Tests/Languages/Dialects/" + language + kScripts[i] + ".sql";
            const uvparse::SParseResult result = host.Parse(ReadFile(path), path);
            EXPECT_TRUE(result.isParsed && result.findings.empty()) << path;
            m_Trees[i] = result.output;
        }
    }

    // The texts of what is selected in a script, in lower case and without quotes of names, a line each.
    std::string Answer(const std::string& expression, std::size_t script) const
    {
        std::string found;
        uvparse::CSelector(expression).Write(m_Trees[script], "tree", {}, [&](std::string_view piece) {
            found += piece;
        });
        std::string answer;
        bool isTag = false;
        for (const char c : found) {
            isTag = isTag || c == '<';
            if (!isTag && c != '"' && c != '`')
                answer += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            isTag = isTag && c != '>';
        }
        return answer;
    }

private:
    std::array<std::string, kScripts.size()> m_Trees;
};

const CDialect& PostgreSqlDialect()
{
    static const CDialect dialect("PostgreSQL");
    return dialect;
}

const CDialect& MySqlDialect()
{
    static const CDialect dialect("MySQL");
    return dialect;
}

void ExpectAlike(const std::string& expression, std::size_t script)
{
    SCOPED_TRACE(expression);
    EXPECT_EQ(MySqlDialect().Answer(expression, script), PostgreSqlDialect().Answer(expression, script));
}

// The expressions that the page shows, in its examples and in its text.
std::vector<std::string> ShownExpressions()
{
    const std::string page = ReadFile(UV_SOURCE_DIR "/Documentation/TreeStyle.md");
    const std::regex shown("--xpath '([^']+)'|`(//[^`]+/[^`]+)`");
    std::vector<std::string> expressions;
    for (std::sregex_iterator match(page.begin(), page.end(), shown), end; match != end; ++match)
        expressions.push_back((*match)[1].str() + (*match)[2].str());
    return expressions;
}

TEST(Dialects, ShownExpressionsAnswerAlike)
{
    const std::vector<std::string> expressions = ShownExpressions();
    EXPECT_GE(expressions.size(), 10U);
    for (const std::string& expression : expressions) {
        ExpectAlike(expression, 0);
        // All statements would be the texts of the routines, too.
        if (expression != "//pl_sql_statement/*")
            ExpectAlike(expression, 1);
    }
}

struct SRoleCase
{
    const char* expression;
    std::array<int, kScripts.size()> found; // lines of the answer in each script; 0: it may have none
};

// clang-format off
constexpr SRoleCase kRoles[] = {
    {"//create_table_statement/table_name",                              { 4, 0}},
    {"//create_table_statement[.//select_statement]/table_name",         { 1, 0}},
    {"//column_definition/column_name",                                  {18, 0}},
    {"//column_definition[.//T__PRIMARY]/column_name",                   { 1, 0}},
    {"//column_definition[.//T__NOT and .//T__NULL]/column_name",        { 4, 0}},
    {"//column_definition[data_type/type_name = 'VARCHAR']/column_name", { 2, 0}},
    {"//column_definition//default_clause",                              { 4, 0}},
    {"//data_type",                                                      {19, 9}},
    {"//data_type/type_name",                                            {19, 9}},
    {"//type_modifiers",                                                 { 8, 4}},
    {"//constraint_name",                                                { 5, 0}},
    {"//table_constraint[T__PRIMARY]//key_column",                       { 2, 0}},
    {"//table_constraint[T__UNIQUE]//key_column",                        { 2, 0}},
    {"//table_constraint[T__FOREIGN]/columns//column_name",              { 2, 0}},
    {"//references_clause/table_name",                                   { 3, 0}},
    {"//references_clause//columns//column_name",                        { 3, 0}},
    {"//condition",                                                      {15, 6}},
    {"//create_index_statement/index_name",                              { 2, 0}},
    {"//create_index_statement//table_name",                             { 2, 0}},
    {"//index_element",                                                  { 3, 0}},
    {"//alter_table_statement//table_name",                              { 6, 0}},
    {"//alter_action//column_definition/column_name",                    { 1, 0}},
    {"//alter_table_statement//constraint_name",                         { 2, 0}},
    {"//new_name",                                                       { 2, 0}},
    {"//create_view_statement/view_name",                                { 1, 0}},
    {"//create_view_statement//select_statement",                        { 2, 0}},
    {"//common_table/table_name",                                        { 2, 0}},
    {"//common_table//column_name",                                      { 4, 0}},
    {"//select_item",                                                    {27, 2}},
    {"//select_item[alias]/alias",                                       { 5, 0}},
    {"//table_reference[alias]/table_name",                              { 8, 0}},
    {"//table_reference[subquery]/alias",                                { 1, 0}},
    {"//joined_table//join_type",                                        { 2, 0}},
    {"//join_condition/condition",                                       { 2, 0}},
    {"//where_clause/condition",                                         { 8, 3}},
    {"//having_clause/condition",                                        { 2, 0}},
    {"//group_item",                                                     { 4, 0}},
    {"//sort_item",                                                      { 5, 0}},
    {"//limit_clause",                                                   { 1, 0}},
    {"//set_operation",                                                  { 2, 0}},
    {"//subquery",                                                       { 4, 0}},
    {"//window_name",                                                    { 2, 0}},
    {"//frame_clause",                                                   { 1, 0}},
    {"//when_part",                                                      { 2, 0}},
    {"//select_list//function_name",                                     { 6, 1}},
    {"//insert_statement//table_name",                                   { 3, 1}},
    {"//insert_statement//target_column",                                { 4, 1}},
    {"//values_row",                                                     { 2, 1}},
    {"//update_statement//table_name",                                   { 1, 1}},
    {"//update_statement//set_item",                                     { 2, 1}},
    {"//delete_statement//table_name",                                   { 1, 1}},
    {"//truncate_statement//table_name",                                 { 1, 0}},
    {"//call_statement//function_name",                                  { 1, 1}},
    {"//privilege",                                                      { 3, 0}},
    {"//grant_statement//table_name",                                    { 1, 0}},
    {"//grantee",                                                        { 3, 0}},
    {"//savepoint_name",                                                 { 3, 0}},
    {"//transaction_statement",                                          { 6, 1}},
    {"//drop_statement//table_name",                                     { 2, 0}},
    {"//drop_statement//function_name",                                  { 2, 0}},
    {"//create_routine_statement/function_name",                         { 0, 2}},
    {"//parameter/parameter_name",                                       { 0, 5}},
    {"//parameter/data_type",                                            { 0, 5}},
    {"//parameter_mode",                                                 { 0, 3}},
    {"//returns_clause/data_type",                                       { 0, 1}},
    {"//variable_declaration//variable_name",                            { 0, 3}},
    {"//variable_declaration/data_type",                                 { 0, 3}},
    {"//variable_declaration/default_value",                             { 0, 1}},
    {"//cursor_declaration//select_statement",                           { 0, 1}},
    {"//if_head/condition",                                              { 0, 1}},
    {"//elsif_head/condition",                                           { 0, 1}},
    {"//while_head/condition",                                           { 0, 1}},
    {"//case_when_head",                                                 { 0, 1}},
    {"//return_statement",                                               { 0, 3}},
    {"//fetch_statement",                                                { 0, 1}},
    {"//into_clause",                                                    { 0, 2}},
    {"//label_name",                                                     { 0, 1}},
    {"//block_statement//table_name",                                    { 0, 5}},
    {"//create_trigger_statement/trigger_name",                          { 0, 1}},
    {"//create_trigger_statement//table_name",                           { 0, 1}},
    {"//trigger_event",                                                  { 0, 1}},
};
// clang-format on

TEST(Dialects, RolesHaveTheSameElements)
{
    for (const SRoleCase& role : kRoles)
        for (std::size_t script = 0; script < kScripts.size(); ++script) {
            ExpectAlike(role.expression, script);
            const std::string answer = PostgreSqlDialect().Answer(role.expression, script);
            EXPECT_EQ(std::ranges::count(answer, '\n'), role.found[script]) << role.expression << '\n'
                                                                            << answer;
        }
}

// The element of each statement.
TEST(Dialects, StatementsThatAreTheSameHaveTheSameNames)
{
    const std::string names = "//pl_sql_statement/*";
    const auto namesOf = [&](const CDialect& dialect) {
        std::vector<std::string> found;
        for (int i = 1;; ++i) {
            const std::string name = dialect.Answer("name((" + names + ")[" + std::to_string(i) + "])", 0);
            if (name.find_first_not_of('\n') == name.npos)
                return found;
            found.push_back(name);
        }
    };
    EXPECT_EQ(namesOf(MySqlDialect()), namesOf(PostgreSqlDialect()));
}

struct STextCase
{
    const char* language;
    const char* text;
};

constexpr STextCase kLabeled[] = {
    {"MySQL", "l: begin end /* c */ ; select 1;"},
    {"MySQL", "delimiter //\nl: while a do set b = 1; end while l\n//\n"},
    {"MySQL", "create procedure p() begin l: loop set a = 1; end loop /* c */ ; m: while a b; end;"},
    {"PostgreSQL", "do $$ begin <<l>> loop a := 1; end loop /* c */ ; <<m>> while a b; end $$;"},
};

// What stands before the delimiter of a statement stays there, if the statement has a label, too.
TEST(Dialects, FlatTreesOfLabeledStatementsKeepTheText)
{
    for (const STextCase& c : kLabeled) {
        uvparse::CParserHost host({c.language, uvparse::VersionOfParser(c.language)}, {});
        std::string text = TextOfTree(host.Parse(c.text, "text").output);
        text.erase(0, text.find_first_not_of('\n'));
        EXPECT_EQ(text, c.text);
    }
}

} // namespace
