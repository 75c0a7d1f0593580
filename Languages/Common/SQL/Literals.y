/* Literals.
   A dialect defines string_literal and literal_type_name (what may stand before a string besides the types of Types.y), and adds to constant and typed_literal what else it has. */

number: T__INTEGER_NUMBER | T__DECIMAL_NUMBER | T__REAL_NUMBER ;

signed_integer { PART(signed_number); }: (T__PLUS | T__MINUS)? T__INTEGER_NUMBER ;
signed_number { PART; }: T__PLUS? number | T__MINUS number ;

constant: number | string_literal | T__TRUE | T__FALSE | T__NULL | typed_literal ;
typed_literal { NODE; }: constant_type string_literal ;
typed_literal { NODE; }: literal_type string_literal ;
literal_type { NODE(data_type); }: literal_type_name ;
%list string_list: string_literal %short %separator T__COMMA ;
