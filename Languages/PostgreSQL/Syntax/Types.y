/* Types. */

type_name
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
    : type_function_name
    | type_function_name T__LPAREN expression_list T__RPAREN                    { NODE; }
    | dotted_type_name
    | dotted_type_name T__LPAREN expression_list T__RPAREN                      { NODE; }
    | numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { NODE; }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { NODE; }
    | datetime_type
    | json_type
    | T__INTERVAL
    | T__INTERVAL interval_fields                                               { NODE; }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN                         { NODE; }
    ;

/* Types that may stand before a string without being a name. */
constant_type
    : numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { NODE; }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { NODE; }
    | datetime_type
    | json_type
    ;

json_type
    : T__JSON                                                                   { NODE(sql_identifier); }
    ;

numeric_type
    : T__INT
    | T__INTEGER
    | T__SMALLINT
    | T__BIGINT
    | T__REAL
    | T__BOOLEAN
    | T__FLOAT
    | T__FLOAT T__LPAREN T__INTEGER_NUMBER T__RPAREN                            { NODE; }
    | T__DOUBLE T__PRECISION                                                    { NODE; }
    | T__DECIMAL
    | T__DECIMAL T__LPAREN expression_list T__RPAREN                            { NODE; }
    | T__DEC
    | T__DEC T__LPAREN expression_list T__RPAREN                                { NODE; }
    | T__NUMERIC
    | T__NUMERIC T__LPAREN expression_list T__RPAREN                            { NODE; }
    ;

bit_type
    : T__BIT
    | T__BIT T__VARYING                                                         { NODE; }
    ;

character_type
    : T__CHARACTER
    | T__CHARACTER T__VARYING                                                   { NODE; }
    | T__CHAR
    | T__CHAR T__VARYING                                                        { NODE; }
    | T__VARCHAR
    | T__NATIONAL T__CHARACTER                                                  { NODE; }
    | T__NATIONAL T__CHARACTER T__VARYING                                       { NODE; }
    | T__NATIONAL T__CHAR                                                       { NODE; }
    | T__NATIONAL T__CHAR T__VARYING                                            { NODE; }
    | T__NCHAR
    | T__NCHAR T__VARYING                                                       { NODE; }
    ;

datetime_type
    : datetime_word
    | datetime_word time_zone_part                                              { NODE; }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN                       { NODE; }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN time_zone_part        { NODE; }
    ;
datetime_word
    : T__TIMESTAMP
    | T__TIME
    ;
time_zone_part
    : T__WITH_LA T__TIME T__ZONE                                                { NODE; }
    | T__WITHOUT T__TIME T__ZONE                                                { NODE; }
    ;

interval_fields
    : T__YEAR
    | T__MONTH
    | T__DAY
    | T__HOUR
    | T__MINUTE
    | interval_second
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
    | T__SECOND T__LPAREN T__INTEGER_NUMBER T__RPAREN                           { NODE; }
    ;
