/* What PostgreSQL adds to CREATE TABLE. */

temporary { PART; }: (T__LOCAL | T__GLOBAL)? T__TEMP | T__UNLOGGED ;

table_definition { PART(create_table_statement); }
    : new_table T__LPAREN T__RPAREN table_option_list?
    | new_table T__OF defined_type_name (T__LPAREN typed_element_list T__RPAREN)? table_option_list?
    | new_table T__PARTITION T__OF table_name (T__LPAREN typed_element_list T__RPAREN)? partition_bound
          table_option_list? ;

table_as { NODE(create_table_statement); }: new_table columns? stored_option_list? as_execute ;
as_execute { NODE; }: T__AS execute_part with_data? ;
execute_part { NODE(execute_statement); }: T__EXECUTE statement_name (T__LPAREN expression_list T__RPAREN)? ;

table_element { PART(like_clause); }: T__LIKE table_name like_options ;
like_options { PART(like_clause); }: like_options? like_option ;
like_option { NODE; }: (T__INCLUDING | T__EXCLUDING) like_what ;
like_what
    : T__ALL | T__COMMENTS | T__COMPRESSION | T__CONSTRAINTS | T__DEFAULTS | T__GENERATED | T__IDENTITY
    | T__INDEXES | T__STATISTICS | T__STORAGE ;
%list typed_element_list: typed_element %short %separator T__COMMA %node table_element_list ;
typed_element { NODE(column_definition); }
    : column_name (T__WITH T__OPTIONS)? column_constraint_list?
    | table_constraint  { PART; } ;

column_definition { NODE; }: column_name data_type column_options column_constraint_list? ;
%parts column_options: column_storage column_compression generic_options %node column_definition ;
column_storage { NODE; }: T__STORAGE (identifier | T__DEFAULT) ;
column_compression { NODE; }: T__COMPRESSION (identifier | T__DEFAULT) ;
column_constraint_body { NODE(column_constraint); }
    : T__NOT T__NULL T__NO T__INHERIT
    | T__UNIQUE index_parameters
    | T__UNIQUE nulls_distinct index_parameters?
    | T__PRIMARY T__KEY index_parameters
    | T__CHECK T__LPAREN condition T__RPAREN T__NO T__INHERIT ;
nulls_distinct { NODE; }: T__NULLS T__NOT? T__DISTINCT ;
index_parameters { NODE; }: T__WITH definitions index_tablespace? | index_tablespace ;
index_tablespace { NODE; }: T__USING T__INDEX T__TABLESPACE tablespace_name ;
reference_action { NODE; }: T__SET (T__NULL | T__DEFAULT) columns ;

table_constraint { NODE; }: (T__CONSTRAINT constraint_name)? not_null_column ;
not_null_column { NODE(table_constraint); }: T__NOT T__NULL column_name constraint_attribute_list? ;
table_constraint_body { NODE(table_constraint); }
    : T__UNIQUE nulls_distinct key_columns
    | T__UNIQUE T__USING T__INDEX index_name constraint_attribute_list?
    | T__PRIMARY T__KEY T__USING T__INDEX index_name constraint_attribute_list?
    | T__EXCLUDE exclusion ;
key_columns { PART(table_constraint); }: unique_columns key_tail ;

foreign_column { NODE(key_column); }: T__PERIOD column_name ;
%parts key_tail: include_clause index_parameters constraint_attribute_list %node table_constraint ;
include_clause { NODE; }: T__INCLUDE columns ;
exclusion { NODE; }: (T__USING access_method_name)? T__LPAREN exclusion_list T__RPAREN exclusion_tail? ;
%list exclusion_list: exclusion_item %short %separator T__COMMA ;
exclusion_item { NODE; }
    : index_element T__WITH any_operator
    | index_element T__WITH T__OPERATOR T__LPAREN any_operator T__RPAREN ;
%parts exclusion_tail: include_clause index_parameters exclusion_tail_where %node exclusion ;
exclusion_tail_where { PART(exclusion); }
    : T__WHERE T__LPAREN condition T__RPAREN constraint_attribute_list?
    | constraint_attribute_list ;
constraint_mark { PART(constraint_attribute); }: T__NOT T__VALID | T__NO T__INHERIT ;

table_option { NODE; }
    : T__INHERITS T__LPAREN table_name_list T__RPAREN
    | T__PARTITION T__BY identifier T__LPAREN index_element_list T__RPAREN
    | stored_option  { PART; } ;
stored_option { NODE(table_option); }
    : T__USING access_method_name
    | T__WITH options
    | T__WITHOUT T__OIDS
    | T__ON T__COMMIT T__DROP
    | T__ON T__COMMIT (T__DELETE | T__PRESERVE) T__ROWS
    | T__TABLESPACE tablespace_name ;
partition_bound { NODE; }
    : T__FOR T__VALUES T__WITH T__LPAREN hash_bound_list T__RPAREN
    | T__FOR T__VALUES T__IN T__LPAREN expression_list T__RPAREN
    | T__FOR T__VALUES T__FROM T__LPAREN expression_list T__RPAREN T__TO T__LPAREN expression_list T__RPAREN
    | T__DEFAULT ;
%list hash_bound_list: hash_bound %short %separator T__COMMA ;
hash_bound { NODE; }: non_reserved_word T__INTEGER_NUMBER ;
