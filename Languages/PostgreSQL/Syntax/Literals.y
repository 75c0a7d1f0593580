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
    : T__DOLLAR_QUOTED_TEXT
    | dollar_text T__DOLLAR_QUOTED_TEXT                                         { NODE; }
    ;

number
    : T__INTEGER_NUMBER
    | T__DECIMAL_NUMBER
    | T__REAL_NUMBER
    ;

signed_integer
    : T__INTEGER_NUMBER
    | T__PLUS T__INTEGER_NUMBER                                                 { NODE; }
    | T__MINUS T__INTEGER_NUMBER                                                { NODE; }
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
    | function_name string_literal                                              { NODE(typed_literal); }
    | function_name T__LPAREN function_arguments T__RPAREN string_literal       { NODE(typed_literal); }
    | function_name T__LPAREN function_arguments sort_clause T__RPAREN string_literal
      { NODE(typed_literal); }
    | constant_type string_literal                                              { NODE(typed_literal); }
    | T__INTERVAL string_literal                                                { NODE(typed_literal); }
    | T__INTERVAL string_literal interval_fields                                { NODE(typed_literal); }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { NODE(typed_literal); }
    ;
