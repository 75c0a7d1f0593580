/* Cursors. */

declare_cursor_statement
    : T__DECLARE cursor_name T__CURSOR T__FOR query                             { NODE; }
    | T__DECLARE cursor_name cursor_option_list T__CURSOR T__FOR query          { NODE; }
    | T__DECLARE cursor_name T__CURSOR hold_option T__FOR query                 { NODE; }
    | T__DECLARE cursor_name cursor_option_list T__CURSOR hold_option T__FOR query  { NODE; }
    ;
cursor_option_list
    : cursor_option                                                             { NODE; }
    | cursor_option_list cursor_option                                          { NODE; }
    ;
cursor_option
    : T__NO T__SCROLL                                                           { NODE; }
    | T__SCROLL                                                                 { NODE; }
    | T__BINARY                                                                 { NODE; }
    | T__ASENSITIVE                                                             { NODE; }
    | T__INSENSITIVE                                                            { NODE; }
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
    : cursor_name
    | from_in cursor_name                                                       { NODE(fetch_statement); }
    | fetch_direction cursor_name                                               { NODE(fetch_statement); }
    | fetch_direction from_in cursor_name                                       { NODE(fetch_statement); }
    ;
from_in
    : T__FROM
    | T__IN
    ;
fetch_direction
    : T__NEXT                                                                   { NODE; }
    | T__PRIOR                                                                  { NODE; }
    | T__FIRST                                                                  { NODE; }
    | T__LAST                                                                   { NODE; }
    | T__ABSOLUTE signed_integer                                                { NODE; }
    | T__RELATIVE signed_integer                                                { NODE; }
    | signed_integer                                                            { NODE; }
    | T__ALL                                                                    { NODE; }
    | T__FORWARD                                                                { NODE; }
    | T__FORWARD signed_integer                                                 { NODE; }
    | T__FORWARD T__ALL                                                         { NODE; }
    | T__BACKWARD                                                               { NODE; }
    | T__BACKWARD signed_integer                                                { NODE; }
    | T__BACKWARD T__ALL                                                        { NODE; }
    ;
close_statement
    : T__CLOSE cursor_name                                                      { NODE; }
    | T__CLOSE T__ALL                                                           { NODE; }
    ;
