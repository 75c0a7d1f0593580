/* Statistics, types, operators. */

new_statistics
    : statistics_name
    | if_not_exists statistics_name
      { NODE(create_statistics_statement); }
    ;
statistics_kinds
    : T__LPAREN name_list T__RPAREN                                             { NODE; }
    ;
create_statistics_statement
    : T__CREATE T__STATISTICS T__ON statistics_column_list from_clause          { NODE; }
    | T__CREATE T__STATISTICS statistics_kinds T__ON statistics_column_list from_clause
      { NODE; }
    | T__CREATE T__STATISTICS new_statistics T__ON statistics_column_list from_clause  { NODE; }
    | T__CREATE T__STATISTICS new_statistics statistics_kinds T__ON statistics_column_list from_clause
      { NODE; }
    ;
statistics_column_list
    : statistics_column                                                         { NODE; }
    | statistics_column_list T__COMMA statistics_column                         { NODE; }
    ;
statistics_column
    : column_name                                                               { NODE; }
    | plain_function                                                            { NODE; }
    | T__LPAREN expression T__RPAREN                                            { NODE; }
    ;

new_collation
    : collation_name
    | if_not_exists collation_name
      { NODE(create_collation_statement); }
    ;
create_object_statement
    : T__CREATE T__OPERATOR any_operator definitions
      { NODE(create_operator_statement); }
    | T__CREATE T__COLLATION new_collation definitions
      { NODE(create_collation_statement); }
    | T__CREATE T__COLLATION new_collation T__FROM collation_name
      { NODE(create_collation_statement); }
    | T__CREATE T__TEXT T__SEARCH text_search_word text_search_name definitions
      { NODE(create_text_search_statement); }
    ;
text_search_word
    : T__PARSER
    | T__DICTIONARY
    | T__TEMPLATE
    | T__CONFIGURATION
    ;

create_type_statement
    : T__CREATE T__TYPE defined_type_name                                       { NODE; }
    | T__CREATE T__TYPE defined_type_name definitions                           { NODE; }
    | T__CREATE T__TYPE defined_type_name T__AS T__LPAREN T__RPAREN             { NODE; }
    | T__CREATE T__TYPE defined_type_name T__AS T__LPAREN column_definition_list T__RPAREN
      { NODE; }
    | T__CREATE T__TYPE defined_type_name T__AS T__ENUM T__LPAREN T__RPAREN     { NODE; }
    | T__CREATE T__TYPE defined_type_name T__AS T__ENUM T__LPAREN string_list T__RPAREN  { NODE; }
    | T__CREATE T__TYPE defined_type_name T__AS T__RANGE definitions            { NODE; }
    ;

create_domain_statement
    : T__CREATE T__DOMAIN domain_name data_type                                 { NODE; }
    | T__CREATE T__DOMAIN domain_name T__AS data_type                           { NODE; }
    | T__CREATE T__DOMAIN domain_name data_type column_constraint_list          { NODE; }
    | T__CREATE T__DOMAIN domain_name T__AS data_type column_constraint_list    { NODE; }
    ;

create_aggregate_statement
    : T__CREATE aggregate_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE aggregate_definition                           { NODE; }
    ;
aggregate_definition
    : T__AGGREGATE function_name aggregate_parameters definitions
      { NODE(create_aggregate_statement); }
    | T__AGGREGATE function_name old_aggregate_options
      { NODE(create_aggregate_statement); }
    ;
old_aggregate_options
    : T__LPAREN old_aggregate_list T__RPAREN                                    { NODE(options); }
    ;
old_aggregate_list
    : old_aggregate_item                                                        { NODE(option_list); }
    | old_aggregate_list T__COMMA old_aggregate_item                            { NODE(option_list); }
    ;
old_aggregate_item
    : old_aggregate_option T__EQUAL definition_value                            { NODE(option); }
    ;
old_aggregate_option
    : plain_identifier                                                          { NODE(option_name); }
    ;

create_operator_class_statement
    : T__CREATE T__OPERATOR T__CLASS operator_class_name operator_class_head T__AS operator_class_item_list
      { NODE; }
    ;
operator_class_head
    : T__FOR T__TYPE data_type T__USING access_method_name
      { NODE(create_operator_class_statement); }
    | T__DEFAULT T__FOR T__TYPE data_type T__USING access_method_name
      { NODE(create_operator_class_statement); }
    | T__FOR T__TYPE data_type T__USING access_method_name T__FAMILY operator_family_name
      { NODE(create_operator_class_statement); }
    | T__DEFAULT T__FOR T__TYPE data_type T__USING access_method_name T__FAMILY operator_family_name
      { NODE(create_operator_class_statement); }
    ;
operator_class_item_list
    : operator_class_item                                                       { NODE; }
    | operator_class_item_list T__COMMA operator_class_item                     { NODE; }
    ;
operator_class_item
    : T__OPERATOR T__INTEGER_NUMBER any_operator                                { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER any_operator operator_class_purpose         { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature                          { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature operator_class_purpose   { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER routine_signature                           { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN data_type_list T__RPAREN routine_signature
      { NODE; }
    | T__STORAGE data_type                                                      { NODE; }
    ;
operator_class_purpose
    : T__FOR T__SEARCH                                                          { NODE; }
    | T__FOR T__ORDER T__BY operator_family_name                                { NODE; }
    | T__RECHECK                                                                { NODE; }
    ;
data_type_list
    : data_type                                                                 { NODE; }
    | data_type_list T__COMMA data_type                                         { NODE; }
    ;

create_operator_family_statement
    : T__CREATE T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name  { NODE; }
    ;

create_cast_statement
    : T__CREATE T__CAST T__LPAREN data_type T__AS data_type T__RPAREN cast_method  { NODE; }
    | T__CREATE T__CAST T__LPAREN data_type T__AS data_type T__RPAREN cast_method cast_context
      { NODE; }
    ;
cast_method
    : T__WITH T__FUNCTION routine_signature                                     { NODE; }
    | T__WITHOUT T__FUNCTION                                                    { NODE; }
    | T__WITH T__INOUT                                                          { NODE; }
    ;
cast_context
    : T__AS T__IMPLICIT                                                         { NODE; }
    | T__AS T__ASSIGNMENT                                                       { NODE; }
    ;

create_transform_statement
    : T__CREATE transform_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE transform_definition                           { NODE; }
    ;
transform_definition
    : T__TRANSFORM T__FOR data_type T__LANGUAGE language_name T__LPAREN transform_function_list T__RPAREN
      { NODE(create_transform_statement); }
    ;
transform_function_list
    : transform_function                                                        { NODE; }
    | transform_function_list T__COMMA transform_function                       { NODE; }
    ;
transform_function
    : T__FROM T__SQL T__WITH T__FUNCTION routine_signature                      { NODE; }
    | T__TO T__SQL T__WITH T__FUNCTION routine_signature                        { NODE; }
    ;

create_conversion_statement
    : T__CREATE T__CONVERSION conversion_name T__FOR string_literal T__TO string_literal T__FROM
      handler_name                                                            { NODE; }
    | T__CREATE T__DEFAULT T__CONVERSION conversion_name T__FOR string_literal T__TO string_literal T__FROM
      handler_name                                                            { NODE; }
    ;

create_access_method_statement
    : T__CREATE T__ACCESS T__METHOD access_method_name T__TYPE T__INDEX T__HANDLER handler_name
      { NODE; }
    | T__CREATE T__ACCESS T__METHOD access_method_name T__TYPE T__TABLE T__HANDLER handler_name
      { NODE; }
    ;
