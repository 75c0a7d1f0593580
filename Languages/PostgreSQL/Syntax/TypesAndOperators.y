/* Statistics, types, operators. */

create_statistics
    : T__CREATE T__STATISTICS T__ON statistics_columns from_clause              { NODE; }
    | T__CREATE T__STATISTICS parenthesized_names T__ON statistics_columns from_clause
      { NODE; }
    | T__CREATE T__STATISTICS new_name T__ON statistics_columns from_clause     { NODE; }
    | T__CREATE T__STATISTICS new_name parenthesized_names T__ON statistics_columns from_clause
      { NODE; }
    ;
statistics_columns
    : statistics_column
    | statistics_columns T__COMMA statistics_column                             { NODE; }
    ;
statistics_column
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { NODE; }
    ;

create_definition
    : T__CREATE T__OPERATOR any_operator parenthesized_definitions              { NODE; }
    | T__CREATE T__COLLATION new_name parenthesized_definitions                 { NODE; }
    | T__CREATE T__COLLATION new_name T__FROM qualified_name                    { NODE; }
    | T__CREATE T__TEXT T__SEARCH text_search_word qualified_name parenthesized_definitions
      { NODE; }
    ;
text_search_word
    : T__PARSER
    | T__DICTIONARY
    | T__TEMPLATE
    | T__CONFIGURATION
    ;

create_type
    : T__CREATE T__TYPE qualified_name                                          { NODE; }
    | T__CREATE T__TYPE qualified_name parenthesized_definitions                { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN T__RPAREN                { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN table_function_columns T__RPAREN
      { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN T__RPAREN        { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN string_list T__RPAREN  { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__RANGE parenthesized_definitions  { NODE; }
    ;

create_domain
    : T__CREATE T__DOMAIN qualified_name type_name                              { NODE; }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name                        { NODE; }
    | T__CREATE T__DOMAIN qualified_name type_name column_constraints           { NODE; }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name column_constraints     { NODE; }
    ;

create_aggregate
    : T__CREATE aggregate_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE aggregate_definition                           { NODE; }
    ;
aggregate_definition
    : T__AGGREGATE function_name aggregate_parameters parenthesized_definitions
      { NODE; }
    | T__AGGREGATE function_name T__LPAREN old_aggregate_list T__RPAREN         { NODE; }
    ;
old_aggregate_list
    : old_aggregate_item
    | old_aggregate_list T__COMMA old_aggregate_item                            { NODE; }
    ;
old_aggregate_item
    : plain_identifier T__EQUAL definition_value                                { NODE; }
    ;

create_operator_class
    : T__CREATE T__OPERATOR T__CLASS qualified_name operator_class_head T__AS operator_class_items
      { NODE; }
    ;
operator_class_head
    : T__FOR T__TYPE type_name T__USING column_name                             { NODE; }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name                  { NODE; }
    | T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name    { NODE; }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name
      { NODE; }
    ;
operator_class_items
    : operator_class_item
    | operator_class_items T__COMMA operator_class_item                         { NODE; }
    ;
operator_class_item
    : T__OPERATOR T__INTEGER_NUMBER any_operator                                { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER any_operator operator_class_purpose         { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature                          { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature operator_class_purpose   { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER routine_signature                           { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN routine_signature
      { NODE; }
    | T__STORAGE type_name                                                      { NODE; }
    ;
operator_class_purpose
    : T__FOR T__SEARCH                                                          { NODE; }
    | T__FOR T__ORDER T__BY qualified_name                                      { NODE; }
    | T__RECHECK
    ;
type_list
    : type_name
    | type_list T__COMMA type_name                                              { NODE; }
    ;

create_operator_family
    : T__CREATE T__OPERATOR T__FAMILY qualified_name T__USING column_name       { NODE; }
    ;

create_cast
    : T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method  { NODE; }
    | T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method cast_context
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

create_transform
    : T__CREATE transform_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE transform_definition                           { NODE; }
    ;
transform_definition
    : T__TRANSFORM T__FOR type_name T__LANGUAGE column_name T__LPAREN transform_functions T__RPAREN
      { NODE; }
    ;
transform_functions
    : transform_function
    | transform_functions T__COMMA transform_function                           { NODE; }
    ;
transform_function
    : T__FROM T__SQL T__WITH T__FUNCTION routine_signature                      { NODE; }
    | T__TO T__SQL T__WITH T__FUNCTION routine_signature                        { NODE; }
    ;

create_conversion
    : T__CREATE T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { NODE; }
    | T__CREATE T__DEFAULT T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { NODE; }
    ;

create_access_method
    : T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__INDEX T__HANDLER qualified_name
      { NODE; }
    | T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__TABLE T__HANDLER qualified_name
      { NODE; }
    ;
