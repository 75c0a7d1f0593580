/* CREATE TABLE. */

create_table_statement
    : T__CREATE T__TABLE table_definition                                       { NODE; }
    | T__CREATE temporary T__TABLE table_definition                             { NODE; }
    ;
table_definition
    : new_table T__LPAREN T__RPAREN
      { NODE(create_table_statement); }
    | new_table T__LPAREN table_element_list T__RPAREN
      { NODE(create_table_statement); }
    | new_table T__LPAREN T__RPAREN table_option_list
      { NODE(create_table_statement); }
    | new_table T__LPAREN table_element_list T__RPAREN table_option_list
      { NODE(create_table_statement); }
    | new_table T__OF defined_type_name
      { NODE(create_table_statement); }
    | new_table T__OF defined_type_name T__LPAREN typed_element_list T__RPAREN
      { NODE(create_table_statement); }
    | new_table T__OF defined_type_name table_option_list
      { NODE(create_table_statement); }
    | new_table T__OF defined_type_name T__LPAREN typed_element_list T__RPAREN table_option_list
      { NODE(create_table_statement); }
    | new_table T__PARTITION T__OF table_name partition_bound
      { NODE(create_table_statement); }
    | new_table T__PARTITION T__OF table_name partition_bound table_option_list
      { NODE(create_table_statement); }
    | new_table T__PARTITION T__OF table_name T__LPAREN typed_element_list T__RPAREN partition_bound
      { NODE(create_table_statement); }
    | new_table T__PARTITION T__OF table_name T__LPAREN typed_element_list T__RPAREN partition_bound table_option_list
      { NODE(create_table_statement); }
    | table_as
    ;
/* The name of something to be made. Parts of a statement have its name, so that they end up directly in it. */
if_not_exists
    : T__IF T__NOT T__EXISTS                                                    { NODE; }
    ;
new_table
    : table_name
    | if_not_exists table_name
      { NODE(create_table_statement); }
    ;

table_as
    : new_table as_query
      { NODE(create_table_statement); }
    | new_table columns as_query
      { NODE(create_table_statement); }
    | new_table table_option_list as_query
      { NODE(create_table_statement); }
    | new_table columns table_option_list as_query
      { NODE(create_table_statement); }
    | new_table table_option_list as_execute
      { NODE(create_table_statement); }
    | new_table columns as_execute
      { NODE(create_table_statement); }
    | new_table as_execute
      { NODE(create_table_statement); }
    | new_table columns table_option_list as_execute
      { NODE(create_table_statement); }
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
    : T__AS execute_part                                                        { NODE; }
    | T__AS execute_part with_data                                              { NODE; }
    ;
execute_part
    : T__EXECUTE statement_name                                                 { NODE(execute_statement); }
    | T__EXECUTE statement_name T__LPAREN expression_list T__RPAREN             { NODE(execute_statement); }
    ;

%list table_element_list: table_element %separator T__COMMA ;

table_element
    : column_definition
    | table_constraint
    | T__LIKE table_name                                                        { NODE(like_clause); }
    | T__LIKE table_name like_options                                           { NODE(like_clause); }
    ;
like_options
    : like_option
    | like_options like_option                                                  { NODE(like_clause); }
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
typed_element_list
    : typed_element                                                             { NODE(table_element_list); }
    | typed_element_list T__COMMA typed_element                                 { NODE(table_element_list); }
    ;
typed_element
    : column_name column_constraint_list                                        { NODE(column_definition); }
    | column_name T__WITH T__OPTIONS                                            { NODE(column_definition); }
    | column_name T__WITH T__OPTIONS column_constraint_list                     { NODE(column_definition); }
    | column_name                                                               { NODE(column_definition); }
    | table_constraint
    ;

column_definition
    : column_name data_type                                                     { NODE; }
    | column_name data_type column_constraint_list                              { NODE; }
    | column_name data_type column_options                                      { NODE; }
    | column_name data_type column_options column_constraint_list               { NODE; }
    ;
column_options
    : column_storage
    | column_storage column_compression_part                                    { NODE(column_definition); }
    | column_compression_part
    ;
column_storage
    : T__STORAGE identifier                                                     { NODE; }
    | T__STORAGE T__DEFAULT                                                     { NODE; }
    ;
column_compression_part
    : column_compression
    | generic_options
    | column_compression generic_options                                        { NODE(column_definition); }
    ;
column_compression
    : T__COMPRESSION identifier                                                 { NODE; }
    | T__COMPRESSION T__DEFAULT                                                 { NODE; }
    ;
column_constraint_list
    : column_constraint                                                         { NODE; }
    | column_constraint_list column_constraint                                  { NODE; }
    ;
column_constraint
    : T__CONSTRAINT constraint_name column_constraint_body                      { NODE; }
    | T__CONSTRAINT constraint_name default_clause                              { NODE; }
    | column_constraint_body
    | constraint_attribute
    | enforcement
    | default_clause
    | collate_clause
    ;
