/* Options. */

options
    : T__LPAREN option_list T__RPAREN                                           { NODE; }
    ;
option_list
    : relation_option                                                           { NODE; }
    | option_list T__COMMA relation_option                                      { NODE; }
    ;
relation_option
    : qualified_option_name                                                     { NODE(option); }
    | qualified_option_name T__EQUAL definition_value                           { NODE(option); }
    ;
option_name
    : any_label                                                                 { NODE; }
    ;
qualified_option_name
    : any_label                                                                 { NODE(option_name); }
    | dotted_option_name                                                        { NODE(option_name); }
    ;
dotted_option_name
    : any_label T__DOT any_label                                                { NODE(qualified_sql_identifier); }
    ;

definitions
    : T__LPAREN definition_list T__RPAREN                                       { NODE(options); }
    ;
definition_list
    : definition_item                                                           { NODE(option_list); }
    | definition_list T__COMMA definition_item                                  { NODE(option_list); }
    ;
definition_item
    : option_name                                                               { NODE(option); }
    | option_name T__EQUAL definition_value                                     { NODE(option); }
    ;
definition_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { NODE; }
    | signed_number
    | string_literal
    | T__NONE
    ;

/* A type as functions take it, that of a column included. */
function_type
    : data_type
    | column_type                                                               { NODE(data_type); }
    | T__SETOF column_type                                                      { NODE(data_type); }
    ;
/* The type that a column has. */
column_type
    : dotted_type_name T__PERCENT T__TYPE                                       { NODE; }
    ;

generic_options
    : T__OPTIONS T__LPAREN generic_option_list T__RPAREN                        { NODE(options_clause); }
    ;
generic_option_list
    : generic_option                                                            { NODE(option_list); }
    | generic_option_list T__COMMA generic_option                               { NODE(option_list); }
    ;
generic_option
    : option_name string_literal                                                { NODE(option); }
    ;

sequence_option_list
    : sequence_option                                                           { NODE; }
    | sequence_option_list sequence_option                                      { NODE; }
    ;
sequence_option
    : T__AS simple_type                                                         { NODE; }
    | T__CACHE signed_number                                                    { NODE; }
    | T__CYCLE                                                                  { NODE; }
    | T__NO T__CYCLE                                                            { NODE; }
    | T__INCREMENT signed_number                                                { NODE; }
    | T__INCREMENT T__BY signed_number                                          { NODE; }
    | T__MAXVALUE signed_number                                                 { NODE; }
    | T__NO T__MAXVALUE                                                         { NODE; }
    | T__MINVALUE signed_number                                                 { NODE; }
    | T__NO T__MINVALUE                                                         { NODE; }
    | T__OWNED T__BY qualified_column_name                                      { NODE; }
    | T__SEQUENCE T__NAME sequence_name                                         { NODE; }
    | T__START signed_number                                                    { NODE; }
    | T__START T__WITH signed_number                                            { NODE; }
    | T__RESTART                                                                { NODE; }
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    ;

create_foreign_table_statement
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER server_name
      { NODE; }
    | T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER server_name generic_options
      { NODE; }
    ;
new_foreign_table
    : table_name
    | if_not_exists table_name
      { NODE(create_foreign_table_statement); }
    ;
foreign_table_definition
    : new_foreign_table T__LPAREN T__RPAREN
      { NODE(create_foreign_table_statement); }
    | new_foreign_table T__LPAREN table_element_list T__RPAREN
      { NODE(create_foreign_table_statement); }
    | new_foreign_table T__LPAREN T__RPAREN inherits_clause
      { NODE(create_foreign_table_statement); }
    | new_foreign_table T__LPAREN table_element_list T__RPAREN inherits_clause
      { NODE(create_foreign_table_statement); }
    | new_foreign_table T__PARTITION T__OF table_name partition_bound
      { NODE(create_foreign_table_statement); }
    | new_foreign_table T__PARTITION T__OF table_name T__LPAREN typed_element_list T__RPAREN partition_bound
      { NODE(create_foreign_table_statement); }
    ;
inherits_clause
    : T__INHERITS T__LPAREN table_name_list T__RPAREN                           { NODE; }
    ;

