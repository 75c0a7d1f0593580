/* Functions with words of their own between their arguments. */

%replace argument { NODE(typed_argument); }: expression  { PART; } | expression T__AS data_type ;
function_call { NODE; }: function_name T__LPAREN T__DISTINCT? argument_list sort_clause limit_clause T__RPAREN ;
%without filter_clause ;
function_suffix { NODE(function_call); }: null_treatment over_clause ;
null_treatment { NODE; }: T__RESPECT T__NULLS ;
%without special_value: T__SESSION_USER | T__USER ;
special_value { PART; }
    : (T__CURRENT_DATE | T__CURRENT_TIME | T__CURRENT_TIMESTAMP | T__LOCALTIME | T__LOCALTIMESTAMP | T__CURRENT_USER) T__LPAREN T__RPAREN
    | utc_time (T__LPAREN T__INTEGER_NUMBER? T__RPAREN)? ;
utc_time: T__UTC_DATE | T__UTC_TIME | T__UTC_TIMESTAMP ;

%replace extract_field: %words unit ;
%without special_function
    : T__SUBSTRING T__LPAREN argument_list? T__RPAREN
    | T__SUBSTRING T__LPAREN expression (T__FROM expression)? T__FOR expression T__RPAREN
    | T__SUBSTRING T__LPAREN expression (T__FOR expression)? T__FROM expression T__RPAREN ;
special_function { NODE; }
    : T__CAST T__LPAREN expression T__AS data_type T__ARRAY T__RPAREN  { NODE(cast_expression); }
    | T__CAST T__LPAREN expression T__AT T__TIME T__ZONE T__INTERVAL? string_literal T__AS data_type T__RPAREN  { NODE(cast_expression); }
    | T__CONVERT T__LPAREN expression T__COMMA data_type T__RPAREN  { NODE(cast_expression); }
    | T__CONVERT T__LPAREN expression T__USING any_charset_name T__RPAREN
    | T__CHAR T__LPAREN expression_list (T__USING any_charset_name)? T__RPAREN
    | (T__SUBSTRING | T__SUBSTR | T__MID) T__LPAREN substring_part T__RPAREN
    | (T__TIMESTAMPADD | T__TIMESTAMPDIFF) T__LPAREN any_unit T__COMMA expression T__COMMA expression T__RPAREN
    | T__GET_FORMAT T__LPAREN (T__DATE | T__TIME | T__DATETIME | T__TIMESTAMP) T__COMMA expression T__RPAREN
    | T__WEIGHT_STRING T__LPAREN expression (T__AS data_type)? weight_levels? T__RPAREN
    | T__GROUP_CONCAT T__LPAREN joined_values joined_order? T__RPAREN
    | T__MATCH match_columns T__AGAINST T__LPAREN restricted_expression match_mode? T__RPAREN
    | T__JSON_VALUE T__LPAREN expression T__COMMA expression json_value_tail? T__RPAREN
    | T__VALUES T__LPAREN any_column T__RPAREN
    | T__DEFAULT T__LPAREN any_column T__RPAREN
    | (T__NEXT | T__PREVIOUS) T__VALUE T__FOR sequence_name
    | T__INTERVAL T__LPAREN expression T__COMMA expression_list T__RPAREN ;
any_unit { NODE(unit); }: unit | T__IDENTIFIER ;
substring_part { PART(special_function); }: argument_list | expression T__FROM expression (T__FOR expression)? ;
joined_values { PART(special_function); }: T__DISTINCT? expression_list ;
%parts joined_order: sort_clause separator limit_clause %node special_function ;
weight_levels { NODE; }: T__LEVEL weight_level_list ;
%list weight_level_list: weight_level %short %separator T__COMMA ;
weight_level { NODE; }: T__INTEGER_NUMBER sort_direction? T__REVERSE? | T__INTEGER_NUMBER T__MINUS T__INTEGER_NUMBER ;
separator { NODE(separator_clause); }: T__SEPARATOR string_literal ;
match_columns { NODE(columns); }: T__LPAREN any_column_list T__RPAREN | any_column_list ;
%list any_column_list: any_column %short %separator T__COMMA %node column_name_list ;
match_mode { NODE; }
    : T__IN T__BOOLEAN T__MODE
    | T__IN T__NATURAL T__LANGUAGE T__MODE (T__WITH T__QUERY T__EXPANSION)?
    | T__WITH T__QUERY T__EXPANSION ;
%parts json_value_tail: value_type json_reaction_list %node special_function ;
value_type { NODE(special_function); }: T__RETURNING data_type ;
%list json_reaction_list: json_reaction %short ;
json_reaction { NODE; }: (T__NULL | T__ERROR | T__DEFAULT restricted_expression) T__ON (T__EMPTY | T__ERROR) ;
