/* Statements of PL/pgSQL: assignment, conditions, results, SQL. */

unlabeled_statement
    : shared_statement | assignment | if_statement | case_statement | exit_statement | routine_return
    | null_statement | perform_statement | execute_string | open_cursor | fetch_into | close_cursor
    | raise_statement | assert_statement | get_diagnostics ;

assignment { NODE(assignment_statement); }: variable assignment_operator value_or_query ;
null_statement { NODE; }: T__NULL ;
perform_statement { NODE; }: T__PERFORM performed_query ;
/* A query without its first word. */
performed_query { NODE(select_statement); }: select_list clauses_after_into? select_tail? ;
execute_string { NODE(execute_statement); }
    : T__EXECUTE expression into_variables? using_values?
    | T__EXECUTE expression using_values into_variables ;
using_values { NODE(execute_using_clause); }: T__USING value_list ;

routine_return { NODE(return_statement); }
    : T__RETURN value?
    | T__RETURN_LA T__NEXT value?
    | T__RETURN_LA T__QUERY preparable_statement
    | T__RETURN_LA T__QUERY T__EXECUTE expression using_values? ;

if_statement { NODE; }: if_parts else_branch? T__END_LA T__IF ;
if_parts { PART(if_statement); }: if_branch | if_parts elsif_branch ;
if_branch { NODE; }: if_head block_statements? ;
if_head { NODE; }: T__IF tested T__THEN | T__IF error T__THEN ;
elsif_branch { NODE; }: elsif_head block_statements? ;
elsif_head { NODE; }
    : T__ELSIF tested T__THEN
    | T__ELSIF error T__THEN
    | T__ELSIF error pl_sql_statement_delimiter ;
else_branch { NODE; }: T__ELSE block_statements? ;

case_statement { NODE; }: case_parts else_branch? T__END_LA T__CASE ;
case_parts { NODE(case_statement); }: case_head case_when | case_parts case_when ;
case_head { NODE; }: T__CASE value? ;
case_when { NODE; }: case_when_head block_statements? ;
case_when_head { NODE; }
    : T__WHEN value_list T__THEN
    | T__WHEN error T__THEN
    | T__WHEN error pl_sql_statement_delimiter ;
