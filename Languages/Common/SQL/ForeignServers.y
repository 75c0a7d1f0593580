/* Servers elsewhere, and the options of what belongs to them. A dialect defines option_name, and adds to generic_option. */

new_server { PART(create_server_statement); }: if_not_exists? server_name ;
generic_options { NODE(options_clause); }: T__OPTIONS T__LPAREN generic_option_list T__RPAREN ;
%list generic_option_list: generic_option %short %separator T__COMMA %node option_list ;
generic_option { NODE(option); }: option_name string_literal ;
