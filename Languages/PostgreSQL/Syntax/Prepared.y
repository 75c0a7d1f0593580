/* EXPLAIN, DO, prepared statements. */

utility_options { NODE(options); }: T__LPAREN utility_option_list T__RPAREN ;
%list utility_option_list: utility_option %short %separator T__COMMA %node option_list ;
utility_option { NODE(option); }: utility_option_name (option_text | signed_number)? ;
utility_option_name { NODE(option_name); }: non_reserved_word | T__ANALYZE | T__ANALYSE ;
analyze_word: T__ANALYZE | T__ANALYSE ;
explain_statement { NODE; }
    : T__EXPLAIN analyze_word? T__VERBOSE? explained_statement
    | T__EXPLAIN utility_options explained_statement ;
explained_statement
    : query | insert_statement | update_statement | delete_statement | merge_statement
    | declare_cursor_statement | create_table_statement | create_materialized_view_statement
    | refresh_statement | execute_statement ;
do_statement { NODE; }: T__DO do_item_list ;
%list do_item_list: do_item %short ;
do_item { PART; }
    : string_literal | quoted_body
    | T__LANGUAGE routine_language ;
prepare_statement { NODE; }
    : T__PREPARE statement_name (T__LPAREN data_type_list T__RPAREN)? T__AS preparable_statement ;
execute_statement { NODE; }: T__EXECUTE statement_name T__LPAREN expression_list T__RPAREN ;
deallocate_statement { NODE; }: T__DEALLOCATE statement_name | T__DEALLOCATE T__PREPARE? T__ALL ;
