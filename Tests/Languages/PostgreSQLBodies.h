// Rows for the bodies of routines.
#pragma once

// Statements of a block, and the pattern of their tree.
struct SBlockCase
{
    const char* statements;
    const char* pattern;
};

// clang-format off
constexpr SBlockCase kBlockStatements[] = {
    {"null;", "delimited_pl_sql_statement(pl_sql_statement(null_statement('null')) pl_sql_statement_delimiter(';'))"},
    {"x := y + 1;", "assignment_statement(variable_name('x') ':=' expression(column_name('y') '+' '1'))"},
    {"x = y;", "assignment_statement(variable_name('x') '=' column_name('y'))"},
    {"a[x + 1] := 2;", "assignment_statement(variable_name(subscript('[' expression('x'))))"},
    {"a[1:2] := a;", "assignment_statement(variable_name(subscript('1' ':' '2')))"},
    {"r.f := 2;", "assignment_statement(variable_name(qualified_sql_identifier('r' '.' 'f')))"},
    {"x := count(*) from pg_class where relname = t;", "select_statement(select_list(select_item(function_call('count'))) from_clause where_clause)"},
    {"a := * from t for update;", "assignment_statement(select_statement(select_list(select_item(all_columns('*'))) from_clause 'update'))"},
    {"open := 1; open = open + 1;", "assignment_statement(variable_name(sql_identifier('open')))"},
    {"raise := 'a';", "assignment_statement(variable_name(sql_identifier('raise')))"},
    {"perform g(x), y from t limit 1;", "perform_statement(select_statement(select_list(select_item(function_call) select_item('y')) from_clause limit_clause))"},
    {"call p(x, y);", "call_statement(function_call)"},
    {"return next x;", "return_statement('return' 'next' column_name('x'))"},
    {"return next;", "return_statement('return' 'next')"},
    {"return;", "return_statement('return')"},
    {"return query select 1 union select 2;", "return_statement('query' select_statement(set_operation))"},
    {"return query execute 'select $1' using x, y;", "return_statement('query' 'execute' execute_using_clause(expression_list('x' ',' 'y')))"},
    {"return query insert into t values (1) returning a;", "return_statement(insert_statement(returning_clause))"},
    {"if b then x := 1; end if;", "if_statement(if_branch(if_head('if' condition('b') 'then') body_pl_sql_statements) 'end' 'if')"},
    {"if b then elsif x > 1 then null; elseif y > 1 then null; else null; end if;", "if_statement(if_branch elsif_branch(elsif_head('elsif')) elsif_branch(elsif_head('elseif')) else_branch(null_statement))"},
    {"if (case when b then true else false end) then null; end if;", "if_head(condition(expression(case_expression)))"},
    {"case x when 1, 2 then null; when 3 then x := 1; else null; end case;", "case_statement(case_head('case' 'x') case_when(case_when_head(expression_list('1' ',' '2')) null_statement) case_when else_branch 'end' 'case')"},
    {"case when x > 1 then null; end case;", "case_statement(case_when(case_when_head(expression_list(expression))))"},
    {"loop exit when b; continue when x > 1; exit; end loop;", "loop_statement(loop_head('loop') loop_body(exit_statement(when_clause('when' condition('b'))) exit_statement('continue') exit_statement) loop_end('end' 'loop'))"},
    {"<<l>> loop exit l when b; end loop l;", "body_pl_sql_statements(labeled_pl_sql_statement(pl_sql_statement_label('<<' 'l' '>>') loop_statement(exit_statement(label_name('l') when_clause) loop_end(label_name('l'))) pl_sql_statement_delimiter))"},
    {"<<outer>> while x < 5 loop null; end loop outer;", "loop_statement(while_head('while' condition(expression) 'loop') null_statement)"},
    {"while case when b then true end loop null; end loop;", "while_head(condition(case_expression))"},
    {"for i in 1..10 loop null; end loop;", "for_head('for' variable_list(variable_name('i')) 'in' loop_range('1' '..' '10') 'loop')"},
    {"for i in reverse x + 1 .. 1 by 2 loop null; end loop;", "for_head('reverse' loop_range(expression '..' '1' 'by' '2'))"},
    {"for r in select 1 from t for update loop null; end loop;", "for_head('for' variable_list 'in' select_statement 'loop')"},
    {"for x, y in (select 1, 2) loop null; end loop;", "for_head(variable_list('x' 'y') select_statement(subquery))"},
    {"for r in with w as (select 1) select * from w loop null; end loop;", "for_head(select_statement(with_clause))"},
    {"for r in update t set z = 1 returning * loop null; end loop;", "for_head(update_statement)"},
    {"for r in execute 'select 1' || t using x loop null; end loop;", "for_head(execute_statement(expression execute_using_clause))"},
    {"for r in cur(1) loop null; end loop;", "for_head(function_call)"},
    {"for i in (x)..(y) loop null; end loop;", "for_head(loop_range)"},
    {"foreach x in array a loop null; end loop;", "foreach_head('foreach' variable_list 'in' 'array' column_name('a'))"},
    {"foreach a slice 1 in array array[[1]] loop null; end loop;", "foreach_head('slice' '1' 'in' 'array' array_constructor)"},
    {"raise;", "raise_statement('raise')"},
    {"raise 'plain';", "raise_statement(raise_format)"},
    {"raise notice 'a % and %', x, y + 1;", "raise_statement('notice' raise_format(expression_list(column_name expression)))"},
    {"raise exception 'e' using errcode = '22012', hint := 'h' || t;", "raise_statement(raise_level('exception') raise_format raise_using_clause(option_list(option(option_name('errcode') '=') ',' option(option_name('hint') ':='))))"},
    {"raise exception using message = 'm', column = 'c', table = 't';", "raise_using_clause(option_list(option option('column') option('table')))"},
    {"raise division_by_zero;", "raise_statement(exception_condition(condition_name('division_by_zero')))"},
    {"raise warning sqlstate '22012';", "raise_statement('warning' exception_condition('sqlstate'))"},
    {"raise log $q$a;b$q$;", "raise_format(dollar_string('a;b'))"},
    {"assert x > 0, 'message' || t;", "assert_statement('assert' condition(expression) ',' expression)"},
    {"get diagnostics x = row_count;", "get_diagnostics_statement('get' 'diagnostics' diagnostics_item_list(diagnostics_item(variable_name('x') '=' item_name('row_count'))))"},
    {"get current diagnostics x = row_count, t := pg_context;", "get_diagnostics_statement('current' diagnostics_item_list(diagnostics_item diagnostics_item))"},
    {"begin null; exception when others then get stacked diagnostics t = message_text; end;", "exception_handler(get_diagnostics_statement('stacked'))"},
    {"execute 'select 1';", "execute_statement('execute')"},
    {"execute format($q$select '%s;'$q$, x) into strict x, y using t, 1;", "execute_statement(function_call into_clause('into' 'strict' variable_list) execute_using_clause)"},
    {"execute t using 1 into x;", "execute_statement(execute_using_clause into_clause)"},
    {"open rc;", "open_statement(cursor_name('rc'))"},
    {"open cur(1);", "open_statement(cursor_name('cur') '1')"},
    {"open cur(k := 1);", "open_statement(cursor_name('cur') ':=')"},
    {"open rc no scroll for select 1;", "open_statement(cursor_option('no' 'scroll') 'for' select_statement)"},
    {"open rc for execute 'select 1' using x;", "open_statement('for' execute_statement(execute_using_clause))"},
    {"fetch rc into x;", "fetch_statement(cursor_name('rc') into_clause(variable_list('x')))"},
    {"fetch next from rc into r;", "fetch_statement(fetch_direction('next') 'from' cursor_name)"},
    {"fetch relative -2 from rc into x, y;", "fetch_statement(fetch_direction('relative') into_clause(variable_list))"},
    {"move forward 2 from rc; move last in rc; move rc;", "fetch_statement('move' fetch_direction('forward' '2'))"},
    {"close rc;", "close_statement(cursor_name('rc'))"},
    {"commit; rollback and chain; commit and no chain;", "transaction_statement('rollback' transaction_chain)"},
    {"begin null; end;", "block_statement(block_head('begin') body_pl_sql_statements 'end')"},
    {"<<b1>> declare z int := 1; begin z := 2; end b1;", "labeled_pl_sql_statement(block_statement(block_head(declare_clause) label_name('b1')))"},
    {"begin x := 1; exception when division_by_zero or sqlstate '22012' then raise; when others then null; end;", "block_statement(exception_clause(exception_handler_list(exception_handler(handler_head(exception_condition_list(exception_condition 'or' exception_condition('sqlstate'))) raise_statement) exception_handler)))"},
    {"select 1, 2 into x, y;", "select_statement(select_list into_clause(variable_list))"},
    {"select into strict x z from t;", "select_statement('select' into_clause('strict' variable_list(variable_name('x'))) select_list('z') from_clause)"},
    {"select z into r.f from t;", "select_statement(into_clause(qualified_sql_identifier('r' '.' 'f')) from_clause)"},
    {"select z from t where z = 1 into x;", "select_statement(where_clause into_clause)"},
    {"select z from t order by z limit 1 into x;", "select_statement(sort_clause limit_clause into_clause)"},
    {"select z from t group by z having true into x;", "select_statement(having_clause into_clause)"},
    {"with w as (select 1) select * into r from w;", "select_statement(with_clause into_clause from_clause)"},
    {"insert into t(z) values (x) returning z into strict y;", "insert_statement('into' 'values' returning_clause(into_clause('strict')))"},
    {"update t set z = x where z = y returning z, 1 into x, y;", "update_statement(returning_clause(select_list into_clause))"},
    {"delete from t where z = x returning * into r;", "delete_statement(returning_clause(into_clause))"},
    {"merge into t using s on s.z = t.z when matched then delete;", "merge_statement('merge' 'into')"},
    {"create temp table tt as select 1;", "create_table_statement"},
    {"create function g() returns int as $$ begin return 1; end $$ language plpgsql;", "create_routine_statement(dollar_string)"},
    {"lock table t; notify c; set local work_mem = 1;", "lock_statement"},
    {"x := 1 << 2 >> 1;", "assignment_statement(expression('<<' '>>'))"},
    {"x := a[x:y];", "subscript('x' ':' 'y')"},
    {"/* a /* nested */ one */ x := 1; -- end\n", "assignment_statement"},
    {"if x is null then null; end if; if b and not b then null; end if;", "if_statement(if_head('not'))"},
    {"x := case when b then open else 2 end;", "case_expression('open' else_part)"},
};
// clang-format on

