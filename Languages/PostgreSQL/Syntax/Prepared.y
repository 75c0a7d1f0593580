/* EXPLAIN, DO, CALL, prepared statements. */

utility_options
    : T__LPAREN utility_option_list T__RPAREN                                   { NODE; }
    ;
utility_option_list
    : utility_option
    | utility_option_list T__COMMA utility_option                               { NODE; }
    ;
utility_option
    : utility_option_name
    | utility_option_name option_text                                           { NODE; }
    | utility_option_name signed_number                                         { NODE; }
    ;
utility_option_name
    : non_reserved_word
    | T__ANALYZE
    | T__ANALYSE
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
    | declare_cursor
    | create_table
    | create_materialized_view
    | refresh_statement
    | execute_statement
    ;
do_statement
    : T__DO do_items                                                            { NODE; }
    ;
do_items
    : do_item
    | do_items do_item                                                          { NODE; }
    ;
do_item
    : string_literal
    | T__LANGUAGE word_or_string                                                { NODE; }
    ;
call_statement
    : T__CALL function_call                                                     { NODE; }
    ;
prepare_statement
    : T__PREPARE column_name T__AS preparable_statement                           { NODE; }
    | T__PREPARE column_name T__LPAREN type_list T__RPAREN T__AS preparable_statement
      { NODE; }
    ;
execute_statement
    : T__EXECUTE column_name                                                    { NODE; }
    | T__EXECUTE column_name T__LPAREN expression_list T__RPAREN                { NODE; }
    ;
deallocate_statement
    : T__DEALLOCATE column_name                                                 { NODE; }
    | T__DEALLOCATE T__PREPARE column_name                                      { NODE; }
    | T__DEALLOCATE T__ALL                                                      { NODE; }
    | T__DEALLOCATE T__PREPARE T__ALL                                           { NODE; }
    ;
