/* Arrays, sets, and types with words of their own. */

data_type { PART; }
    : T__SETOF simple_type
    | T__SETOF? simple_type (T__ARRAY | array_bounds)
    | T__SETOF? simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET ;

array_bounds { NODE; }: array_bounds? T__LBRACKET T__INTEGER_NUMBER? T__RBRACKET ;

fixed_name { NODE(type_name); }: T__JSON ;
scaled_name { NODE(type_name); }: T__BIT T__VARYING? ;
