/* Functions.
   A dialect adds to special_value what is called without brackets, to special_function what has words of its own
   between its arguments, to function_suffix what follows a call, and to extract_field the fields of a time. */

function_expression: special_value | special_function  { NODE(expression); } ;

function_call { NODE; }
    : function_name T__LPAREN T__ASTERISK? T__RPAREN
    | function_name T__LPAREN (T__ALL | T__DISTINCT)? argument_list sort_clause? T__RPAREN ;

%list argument_list: argument %separator T__COMMA ;

argument { PART(named_argument); }: (parameter_name T__ARROW)? expression ;

function_suffix { PART(function_call); }: over_clause ;
over_clause { NODE; }: T__OVER window_definition | T__OVER window_name ;

special_value { PART; }
    : T__CURRENT_DATE
    | (T__CURRENT_TIME | T__CURRENT_TIMESTAMP | T__LOCALTIME | T__LOCALTIMESTAMP) (T__LPAREN T__INTEGER_NUMBER
          T__RPAREN)?
    | T__CURRENT_USER | T__SESSION_USER | T__USER ;

/* Functions with words of their own between their arguments. */
special_function { NODE; }
    : T__CAST T__LPAREN expression T__AS data_type T__RPAREN  { NODE(cast_expression); }
    | T__EXTRACT T__LPAREN extract_field T__FROM expression T__RPAREN
    | T__POSITION T__LPAREN restricted_expression T__IN restricted_expression T__RPAREN
    | T__SUBSTRING T__LPAREN argument_list? T__RPAREN
    | T__SUBSTRING T__LPAREN expression (T__FROM expression)? T__FOR expression T__RPAREN
    | T__SUBSTRING T__LPAREN expression (T__FOR expression)? T__FROM expression T__RPAREN
    | T__TRIM T__LPAREN trim_side? trim_operands T__RPAREN ;

extract_field: T__YEAR | T__MONTH | T__DAY | T__HOUR | T__MINUTE | T__SECOND ;

trim_side: T__BOTH | T__LEADING | T__TRAILING ;
trim_operands { NODE; }: expression T__FROM expression_list | T__FROM? expression_list ;
