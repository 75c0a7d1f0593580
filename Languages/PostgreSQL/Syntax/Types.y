/* Types. What stands at the place of a type is a data_type, and the name in it a type_name. */

data_type { PART; }
    : simple_type
    | T__SETOF simple_type
    | T__SETOF? simple_type (T__ARRAY | array_bounds)
    | T__SETOF? simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET ;

array_bounds { NODE; }: array_bounds? T__LBRACKET T__INTEGER_NUMBER? T__RBRACKET ;

simple_type { NODE(data_type); }
    : type_name type_modifiers?
    | constant_type  { PART; }
    | interval_name (precision | interval_fields)? ;

/* Types that may stand before a string without being a name. */
constant_type { NODE(data_type); }
    : fixed_name
    | float_name precision?
    | scaled_name type_modifiers?
    | character_name precision?
    | datetime_name precision? time_zone_part? ;

type_modifiers { NODE; }: T__LPAREN expression_list T__RPAREN ;
precision { NODE(type_modifiers); }: T__LPAREN T__INTEGER_NUMBER T__RPAREN ;

type_name { NODE; }: type_function_name | dotted_type_name ;

/* Types without modifiers. */
fixed_name { NODE(type_name); }
    : T__INT | T__INTEGER | T__SMALLINT | T__BIGINT | T__REAL | T__BOOLEAN
    | T__DOUBLE T__PRECISION
    | T__JSON ;

float_name { NODE(type_name); }: T__FLOAT ;

scaled_name { NODE(type_name); }
    : T__DECIMAL | T__DEC | T__NUMERIC
    | T__BIT T__VARYING? ;

character_name { NODE(type_name); }
    : T__NATIONAL? (T__CHARACTER | T__CHAR) T__VARYING?
    | T__VARCHAR
    | T__NCHAR T__VARYING? ;

datetime_name { NODE(type_name); }: T__TIMESTAMP | T__TIME ;
time_zone_part { NODE; }: (T__WITH_LA | T__WITHOUT) T__TIME T__ZONE ;

interval_name { NODE(type_name); }: T__INTERVAL ;
interval_fields { NODE; }
    : T__YEAR
    | (T__YEAR T__TO)? T__MONTH
    | T__DAY | T__HOUR
    | (T__DAY T__TO)? (T__MINUTE | interval_second)
    | T__DAY T__TO T__HOUR
    | T__HOUR T__TO T__MINUTE
    | (T__HOUR | T__MINUTE) T__TO interval_second ;
interval_second { PART(interval_fields); }: T__SECOND (T__LPAREN T__INTEGER_NUMBER T__RPAREN)? ;
