/* Intervals: the type INTERVAL with its fields, and literals of it. */

simple_type { NODE(data_type); }: interval_name (precision | interval_fields)? ;

typed_literal { NODE; }: interval_literal_type string_literal interval_fields? ;
interval_literal_type { NODE(data_type); }: interval_name precision? ;

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
