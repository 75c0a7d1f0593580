// Statements that PostgreSQL 16 to 18 brought, beside what their trees hold. The judge is of version 15: it refuses
// the ones of kNewerStatements, and takes those of kRereadStatements for something else.
#pragma once

#include "Tests/Languages/PostgreSQLStatements.h"

// clang-format off
inline constexpr SStatementCase kNewerStatements[] = {
    // 16
    {"select json_object('a' value b, 'c': d format json absent on null with unique keys returning jsonb)",
     "special_function(sql_identifier('json_object') json_pair_list(json_pair('value' 'b') json_pair(':' "
     "json_operand('d' json_format))) json_options(json_nulls('absent') "
     "json_options(json_unique_keys('keys') "
     "json_returning('jsonb'))))"},
    {"select json_object('a':'b', 'c':d.e + f(g), h:i)",
     "json_pair_list(json_pair(':') json_pair(expression('d' 'e' '+' function_call('f'))) "
     "json_pair('h' ':i'))"},
    {"select json_array(a, b format json encoding utf8 null on null returning text)",
     "special_function('json_array' json_operand_list('a' json_operand('b' json_format('encoding' 'utf8'))) "
     "json_options(json_nulls json_returning('text')))"},
    {"select json_array(select a from t union select 1 order by 1 returning jsonb), json_array(returning text)",
     "select_list(special_function(select_statement(set_operation sort_clause) json_returning('jsonb')) "
     "special_function('json_array' json_returning('text')))"},
    {"select json_objectagg(a value b with unique) filter (where c) over w, json_arrayagg(d order by e desc "
     "absent on null returning jsonb) from t",
     "select_list(expression(json_aggregate(json_pair('a' 'b') json_unique_keys('with' 'unique')) "
     "filter_clause('c') over_clause('w')) json_aggregate('d' sort_clause('desc') json_options(json_nulls "
     "json_returning)))"},
    {"select a is json, b is not json object with unique keys, c is json value d, e is json without unique f",
     "select_list(expression('a' 'is' 'json') expression('b' 'not' json_kind('object') json_unique_keys) "
     "select_item(expression(json_kind('value')) sql_identifier('d')) "
     "select_item(expression(json_unique_keys('without' 'unique')) sql_identifier('f')))"},
    {"create view a as select b is json with check option",
     "create_view_statement(expression('b' 'is' 'json') check_option('with' 'check'))"},
    {"select system_user, xmlserialize(content a as text no indent), 1_000 + 0x1f",
     "select_list('system_user' special_function('content' xml_indent('no')) expression('1_000' '0x1f'))"},
    {"select 1 from (select 2), (values (3)) where true",
     "from_list(subquery('2') subquery('3'))"},
    {"grant a to b with inherit true, admin option, set false granted by c",
     "grant_statement(membership_option_list(membership_option('inherit' 'true') membership_option('admin' "
     "'option') "
     "membership_option('set')) granted_by('c'))"},
    {"revoke inherit option for a from b cascade",
     "revoke_statement(revoke_statement('inherit' 'option' 'for' 'a' 'b') 'cascade')"},
    {"create table a (b text storage external compression lz4 not null)",
     "column_definition('b' column_storage('external') column_compression('lz4') "
     "column_constraint('not'))"},
    {"reindex (verbose) database concurrently", "reindex_statement('verbose' reindex_statement('database'))"},
    {"create statistics on a, b from t", "create_statistics_statement(statistics_column_list('a' 'b') from_clause('t'))"},
    // 17
    {"select json_value(a, '$.b' passing 1 as x, c format json as y returning int default -1 on empty error on "
     "error)",
     "special_function('json_value' 'a' json_clauses(json_passing(json_argument('1' 'x') "
     "json_argument(json_operand('c') 'y')) json_clauses(json_returning('int') "
     "json_clauses(json_on_empty(json_fallback('default' expression)) json_on_error('error')))))"},
    {"select json_query(a, '$' returning timestamp without time zone without array wrapper omit quotes on scalar "
     "string empty object on error)",
     "json_clauses(json_returning(data_type(time_zone_part)) json_clauses(json_wrapper('without' 'array') "
     "json_clauses(json_quotes('omit' 'string') json_on_error(json_fallback('empty' 'object')))))"},
    {"select json_query(a, '$' with unconditional array wrapper), json(b with unique keys)",
     "select_list(json_wrapper(json_wrapper_kind('unconditional' 'array')) special_function('json' 'b' "
     "json_unique_keys))"},
    {"select 1 from t where json_exists(a, '$.b' unknown on error) and json_exists(c, 'd' passing e as f)",
     "where_clause(special_function(json_on_error('unknown')) special_function(json_passing('e' 'f')))"},
    {"select 1 from json_table(a, '$[*]' as b passing c as d columns (e for ordinality, f int path '$.f' null on "
     "empty, g bool exists path '$.g', nested path '$.h' as i columns (j text format json)) empty on error) "
     "as k, "
     "lateral json_table(l, '$' columns (nested int, nested 'x' columns (path path path '$'))) m",
     "from_list(table_reference(json_table(json_table_source('a' json_table_path('b') "
     "json_passing('c' 'd')) json_columns(json_column('e' 'ordinality') json_column('f' 'int' json_path "
     "json_on_empty) json_column('g' 'exists' json_path) json_column('nested' json_path 'i' "
     "json_columns(json_column('j' json_format)))) json_on_error('empty')) alias('k')) "
     "table_reference('lateral' json_table(json_column(sql_identifier('nested') 'int') json_column('nested' "
     "json_columns(json_column(sql_identifier sql_identifier json_path)))) alias('m')))"},
    {"select a at local, b at time zone c at local",
     "select_list(expression('a' 'at' 'local') expression(expression('zone') 'local'))"},
    {"merge into a using b on c when not matched by source and d then delete when not matched by target then insert "
     "(e) values (1) when not matched by source then do nothing returning merge_action(), a.*",
     "merge_statement(merge_when_list(merge_when('source' 'd' 'delete') merge_when('target' "
     "merge_insert_action) "
     "merge_when('source' merge_matched_action('nothing'))) "
     "returning_clause(special_function('merge_action') "
     "'*'))"},
    {"with a as (merge into b using c on d when matched then delete returning b.e) table a",
     "common_table(cte_body(merge_statement(returning_clause)))"},
    {"copy a from 'b' force not null * force null *", "copy_option_list(copy_option('not' '*') copy_option('*'))"},
    {"alter table a alter b set expression as (c + 1), alter d set statistics default, set access method default, "
     "alter e set storage default",
     "alter_action_list(alter_action(column_action('expression' 'c')) "
     "alter_action(column_action('statistics' "
     "'default')) alter_action('method' 'default') column_action('storage' 'default'))"},
    {"alter operator + (a, b) set (commutator = -, hashes, merges)",
     "option_list(option('-') 'hashes' 'merges')"},
    {"alter domain a add constraint b not null",
     "alter_domain_statement('a' table_constraint('b' 'not' 'null'))"},
    // 18
    {"create table a (b int generated always as (c) virtual, d int generated always as (e), f int not null no "
     "inherit references g not enforced check (h) enforced)",
     "table_element_list(column_constraint('c' 'virtual') column_constraint('e') column_constraint_list("
     "column_constraint('null' 'no' 'inherit') references_clause('g') constraint_attribute('not' 'enforced') "
     "column_constraint('h') 'enforced'))"},
    {"create table a (b int, constraint c not null b no inherit not valid, not null d, primary key (e, f without "
     "overlaps), unique (g without overlaps) with (h = 1), foreign key (i, period j) references k (l, "
     "period m) not "
     "enforced)",
     "table_element_list(table_constraint('c' table_constraint('b' constraint_attribute_list)) "
     "table_constraint('d') table_constraint('primary' columns(key_column_list('e' "
     "key_column('f' 'overlaps')))) table_constraint(key_column('g') index_parameters('h')) "
     "table_constraint(key_column_list('i' key_column('period' 'j')) references_clause('k' "
     "key_column_list('l' "
     "key_column('m'))) constraint_attribute))"},
    {"alter table a alter constraint b inherit, alter constraint c not enforced, add not null d",
     "alter_action_list(alter_action('b' 'inherit') alter_action('c' constraint_attribute) "
     "alter_action(table_constraint('d')))"},
    {"update a set b = 1 returning with (old as c, new as d) c.b, d.b",
     "returning_clause('with' returning_alias_list(returning_alias('old' 'c') returning_alias('new' 'd')) "
     "select_list)"},
    {"alter default privileges grant select on large objects to a",
     "default_privileges_action('select' default_privileges_target('large' 'objects') 'a')"},
    {"vacuum (full) only a (b), c", "vacuum_statement(vacuumed_table_list(vacuumed_table(table_reference('only' 'a') "
     "columns('b')) 'c'))"},
    {"analyze only a", "analyze_statement(table_reference('only' 'a'))"},
};

