/* EXPLAIN, DO, CALL, prepared statements. */

utility_options
    : T__LPAREN utility_option_list T__RPAREN                                   { NODE(options); }
    ;
utility_option_list
    : utility_option                                                            { NODE(option_list); }
    | utility_option_list T__COMMA utility_option                               { NODE(option_list); }
    ;
utility_option
    : utility_option_name                                                       { NODE(option); }
    | utility_option_name option_text                                           { NODE(option); }
    | utility_option_name signed_number                                         { NODE(option); }
    ;
utility_option_name
    : non_reserved_word                                                         { NODE(option_name); }
    | T__ANALYZE                                                                { NODE(option_name); }
    | T__ANALYSE                                                                { NODE(option_name); }
    ;
analyze_word
    : T__ANALYZE
    | T__ANALYSE
    ;
explain_statement
    : T__EXPLAIN explained_statement                                            { NODE; }
    | T__EXPLAIN analyze_word explained_statement                               { NODE; }
    | T__EXPLAIN T__VERBOSE explained_statement                                 { NODE; }
    | T__EXPLAIN analyze_word T__VERBOSE explained_statement                    { NODE; }
    | T__EXPLAIN utility_options explained_statement                            { NODE; }
    ;
explained_statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    | merge_statement
    | declare_cursor_statement
    | create_table_statement
    | create_materialized_view_statement
    | refresh_statement
    | execute_statement
    ;
do_statement
    : T__DO do_item_list                                                        { NODE; }
    ;
do_item_list
    : do_item                                                                   { NODE; }
    | do_item_list do_item                                                      { NODE; }
    ;
do_item
    : string_literal
    | quoted_body
    | T__LANGUAGE routine_language                                              { NODE; }
    ;
call_statement
    : T__CALL function_call                                                     { NODE; }
    ;
prepare_statement
    : T__PREPARE statement_name T__AS preparable_statement                      { NODE; }
    | T__PREPARE statement_name T__LPAREN data_type_list T__RPAREN T__AS preparable_statement
      { NODE; }
    ;
execute_statement
    : T__EXECUTE statement_name                                                 { NODE; }
    | T__EXECUTE statement_name T__LPAREN expression_list T__RPAREN             { NODE; }
    ;
deallocate_statement
    : T__DEALLOCATE statement_name                                              { NODE; }
    | T__DEALLOCATE T__PREPARE statement_name                                   { NODE; }
    | T__DEALLOCATE T__ALL                                                      { NODE; }
    | T__DEALLOCATE T__PREPARE T__ALL                                           { NODE; }
    ;