create_index_statement
    : T__CREATE T__INDEX index_definition                                       { NODE; }
    | T__CREATE T__UNIQUE T__INDEX index_definition                             { NODE; }
    ;
new_index
    : index_name
    | if_not_exists index_name
      { NODE(create_index_statement); }
    ;
index_definition
    : index_target
    | T__CONCURRENTLY index_target
      { NODE(create_index_statement); }
    | new_index index_target
      { NODE(create_index_statement); }
    | T__CONCURRENTLY new_index index_target
      { NODE(create_index_statement); }
    ;
index_target
    : T__ON table index_columns
      { NODE(create_index_statement); }
    | T__ON table index_columns index_clause_list
      { NODE(create_index_statement); }
    ;
index_columns
    : T__LPAREN index_element_list T__RPAREN
      { NODE(create_index_statement); }
    | T__USING access_method_name T__LPAREN index_element_list T__RPAREN
      { NODE(create_index_statement); }
    ;
index_clause_list
    : index_clause                                                              { NODE; }
    | index_clause_list index_clause                                            { NODE; }
    ;
index_clause
    : T__INCLUDE T__LPAREN index_element_list T__RPAREN                         { NODE; }
    | nulls_distinct                                                            { NODE; }
    | T__WITH options                                                           { NODE; }
    | T__TABLESPACE tablespace_name                                             { NODE; }
    | where_clause                                                              { NODE; }
    ;

create_view_statement
    : T__CREATE view_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE view_definition                                { NODE; }
    | T__CREATE temporary view_definition                                       { NODE; }
    | T__CREATE T__OR T__REPLACE temporary view_definition                      { NODE; }
    ;
view_definition
    : T__VIEW view_name view_body
      { NODE(create_view_statement); }
    | T__VIEW view_name columns view_body
      { NODE(create_view_statement); }
    | T__RECURSIVE T__VIEW view_name columns view_body
      { NODE(create_view_statement); }
    ;
view_body
    : T__AS query
      { NODE(create_view_statement); }
    | T__AS query check_option
      { NODE(create_view_statement); }
    | T__WITH options T__AS query
      { NODE(create_view_statement); }
    | T__WITH options T__AS query check_option
      { NODE(create_view_statement); }
    ;
check_option
    : T__WITH T__CHECK T__OPTION                                                { NODE; }
    | T__WITH T__CASCADED T__CHECK T__OPTION                                    { NODE; }
    | T__WITH T__LOCAL T__CHECK T__OPTION                                       { NODE; }
    ;

create_materialized_view_statement
    : T__CREATE T__MATERIALIZED T__VIEW materialized_definition                 { NODE; }
    | T__CREATE T__UNLOGGED T__MATERIALIZED T__VIEW materialized_definition     { NODE; }
    ;
new_view
    : view_name
    | if_not_exists view_name
      { NODE(create_materialized_view_statement); }
    ;
materialized_definition
    : new_view as_query
      { NODE(create_materialized_view_statement); }
    | new_view columns as_query
      { NODE(create_materialized_view_statement); }
    | new_view materialized_option_list as_query
      { NODE(create_materialized_view_statement); }
    | new_view columns materialized_option_list as_query
      { NODE(create_materialized_view_statement); }
    ;
materialized_option_list
    : materialized_option                                                       { NODE(table_option_list); }
    | materialized_option_list materialized_option                              { NODE(table_option_list); }
    ;
materialized_option
    : T__USING access_method_name                                               { NODE(table_option); }
    | T__WITH options                                                           { NODE(table_option); }
    | T__TABLESPACE tablespace_name                                             { NODE(table_option); }
    ;

new_sequence
    : sequence_name
    | if_not_exists sequence_name
      { NODE(create_sequence_statement); }
    ;
create_sequence_statement
    : T__CREATE T__SEQUENCE new_sequence                                        { NODE; }
    | T__CREATE T__SEQUENCE new_sequence sequence_option_list                   { NODE; }
    | T__CREATE temporary T__SEQUENCE new_sequence                              { NODE; }
    | T__CREATE temporary T__SEQUENCE new_sequence sequence_option_list         { NODE; }
    ;
