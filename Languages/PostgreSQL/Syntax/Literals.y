/* Literals. */

string_literal: T__STRING | T__ESCAPE_STRING | T__UNICODE_STRING | T__CLIENT_STRING | dollar_string ;

dollar_string { NODE; }: T__DOLLAR_QUOTE_BEGIN dollar_text? T__DOLLAR_QUOTE_END ;
dollar_text { NODE; }: dollar_text? T__DOLLAR_QUOTED_TEXT ;

number: T__INTEGER_NUMBER | T__DECIMAL_NUMBER | T__REAL_NUMBER ;

signed_integer { PART(signed_number); }: (T__PLUS | T__MINUS)? T__INTEGER_NUMBER ;

signed_number { PART; }: T__PLUS? number | T__MINUS number ;

constant
    : number | string_literal | T__BIT_STRING | T__HEX_STRING | T__NATIONAL_STRING | T__TRUE | T__FALSE
    | T__NULL | typed_literal ;
typed_literal { NODE; }
    : literal_type string_literal
    | called_type string_literal
    | constant_type string_literal
    | interval_literal_type string_literal interval_fields? ;

/* A type by its name. With modifiers it looks like a call of a function up to the string. */
literal_type { NODE(data_type); }: literal_type_name ;
literal_type_name { NODE(type_name); }: type_function_name | dotted_name ;
called_type { NODE(data_type); }: function_name T__LPAREN argument_list T__RPAREN ;
interval_literal_type { NODE(data_type); }: interval_name precision? ;
