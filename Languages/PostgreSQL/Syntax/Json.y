/* JSON: constructors, questions, tables. */

special_function
    : T__JSON T__LPAREN json_operand T__RPAREN                                  { NODE; }
    | T__JSON T__LPAREN json_operand json_unique_keys T__RPAREN                 { NODE; }
    | T__JSON_SCALAR T__LPAREN expression T__RPAREN                             { NODE; }
    | T__JSON_SERIALIZE T__LPAREN json_operand T__RPAREN                        { NODE; }
    | T__JSON_SERIALIZE T__LPAREN json_operand json_returning T__RPAREN         { NODE; }
    | T__JSON_ARRAY T__LPAREN T__RPAREN                                         { NODE; }
    | T__JSON_ARRAY T__LPAREN json_returning T__RPAREN                          { NODE; }
    | T__JSON_ARRAY T__LPAREN json_operand_list T__RPAREN                       { NODE; }
    | T__JSON_ARRAY T__LPAREN json_operand_list json_array_options T__RPAREN    { NODE; }
    | T__JSON_ARRAY T__LPAREN query_body T__RPAREN                              { NODE; }
    | T__JSON_ARRAY T__LPAREN query_body json_returning T__RPAREN               { NODE; }
    | json_object_name T__LPAREN json_returning T__RPAREN                       { NODE; }
    | json_object_name T__LPAREN json_pair_list T__RPAREN                       { NODE; }
    | json_object_name T__LPAREN json_pair_list json_object_options T__RPAREN   { NODE; }
    | T__JSON_EXISTS T__LPAREN json_operand T__COMMA expression T__RPAREN       { NODE; }
    | T__JSON_EXISTS T__LPAREN json_operand T__COMMA expression json_exists_clauses T__RPAREN
      { NODE; }
    | T__JSON_VALUE T__LPAREN json_operand T__COMMA expression T__RPAREN        { NODE; }
    | T__JSON_VALUE T__LPAREN json_operand T__COMMA expression json_value_clauses T__RPAREN
      { NODE; }
    | T__JSON_QUERY T__LPAREN json_operand T__COMMA expression T__RPAREN        { NODE; }
    | T__JSON_QUERY T__LPAREN json_operand T__COMMA expression json_query_clauses T__RPAREN
      { NODE; }
    ;

/* There is a plain function of this name too. */
json_object_call
    : json_object_name T__LPAREN T__RPAREN                                      { NODE(function_call); }
    | json_object_name T__LPAREN argument_list T__RPAREN                        { NODE(function_call); }
    ;
json_object_name
    : T__JSON_OBJECT                                                            { NODE(sql_identifier); }
    ;

function_expression
    : json_object_call
    | json_aggregate                                                            { NODE(expression); }
    | json_aggregate filter_clause                                              { NODE(expression); }
    | json_aggregate over_clause                                                { NODE(expression); }
    | json_aggregate filter_clause over_clause                                  { NODE(expression); }
    ;
json_aggregate
    : T__JSON_OBJECTAGG T__LPAREN json_pair T__RPAREN                           { NODE; }
    | T__JSON_OBJECTAGG T__LPAREN json_pair json_object_options T__RPAREN       { NODE; }
    | T__JSON_ARRAYAGG T__LPAREN json_operand T__RPAREN                         { NODE; }
    | T__JSON_ARRAYAGG T__LPAREN json_operand sort_clause T__RPAREN             { NODE; }
    | T__JSON_ARRAYAGG T__LPAREN json_operand json_array_options T__RPAREN      { NODE; }
    | T__JSON_ARRAYAGG T__LPAREN json_operand sort_clause json_array_options T__RPAREN
      { NODE; }
    ;

json_operand
    : expression
    | expression json_format                                                    { NODE; }
    ;
%list json_operand_list: json_operand %separator T__COMMA ;

json_format
    : T__FORMAT T__JSON                                                         { NODE; }
    | T__FORMAT T__JSON T__ENCODING identifier                                  { NODE; }
    ;
/* A colon next to a name looks like a variable of the client. */
json_pair
    : primary T__VALUE json_operand                                             { NODE; }
    | expression T__COLON json_operand                                          { NODE; }
    | expression T__CLIENT_VARIABLE                                             { NODE; }
    | expression T__CLIENT_IDENTIFIER                                           { NODE; }
    ;
%list json_pair_list: json_pair %separator T__COMMA ;

json_array_options
    : json_nulls
    | json_nulls json_returning                                                 { NODE(json_options); }
    | json_returning
    ;
json_object_options
    : json_nulls
    | json_nulls json_keys_part                                                 { NODE(json_options); }
    | json_keys_part
    ;
json_keys_part
    : json_unique_keys
    | json_unique_keys json_returning                                           { NODE(json_options); }
    | json_returning
    ;
json_nulls
    : T__NULL T__ON T__NULL                                                     { NODE; }
    | T__ABSENT T__ON T__NULL                                                   { NODE; }
    ;
json_unique_keys
    : T__WITH_UNIQUE_LA T__UNIQUE %prec LOWEST                                  { NODE; }
    | T__WITH_UNIQUE_LA T__UNIQUE T__KEYS                                       { NODE; }
    | T__WITHOUT_LA T__UNIQUE %prec LOWEST                                      { NODE; }
    | T__WITHOUT_LA T__UNIQUE T__KEYS                                           { NODE; }
    ;
