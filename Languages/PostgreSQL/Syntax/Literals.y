/* Strings, and literals of types by any name. */

string_literal: T__STRING | T__ESCAPE_STRING | T__UNICODE_STRING | T__CLIENT_STRING | dollar_string ;

dollar_string { NODE; }: T__DOLLAR_QUOTE_BEGIN dollar_text? T__DOLLAR_QUOTE_END ;
dollar_text { NODE; }: dollar_text? T__DOLLAR_QUOTED_TEXT ;

constant: T__BIT_STRING | T__HEX_STRING | T__NATIONAL_STRING ;
typed_literal { NODE; }: called_type string_literal ;

/* A type by its name. With modifiers it looks like a call of a function up to the string. */
literal_type_name { NODE(type_name); }: type_function_name | dotted_name ;
called_type { NODE(data_type); }: function_name T__LPAREN argument_list T__RPAREN ;
