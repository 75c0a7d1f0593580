/* Loops of PL/pgSQL. */

loop_statement
    : loop_head loop_end                                                        { NODE; }
    | loop_head loop_body loop_end                                              { NODE; }
    ;
loop_body
    : block_statements                                                          { NODE; }
    ;
loop_end
    : T__END_LA T__LOOP                                                         { NODE; }
    | T__END_LA T__LOOP label_name                                              { NODE; }
    ;
loop_head
    : T__LOOP                                                                   { NODE; }
    | T__WHILE tested T__LOOP                                                   { NODE(while_head); }
    | T__WHILE error T__LOOP                                                    { NODE(while_head); }
    | T__FOR plain_variable_list T__IN loop_range T__LOOP                       { NODE(for_head); }
    | T__FOR plain_variable_list T__IN_LA T__REVERSE loop_range T__LOOP         { NODE(for_head); }
    | T__FOR plain_variable_list T__IN loop_query T__LOOP                       { NODE(for_head); }
    | T__FOR plain_variable_list T__IN loop_cursor T__LOOP                      { NODE(for_head); }
    | T__FOR plain_variable_list T__IN_LA loop_result T__LOOP                   { NODE(for_head); }
    | T__FOR plain_variable_list T__IN_LA loop_execute T__LOOP                  { NODE(for_head); }
    | T__FOR error T__LOOP                                                      { NODE(for_head); }
    | T__FOREACH plain_variable_list T__IN T__ARRAY expression T__LOOP          { NODE(foreach_head); }
    | T__FOREACH plain_variable_list T__SLICE T__INTEGER_NUMBER T__IN T__ARRAY expression T__LOOP  { NODE(foreach_head); }
    | T__FOREACH error T__LOOP                                                  { NODE(foreach_head); }
    ;
loop_range
    : expression T__DOT_DOT expression                                          { NODE; }
    | expression T__DOT_DOT expression T__BY expression                         { NODE; }
    ;
/* A query by its first word, and what other statements return. */
loop_query
    : query
    | with_clause insert_core                                                   { NODE(insert_statement); }
    | with_clause update_core                                                   { NODE(update_statement); }
    | with_clause delete_core                                                   { NODE(delete_statement); }
    | with_clause merge_core                                                    { NODE(merge_statement); }
    ;
loop_result
    : preparable_statement
    | explain_statement
    | show_statement
    ;
loop_cursor
    : qualified_name                                                            { NODE(cursor_name); }
    | function_call
    ;
loop_execute
    : T__EXECUTE expression                                                     { NODE(execute_statement); }
    | T__EXECUTE expression using_values                                        { NODE(execute_statement); }
    ;

exit_statement
    : exit_word                                                                 { NODE; }
    | exit_word label_name                                                      { NODE; }
    | exit_word exit_condition                                                  { NODE; }
    | exit_word label_name exit_condition                                       { NODE; }
    ;
exit_word
    : T__EXIT
    | T__CONTINUE
    ;
exit_condition
    : T__WHEN tested                                                            { NODE(when_clause); }
    ;