// Declarations of a block, and the pattern of their tree.
struct SDeclarationCase
{
    const char* declaration;
    const char* pattern;
};

// clang-format off
constexpr SDeclarationCase kDeclarations[] = {
    {"x int;", "variable_declaration(variable_name('x') data_type('int'))"},
    {"x constant numeric(3, 1) not null := 1 + 1;", "variable_declaration('constant' data_type 'not' 'null' default_value(':=' expression))"},
    {"x text collate \"C\" default 'a';", "variable_declaration(data_type('text') 'collate' collation_name default_value('default'))"},
    {"x int = (select count(*) from t);", "default_value('=' subquery)"},
    {"x timestamp(3) with time zone;", "data_type(type_name('timestamp') type_modifiers time_zone_part)"},
    {"x int[]; y text array; z int[3][4];", "data_type(array_bounds) data_type('array') data_type(array_bounds)"},
    {"x t.c%type; y t%rowtype; z q%type; w s.t % rowtype;", "data_type(type_name('t' '.' 'c') '%' 'type') data_type(type_name('t') '%' 'rowtype') data_type('type') data_type('rowtype')"},
    {"x record; y refcursor;", "data_type('record') data_type('refcursor')"},
    {"x alias for q;", "alias_declaration(variable_name('x') 'alias' 'for' variable_name('q'))"},
    {"c cursor for select 1;", "cursor_declaration('c' 'cursor' 'for' select_statement)"},
    {"c no scroll cursor (a int, b text) is select a;", "cursor_declaration(cursor_option('scroll') parameters(parameter_list(parameter(parameter_name('a') data_type) parameter)) 'is')"},
    {"c scroll cursor for select 1 for update;", "cursor_declaration('scroll' 'cursor' 'update')"},
    // words of SQL and PL/pgSQL
    {"limit int; user text; table_ int; column text; left int;", "variable_name('limit') variable_name('user') variable_name('column') variable_name('left')"},
    {"alias int; assert int; constant int; exit int; open int; raise int;", "variable_name('alias') variable_name('constant') variable_name('open')"},
    {"loop_ int; query int; notice int; get int; slice int; sqlstate_ int; reverse int;", "variable_name('query') variable_name('notice') variable_name('reverse')"},
};
// clang-format on