collate_clause
    : T__COLLATE collation_name                                                 { NODE; }
    ;
column_constraint_body
    : T__NOT T__NULL                                                            { NODE(column_constraint); }
    | T__NOT T__NULL T__NO T__INHERIT                                           { NODE(column_constraint); }
    | T__NULL                                                                   { NODE(column_constraint); }
    | T__UNIQUE                                                                 { NODE(column_constraint); }
    | T__UNIQUE index_parameters                                                { NODE(column_constraint); }
    | T__UNIQUE nulls_distinct                                                  { NODE(column_constraint); }
    | T__UNIQUE nulls_distinct index_parameters                                 { NODE(column_constraint); }
    | T__PRIMARY T__KEY                                                         { NODE(column_constraint); }
    | T__PRIMARY T__KEY index_parameters                                        { NODE(column_constraint); }
    | T__CHECK T__LPAREN condition T__RPAREN                                    { NODE(column_constraint); }
    | T__CHECK T__LPAREN condition T__RPAREN T__NO T__INHERIT                   { NODE(column_constraint); }
    | T__GENERATED generated_when T__AS T__IDENTITY                             { NODE(column_constraint); }
    | T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_option_list T__RPAREN
      { NODE(column_constraint); }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN          { NODE(column_constraint); }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__STORED  { NODE(column_constraint); }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__VIRTUAL
      { NODE(column_constraint); }
    | references_clause                                                         { NODE(column_constraint); }
    ;
default_clause
    : T__DEFAULT restricted_expression                                          { NODE; }
    ;
generated_when
    : T__ALWAYS                                                                 { NODE; }
    | T__BY T__DEFAULT                                                          { NODE; }
    ;
nulls_distinct
    : T__NULLS T__NOT T__DISTINCT                                               { NODE; }
    | T__NULLS T__DISTINCT                                                      { NODE; }
    ;
index_parameters
    : T__WITH definitions                                                       { NODE; }
    | index_tablespace                                                          { NODE; }
    | T__WITH definitions index_tablespace                                      { NODE; }
    ;
index_tablespace
    : T__USING T__INDEX T__TABLESPACE tablespace_name                           { NODE; }
    ;
references_clause
    : T__REFERENCES table_name                                                  { NODE; }
    | T__REFERENCES table_name foreign_columns                                  { NODE; }
    | T__REFERENCES table_name reference_option_list                            { NODE; }
    | T__REFERENCES table_name foreign_columns reference_option_list            { NODE; }
    ;
reference_option_list
    : reference_option                                                          { NODE; }
    | reference_option_list reference_option                                    { NODE; }
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
    | T__RESTRICT                                                               { NODE; }
    | T__CASCADE                                                                { NODE; }
    | T__SET T__NULL                                                            { NODE; }
    | T__SET T__DEFAULT                                                         { NODE; }
    | T__SET T__NULL columns                                                    { NODE; }
    | T__SET T__DEFAULT columns                                                 { NODE; }
    ;
constraint_attribute
    : T__DEFERRABLE                                                             { NODE; }
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    | T__INITIALLY T__DEFERRED                                                  { NODE; }
    | T__INITIALLY T__IMMEDIATE                                                 { NODE; }
    ;
enforcement
    : T__ENFORCED
      { NODE(constraint_attribute); }
    | T__NOT T__ENFORCED
      { NODE(constraint_attribute); }
    ;

table_constraint
    : common_constraint
    | T__CONSTRAINT constraint_name not_null_column                             { NODE; }
    | not_null_column                                                           { NODE; }
    ;
/* What a domain may have too. */
common_constraint
    : T__CONSTRAINT constraint_name table_constraint_body                       { NODE(table_constraint); }
    | table_constraint_body                                                     { NODE(table_constraint); }
    ;
not_null_column
    : T__NOT T__NULL column_name                                                { NODE(table_constraint); }
    | T__NOT T__NULL column_name constraint_attribute_list                      { NODE(table_constraint); }
    ;
table_constraint_body
    : T__CHECK T__LPAREN condition T__RPAREN                                    { NODE(table_constraint); }
    | T__CHECK T__LPAREN condition T__RPAREN constraint_attribute_list          { NODE(table_constraint); }
    | T__UNIQUE key_columns                                                     { NODE(table_constraint); }
    | T__UNIQUE nulls_distinct key_columns                                      { NODE(table_constraint); }
    | T__PRIMARY T__KEY key_columns                                             { NODE(table_constraint); }
    | T__UNIQUE T__USING T__INDEX index_name                                    { NODE(table_constraint); }
    | T__UNIQUE T__USING T__INDEX index_name constraint_attribute_list          { NODE(table_constraint); }
    | T__PRIMARY T__KEY T__USING T__INDEX index_name                            { NODE(table_constraint); }
    | T__PRIMARY T__KEY T__USING T__INDEX index_name constraint_attribute_list  { NODE(table_constraint); }
    | T__EXCLUDE exclusion                                                      { NODE(table_constraint); }
    | T__FOREIGN T__KEY foreign_columns references_clause                       { NODE(table_constraint); }
    | T__FOREIGN T__KEY foreign_columns references_clause constraint_attribute_list
      { NODE(table_constraint); }
    ;
