/* COPY. */

copy_statement { NODE; }
    : T__COPY copied_table copy_direction copy_place copy_clauses?
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place copy_clauses? ;
copied_table { PART(copy_statement); }: T__BINARY? table_name columns? ;
copy_direction: T__FROM | T__TO ;
copy_place { NODE; }
    : T__PROGRAM? string_literal
    | T__STDIN | T__STDOUT ;
copy_clauses { PART(copy_statement); }
    : copy_delimiters copy_with? where_clause?
    | copy_with
    | copy_with? where_clause ;
copy_delimiters { NODE(copy_statement); }: T__USING? T__DELIMITERS string_literal ;
copy_with { NODE(copy_statement); }: copy_options  { PART; } | T__WITH copy_options? ;
copy_options { PART(copy_statement); }: copy_option_list | T__LPAREN copy_generic_list T__RPAREN ;
%list copy_option_list: copy_option %short ;
copy_option { NODE; }
    : T__BINARY | T__FREEZE
    | (T__DELIMITER | T__NULL | T__QUOTE | T__ESCAPE) T__AS? string_literal
    | T__CSV | T__HEADER
    | T__FORCE T__QUOTE (column_name_list | T__ASTERISK)
    | T__FORCE T__NOT? T__NULL (column_name_list | T__ASTERISK)
    | T__ENCODING string_literal ;
%list copy_generic_list: copy_generic_option %short %separator T__COMMA %node option_list ;
copy_generic_option { NODE(option); }: option_name copy_generic_value? ;
copy_generic_value { PART(option_values); }
    : option_text | signed_number | T__ASTERISK
    | T__LPAREN option_value_list T__RPAREN ;
%list option_value_list: option_text %short %separator T__COMMA ;
