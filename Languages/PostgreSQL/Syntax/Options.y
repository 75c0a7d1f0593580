/* Options. */

relation_options
    : T__LPAREN relation_option_list T__RPAREN                                  { NODE; }
    ;
relation_option_list
    : relation_option
    | relation_option_list T__COMMA relation_option                             { NODE; }
    ;
relation_option
    : any_label
    | any_label T__EQUAL definition_value                                       { NODE; }
    | any_label T__DOT any_label                                                { NODE; }
    | any_label T__DOT any_label T__EQUAL definition_value                      { NODE; }
    ;

parenthesized_definitions
    : T__LPAREN definition_list T__RPAREN                                       { NODE; }
    ;
definition_list
    : definition_item
    | definition_list T__COMMA definition_item                                  { NODE; }
    ;
definition_item
    : any_label
    | any_label T__EQUAL definition_value                                       { NODE; }
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
    : type_name
    | dotted_type_name T__PERCENT T__TYPE                                       { NODE; }
    | T__SETOF dotted_type_name T__PERCENT T__TYPE                              { NODE; }
    ;

generic_options
    : T__OPTIONS T__LPAREN generic_option_list T__RPAREN                        { NODE; }
    ;
generic_option_list
    : generic_option
    | generic_option_list T__COMMA generic_option                               { NODE; }
    ;
generic_option
    : any_label string_literal                                                  { NODE; }
    ;

sequence_options
    : sequence_option
    | sequence_options sequence_option                                          { NODE; }
    ;
sequence_option
    : T__AS simple_type                                                         { NODE; }
    | T__CACHE signed_number                                                    { NODE; }
    | T__CYCLE
    | T__NO T__CYCLE                                                            { NODE; }
    | T__INCREMENT signed_number                                                { NODE; }
    | T__INCREMENT T__BY signed_number                                          { NODE; }
    | T__MAXVALUE signed_number                                                 { NODE; }
    | T__NO T__MAXVALUE                                                         { NODE; }
    | T__MINVALUE signed_number                                                 { NODE; }
    | T__NO T__MINVALUE                                                         { NODE; }
    | T__OWNED T__BY qualified_name                                             { NODE; }
    | T__SEQUENCE T__NAME qualified_name                                        { NODE; }
    | T__START signed_number                                                    { NODE; }
    | T__START T__WITH signed_number                                            { NODE; }
    | T__RESTART
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    ;

create_foreign_table
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name
      { NODE; }
    | T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name generic_options
      { NODE; }
    ;
foreign_table_definition
    : new_name T__LPAREN T__RPAREN                                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN                               { NODE; }
    | new_name T__LPAREN T__RPAREN inherits_clause                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN inherits_clause               { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound
      { NODE; }
    ;
inherits_clause
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { NODE; }
    ;

create_index
    : T__CREATE T__INDEX index_definition                                       { NODE; }
    | T__CREATE T__UNIQUE T__INDEX index_definition                             { NODE; }
    ;
index_definition
    : index_target
    | T__CONCURRENTLY index_target                                              { NODE; }
    | new_name index_target                                                     { NODE; }
    | T__CONCURRENTLY new_name index_target                                     { NODE; }
    ;
index_target
    : T__ON relation index_columns                                              { NODE; }
    | T__ON relation index_columns index_clauses                                { NODE; }
    ;
index_columns
    : T__LPAREN index_elements T__RPAREN                                        { NODE; }
    | T__USING column_name T__LPAREN index_elements T__RPAREN                   { NODE; }
    ;
index_clauses
    : index_clause
    | index_clauses index_clause                                                { NODE; }
    ;
index_clause
    : T__INCLUDE T__LPAREN index_elements T__RPAREN                             { NODE; }
    | nulls_distinct
    | T__WITH relation_options                                                  { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    | where_clause
    ;

create_view
    : T__CREATE view_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE view_definition                                { NODE; }
    | T__CREATE temporary view_definition                                       { NODE; }
    | T__CREATE T__OR T__REPLACE temporary view_definition                      { NODE; }
    ;
view_definition
    : T__VIEW qualified_name view_body                                          { NODE; }
    | T__VIEW qualified_name parenthesized_names view_body                      { NODE; }
    | T__RECURSIVE T__VIEW qualified_name parenthesized_names view_body         { NODE; }
    ;
view_body
    : T__AS query                                                               { NODE; }
    | T__AS query check_option                                                  { NODE; }
    | T__WITH relation_options T__AS query                                      { NODE; }
    | T__WITH relation_options T__AS query check_option                         { NODE; }
    ;
check_option
    : T__WITH T__CHECK T__OPTION                                                { NODE; }
    | T__WITH T__CASCADED T__CHECK T__OPTION                                    { NODE; }
    | T__WITH T__LOCAL T__CHECK T__OPTION                                       { NODE; }
    ;

create_materialized_view
    : T__CREATE T__MATERIALIZED T__VIEW materialized_definition                 { NODE; }
    | T__CREATE T__UNLOGGED T__MATERIALIZED T__VIEW materialized_definition     { NODE; }
    ;
materialized_definition
    : new_name as_query                                                         { NODE; }
    | new_name parenthesized_names as_query                                     { NODE; }
    | new_name materialized_options as_query                                    { NODE; }
    | new_name parenthesized_names materialized_options as_query                { NODE; }
    ;
materialized_options
    : materialized_option
    | materialized_options materialized_option                                  { NODE; }
    ;
materialized_option
    : T__USING column_name                                                      { NODE; }
    | T__WITH relation_options                                                  { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    ;

create_sequence
    : T__CREATE T__SEQUENCE new_name                                            { NODE; }
    | T__CREATE T__SEQUENCE new_name sequence_options                           { NODE; }
    | T__CREATE temporary T__SEQUENCE new_name                                  { NODE; }
    | T__CREATE temporary T__SEQUENCE new_name sequence_options                 { NODE; }
    ;