key_columns
    : unique_columns
    | unique_columns key_tail                                                   { NODE(table_constraint); }
    ;
unique_columns
    : T__LPAREN unique_column_list T__RPAREN                                    { NODE(columns); }
    ;
%list unique_column_list: unique_column %separator T__COMMA %node key_column_list ;

unique_column
    : column_name                                                               { NODE(key_column); }
    | column_name T__WITHOUT T__OVERLAPS                                        { NODE(key_column); }
    ;
foreign_columns
    : T__LPAREN foreign_column_list T__RPAREN                                   { NODE(columns); }
    ;
foreign_column_list
    : foreign_column                                                            { NODE(key_column_list); }
    | foreign_column_list T__COMMA foreign_column                               { NODE(key_column_list); }
    ;

foreign_column
    : column_name                                                               { NODE(key_column); }
    | T__PERIOD column_name                                                     { NODE(key_column); }
    ;
key_tail
    : include_clause
    | include_clause key_tail_parameters                                        { NODE(table_constraint); }
    | key_tail_parameters
    ;
key_tail_parameters
    : index_parameters
    | index_parameters constraint_attribute_list                                { NODE(table_constraint); }
    | constraint_attribute_list
    ;
include_clause
    : T__INCLUDE columns                                                        { NODE; }
    ;
exclusion
    : T__LPAREN exclusion_list T__RPAREN                                        { NODE; }
    | T__LPAREN exclusion_list T__RPAREN exclusion_tail                         { NODE; }
    | T__USING access_method_name T__LPAREN exclusion_list T__RPAREN            { NODE; }
    | T__USING access_method_name T__LPAREN exclusion_list T__RPAREN exclusion_tail  { NODE; }
    ;
exclusion_list
    : exclusion_item                                                            { NODE; }
    | exclusion_list T__COMMA exclusion_item                                    { NODE; }
    ;
exclusion_item
    : index_element T__WITH any_operator                                        { NODE; }
    | index_element T__WITH T__OPERATOR T__LPAREN any_operator T__RPAREN        { NODE; }
    ;
exclusion_tail
    : include_clause
    | include_clause exclusion_tail_parameters                                  { NODE(exclusion); }
    | exclusion_tail_parameters
    ;
exclusion_tail_parameters
    : index_parameters
    | index_parameters exclusion_tail_where                                     { NODE(exclusion); }
    | exclusion_tail_where
    ;
exclusion_tail_where
    : T__WHERE T__LPAREN condition T__RPAREN                                    { NODE(exclusion); }
    | T__WHERE T__LPAREN condition T__RPAREN constraint_attribute_list          { NODE(exclusion); }
    | constraint_attribute_list
    ;
constraint_attribute_list
    : constraint_mark                                                           { NODE; }
    | constraint_attribute_list constraint_mark                                 { NODE; }
    ;
constraint_mark
    : constraint_attribute
    | enforcement
    | T__NOT T__VALID
      { NODE(constraint_attribute); }
    | T__NO T__INHERIT
      { NODE(constraint_attribute); }
    ;

table_option_list
    : table_option                                                              { NODE; }
    | table_option_list table_option                                            { NODE; }
    ;
table_option
    : T__INHERITS T__LPAREN table_name_list T__RPAREN                           { NODE; }
    | T__PARTITION T__BY identifier T__LPAREN index_element_list T__RPAREN      { NODE; }
    | T__USING access_method_name                                               { NODE; }
    | T__WITH options                                                           { NODE; }
    | T__WITHOUT T__OIDS                                                        { NODE; }
    | T__ON T__COMMIT T__DROP                                                   { NODE; }
    | T__ON T__COMMIT T__DELETE T__ROWS                                         { NODE; }
    | T__ON T__COMMIT T__PRESERVE T__ROWS                                       { NODE; }
    | T__TABLESPACE tablespace_name                                             { NODE; }
    ;
partition_bound
    : T__FOR T__VALUES T__WITH T__LPAREN hash_bound_list T__RPAREN              { NODE; }
    | T__FOR T__VALUES T__IN T__LPAREN expression_list T__RPAREN                { NODE; }
    | T__FOR T__VALUES T__FROM T__LPAREN expression_list T__RPAREN T__TO T__LPAREN expression_list T__RPAREN
      { NODE; }
    | T__DEFAULT                                                                { NODE; }
    ;
hash_bound_list
    : hash_bound                                                                { NODE; }
    | hash_bound_list T__COMMA hash_bound                                       { NODE; }
    ;
hash_bound
    : non_reserved_word T__INTEGER_NUMBER                                       { NODE; }
    ;
