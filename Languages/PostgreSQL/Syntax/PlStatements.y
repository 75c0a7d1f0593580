/* Statements of PL/pgSQL: assignment, conditions, results, SQL. */

unlabeled_statement
    : shared_statement
    | assignment
    | if_statement
    | case_statement
    | exit_statement
    | routine_return
    | null_statement
    | perform_statement
    | execute_string
    | open_cursor
    | fetch_into
    | close_cursor
    | raise_statement
    | assert_statement
    | get_diagnostics
    ;

assignment
    : variable assignment_operator value_or_query                               { NODE(assignment_statement); }
    ;
null_statement
    : T__NULL                                                                   { NODE; }
    ;
perform_statement
    : T__PERFORM performed_query                                                { NODE; }
    ;
/* A query without its first word. */
performed_query
    : select_list                                                               { NODE(select_statement); }
    | select_list clauses_from_from                                             { NODE(select_statement); }
    | select_list select_tail                                                   { NODE(select_statement); }
    | select_list clauses_from_from select_tail                                 { NODE(select_statement); }
    ;
execute_string
    : T__EXECUTE expression                                                     { NODE(execute_statement); }
    | T__EXECUTE expression into_variables                                      { NODE(execute_statement); }
    | T__EXECUTE expression using_values                                        { NODE(execute_statement); }
    | T__EXECUTE expression into_variables using_values                         { NODE(execute_statement); }
    | T__EXECUTE expression using_values into_variables                         { NODE(execute_statement); }
    ;
using_values
    : T__USING value_list                                                       { NODE(execute_using_clause); }
    ;

routine_return
    : T__RETURN                                                                 { NODE(return_statement); }
    | T__RETURN value                                                           { NODE(return_statement); }
    | T__RETURN_LA T__NEXT                                                      { NODE(return_statement); }
    | T__RETURN_LA T__NEXT value                                                { NODE(return_statement); }
    | T__RETURN_LA T__QUERY preparable_statement                                { NODE(return_statement); }
    | T__RETURN_LA T__QUERY T__EXECUTE expression                               { NODE(return_statement); }
    | T__RETURN_LA T__QUERY T__EXECUTE expression using_values                  { NODE(return_statement); }
    ;

if_statement
    : if_parts T__END_LA T__IF                                                  { NODE; }
    | if_parts else_branch T__END_LA T__IF                                      { NODE; }
    ;
if_parts
    : if_branch
    | if_parts elsif_branch                                                     { NODE(if_statement); }
    ;
if_branch
    : if_head                                                                   { NODE; }
    | if_head block_statements                                                  { NODE; }
    ;
if_head
    : T__IF tested T__THEN                                                      { NODE; }
    | T__IF error T__THEN                                                       { NODE; }
    ;
elsif_branch
    : elsif_head                                                                { NODE; }
    | elsif_head block_statements                                               { NODE; }
    ;
elsif_head
    : T__ELSIF tested T__THEN                                                   { NODE; }
    | T__ELSIF error T__THEN                                                    { NODE; }
    | T__ELSIF error pl_sql_statement_delimiter                                 { NODE; }
    ;
else_branch
    : T__ELSE                                                                   { NODE; }
    | T__ELSE block_statements                                                  { NODE; }
    ;

case_statement
    : case_parts T__END_LA T__CASE                                              { NODE; }
    | case_parts else_branch T__END_LA T__CASE                                  { NODE; }
    ;
case_parts
    : case_head case_when                                                       { NODE(case_statement); }
    | case_parts case_when                                                      { NODE(case_statement); }
    ;
case_head
    : T__CASE                                                                   { NODE; }
    | T__CASE value                                                             { NODE; }
    ;
case_when
    : case_when_head                                                            { NODE; }
    | case_when_head block_statements                                           { NODE; }
    ;
case_when_head
    : T__WHEN value_list T__THEN                                                { NODE; }
    | T__WHEN error T__THEN                                                     { NODE; }
    | T__WHEN error pl_sql_statement_delimiter                                  { NODE; }
    ;
