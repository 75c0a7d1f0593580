/* What PL/pgSQL adds to loops. */

loop_head { NODE(for_head); }
    : T__FOR plain_variable_list T__IN_LA (loop_result | loop_execute) T__LOOP
    | T__FOREACH plain_variable_list (T__SLICE T__INTEGER_NUMBER)? T__IN T__ARRAY expression T__LOOP
          { NODE(foreach_head); }
    | T__FOREACH error T__LOOP  { NODE(foreach_head); } ;
bad_first_part { NODE(loop_statement); }: T__FOREACH error ;
loop_range { NODE; }: expression T__DOT_DOT expression T__BY expression ;
/* A query by its first word, and what other statements return. */
loop_query { PART(insert_statement); }
    : with_clause insert_core
    | with_clause update_core  { NODE(update_statement); }
    | with_clause delete_core  { NODE(delete_statement); }
    | with_clause merge_core  { NODE(merge_statement); } ;
loop_result: preparable_statement | explain_statement | show_statement ;
loop_execute { NODE(execute_statement); }: T__EXECUTE expression using_values? ;
