/* CREATE TABLE.
   A dialect defines table_option (what follows the bracket) and stored_option (what may stand before a query), and adds to
   table_definition, table_element, column_definition, column_constraint, the bodies of constraints and their columns. */

create_table_statement { NODE; }: T__CREATE temporary? T__TABLE table_definition ;
table_definition { PART(create_table_statement); }
    : new_table T__LPAREN table_element_list T__RPAREN table_option_list?
    | table_as ;
/* The name of something to be made. Parts of a statement have its name, so that they end up directly in it. */
if_not_exists { NODE; }: T__IF T__NOT T__EXISTS ;
new_table { PART(create_table_statement); }: if_not_exists? table_name ;
temporary { PART; }: (T__LOCAL | T__GLOBAL)? T__TEMPORARY ;

table_as { NODE(create_table_statement); }: new_table columns? stored_option_list? as_query ;
as_query { NODE; }: T__AS query with_data? ;
with_data { NODE; }: T__WITH T__NO? T__DATA ;

%list table_element_list: table_element %separator T__COMMA ;

table_element { PART(like_clause); }
    : column_definition | table_constraint
    | T__LIKE table_name ;

column_definition { NODE; }: column_name data_type column_constraint_list? ;
%list column_constraint_list: column_constraint %short ;
column_constraint { PART; }
    : (T__CONSTRAINT constraint_name)? (column_constraint_body | default_clause)
    | collate_clause ;
collate_clause { NODE; }: T__COLLATE collation_name ;
column_constraint_body { NODE(column_constraint); }
    : T__NOT? T__NULL
    | T__UNIQUE
    | T__PRIMARY T__KEY
    | T__CHECK T__LPAREN condition T__RPAREN
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN generated_kind?
    | references_clause ;
/* A COLLATE after it is that of the column. */
default_clause { NODE; }: T__DEFAULT restricted_expression %prec T__DOT ;
generated_kind: T__STORED | T__VIRTUAL ;
generated_when { NODE; }: T__ALWAYS | T__BY T__DEFAULT ;
/* An ON after it belongs to it. */
references_clause { NODE; }: T__REFERENCES table_name foreign_columns? reference_option_list? %prec LOWEST ;
%list reference_option_list: reference_option %short ;
reference_option { NODE; }
    : T__MATCH T__FULL
    | T__MATCH T__PARTIAL
    | T__MATCH T__SIMPLE
    | T__ON (T__UPDATE | T__DELETE) reference_action ;
reference_action { NODE; }
    : T__NO T__ACTION
    | T__RESTRICT | T__CASCADE
    | T__SET (T__NULL | T__DEFAULT) ;

table_constraint: common_constraint ;
/* What a domain may have too. */
common_constraint { NODE(table_constraint); }: (T__CONSTRAINT constraint_name)? table_constraint_body ;
table_constraint_body { NODE(table_constraint); }
    : T__CHECK T__LPAREN condition T__RPAREN
    | T__UNIQUE key_columns
    | T__PRIMARY T__KEY key_columns
    | T__FOREIGN T__KEY foreign_columns references_clause ;
key_columns { PART(table_constraint); }: unique_columns ;
unique_columns { NODE(columns); }: T__LPAREN unique_column_list T__RPAREN ;
%list unique_column_list: unique_column %separator T__COMMA %node key_column_list ;
unique_column { NODE(key_column); }: column_name ;
foreign_columns { NODE(columns); }: T__LPAREN foreign_column_list T__RPAREN ;
%list foreign_column_list: foreign_column %short %separator T__COMMA %node key_column_list ;
foreign_column { NODE(key_column); }: column_name ;

%list table_option_list: table_option %short ;
%list stored_option_list: stored_option %short %node table_option_list ;
