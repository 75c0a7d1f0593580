/* JSON: constructors, questions, tables. */

special_function { NODE; }
    : T__JSON T__LPAREN json_operand json_unique_keys? T__RPAREN
    | T__JSON_SCALAR T__LPAREN expression T__RPAREN
    | T__JSON_SERIALIZE T__LPAREN json_operand json_returning? T__RPAREN
    | T__JSON_ARRAY T__LPAREN query_body? json_returning? T__RPAREN
    | T__JSON_ARRAY T__LPAREN json_operand_list json_array_options? T__RPAREN
    | json_object_name T__LPAREN json_returning T__RPAREN
    | json_object_name T__LPAREN json_pair_list json_object_options? T__RPAREN
    | T__JSON_EXISTS T__LPAREN json_operand T__COMMA expression json_exists_clauses? T__RPAREN
    | T__JSON_VALUE T__LPAREN json_operand T__COMMA expression json_value_clauses? T__RPAREN
    | T__JSON_QUERY T__LPAREN json_operand T__COMMA expression json_query_clauses? T__RPAREN ;

/* There is a plain function of this name too. */
json_object_call { NODE(function_call); }: json_object_name T__LPAREN argument_list? T__RPAREN ;
json_object_name { NODE(sql_identifier); }: T__JSON_OBJECT ;

function_expression { NODE(expression); }
    : json_object_call  { PART; }
    | json_aggregate filter_clause? over_clause? ;
json_aggregate { NODE; }
    : T__JSON_OBJECTAGG T__LPAREN json_pair json_object_options? T__RPAREN
    | T__JSON_ARRAYAGG T__LPAREN json_operand sort_clause? json_array_options? T__RPAREN ;

json_operand { PART; }: expression json_format? ;
%list json_operand_list: json_operand %separator T__COMMA ;

json_format { NODE; }: T__FORMAT T__JSON (T__ENCODING identifier)? ;
/* A colon next to a name looks like a variable of the client. */
json_pair { NODE; }
    : primary T__VALUE json_operand
    | expression (T__COLON json_operand | T__CLIENT_VARIABLE | T__CLIENT_IDENTIFIER) ;
%list json_pair_list: json_pair %separator T__COMMA ;

%parts json_array_options: json_nulls json_returning %node json_options ;
%parts json_object_options: json_nulls json_unique_keys json_returning %node json_options ;
json_nulls { NODE; }: (T__NULL | T__ABSENT) T__ON T__NULL ;
json_unique_keys { NODE; }
    : (T__WITH_UNIQUE_LA | T__WITHOUT_LA) T__UNIQUE %prec LOWEST
    | (T__WITH_UNIQUE_LA | T__WITHOUT_LA) T__UNIQUE T__KEYS ;
json_returning { NODE; }: T__RETURNING data_type json_format? ;
json_kind { PART; }
    : T__JSON %prec LOWEST
    | T__JSON T__VALUE
    | T__JSON T__ARRAY
    | T__JSON T__OBJECT
    | T__JSON T__SCALAR ;

/* The clauses of a question in their order, any of them left out. */
%parts json_exists_clauses: json_passing json_on_error %node json_clauses ;
%parts json_value_clauses: json_passing json_returning json_fallbacks %node json_clauses ;
%parts json_query_clauses: json_passing json_returning json_wrapper_part %node json_clauses ;
%parts json_wrapper_part: json_wrapper json_quotes json_fallbacks %node json_clauses ;

json_passing { NODE; }: T__PASSING json_argument_list ;
%list json_argument_list: json_argument %short %separator T__COMMA ;
json_argument { NODE; }: json_operand T__AS any_alias ;
json_wrapper { NODE; }: T__WITH json_wrapper_kind? T__WRAPPER | T__WITHOUT_LA T__ARRAY? T__WRAPPER ;
json_wrapper_kind { PART; }: T__ARRAY | (T__CONDITIONAL | T__UNCONDITIONAL) T__ARRAY? ;
json_quotes { NODE; }: json_quotes_choice T__QUOTES (T__ON T__SCALAR T__STRING_WORD)? ;
json_quotes_choice: T__KEEP | T__OMIT ;
%parts json_fallbacks: json_on_empty json_on_error %node json_clauses ;
json_on_empty { NODE; }: json_fallback T__ON T__EMPTY ;
json_on_error { NODE; }: json_fallback T__ON T__ERROR ;
json_fallback { PART; }
    : T__ERROR | T__NULL | truth_value
    | T__EMPTY T__ARRAY?
    | T__EMPTY T__OBJECT
    | T__DEFAULT expression ;

json_table { NODE; }: T__JSON_TABLE T__LPAREN json_table_source json_columns json_on_error? T__RPAREN ;
json_table_source { NODE; }: json_operand T__COMMA json_table_path json_passing? ;
json_table_path { PART; }: expression (T__AS alias)? ;
json_column { NODE; }
    : column_name T__FOR T__ORDINALITY
    | column_name data_type (T__EXISTS | json_column_clauses | T__EXISTS json_exists_path)?
    | T__NESTED json_nested_path (T__AS alias)? json_columns ;
%parts json_column_clauses: json_format json_path json_wrapper_part %node json_clauses ;
%parts json_exists_path: json_path json_on_error %node json_clauses ;
json_path { NODE; }: T__PATH string_literal ;
json_nested_path: json_path | string_literal ;
