// Statements that PostgreSQL 16 to 18 brought, beside what their trees hold. The judge is of version 15: it refuses
// the ones of kNewerStatements, and takes those of kRereadStatements for something else.
#pragma once

#include "Tests/Languages/PostgreSQLStatements.h"

// clang-format off
inline constexpr SStatementCase kNewerStatements[] = {
    // 16
    {"select system_user, xmlserialize(content a as text no indent), 1_000 + 0x1f",
     "select_list('system_user' special_function('content' xml_indent('no')) expression('1_000' '0x1f'))"},
    {"select 1 from (select 2), (values (3)) where true",
     "table_reference_list(subquery('2') subquery('3'))"},
    {"grant a to b with inherit true, admin option, set false granted by c",
     "grant_statement(membership_options(membership_option('inherit' 'true') membership_option('admin' 'option') "
     "membership_option('set')) granted_by('c'))"},
    {"revoke inherit option for a from b cascade",
     "revoke_statement(revoked_privileges('inherit' 'option' 'for' 'a' 'b') 'cascade')"},
    {"create table a (b text storage external compression lz4 not null)",
     "column_definition('b' column_options(column_storage('external') column_options('lz4')) "
     "column_constraint_body('not'))"},
    {"reindex (verbose) database concurrently", "reindex_statement('verbose' reindex_target('database'))"},
    {"create statistics on a, b from t", "create_statistics(statistics_columns('a' 'b') from_clause('t'))"},
    // 17
    {"select a at local, b at time zone c at local",
     "select_list(expression('a' 'at' 'local') expression(expression('zone') 'local'))"},
    {"merge into a using b on c when not matched by source and d then delete when not matched by target then insert "
     "(e) values (1) when not matched by source then do nothing returning merge_action(), a.*",
     "merge_statement(merge_when_list(merge_when('source' 'd' 'delete') merge_when('target' merge_insert_action) "
     "merge_when('source' merge_matched_action('nothing'))) returning_clause(special_function('merge_action') "
     "'*'))"},
    {"with a as (merge into b using c on d when matched then delete returning b.e) table a",
     "common_table(cte_body(merge_statement(returning_clause)))"},
    {"copy a from 'b' force not null * force null *", "copy_option_list(copy_option('not' '*') copy_option('*'))"},
    {"alter table a alter b set expression as (c + 1), alter d set statistics default, set access method default, "
     "alter e set storage default",
     "alter_actions(alter_action(column_action('expression' 'c')) alter_action(column_action('statistics' "
     "'default')) alter_action('method' 'default') column_action('storage' 'default'))"},
    {"alter operator + (a, b) set (commutator = -, hashes, merges)",
     "operator_changes(operator_change('-') 'hashes' 'merges')"},
    {"alter domain a add constraint b not null",
     "alter_domain('a' table_constraint('b' 'not' 'null'))"},
    // 18
    {"create table a (b int generated always as (c) virtual, d int generated always as (e), f int not null no "
     "inherit references g not enforced check (h) enforced)",
     "table_elements(column_constraint_body('c' 'virtual') column_constraint_body('e') column_constraints("
     "column_constraint_body('null' 'no' 'inherit') references_clause('g') constraint_attribute('not' 'enforced') "
     "column_constraint_body('h') 'enforced'))"},
    {"create table a (b int, constraint c not null b no inherit not valid, not null d, primary key (e, f without "
     "overlaps), unique (g without overlaps) with (h = 1), foreign key (i, period j) references k (l, period m) not "
     "enforced)",
     "table_elements(table_constraint('c' table_constraint_body('b' constraint_attributes)) "
     "table_constraint_body('d') table_constraint_body('primary' parenthesized_names(name_list('e' "
     "unique_column('f' 'overlaps')))) key_columns(unique_column('g') index_parameters('h')) "
     "table_constraint_body(name_list('i' foreign_column('period' 'j')) references_clause('k' name_list('l' "
     "foreign_column('m'))) constraint_attribute))"},
    {"alter table a alter constraint b inherit, alter constraint c not enforced, add not null d",
     "alter_actions(alter_action('b' 'inherit') alter_action('c' constraint_attribute) "
     "alter_action(table_constraint_body('d')))"},
    {"update a set b = 1 returning with (old as c, new as d) c.b, d.b",
     "returning_clause('with' returning_aliases(returning_alias('old' 'c') returning_alias('new' 'd')) "
     "select_list)"},
    {"alter default privileges grant select on large objects to a",
     "default_privileges_action('select' default_privileges_target('large' 'objects') 'a')"},
    {"vacuum (full) only a (b), c", "vacuum_statement(vacuumed_relations(vacuumed_relation(relation('only' 'a') "
     "parenthesized_names('b')) 'c'))"},
    {"analyze only a", "analyze_statement(relation('only' 'a'))"},
};

inline constexpr SStatementCase kRereadStatements[] = {
    {"select merge_action()", "special_function('merge_action')"},
};

// What these versions refuse.
inline constexpr const char* kNewerRefusals[] = {
    "select system_user()", "create table system_user (a int)", "select merge_action(1)",
    "select xmlserialize(content a as text no)",
    "merge into a using b on c when not matched by source then insert values (1)",
    "merge into a using b on c when not matched by target then delete",
    "merge into a using b on c when matched by source then delete",
    "create rule a as on insert to b do also merge into c using d on e when matched then delete",
    "grant a to b with option", "grant a to b with admin option, inherit",
    "revoke grant admin option for a from b", "reindex table", "reindex table concurrently",
    "create statistics a from t", "create table a (b int storage)",
    "create table a (b int generated always as (c) stored virtual)", "create table a (not null)",
    "create table a (b int, primary key (without overlaps))", "create table a (primary key (b, period c))",
    "create table a (foreign key (b without overlaps) references c)", "alter domain a add not null b",
    "create trigger a before insert on b enforced for each row execute function c()",
    "update a set b = 1 returning with (excluded as c) *", "update a set b = 1 returning with (old c) *",
    "update a set b = 1 returning with (old as c)", "vacuum only",
    "alter default privileges grant a on objects to b",
};
// clang-format on