// What no block may hold.
constexpr const char* kWrongStatements[] = {
    ";",
    "x 1;",
    "if b x := 1; end if;",
    "if then null; end if;",
    "while b null; end loop;",
    "for in 1..2 loop null; end loop;",
    "for i in 1 loop null; end loop;",
    "for i in 1..2 null; end loop;",
    "case x else null; end case;",
    "exit when;",
    "raise notice;",
    "raise exception 'a' using;",
    "raise exception 'a' 'b';",
    "get diagnostics;",
    "get diagnostics x row_count;",
    "execute;",
    "open;",
    "open rc for;",
    "fetch rc;",
    "fetch next rc into x;",
    "move forward from;",
    "close;",
    "assert;",
    "foreach x array a loop null; end loop;",
    "return query;",
    "select 1 into;",
    "begin null; exception others then null; end;",
    "<<l>> x := 1;",
    "select from where;",
    "end if;",
    "elsif b then null;",
};

enum class enBody
{
    String,
    Block,
    Sql,
};

struct SOpeningCase
{
    const char* statement;
    enBody body;
};

constexpr SOpeningCase kOpenings[] = {
    {"do $$begin null; end$$", enBody::Block},
    {"do $$ begin null; end; $$ language plpgsql", enBody::Block},
    {"do language plpgsql $$begin null; end$$", enBody::Block},
    {"DO LANGUAGE 'plpgsql' $x$DECLARE a int; BEGIN NULL; END;$x$", enBody::Block},
    {"do /* a */ $$ -- b\n /* begin */ begin null; end $$", enBody::Block},
    {"do $$ <<l>> begin null; end l $$", enBody::Block},
    {"do $$ #variable_conflict use_column\n#print_strict_params on\ndeclare begin null; end $$",
     enBody::Block},
    {"create or replace function f(a int default 1) returns int as $$begin return a; end$$ language plpgsql",
     enBody::Block},
    {"create procedure p() language plpgsql security definer as $p$ begin null; end $p$", enBody::Block},
    {"create function f() returns int language sql as $$ select 1; select 2 $$", enBody::Sql},
    {"create function f() returns int as $$ select 1 from t$$ language sql", enBody::Sql},
    {"create function f() returns int as $$ -- a\n insert into t values (1) returning b; $$ language sql",
     enBody::Sql},
    {"create function f() returns int as $$ with a (b) as (select 1) select * from a $$", enBody::Sql},
    {"create function f() returns int as $$ update only s.t x set a = 1; delete from t $$", enBody::Sql},
    {"create function f() returns int as $$ values (1) $$", enBody::Sql},
    {"create function f() returns int as $$ create table t (a int) $$", enBody::Sql},
    {"create function f() returns int as $$lib$$, $$begin x$$ language c", enBody::String},
    {"create function f() returns int as $$ return 1 $$ language plpython3u", enBody::String},
    {"create function f() returns int as $$ with open('a') as f: pass $$ language plpython3u",
     enBody::String},
    {"create function f() returns int as $$ values = [1] $$ language plpython3u", enBody::String},
    {"create function f() returns int as $$ delete x.y; update(z) $$ language plv8", enBody::String},
    {"create function f() returns int as $$ select(STDERR); $$ language plperl", enBody::String},
    {"create function f() returns int as $$ beginning $$ language x", enBody::String},
    {"create function f() returns int as $$ begin; select 1; commit $$", enBody::String},
    {"create function f() returns int as $$ begin transaction; $$", enBody::String},
    {"create function f() returns int as $$ $$ language plpgsql", enBody::String},
    {"create function f() returns int as 'begin return 1; end' language plpgsql", enBody::String},
    {"select $$begin null; end$$ as a", enBody::String},
    {"comment on table t is $$ begin null; end $$", enBody::String},
};
