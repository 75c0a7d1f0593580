/* Cursors. */

declare_cursor
    : T__DECLARE column_name T__CURSOR T__FOR query                             { NODE; }
    | T__DECLARE column_name cursor_options T__CURSOR T__FOR query              { NODE; }
    | T__DECLARE column_name T__CURSOR hold_option T__FOR query                 { NODE; }
    | T__DECLARE column_name cursor_options T__CURSOR hold_option T__FOR query  { NODE; }
    ;
cursor_options
    : cursor_option
    | cursor_options cursor_option                                              { NODE; }
    ;
cursor_option
    : T__NO T__SCROLL                                                           { NODE; }
    | T__SCROLL
    | T__BINARY
    | T__ASENSITIVE
    | T__INSENSITIVE
    ;
hold_option
    : T__WITH T__HOLD                                                           { NODE; }
    | T__WITHOUT T__HOLD                                                        { NODE; }
    ;
fetch_statement
    : T__FETCH fetch_target                                                     { NODE; }
    | T__MOVE fetch_target                                                      { NODE; }
    ;
fetch_target
    : column_name
    | from_in column_name                                                       { NODE; }
    | fetch_direction column_name                                               { NODE; }
    | fetch_direction from_in column_name                                       { NODE; }
    ;
from_in
    : T__FROM
    | T__IN
    ;
fetch_direction
    : T__NEXT
    | T__PRIOR
    | T__FIRST
    | T__LAST
    | T__ABSOLUTE signed_integer                                                { NODE; }
    | T__RELATIVE signed_integer                                                { NODE; }
    | signed_integer
    | T__ALL
    | T__FORWARD
    | T__FORWARD signed_integer                                                 { NODE; }
    | T__FORWARD T__ALL                                                         { NODE; }
    | T__BACKWARD
    | T__BACKWARD signed_integer                                                { NODE; }
    | T__BACKWARD T__ALL                                                        { NODE; }
    ;
close_statement
    : T__CLOSE column_name                                                      { NODE; }
    | T__CLOSE T__ALL                                                           { NODE; }
    ;
