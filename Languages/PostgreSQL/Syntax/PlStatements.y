/* Which statements PL/pgSQL has, and what others lack: results, SQL as a string. */

unlabeled_statement
    : shared_statement | assignment | if_statement | case_statement | exit_statement | routine_return
    | null_statement | perform_statement | execute_string | open_cursor | fetch_into | close_cursor
    | raise_statement | assert_statement | get_diagnostics ;

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
