/* Literals. */

string_literal
    : T__STRING
    | T__ESCAPE_STRING
    | T__UNICODE_STRING
    | T__CLIENT_STRING
    | dollar_string
    ;

dollar_string
    : T__DOLLAR_QUOTE_BEGIN T__DOLLAR_QUOTE_END                                 { NODE; }
    | T__DOLLAR_QUOTE_BEGIN dollar_text T__DOLLAR_QUOTE_END                     { NODE; }
    ;
dollar_text
    : T__DOLLAR_QUOTED_TEXT                                                     { NODE; }
    | dollar_text T__DOLLAR_QUOTED_TEXT                                         { NODE; }
    ;

number
    : T__INTEGER_NUMBER
    | T__DECIMAL_NUMBER
    | T__REAL_NUMBER
    ;

signed_integer
    : T__INTEGER_NUMBER
    | T__PLUS T__INTEGER_NUMBER                                                 { NODE(signed_number); }
    | T__MINUS T__INTEGER_NUMBER                                                { NODE(signed_number); }
    ;

signed_number
    : number
    | T__PLUS number                                                            { NODE; }
    | T__MINUS number                                                           { NODE; }
    ;

constant
    : number
    | string_literal
    | T__BIT_STRING
    | T__HEX_STRING
    | T__NATIONAL_STRING
    | T__TRUE
    | T__FALSE
    | T__NULL
    | typed_literal
    ;
typed_literal
    : literal_type string_literal                                               { NODE; }
    | called_type string_literal                                                { NODE; }
    | constant_type string_literal                                              { NODE; }
    | interval_literal_type string_literal                                      { NODE; }
    | interval_literal_type string_literal interval_fields                      { NODE; }
    ;

/* A type by its name. With modifiers it looks like a call of a function up to the string. */
literal_type
    : literal_type_name                                                         { NODE(data_type); }
    ;
literal_type_name
    : type_function_name                                                        { NODE(type_name); }
    | dotted_name                                                               { NODE(type_name); }
    ;
called_type
    : function_name T__LPAREN argument_list T__RPAREN                           { NODE(data_type); }
    ;
interval_literal_type
    : interval_name                                                             { NODE(data_type); }
    | interval_name precision                                                   { NODE(data_type); }
    ;
