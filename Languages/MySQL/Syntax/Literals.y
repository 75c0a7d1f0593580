/* Strings and numbers of MySQL's own. The scanner joins strings in single quotes. */

string_literal { NODE(joined_string); }
    : T__STRING  { PART; }
    | T__NATIONAL_STRING  { PART; }
    | joined_string %prec LOWEST
    | introduced_string  { PART; } ;
joined_string { PART; }: (T__STRING | T__NATIONAL_STRING) T__STRING | joined_string T__STRING ;
introduced_string { NODE; }
    : T__INTRODUCER joined_string %prec LOWEST
    | T__INTRODUCER (T__STRING | T__HEX_STRING | T__BIT_STRING | T__HEX_NUMBER | T__BIT_NUMBER) ;

%without fetch_count: T__PLUS number | T__MINUS number ;
%without typed_literal: constant_type string_literal ;
literal_type_name { NODE(type_name); }: T__DATE_LA | T__TIME_LA | T__TIMESTAMP_LA ;
