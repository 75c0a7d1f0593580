/* Types. What stands at the place of a type is a data_type, and the name in it a type_name. Types of one word that
   no other word follows need no rule here: their names are names.
   A dialect adds to data_type what may stand around a type, and to the names below types of several words. */

data_type { PART; }: simple_type ;

simple_type { NODE(data_type); }
    : type_name type_modifiers?
    | constant_type  { PART; } ;

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
    | T__DOUBLE T__PRECISION ;

float_name { NODE(type_name); }: T__FLOAT ;

scaled_name { NODE(type_name); }: T__DECIMAL | T__DEC | T__NUMERIC ;

character_name { NODE(type_name); }
    : T__NATIONAL? (T__CHARACTER | T__CHAR) T__VARYING?
    | T__VARCHAR
    | T__NCHAR T__VARYING? ;

datetime_name { NODE(type_name); }: T__TIMESTAMP | T__TIME ;
time_zone_part { NODE; }: (T__WITH_LA | T__WITHOUT) T__TIME T__ZONE ;
