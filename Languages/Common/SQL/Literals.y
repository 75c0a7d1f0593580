/* Literals.
   A dialect defines string_literal, and adds to constant and typed_literal what else it has. */

number: T__INTEGER_NUMBER | T__DECIMAL_NUMBER | T__REAL_NUMBER ;

signed_integer { PART(signed_number); }: (T__PLUS | T__MINUS)? T__INTEGER_NUMBER ;
signed_number { PART; }: T__PLUS? number | T__MINUS number ;

constant: number | string_literal | T__TRUE | T__FALSE | T__NULL | typed_literal ;
typed_literal { NODE; }: constant_type string_literal ;
