/* Cursor variables of PL/pgSQL. */

cursor_variable { NODE(cursor_name); }: qualified_name | T__PARAMETER_NUMBER ;
open_cursor { NODE(open_statement); }
    : T__OPEN cursor_variable (opened_query | cursor_scroll opened_query)?
    | T__OPEN cursor_variable T__LPAREN argument_list T__RPAREN ;
opened_query { NODE(open_statement); }: T__FOR loop_result | T__FOR loop_execute ;
fetch_into { NODE(fetch_statement); }: T__FETCH fetched_cursor into_variables | T__MOVE fetched_cursor ;
fetched_cursor { PART(fetch_statement); }: from_in? cursor_variable | cursor_direction from_in cursor_variable ;
cursor_direction { NODE(fetch_direction); }
    : T__NEXT | T__PRIOR | T__FIRST | T__LAST | T__ALL
    | (T__FORWARD | T__ABSOLUTE | T__RELATIVE)? row_count
    | T__FORWARD T__ALL?
    | T__BACKWARD (T__ALL | row_count)? ;
row_count
    : signed_integer
    | plain_identifier  { NODE(column_name); }
    | parenthesized ;
close_cursor { NODE(close_statement); }: T__CLOSE cursor_variable ;
