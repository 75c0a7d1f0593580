/* Routines. */

create_routine_statement
    : T__CREATE routine_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE routine_definition                             { NODE; }
    ;
routine_definition
    : routine_word function_name parameters
      { NODE(create_routine_statement); }
    | routine_word function_name parameters routine_item_list
      { NODE(create_routine_statement); }
    | routine_word function_name parameters routine_body
      { NODE(create_routine_statement); }
    | routine_word function_name parameters routine_item_list routine_body
      { NODE(create_routine_statement); }
    ;
routine_word
    : T__FUNCTION
    | T__PROCEDURE
    ;
parameters
    : T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN parameter_list T__RPAREN                                        { NODE; }
    ;
parameter_list
    : parameter                                                                 { NODE; }
    | parameter_list T__COMMA parameter                                         { NODE; }
    ;
parameter
    : plain_parameter
    | plain_parameter T__DEFAULT expression                                     { NODE; }
    | plain_parameter T__EQUAL expression                                       { NODE; }
    ;
plain_parameter
    : function_type                                                             { NODE(parameter); }
    | parameter_name function_type                                              { NODE(parameter); }
    | parameter_mode function_type                                              { NODE(parameter); }
    | parameter_mode parameter_name function_type                               { NODE(parameter); }
    | parameter_name parameter_mode function_type                               { NODE(parameter); }
    ;
parameter_mode
    : T__IN                                                                     { NODE; }
    | T__OUT                                                                    { NODE; }
    | T__INOUT                                                                  { NODE; }
    | T__IN T__OUT                                                              { NODE; }
    | T__VARIADIC                                                               { NODE; }
    ;
routine_item_list
    : routine_item                                                              { NODE; }
    | routine_item_list routine_item                                            { NODE; }
    ;
routine_item
    : returns_clause                                                            { NODE; }
    | T__AS string_literal                                                      { NODE; }
    | T__AS quoted_body                                                         { NODE; }
    | T__AS string_literal T__COMMA string_literal                              { NODE; }
    | T__LANGUAGE routine_language                                              { NODE; }
    | T__TRANSFORM transform_type_list                                          { NODE; }
    | T__WINDOW                                                                 { NODE; }
    | routine_attribute                                                         { NODE; }
    ;
routine_language
    : non_reserved_word                                                         { NODE(language_name); }
    | string_literal                                                            { NODE(language_name); }
    ;
returns_clause
    : T__RETURNS function_type                                                  { NODE; }
    | T__RETURNS T__TABLE T__LPAREN returned_columns T__RPAREN                  { NODE; }
    ;
returned_columns
    : returned_column
      { NODE(column_definition_list); }
    | returned_columns T__COMMA returned_column
      { NODE(column_definition_list); }
    ;
/* Such a column is a parameter as well, and takes what names one. */
returned_column
    : returned_name function_type                                               { NODE(column_definition); }
    ;
returned_name
    : type_function_name                                                        { NODE(column_name); }
    ;
transform_type_list
    : transform_type                                                            { NODE; }
    | transform_type_list T__COMMA transform_type                               { NODE; }
    ;
transform_type
    : T__FOR T__TYPE data_type                                                  { NODE; }
    ;
routine_attribute_list
    : routine_attribute                                                         { NODE; }
    | routine_attribute_list routine_attribute                                  { NODE; }
    ;
routine_attribute
    : T__CALLED T__ON T__NULL T__INPUT                                          { NODE; }
    | T__RETURNS T__NULL T__ON T__NULL T__INPUT                                 { NODE; }
    | T__STRICT                                                                 { NODE; }
    | T__IMMUTABLE                                                              { NODE; }
    | T__STABLE                                                                 { NODE; }
    | T__VOLATILE                                                               { NODE; }
    | T__SECURITY T__DEFINER                                                    { NODE; }
    | T__SECURITY T__INVOKER                                                    { NODE; }
    | T__EXTERNAL T__SECURITY T__DEFINER                                        { NODE; }
    | T__EXTERNAL T__SECURITY T__INVOKER                                        { NODE; }
    | T__LEAKPROOF                                                              { NODE; }
    | T__NOT T__LEAKPROOF                                                       { NODE; }
    | T__COST signed_number                                                     { NODE; }
    | T__ROWS signed_number                                                     { NODE; }
    | T__SUPPORT handler_name                                                   { NODE; }
    | T__SET set_item_more                                                      { NODE; }
    | T__RESET reset_target                                                     { NODE; }
    | T__PARALLEL identifier                                                    { NODE; }
    ;
