/* Routines. */

create_routine
    : T__CREATE routine_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE routine_definition                             { NODE; }
    ;
routine_definition
    : routine_word function_name parameter_list                                 { NODE; }
    | routine_word function_name parameter_list routine_items                   { NODE; }
    | routine_word function_name parameter_list routine_body                    { NODE; }
    | routine_word function_name parameter_list routine_items routine_body      { NODE; }
    ;
routine_word
    : T__FUNCTION
    | T__PROCEDURE
    ;
parameter_list
    : T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN parameters T__RPAREN                                            { NODE; }
    ;
parameters
    : parameter
    | parameters T__COMMA parameter                                             { NODE; }
    ;
parameter
    : plain_parameter
    | plain_parameter T__DEFAULT expression                                     { NODE; }
    | plain_parameter T__EQUAL expression                                       { NODE; }
    ;
plain_parameter
    : function_type
    | type_function_name function_type                                          { NODE; }
    | parameter_mode function_type                                              { NODE; }
    | parameter_mode type_function_name function_type                           { NODE; }
    | type_function_name parameter_mode function_type                           { NODE; }
    ;
parameter_mode
    : T__IN
    | T__OUT
    | T__INOUT
    | T__IN T__OUT                                                              { NODE; }
    | T__VARIADIC
    ;
routine_items
    : routine_item
    | routine_items routine_item                                                { NODE; }
    ;
routine_item
    : T__RETURNS function_type                                                  { NODE; }
    | T__RETURNS T__TABLE T__LPAREN returned_columns T__RPAREN                  { NODE; }
    | T__AS string_literal                                                      { NODE; }
    | T__AS string_literal T__COMMA string_literal                              { NODE; }
    | T__LANGUAGE non_reserved_word                                             { NODE; }
    | T__LANGUAGE string_literal                                                { NODE; }
    | T__TRANSFORM transform_types                                              { NODE; }
    | T__WINDOW
    | routine_attribute
    ;
returned_columns
    : returned_column
    | returned_columns T__COMMA returned_column                                 { NODE; }
    ;
returned_column
    : type_function_name function_type                                          { NODE; }
    ;
transform_types
    : T__FOR T__TYPE type_name                                                  { NODE; }
    | transform_types T__COMMA T__FOR T__TYPE type_name                         { NODE; }
    ;
routine_attributes
    : routine_attribute
    | routine_attributes routine_attribute                                      { NODE; }
    ;
routine_attribute
    : T__CALLED T__ON T__NULL T__INPUT                                          { NODE; }
    | T__RETURNS T__NULL T__ON T__NULL T__INPUT                                 { NODE; }
    | T__STRICT
    | T__IMMUTABLE
    | T__STABLE
    | T__VOLATILE
    | T__SECURITY T__DEFINER                                                    { NODE; }
    | T__SECURITY T__INVOKER                                                    { NODE; }
    | T__EXTERNAL T__SECURITY T__DEFINER                                        { NODE; }
    | T__EXTERNAL T__SECURITY T__INVOKER                                        { NODE; }
    | T__LEAKPROOF
    | T__NOT T__LEAKPROOF                                                       { NODE; }
    | T__COST signed_number                                                     { NODE; }
    | T__ROWS signed_number                                                     { NODE; }
    | T__SUPPORT qualified_name                                                 { NODE; }
    | T__SET set_item_more                                                      { NODE; }
    | T__RESET reset_target                                                     { NODE; }
    | T__PARALLEL column_name                                                   { NODE; }
    ;
routine_body
    : return_statement
    | T__BEGIN T__ATOMIC T__END                                                 { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements T__END                          { NODE; }
    | T__BEGIN T__ATOMIC error T__END                                           { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error T__END                    { NODE; }
    | T__BEGIN T__ATOMIC error %prec LOWEST                                     { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error %prec LOWEST              { NODE; }
    ;
return_statement
    : T__RETURN expression                                                      { NODE; }
    ;
body_pl_sql_statements
    : delimited_body_statement                                                  { NODE; }
    | body_pl_sql_statements delimited_body_statement                           { NODE; }
    ;
delimited_body_statement
    : body_statement pl_sql_statement_delimiter                                 { NODE(delimited_pl_sql_statement); }
    | pl_sql_statement_delimiter                                                { NODE(delimited_pl_sql_statement); }
    | error pl_sql_statement_delimiter                                          { NODE(delimited_pl_sql_statement); }
    ;
body_statement
    : statement                                                                 { NODE(pl_sql_statement); }
    | return_statement                                                          { NODE(pl_sql_statement); }
    ;

/* A routine as other statements point at it. */
routine_signature
    : function_name parameter_list                                              { NODE; }
    | qualified_name
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;
routine_signatures
    : routine_signature
    | routine_signatures T__COMMA routine_signature                             { NODE; }
    ;
aggregate_signature
    : function_name aggregate_parameters                                        { NODE; }
    ;
aggregate_signatures
    : aggregate_signature
    | aggregate_signatures T__COMMA aggregate_signature                         { NODE; }
    ;
aggregate_parameters
    : T__LPAREN T__ASTERISK T__RPAREN                                           { NODE; }
    | T__LPAREN plain_parameters T__RPAREN                                      { NODE; }
    | T__LPAREN T__ORDER T__BY plain_parameters T__RPAREN                       { NODE; }
    | T__LPAREN plain_parameters T__ORDER T__BY plain_parameters T__RPAREN      { NODE; }
    ;
plain_parameters
    : plain_parameter
    | plain_parameters T__COMMA plain_parameter                                 { NODE; }
    ;
operator_signature
    : any_operator operator_operands                                            { NODE; }
    ;
operator_signatures
    : operator_signature
    | operator_signatures T__COMMA operator_signature                           { NODE; }
    ;
operator_operands
    : T__LPAREN type_name T__RPAREN                                             { NODE; }
    | T__LPAREN type_name T__COMMA type_name T__RPAREN                          { NODE; }
    | T__LPAREN T__NONE T__COMMA type_name T__RPAREN                            { NODE; }
    | T__LPAREN type_name T__COMMA T__NONE T__RPAREN                            { NODE; }
    ;
