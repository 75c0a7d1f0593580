/* Types. What stands at the place of a type is a data_type, and the name in it a type_name. */

data_type
    : simple_type
    | simple_type array_bounds                                                  { NODE; }
    | T__SETOF simple_type                                                      { NODE; }
    | T__SETOF simple_type array_bounds                                         { NODE; }
    | simple_type T__ARRAY                                                      { NODE; }
    | T__SETOF simple_type T__ARRAY                                             { NODE; }
    | simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET            { NODE; }
    | T__SETOF simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET   { NODE; }
    ;

array_bounds
    : T__LBRACKET T__RBRACKET                                                   { NODE; }
    | T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                                 { NODE; }
    | array_bounds T__LBRACKET T__RBRACKET                                      { NODE; }
    | array_bounds T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                    { NODE; }
    ;

simple_type
    : type_name                                                                 { NODE(data_type); }
    | type_name type_modifiers                                                  { NODE(data_type); }
    | constant_type
    | interval_name                                                             { NODE(data_type); }
    | interval_name interval_fields                                             { NODE(data_type); }
    | interval_name precision                                                   { NODE(data_type); }
    ;

/* Types that may stand before a string without being a name. */
constant_type
    : fixed_name                                                                { NODE(data_type); }
    | float_name                                                                { NODE(data_type); }
    | float_name precision                                                      { NODE(data_type); }
    | scaled_name                                                               { NODE(data_type); }
    | scaled_name type_modifiers                                                { NODE(data_type); }
    | character_name                                                            { NODE(data_type); }
    | character_name precision                                                  { NODE(data_type); }
    | datetime_name                                                             { NODE(data_type); }
    | datetime_name time_zone_part                                              { NODE(data_type); }
    | datetime_name precision                                                   { NODE(data_type); }
    | datetime_name precision time_zone_part                                    { NODE(data_type); }
    ;

type_modifiers
    : T__LPAREN expression_list T__RPAREN                                       { NODE; }
    ;
precision
    : T__LPAREN T__INTEGER_NUMBER T__RPAREN                                     { NODE(type_modifiers); }
    ;

type_name
    : type_function_name                                                        { NODE; }
    | dotted_type_name                                                          { NODE; }
    ;

/* Types without modifiers. */
fixed_name
    : T__INT                                                                    { NODE(type_name); }
    | T__INTEGER                                                                { NODE(type_name); }
    | T__SMALLINT                                                               { NODE(type_name); }
    | T__BIGINT                                                                 { NODE(type_name); }
    | T__REAL                                                                   { NODE(type_name); }
    | T__BOOLEAN                                                                { NODE(type_name); }
    | T__DOUBLE T__PRECISION                                                    { NODE(type_name); }
    | T__JSON                                                                   { NODE(type_name); }
    ;

float_name
    : T__FLOAT                                                                  { NODE(type_name); }
    ;

scaled_name
    : T__DECIMAL                                                                { NODE(type_name); }
    | T__DEC                                                                    { NODE(type_name); }
    | T__NUMERIC                                                                { NODE(type_name); }
    | T__BIT                                                                    { NODE(type_name); }
    | T__BIT T__VARYING                                                         { NODE(type_name); }
    ;

character_name
    : T__CHARACTER                                                              { NODE(type_name); }
    | T__CHARACTER T__VARYING                                                   { NODE(type_name); }
    | T__CHAR                                                                   { NODE(type_name); }
    | T__CHAR T__VARYING                                                        { NODE(type_name); }
    | T__VARCHAR                                                                { NODE(type_name); }
    | T__NATIONAL T__CHARACTER                                                  { NODE(type_name); }
    | T__NATIONAL T__CHARACTER T__VARYING                                       { NODE(type_name); }
    | T__NATIONAL T__CHAR                                                       { NODE(type_name); }
    | T__NATIONAL T__CHAR T__VARYING                                            { NODE(type_name); }
    | T__NCHAR                                                                  { NODE(type_name); }
    | T__NCHAR T__VARYING                                                       { NODE(type_name); }
    ;

datetime_name
    : T__TIMESTAMP                                                              { NODE(type_name); }
    | T__TIME                                                                   { NODE(type_name); }
    ;
time_zone_part
    : T__WITH_LA T__TIME T__ZONE                                                { NODE; }
    | T__WITHOUT T__TIME T__ZONE                                                { NODE; }
    ;

interval_name
    : T__INTERVAL                                                               { NODE(type_name); }
    ;
interval_fields
    : T__YEAR                                                                   { NODE; }
    | T__MONTH                                                                  { NODE; }
    | T__DAY                                                                    { NODE; }
    | T__HOUR                                                                   { NODE; }
    | T__MINUTE                                                                 { NODE; }
    | interval_second                                                           { NODE; }
    | T__YEAR T__TO T__MONTH                                                    { NODE; }
    | T__DAY T__TO T__HOUR                                                      { NODE; }
    | T__DAY T__TO T__MINUTE                                                    { NODE; }
    | T__DAY T__TO interval_second                                              { NODE; }
    | T__HOUR T__TO T__MINUTE                                                   { NODE; }
    | T__HOUR T__TO interval_second                                             { NODE; }
    | T__MINUTE T__TO interval_second                                           { NODE; }
    ;
interval_second
    : T__SECOND
    | T__SECOND T__LPAREN T__INTEGER_NUMBER T__RPAREN                           { NODE(interval_fields); }
    ;
