/* CREATE TABLE. */

create_table
    : T__CREATE T__TABLE table_definition                                       { NODE; }
    | T__CREATE temporary T__TABLE table_definition                             { NODE; }
    ;
table_definition
    : new_name T__LPAREN T__RPAREN                                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN                               { NODE; }
    | new_name T__LPAREN T__RPAREN table_options                                { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN table_options                 { NODE; }
    | new_name T__OF qualified_name                                             { NODE; }
    | new_name T__OF qualified_name typed_elements                              { NODE; }
    | new_name T__OF qualified_name table_options                               { NODE; }
    | new_name T__OF qualified_name typed_elements table_options                { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound table_options  { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound  { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound table_options
      { NODE; }
    | table_as
    ;
/* The name of something to be made. */
new_name
    : qualified_name
    | T__IF T__NOT T__EXISTS qualified_name                                     { NODE; }
    ;

table_as
    : new_name as_query                                                         { NODE; }
    | new_name parenthesized_names as_query                                     { NODE; }
    | new_name table_options as_query                                           { NODE; }
    | new_name parenthesized_names table_options as_query                       { NODE; }
    | new_name table_options as_execute                                         { NODE; }
    | new_name parenthesized_names as_execute                                   { NODE; }
    | new_name as_execute                                                       { NODE; }
    | new_name parenthesized_names table_options as_execute                     { NODE; }
    ;
as_query
    : T__AS query                                                               { NODE; }
    | T__AS query with_data                                                     { NODE; }
    ;
with_data
    : T__WITH T__DATA                                                           { NODE; }
    | T__WITH T__NO T__DATA                                                     { NODE; }
    ;
as_execute
    : T__AS T__EXECUTE column_name                                              { NODE; }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN          { NODE; }
    | T__AS T__EXECUTE column_name with_data                                    { NODE; }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN with_data  { NODE; }
    ;

%list table_elements: table_element %separator T__COMMA ;

table_element
    : column_definition
    | table_constraint
    | T__LIKE qualified_name                                                    { NODE; }
    | T__LIKE qualified_name like_options                                       { NODE; }
    ;
like_options
    : like_option
    | like_options like_option                                                  { NODE; }
    ;
like_option
    : T__INCLUDING like_what                                                    { NODE; }
    | T__EXCLUDING like_what                                                    { NODE; }
    ;
like_what
    : T__ALL
    | T__COMMENTS
    | T__COMPRESSION
    | T__CONSTRAINTS
    | T__DEFAULTS
    | T__GENERATED
    | T__IDENTITY
    | T__INDEXES
    | T__STATISTICS
    | T__STORAGE
    ;
typed_elements
    : T__LPAREN typed_element_list T__RPAREN                                    { NODE; }
    ;
typed_element_list
    : typed_element
    | typed_element_list T__COMMA typed_element                                 { NODE; }
    ;
typed_element
    : column_name column_constraints                                            { NODE; }
    | column_name T__WITH T__OPTIONS                                            { NODE; }
    | column_name T__WITH T__OPTIONS column_constraints                         { NODE; }
    | column_name
    | table_constraint
    ;

column_definition
    : column_name type_name                                                     { NODE; }
    | column_name type_name column_constraints                                  { NODE; }
    | column_name type_name column_options                                      { NODE; }
    | column_name type_name column_options column_constraints                   { NODE; }
    ;
column_options
    : column_storage
    | column_storage column_compression_part                                    { NODE; }
    | column_compression_part
    ;
column_storage
    : T__STORAGE column_name                                                    { NODE; }
    | T__STORAGE T__DEFAULT                                                     { NODE; }
    ;
column_compression_part
    : T__COMPRESSION column_name                                                { NODE(column_options); }
    | T__COMPRESSION T__DEFAULT                                                 { NODE(column_options); }
    | generic_options
    | T__COMPRESSION column_name generic_options                                { NODE(column_options); }
    | T__COMPRESSION T__DEFAULT generic_options                                 { NODE(column_options); }
    ;
column_constraints
    : column_constraint
    | column_constraints column_constraint                                      { NODE; }
    ;
column_constraint
    : T__CONSTRAINT column_name column_constraint_body                          { NODE; }
    | column_constraint_body
    | constraint_attribute
    | enforcement
    | T__COLLATE qualified_name                                                 { NODE; }
    ;
column_constraint_body
    : T__NOT T__NULL                                                            { NODE; }
    | T__NOT T__NULL T__NO T__INHERIT                                           { NODE; }
    | T__NULL
    | T__UNIQUE
    | T__UNIQUE index_parameters                                                { NODE; }
    | T__UNIQUE nulls_distinct                                                  { NODE; }
    | T__UNIQUE nulls_distinct index_parameters                                 { NODE; }
    | T__PRIMARY T__KEY                                                         { NODE; }
    | T__PRIMARY T__KEY index_parameters                                        { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN T__NO T__INHERIT                  { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    | T__GENERATED generated_when T__AS T__IDENTITY                             { NODE; }
    | T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { NODE; }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN          { NODE; }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__STORED  { NODE; }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__VIRTUAL  { NODE; }
    | references_clause
    ;
generated_when
    : T__ALWAYS
    | T__BY T__DEFAULT                                                          { NODE; }
    ;
nulls_distinct
    : T__NULLS T__NOT T__DISTINCT                                               { NODE; }
    | T__NULLS T__DISTINCT                                                      { NODE; }
    ;
index_parameters
    : T__WITH parenthesized_definitions                                         { NODE; }
    | index_tablespace
    | T__WITH parenthesized_definitions index_tablespace                        { NODE; }
    ;
index_tablespace
    : T__USING T__INDEX T__TABLESPACE column_name                               { NODE; }
    ;
references_clause
    : T__REFERENCES qualified_name                                              { NODE; }
    | T__REFERENCES qualified_name foreign_columns                              { NODE; }
    | T__REFERENCES qualified_name reference_options                            { NODE; }
    | T__REFERENCES qualified_name foreign_columns reference_options            { NODE; }
    ;
reference_options
    : reference_option
    | reference_options reference_option                                        { NODE; }
    ;
reference_option
    : T__MATCH T__FULL                                                          { NODE; }
    | T__MATCH T__PARTIAL                                                       { NODE; }
    | T__MATCH T__SIMPLE                                                        { NODE; }
    | T__ON T__UPDATE reference_action                                          { NODE; }
    | T__ON T__DELETE reference_action                                          { NODE; }
    ;
reference_action
    : T__NO T__ACTION                                                           { NODE; }
    | T__RESTRICT
    | T__CASCADE
    | T__SET T__NULL                                                            { NODE; }
    | T__SET T__DEFAULT                                                         { NODE; }
    | T__SET T__NULL parenthesized_names                                        { NODE; }
    | T__SET T__DEFAULT parenthesized_names                                     { NODE; }
    ;
constraint_attribute
    : T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    | T__INITIALLY T__DEFERRED                                                  { NODE; }
    | T__INITIALLY T__IMMEDIATE                                                 { NODE; }
    ;
enforcement
    : T__ENFORCED
    | T__NOT T__ENFORCED                                                        { NODE(constraint_attribute); }
    ;

table_constraint
    : common_constraint
    | T__CONSTRAINT column_name not_null_column                                 { NODE; }
    | not_null_column
    ;
/* What a domain may have too. */
common_constraint
    : T__CONSTRAINT column_name table_constraint_body                           { NODE(table_constraint); }
    | table_constraint_body
    ;
not_null_column
    : T__NOT T__NULL column_name                                                { NODE(table_constraint_body); }
    | T__NOT T__NULL column_name constraint_attributes                          { NODE(table_constraint_body); }
    ;
table_constraint_body
    : T__CHECK T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN constraint_attributes             { NODE; }
    | T__UNIQUE key_columns                                                     { NODE; }
    | T__UNIQUE nulls_distinct key_columns                                      { NODE; }
    | T__PRIMARY T__KEY key_columns                                             { NODE; }
    | T__UNIQUE T__USING T__INDEX column_name                                   { NODE; }
    | T__UNIQUE T__USING T__INDEX column_name constraint_attributes             { NODE; }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name                           { NODE; }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name constraint_attributes     { NODE; }
    | T__EXCLUDE exclusion                                                      { NODE; }
    | T__FOREIGN T__KEY foreign_columns references_clause                       { NODE; }
    | T__FOREIGN T__KEY foreign_columns references_clause constraint_attributes
      { NODE; }
    ;
key_columns
    : unique_columns
    | unique_columns key_tail                                                   { NODE; }
    ;
unique_columns
    : T__LPAREN unique_column_list T__RPAREN                                    { NODE(parenthesized_names); }
    ;
%list unique_column_list: unique_column %separator T__COMMA %node name_list ;

unique_column
    : column_name
    | column_name T__WITHOUT T__OVERLAPS                                        { NODE; }
    ;
foreign_columns
    : T__LPAREN foreign_column_list T__RPAREN                                   { NODE(parenthesized_names); }
    ;
%list foreign_column_list: foreign_column %separator T__COMMA %node name_list ;

foreign_column
    : column_name
    | T__PERIOD column_name                                                     { NODE; }
    ;
key_tail
    : include_columns
    | include_columns key_tail_parameters                                       { NODE; }
    | key_tail_parameters
    ;
key_tail_parameters
    : index_parameters
    | index_parameters constraint_attributes                                    { NODE; }
    | constraint_attributes
    ;
include_columns
    : T__INCLUDE parenthesized_names                                            { NODE; }
    ;
exclusion
    : T__LPAREN exclusion_list T__RPAREN                                        { NODE; }
    | T__LPAREN exclusion_list T__RPAREN exclusion_tail                         { NODE; }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN                   { NODE; }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN exclusion_tail    { NODE; }
    ;
exclusion_list
    : exclusion_item
    | exclusion_list T__COMMA exclusion_item                                    { NODE; }
    ;
exclusion_item
    : index_element T__WITH any_operator                                        { NODE; }
    | index_element T__WITH T__OPERATOR T__LPAREN any_operator T__RPAREN        { NODE; }
    ;
exclusion_tail
    : include_columns
    | include_columns exclusion_tail_parameters                                 { NODE; }
    | exclusion_tail_parameters
    ;
exclusion_tail_parameters
    : index_parameters
    | index_parameters exclusion_tail_where                                     { NODE; }
    | exclusion_tail_where
    ;
exclusion_tail_where
    : T__WHERE T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__WHERE T__LPAREN expression T__RPAREN constraint_attributes             { NODE; }
    | constraint_attributes
    ;
constraint_attributes
    : constraint_mark
    | constraint_attributes constraint_mark                                     { NODE; }
    ;
constraint_mark
    : constraint_attribute
    | enforcement
    | T__NOT T__VALID                                                           { NODE; }
    | T__NO T__INHERIT                                                          { NODE; }
    ;

table_options
    : table_option
    | table_options table_option                                                { NODE; }
    ;
table_option
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { NODE; }
    | T__PARTITION T__BY column_name T__LPAREN index_elements T__RPAREN         { NODE; }
    | T__USING column_name                                                      { NODE; }
    | T__WITH relation_options                                                  { NODE; }
    | T__WITHOUT T__OIDS                                                        { NODE; }
    | T__ON T__COMMIT T__DROP                                                   { NODE; }
    | T__ON T__COMMIT T__DELETE T__ROWS                                         { NODE; }
    | T__ON T__COMMIT T__PRESERVE T__ROWS                                       { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    ;
partition_bound
    : T__FOR T__VALUES T__WITH T__LPAREN hash_bounds T__RPAREN                  { NODE; }
    | T__FOR T__VALUES T__IN T__LPAREN expression_list T__RPAREN                { NODE; }
    | T__FOR T__VALUES T__FROM T__LPAREN expression_list T__RPAREN T__TO T__LPAREN expression_list T__RPAREN
      { NODE; }
    | T__DEFAULT
    ;
hash_bounds
    : hash_bound
    | hash_bounds T__COMMA hash_bound                                           { NODE; }
    ;
hash_bound
    : non_reserved_word T__INTEGER_NUMBER                                       { NODE; }
    ;
