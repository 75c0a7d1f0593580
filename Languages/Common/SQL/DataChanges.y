/* INSERT, UPDATE, DELETE.
   A dialect defines insert_tail, update_tail and delete_tail, the clauses at their ends (%parts of where_clause,
   dml_where, returning_clause and its own), and adds to insert_source, target_column and target_relation. */

insert_statement { PART; }: with_clause? insert_core ;
insert_core { NODE(insert_statement); }: T__INSERT T__INTO insert_target insert_source insert_tail? ;
insert_target { NODE(table_reference); }: table_name (T__AS alias)? ;
insert_source { PART(insert_statement); }
    : query
    | insert_columns query
    | T__DEFAULT T__VALUES ;
insert_columns { NODE(columns); }: T__LPAREN target_column_list T__RPAREN ;
%list target_column_list: target_column %separator T__COMMA ;

target_column { NODE; }: column_name ;

update_statement { PART; }: with_clause? update_core ;
update_core { NODE(update_statement); }: T__UPDATE target_relation T__SET set_list update_tail? ;
dml_where { PART(where_clause); }: where_clause | T__WHERE T__CURRENT T__OF cursor_name ;
target_relation { NODE(table_reference); }: relation %prec UMINUS | relation T__AS? alias ;
%list set_list: set_item %short %separator T__COMMA ;
set_item { NODE; }: target_column T__EQUAL expression | insert_columns T__EQUAL expression ;

delete_statement { PART; }: with_clause? delete_core ;
delete_core { NODE(delete_statement); }: T__DELETE T__FROM target_relation delete_tail? ;
/* For the tail of a DELETE. */
using_clause { NODE; }: T__USING from_list ;
