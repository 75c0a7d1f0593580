// Statements of every kind beside what their trees hold.
#pragma once

struct SStatementCase
{
    const char* sql;
    const char* pattern; // as CSyntaxTree::Holds takes it
};

// clang-format off
inline constexpr SStatementCase kStatements[] = {
    {"select a, b as c from t where d group by e having f order by g limit 1",
     "select_statement(select_statement(select_list('a' select_item('b' 'c')) from_clause('t') "
     "where_clause('d') group_clause('e') having_clause('f')) sort_clause('g') limit_part('1'))"},
    {"select distinct on (a, b) t.* from t",
     "select_statement(expression_list('a' 'b') select_list('*') from_clause)"},
    {"select 1 from a join b using (c) as d left join e on f cross join g",
     "joined_table(joined_table(joined_table('a' 'b' join_condition('c' 'd')) 'e' join_condition('f')) 'g')"},
    {"select 1 from a natural join b, only c, (d full outer join e on true) as f",
     "from_clause(joined_table('natural') table_reference('only' 'c') joined_table('full') 'f')"},
    {"select 1 from lateral (select 2) b, rows from (f(), g() as (h int)) with ordinality as i (j, k)",
     "from_clause(table_reference('lateral' subquery alias('b')) "
     "table_reference(function_table(rows_from_list(function_call('f') rows_from_item('g' "
     "column_definition('h' 'int'))) 'ordinality') 'i'))"},
    {"select 1 from t tablesample system (5) repeatable (1)",
     "from_clause(tablesample('system' '5' 'repeatable'))"},
    {"select 1 union select 2 intersect select 3 except all values (4), (5)",
     "set_operation(set_operation(select_list('1') 'union' intersect_operation('2' 'intersect' '3')) "
     "'except' values_row('4') values_row('5'))"},
    {"(select 1 union select 2) intersect table t order by 1",
     "select_statement(intersect_operation(subquery('union') table_statement('t')) sort_clause)"},
    {"select a from t order by a using <, b desc nulls last offset 2 rows fetch first 3 rows with ties",
     "select_statement(sort_clause('<' sort_item('b' 'desc' nulls_order('last'))) offset_part('2') "
     "limit_part('fetch' 'ties'))"},
    {"select 1 from t for no key update of t nowait for share skip locked",
     "locking_list(locking_item('key' locked_tables('t') 'nowait') locking_item('share' 'locked'))"},
    {"with a as not materialized (select 1), b (c) as (delete from d returning *) select 2",
     "select_statement(with_clause(common_table('a' cte_body('not' 'materialized' select_statement)) "
     "common_table('b' 'c' cte_body(delete_statement(returning_clause)))) select_statement('2'))"},
    {"with recursive a (b) as (select 1) search depth first by b set c cycle b set d to 1 default 0 using e "
     "table a",
     "common_table(common_table(search_clause('depth' 'b' 'c') cycle_clause('b' 'd' '1' '0' 'e')))"},
    {"select 1 from t group by distinct grouping sets ((a), (b, c), ()), cube (d, e), rollup (f)",
     "group_clause('distinct' group_list(group_item('sets' group_list) group_item('cube' 'e') "
     "group_item('rollup')))"},
    {"select f(a) over w, g(b) over (w rows unbounded preceding) from t window w as (partition by c order by "
     "d range between 1 preceding and 2 following exclude ties)",
     "select_statement(over_clause('w') over_clause(window_definition('w' frame_clause('rows'))) "
     "window_clause(named_window('w' window_partition('c') sort_clause('d') frame_clause(frame_bound('1') "
     "frame_bound('2') frame_exclusion('ties')))))"},
    {"select f(all a, b order by c) filter (where d), g(distinct e), h(variadic i), j(k => 1, l := 2), "
     "count(*)",
     "select_list(function_call('all' argument_list('a' 'b') sort_clause('c') filter_clause('d')) "
     "function_call('distinct' 'e') variadic_argument('i') named_argument('k' '1') named_argument('l' '2') "
     "function_call('count' '*'))"},
    {"select case a when 1 then 2 when 3 then 4 else 5 end, case when b then c end",
     "select_list(case_expression('a' when_part('1' '2') when_part('3' '4') else_part('5')) "
     "case_expression(when_part('b')))"},
    {"select array[[1, 2], [3]], array(select 1), row(), row(1, 2), (3, 4), (select 5), exists (select 6)",
     "select_list(array_constructor(array_items(array_items('1') array_items('3'))) "
     "array_constructor(subquery) row('row') row('2') row('3') subquery('5') exists_condition(subquery))"},
    {"select (a).b[1].c[2:3][:], (f(x)).*, $1.d, e[:]",
     "select_list(indirect_value('b' subscript('1') 'c' subscript('2' ':' '3') subscript(':')) "
     "indirect_value('*'))"},
    {"select cast(a as varchar(10)), b::numeric(3, 1)[], date 'c', interval '1' day to second(2), double "
     "precision 'd'",
     "select_list(cast_expression('a' 'varchar' '10') data_type('numeric' '3' '1' array_bounds) "
     "typed_literal('date') typed_literal(interval_fields('second' '2')) typed_literal('precision'))"},
    {"select extract(year from a), trim(both 'b' from c), substring(d from 1 for 2), position('e' in f), "
     "overlay(g placing h from 3), coalesce(i, j), nullif(k, l), normalize(m, nfkc)",
     "select_list(special_function('extract' 'year' 'a') special_function('trim' 'both' 'c') "
     "special_function('substring') special_function('position' 'f') special_function('placing') "
     "special_function('j') special_function('l') special_function('nfkc'))"},
    {"select xmlelement(name a, xmlattributes(b as c), d), xmlparse(document e), xmlserialize(content f as "
     "text) from xmltable('g' passing h columns i int path 'j', k for ordinality) l",
     "select_statement(special_function(xml_attributes('b' 'c') 'd') special_function('document') "
     "special_function('text') xml_table(xml_passing('h') xml_column_list('i' 'k')))"},
    {"values (1, default), (2, null)", "values_clause(values_row('1' 'default') values_row('2' 'null'))"},
    {"insert into a.b as c (d, e.f, g[1]) overriding user value select 1 on conflict (h, lower(i)) where j "
     "do update set k = excluded.k, (l, m) = row(1, 2) where n returning o as p",
     "insert_statement(table_reference(qualified_sql_identifier('a' 'b') 'c') columns('d' 'e' 'f' 'g' "
     "subscript) 'overriding' select_statement conflict_clause(conflict_target('h' 'lower' "
     "where_clause('j')) "
     "conflict_action(set_item('k') set_item('l' row) where_clause('n'))) returning_clause(select_item('o' "
     "'p')))"},
    {"with a as (select 1) update only t as u set b = default, (c, d[2]) = (select 1, 2) from v, w where "
     "current of x",
     "update_statement(with_clause table_reference('only' 't' 'u') set_item('b' 'default') set_item('c' 'd' "
     "subquery) from_clause('v' 'w') where_clause('x'))"},
    {"delete from t * using u, v where a returning *",
     "delete_statement('t' using_clause('u' 'v') where_clause('a') returning_clause('*'))"},
    {"merge into t using (select 1) u on a when matched and b then update set c = 1 when not matched then "
     "insert (d) values (2) when matched then delete when not matched then do nothing",
     "merge_statement('t' subquery 'u' 'a' merge_when_list(merge_when('b' merge_matched_action('update' "
     "set_item('c'))) merge_when(merge_insert_action('d' merge_values('2'))) merge_when('delete') "
     "merge_when('nothing')))"},
    {"copy t (a, b) from stdin with (format csv, force_not_null (a)) where c > 1",
     "copy_statement('t' columns('a' 'b') 'stdin' option('format' 'csv') "
     "option('force_not_null' 'a') where_clause)"},
    {"explain (costs off, format json) update t set a = 1",
     "explain_statement(option('costs' 'off') option('json') update_statement)"},
    // definitions
    {"create temp table if not exists t (a int primary key, b text collate \"c\" default 'x' not null, check "
     "(a > 0) no inherit, constraint d foreign key (a, b) references e match full on delete set null (a) "
     "deferrable, like f including all, exclude using gist (g with &&) where (h), unique nulls not distinct "
     "(i) include (j) with (k = 1) using index tablespace l) inherits (m)",
     "create_table_statement('temp' create_table_statement('t' table_element_list(column_definition('a' "
     "'int' 'primary') "
     "column_definition('b' column_constraint_list('default' 'null')) table_constraint('check' '0') "
     "table_constraint('d' references_clause('e' 'full') 'deferrable') like_option('all') exclusion('gist' "
     "exclusion_item('g' '&&') 'h') table_constraint('unique' 'i' include_clause('j') 'k' 'l')) "
     "table_option('inherits' 'm')))"},
    {"create table a partition of b (c default 1) for values with (modulus 4, remainder 3) partition by list "
     "(d)",
     "create_table_statement('a' 'b' 'c' partition_bound(hash_bound_list('4' '3')) 'list' 'd')"},
    {"create table a (b int generated by default as identity (start 2), c int generated always as (b * 2) "
     "stored)",
     "table_element_list(column_definition('identity' sequence_option('2')) column_definition(expression('b' "
     "'2') 'stored'))"},
    {"create unlogged table a as select 1 with no data",
     "create_table_statement(create_table_statement('a' as_query(select_statement with_data('no'))))"},
    {"create table a of b (c with options not null)", "create_table_statement('of' 'b' 'c' 'not')"},
    {"alter table if exists only a add column b int, drop c cascade, alter d set not null, alter column e "
     "type int using f, add constraint g check (h), validate constraint i, owner to j",
     "alter_table_statement(table_reference('a') alter_action_list(alter_action(column_definition('b')) "
     "alter_action('c' 'cascade') alter_action('d' column_action) alter_action('e' column_action('int' 'f')) "
     "alter_action(table_constraint('g')) alter_action('validate' 'i') 'j'))"},
    {"alter table a attach partition b for values in (1, 2)",
     "alter_table_statement('attach' 'b' partition_bound('2'))"},
    {"create or replace temp view a (b) with (security_barrier) as select 1 with local check option",
     "create_view_statement('a' 'b' create_view_statement(options select_statement check_option('local')))"},
    {"create materialized view if not exists a as table b",
     "create_materialized_view_statement('a' table_statement('b'))"},
    {"refresh materialized view concurrently a with data", "refresh_statement('a' with_data)"},
    {"create unique index concurrently a on only b using btree ((c + d) collate e f (g = 1) desc nulls "
     "first, h) include (i) with (j = 1) where k",
     "create_index_statement('unique' create_index_statement('a' "
     "create_index_statement(table_reference('b') 'btree' "
     "index_element(expression('+') 'e' 'f' 'g' nulls_order) 'h' index_clause_list('i' 'j' "
     "where_clause('k')))))"},
    {"create type a as (b int, c text collate d)", "create_type_statement('a' column_definition_list('b' 'c' 'd'))"},
    {"create type a as enum ('b', 'c')", "create_type_statement('enum' string_list)"},
    {"alter type a add value if not exists 'b' before 'c'", "alter_type_statement('a' enum_value('before'))"},
    {"alter type a add attribute b int cascade, drop attribute c",
     "alter_type_statement(alter_action('b') alter_action('c'))"},
    {"create domain a as int default 1 constraint b check (value > 0)",
     "create_domain_statement('a' 'int' default_clause('1') column_constraint('b' 'value'))"},
    {"create or replace function a(in b int default 1, out c text, variadic d int[]) returns setof e "
     "language sql stable strict cost 10 set f to g as 'h', 'i'",
     "create_routine_statement('a' parameters(parameter('b' '1') parameter('out' 'c') "
     "parameter('variadic' 'd' array_bounds)) routine_item_list('setof' 'sql' 'stable' 'strict' '10' "
     "setting('f') routine_item))"},
    {"create function a() returns table (b int) begin atomic select 1; update t set c = 1; end",
     "create_routine_statement(column_definition('b') "
     "routine_body(body_pl_sql_statements(delimited_pl_sql_statement(select_statement "
     "pl_sql_statement_delimiter) delimited_pl_sql_statement(update_statement pl_sql_statement_delimiter)) "
     "'end'))"},
    {"alter function a(int, b text) owner to c",
     "alter_routine_statement(routine_signature('a' 'int' 'b' 'text') 'c')"},
    {"create trigger a before insert or update of b, c on d referencing new table as e for each row when (f) "
     "execute function g('h', 1)",
     "create_trigger_statement('a' trigger_event_list('insert' trigger_event('b' 'c')) 'd' "
     "trigger_clause_list(transition_table('e') 'each' 'f') trigger_action('g' argument_list))"},
    {"create constraint trigger a after delete on b from c deferrable initially deferred for each row "
     "execute procedure d()",
     "create_trigger_statement('constraint' 'b' trigger_clause_list('c' 'deferrable' constraint_attribute) "
     "trigger_action('d'))"},
    {"create schema a authorization b create table c (d int) grant select on c to e",
     "create_schema_statement('a' 'b' schema_element_list(create_table_statement('c') grant_statement))"},
    {"create role a with login password 'b' in role c connection limit 3 valid until 'd'",
     "create_role_statement('a' role_option_list('login' 'password' 'c' '3' 'until'))"},
    {"create extension if not exists a with schema b version 'c' cascade",
     "create_extension_statement('a' 'b' 'version' 'cascade')"},
    {"alter extension a update to b to 'c'", "alter_extension_statement('a' 'update' 'b' extension_versions)"},
    {"drop table if exists a, b.c cascade",
     "drop_statement('table' 'exists' 'a' qualified_sql_identifier('b' 'c') 'cascade')"},
    {"drop function a(int, text), b",
     "drop_statement(routine_signature_list(routine_signature('a' 'int' 'text') 'b'))"},
    {"comment on column a.b is 'c'", "comment_statement('column' qualified_sql_identifier('a' 'b') 'is')"},
    {"grant select (a), update on t to public, group b with grant option",
     "grant_statement(privilege_list(privilege('select' 'a') 'update') 't' grantee_list('public' 'b') "
     "'option')"},
    {"grant a, b to c with admin option granted by current_user",
     "grant_statement('a' 'b' 'c' 'admin' granted_by)"},
    {"alter default privileges in schema a grant select on tables to b",
     "alter_default_privileges_statement('a' default_privileges_action('select' 'tables' 'b'))"},
    {"create rule a as on update to b where c do instead (select 1; notify d)",
     "create_rule_statement('a' 'b' where_clause('c') rule_statement_list(select_statement ';' "
     "notify_statement('d')))"},
    {"create policy a on b as restrictive for select to c using (d) with check (e)",
     "create_policy_statement('a' 'b' policy_clause_list('restrictive' 'select' 'c' 'd' 'e'))"},
    {"create aggregate a (int) (sfunc = b, stype = c)",
     "create_aggregate_statement(parameters option('b') 'c')"},
    {"create cast (a as b) with function c(d) as implicit",
     "create_cast_statement('a' 'b' cast_method('c' 'd') cast_context('implicit'))"},
    {"create publication a for table b (c) where (d)",
     "create_publication_statement('a' publication_object('b' 'c' 'd'))"},
    // utilities
    {"begin isolation level serializable, read only",
     "transaction_statement('begin' transaction_mode transaction_mode)"},
    {"set local a.b to 'c', d, 1",
     "set_statement('local' setting(qualified_sql_identifier('a' 'b') setting_value_list('d' '1')))"},
    {"set session characteristics as transaction isolation level read committed",
     "set_statement('characteristics' isolation_level('committed'))"},
    {"do language plpgsql $$begin$$", "do_statement('plpgsql' dollar_string('begin'))"},
    {"call a.b(1, c => 2)",
     "call_statement(function_call(qualified_sql_identifier('a' 'b') named_argument('c' '2')))"},
    {"prepare a (int) as select $1", "prepare_statement('a' 'int' select_statement('$1'))"},
    {"declare a scroll cursor with hold for select 1",
     "declare_cursor_statement('a' 'scroll' hold_option select_statement)"},
    {"lock table a, only b in access exclusive mode nowait",
     "lock_statement('a' table_reference('b') lock_mode('exclusive') 'nowait')"},
    {"truncate only a, b restart identity cascade",
     "truncate_statement(table_reference('a') 'b' identity_restart 'cascade')"},
    {"reindex (verbose) index concurrently a", "reindex_statement('verbose' reindex_statement('a'))"},
};
// clang-format on
