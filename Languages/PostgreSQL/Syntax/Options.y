/* Options in brackets. */

options { NODE; }: T__LPAREN option_list T__RPAREN ;
%list option_list: relation_option %short %separator T__COMMA ;
relation_option { NODE(option); }: qualified_option_name (T__EQUAL definition_value)? ;
option_name { NODE; }: any_label ;
qualified_option_name { NODE(option_name); }: any_label | dotted_option_name ;
dotted_option_name { NODE(qualified_sql_identifier); }: any_label T__DOT any_label ;

definitions { NODE(options); }: T__LPAREN definition_list T__RPAREN ;
%list definition_list: definition_item %short %separator T__COMMA %node option_list ;
definition_item { NODE(option); }: option_name (T__EQUAL definition_value)? ;
definition_value { PART; }
    : function_type | reserved_keyword | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN
    | signed_number | string_literal | T__NONE ;

