/* What MySQL adds to CREATE TABLE: columns' attributes, keys, queries after the columns. */

%replace temporary: T__TEMPORARY ;
create_table_statement { NODE; }: T__CREATE T__OR T__REPLACE temporary? T__TABLE table_definition ;
%without table_definition: new_table T__LPAREN table_element_list T__RPAREN table_option_list? | table_as ;
table_definition { PART(create_table_statement); }
    : new_table (T__LPAREN table_element_list T__RPAREN)? table_tail?
    | new_table (like_table | T__LPAREN like_table T__RPAREN) ;
%parts table_tail: table_option_list partition_by as_query %node create_table_statement ;
like_table { NODE(like_clause); }: T__LIKE table_name ;
%without as_query: T__AS query with_data ;
as_query { NODE; }: query | duplicate_mode T__AS? query ;
duplicate_mode: T__IGNORE | T__REPLACE ;
/* Where no partitions of it are meant. */
whole_table { NODE(table_reference); }: table_name ;

%without table_element: T__LIKE table_name ;
table_element: table_index | period_definition ;
period_definition { NODE; }: period columns ;
period { PART(period_definition); }: T__PERIOD (if_exists | if_not_exists)? period_target ;
period_target { PART(period_definition); }: T__FOR period_name | T__FOR_LA T__SYSTEM_TIME ;

%without column_constraint: T__CONSTRAINT constraint_name (column_constraint_body | default_clause) ;
column_constraint { PART; }
    : T__CONSTRAINT constraint_name? named_check
    | comment_clause | on_update_clause | column_attribute ;
%without generated_when: T__BY T__DEFAULT ;
%without column_constraint_body: T__UNIQUE | T__GENERATED generated_when T__AS T__IDENTITY (T__LPAREN sequence_option_list T__RPAREN)? ;
column_constraint_body { NODE(column_constraint); }
    : T__UNIQUE %prec LOWEST
    | T__UNIQUE T__KEY
    | T__KEY
    | T__AS T__LPAREN expression T__RPAREN generated_kind?
    | (T__GENERATED generated_when)? T__AS T__ROW (T__START | T__END) ;
named_check { PART(column_constraint); }: T__CHECK T__LPAREN condition T__RPAREN ;
generated_kind: T__PERSISTENT ;
on_update_clause { NODE; }: T__ON T__UPDATE (special_value | function_call) ;
column_attribute { NODE; }
    : T__AUTO_INCREMENT | T__VISIBLE | T__INVISIBLE
    | T__SERIAL T__DEFAULT T__VALUE
    | (T__COLUMN_FORMAT | T__STORAGE) option_value
    | T__SRID T__INTEGER_NUMBER
    | T__REF_SYSTEM_ID T__EQUAL T__INTEGER_NUMBER
    | T__COMPRESSED (T__EQUAL option_value)?
    | (T__WITH | T__WITHOUT) T__SYSTEM T__VERSIONING
    | engine_option_name (T__EQUAL option_value | string_literal) ;

common_constraint { NODE(table_constraint); }: T__CONSTRAINT (if_not_exists constraint_name)? table_constraint_body ;
%without table_constraint_body: T__FOREIGN T__KEY foreign_columns references_clause constraint_attribute_list ;
table_constraint_body { NODE(table_constraint); }
    : T__UNIQUE key_word key_columns
    | T__FOREIGN T__KEY (if_not_exists? index_name | if_not_exists) foreign_columns references_clause ;
/* A key's own index: its name, its method and its options. */
%without key_columns: unique_columns ;
key_columns { PART(table_constraint); }
    : if_not_exists? index_name typed_columns
    | typed_columns
    | if_not_exists clause_columns ;
typed_columns { PART(table_constraint); }: index_type? clause_columns ;
clause_columns { PART(table_constraint); }: unique_columns index_clause_list? ;
foreign_column { NODE(key_column); }: column_name prefix_length ;
unique_column { NODE(key_column); }
    : column_name (prefix_length index_direction? | index_direction)
    | parenthesized index_direction? ;