routine_body
    : return_statement
    | T__BEGIN T__ATOMIC T__END                                                 { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements T__END                          { NODE; }
    | T__BEGIN T__ATOMIC error T__END                                           { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error T__END                    { NODE; }
    | T__BEGIN T__ATOMIC error %prec LOWEST                                     { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error %prec LOWEST              { NODE; }
    | T__BEGIN T__ATOMIC open_routine_body %prec LOWEST                         { NODE; }
    ;
open_routine_body
    : open_body_statement                                                       { NODE(body_pl_sql_statements); }
    | body_pl_sql_statements open_body_statement                                { NODE(body_pl_sql_statements); }
    ;
open_body_statement
    : open_pl_sql_statement                                                     { NODE(delimited_pl_sql_statement); }
    ;
open_pl_sql_statement
    : open_routine                                                              { NODE(pl_sql_statement); }
    ;
return_statement
    : T__RETURN expression                                                      { NODE; }
    ;
body_pl_sql_statements
    : delimited_body_statement                                                  { NODE; }
    | body_pl_sql_statements delimited_body_statement                           { NODE; }
    ;
delimited_body_statement
    : body_statement pl_sql_statement_delimiter
      { NODE(delimited_pl_sql_statement); }
    | pl_sql_statement_delimiter
      { NODE(delimited_pl_sql_statement); }
    | error pl_sql_statement_delimiter
      { NODE(delimited_pl_sql_statement); }
    ;
body_statement
    : statement                                                                 { NODE(pl_sql_statement); }
    | return_statement                                                          { NODE(pl_sql_statement); }
    ;

/* A routine as other statements point at it. */
routine_signature
    : function_name parameters                                                  { NODE; }
    | routine_alone                                                             { NODE; }
    ;
keyword_routine
    : type_function_name_keyword                                                { NODE(sql_identifier); }
    ;
routine_alone
    : qualified_name                                                            { NODE(function_name); }
    | keyword_routine                                                           { NODE(function_name); }
    ;
routine_signature_list
    : routine_signature                                                         { NODE; }
    | routine_signature_list T__COMMA routine_signature                         { NODE; }
    ;
aggregate_signature
    : function_name aggregate_parameters                                        { NODE; }
    ;
aggregate_signature_list
    : aggregate_signature                                                       { NODE; }
    | aggregate_signature_list T__COMMA aggregate_signature                     { NODE; }
    ;
aggregate_parameters
    : T__LPAREN T__ASTERISK T__RPAREN                                           { NODE(parameters); }
    | T__LPAREN plain_parameters T__RPAREN                                      { NODE(parameters); }
    | T__LPAREN T__ORDER T__BY plain_parameters T__RPAREN                       { NODE(parameters); }
    | T__LPAREN plain_parameters T__ORDER T__BY plain_parameters T__RPAREN      { NODE(parameters); }
    ;
plain_parameters
    : plain_parameter                                                           { NODE(parameter_list); }
    | plain_parameters T__COMMA plain_parameter                                 { NODE(parameter_list); }
    ;
operator_signature
    : any_operator operator_operands                                            { NODE; }
    ;
operator_signature_list
    : operator_signature                                                        { NODE; }
    | operator_signature_list T__COMMA operator_signature                       { NODE; }
    ;
operator_operands
    : T__LPAREN data_type T__COMMA data_type T__RPAREN                          { NODE; }
    | T__LPAREN T__NONE T__COMMA data_type T__RPAREN                            { NODE; }
    | T__LPAREN data_type T__COMMA T__NONE T__RPAREN                            { NODE; }
    ;