inline constexpr SStatementCase kRereadStatements[] = {
    {"select json_array(), json_array(1, a), json_arrayagg(b), json_scalar(c), json_serialize(d), json_value(e, 'f')",
     "select_list(special_function('json_array') special_function(json_operand_list('1' 'a')) "
     "json_aggregate('b') "
     "special_function('json_scalar') special_function('json_serialize') special_function('json_value' "
     "'e'))"},
    {"select json(a), json '{}', b::json, json.c from json",
     "select_list(special_function('json' 'a') typed_literal('json') "
     "expression('json') qualified_sql_identifier('json' 'c'))"},
    {"select 1 from json_scalar(1), xmltable('a' passing b columns c int path 'd')",
     "from_list(special_function('json_scalar') xml_column_option(sql_identifier('path')))"},
    {"select merge_action()", "special_function('merge_action')"},
};

// What these versions refuse.
inline constexpr const char* kNewerRefusals[] = {
    "select json_object('a' value)", "select json_object('a': 1, 'b')",
    "select json_object('a': 1 with unique keys null on null)",
    "select json_array(1 null on null null on null)",
    "select json_value(a)", "select json_value(a, '$' with wrapper)",
    "select json_exists(a, '$' true on empty)", "select json_query(a, '$' returning text with array)",
    "select json_query(a, '$' error on error error on empty)", "select json_arrayagg(a, b)",
    "select json_array(1) filter (where a)", "select json_table(a, '$' columns (b int))",
    "select 1 from json_table(a, '$')", "select 1 from json_table(a, '$' columns ())",
    "select 1 from json_table(a, '$' columns (nested path '$'))", "select a is json keys unique",
    "select system_user()", "create table system_user (a int)", "select merge_action(1)",
    "create function json_array() returns int return 1", "select xmlserialize(content a as text no)",
    "select json(3) '1'", "create table a (b json(3))",
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