json_returning
    : T__RETURNING data_type                                                    { NODE; }
    | T__RETURNING data_type json_format                                        { NODE; }
    ;
json_kind
    : T__JSON %prec LOWEST
    | T__JSON T__VALUE                                                          { NODE; }
    | T__JSON T__ARRAY                                                          { NODE; }
    | T__JSON T__OBJECT                                                         { NODE; }
    | T__JSON T__SCALAR                                                         { NODE; }
    ;

/* The clauses of a question in their order, any of them left out. */
json_exists_clauses
    : json_passing
    | json_passing json_on_error                                                { NODE(json_clauses); }
    | json_on_error
    ;
json_value_clauses
    : json_passing
    | json_passing json_value_result                                            { NODE(json_clauses); }
    | json_value_result
    ;
json_value_result
    : json_returning
    | json_returning json_fallbacks                                             { NODE(json_clauses); }
    | json_fallbacks
    ;
json_query_clauses
    : json_passing
    | json_passing json_query_result                                            { NODE(json_clauses); }
    | json_query_result
    ;
json_query_result
    : json_returning
    | json_returning json_wrapper_part                                          { NODE(json_clauses); }
    | json_wrapper_part
    ;
json_wrapper_part
    : json_wrapper
    | json_wrapper json_quotes_part                                             { NODE(json_clauses); }
    | json_quotes_part
    ;
json_quotes_part
    : json_quotes
    | json_quotes json_fallbacks                                                { NODE(json_clauses); }
    | json_fallbacks
    ;

json_passing
    : T__PASSING json_argument_list                                             { NODE; }
    ;
json_argument_list
    : json_argument                                                             { NODE; }
    | json_argument_list T__COMMA json_argument                                 { NODE; }
    ;
json_argument
    : json_operand T__AS any_alias                                              { NODE; }
    ;
json_wrapper
    : T__WITH T__WRAPPER                                                        { NODE; }
    | T__WITH json_wrapper_kind T__WRAPPER                                      { NODE; }
    | T__WITHOUT_LA T__WRAPPER                                                  { NODE; }
    | T__WITHOUT_LA T__ARRAY T__WRAPPER                                         { NODE; }
    ;
json_wrapper_kind
    : T__ARRAY
    | T__CONDITIONAL
    | T__UNCONDITIONAL
    | T__CONDITIONAL T__ARRAY                                                   { NODE; }
    | T__UNCONDITIONAL T__ARRAY                                                 { NODE; }
    ;
json_quotes
    : json_quotes_choice T__QUOTES                                              { NODE; }
    | json_quotes_choice T__QUOTES T__ON T__SCALAR T__STRING_WORD               { NODE; }
    ;
json_quotes_choice
    : T__KEEP
    | T__OMIT
    ;
json_fallbacks
    : json_on_empty
    | json_on_empty json_on_error                                               { NODE(json_clauses); }
    | json_on_error
    ;
json_on_empty
    : json_fallback T__ON T__EMPTY                                              { NODE; }
    ;
json_on_error
    : json_fallback T__ON T__ERROR                                              { NODE; }
    ;
json_fallback
    : T__ERROR
    | T__NULL
    | truth_value
    | T__EMPTY
    | T__EMPTY T__ARRAY                                                         { NODE; }
    | T__EMPTY T__OBJECT                                                        { NODE; }
    | T__DEFAULT expression                                                     { NODE; }
    ;

json_table
    : T__JSON_TABLE T__LPAREN json_table_source json_columns T__RPAREN          { NODE; }
    | T__JSON_TABLE T__LPAREN json_table_source json_columns json_on_error T__RPAREN  { NODE; }
    ;
json_table_source
    : json_operand T__COMMA json_table_path                                     { NODE; }
    | json_operand T__COMMA json_table_path json_passing                        { NODE; }
    ;
json_table_path
    : expression
    | expression T__AS alias                                                    { NODE; }
    ;
json_columns
    : T__COLUMNS T__LPAREN json_column_list T__RPAREN                           { NODE; }
    ;
json_column_list
    : json_column                                                               { NODE; }
    | json_column_list T__COMMA json_column                                     { NODE; }
    ;
json_column
    : column_name T__FOR T__ORDINALITY                                          { NODE; }
    | column_name data_type                                                     { NODE; }
    | column_name data_type json_column_clauses                                 { NODE; }
    | column_name data_type T__EXISTS                                           { NODE; }
    | column_name data_type T__EXISTS json_exists_path                          { NODE; }
    | T__NESTED json_nested_path json_columns                                   { NODE; }
    | T__NESTED json_nested_path T__AS alias json_columns                       { NODE; }
    ;
json_column_clauses
    : json_format
    | json_format json_path_part                                                { NODE(json_clauses); }
    | json_path_part
    ;
json_path_part
    : json_path
    | json_path json_wrapper_part                                               { NODE(json_clauses); }
    | json_wrapper_part
    ;
json_exists_path
    : json_path
    | json_path json_on_error                                                   { NODE(json_clauses); }
    | json_on_error
    ;
json_path
    : T__PATH string_literal                                                    { NODE; }
    ;
json_nested_path
    : json_path
    | string_literal
    ;
