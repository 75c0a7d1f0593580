/* Cursor variables of PL/pgSQL. */

cursor_variable
    : qualified_name                                                            { NODE(cursor_name); }
    | T__PARAMETER_NUMBER                                                       { NODE(cursor_name); }
    ;
open_cursor
    : T__OPEN cursor_variable                                                   { NODE(open_statement); }
    | T__OPEN cursor_variable T__LPAREN argument_list T__RPAREN                 { NODE(open_statement); }
    | T__OPEN cursor_variable opened_query                                      { NODE(open_statement); }
    | T__OPEN cursor_variable cursor_scroll opened_query                        { NODE(open_statement); }
    ;
opened_query
    : T__FOR loop_result                                                        { NODE(open_statement); }
    | T__FOR loop_execute                                                       { NODE(open_statement); }
    ;
fetch_into
    : T__FETCH fetched_cursor into_variables                                    { NODE(fetch_statement); }
    | T__MOVE fetched_cursor                                                    { NODE(fetch_statement); }
    ;
fetched_cursor
    : cursor_variable
    | from_in cursor_variable                                                   { NODE(fetch_statement); }
    | cursor_direction from_in cursor_variable                                  { NODE(fetch_statement); }
    ;
cursor_direction
    : T__NEXT                                                                   { NODE(fetch_direction); }
    | T__PRIOR                                                                  { NODE(fetch_direction); }
    | T__FIRST                                                                  { NODE(fetch_direction); }
    | T__LAST                                                                   { NODE(fetch_direction); }
    | T__ALL                                                                    { NODE(fetch_direction); }
    | row_count                                                                 { NODE(fetch_direction); }
    | T__ABSOLUTE row_count                                                     { NODE(fetch_direction); }
    | T__RELATIVE row_count                                                     { NODE(fetch_direction); }
    | T__FORWARD                                                                { NODE(fetch_direction); }
    | T__FORWARD row_count                                                      { NODE(fetch_direction); }
    | T__FORWARD T__ALL                                                         { NODE(fetch_direction); }
    | T__BACKWARD                                                               { NODE(fetch_direction); }
    | T__BACKWARD row_count                                                     { NODE(fetch_direction); }
    | T__BACKWARD T__ALL                                                        { NODE(fetch_direction); }
    ;
row_count
    : signed_integer
    | plain_identifier                                                          { NODE(column_name); }
    | parenthesized
    ;
close_cursor
    : T__CLOSE cursor_variable                                                  { NODE(close_statement); }
    ;
