/* Loops of PL/pgSQL. */

loop_statement { NODE; }: loop_head loop_body? loop_end ;
loop_body { NODE; }: block_statements ;
loop_end { NODE; }: T__END_LA T__LOOP label_name? ;
loop_head { NODE(for_head); }
    : T__LOOP  { NODE; }
    | T__WHILE tested T__LOOP  { NODE(while_head); }
    | T__WHILE error T__LOOP  { NODE(while_head); }
    | T__FOR plain_variable_list T__IN (loop_range | loop_query) T__LOOP
    | T__FOR plain_variable_list T__IN loop_cursor T__LOOP
    | T__FOR plain_variable_list T__IN_LA T__REVERSE loop_range T__LOOP
    | T__FOR plain_variable_list T__IN_LA (loop_result | loop_execute) T__LOOP
    | T__FOR error T__LOOP
    | T__FOREACH plain_variable_list (T__SLICE T__INTEGER_NUMBER)? T__IN T__ARRAY expression T__LOOP
          { NODE(foreach_head); }
    | T__FOREACH error T__LOOP  { NODE(foreach_head); } ;
loop_range { NODE; }: expression T__DOT_DOT expression (T__BY expression)? ;
/* A query by its first word, and what other statements return. */
loop_query { PART(insert_statement); }
    : query
    | with_clause insert_core
    | with_clause update_core  { NODE(update_statement); }
    | with_clause delete_core  { NODE(delete_statement); }
    | with_clause merge_core  { NODE(merge_statement); } ;
loop_result: preparable_statement | explain_statement | show_statement ;
loop_cursor: qualified_name  { NODE(cursor_name); } | function_call ;
loop_execute { NODE(execute_statement); }: T__EXECUTE expression using_values? ;

exit_statement { NODE; }: exit_word label_name? exit_condition? ;
exit_word: T__EXIT | T__CONTINUE ;
exit_condition { NODE(when_clause); }: T__WHEN tested ;
