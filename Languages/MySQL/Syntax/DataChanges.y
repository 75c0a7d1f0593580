/* Rows: INSERT, REPLACE, UPDATE, DELETE, TRUNCATE and HANDLER. */

statement: explained_change | truncate_statement | handler_statement ;
explained_change: insert_statement | replace_statement | update_statement | delete_statement ;
%list change_option_list: change_option %short ;
change_option { NODE; }: T__LOW_PRIORITY | T__HIGH_PRIORITY | T__DELAYED | T__IGNORE ;

%without insert_statement: with_clause? insert_core ;
insert_statement: insert_core ;
%replace insert_core { NODE(insert_statement); }: insert_head T__INTO? insert_target insert_source insert_tail? ;
insert_head { PART(insert_statement); }: T__INSERT T__HINT? change_option_list? ;
%replace insert_target: table ;
%without insert_source: T__DEFAULT T__VALUES ;
insert_source { PART(insert_statement); }
    : insert_columns? named_rows
    | T__SET set_list row_alias? ;
named_rows { PART(insert_statement); }: value_query row_alias? | aliased_query row_alias ;
insert_columns { NODE(columns); }: T__LPAREN T__RPAREN ;
value_query { NODE(select_statement); }: value_clause ;
value_clause { NODE(values_clause); }: T__VALUE values_list ;
aliased_query { NODE(select_statement); }: values_clause ;
values_row { NODE; }: T__LPAREN T__RPAREN ;
/* What the new row is called. */
row_alias { NODE; }: T__AS alias columns? ;
returning_clause { NODE; }: T__RETURNING select_list ;
conflict_clause { NODE; }: T__ON_LA T__DUPLICATE T__KEY conflict_action ;
conflict_action { NODE; }: T__UPDATE set_list ;
%replace set_item { NODE; }: target_column (T__EQUAL | T__COLON_EQUAL) expression ;
target_column { NODE; }: dotted_column ;
dotted_column { NODE(column_name); }: dotted_name ;

replace_statement { NODE; }: replace_head T__INTO? insert_target replace_source returning_clause? ;
replace_head { PART(replace_statement); }: T__REPLACE T__HINT? change_option_list? ;
replace_source { PART(replace_statement); }
    : insert_columns? (query | value_query)
    | T__SET set_list ;

%replace update_core { NODE(update_statement); }: update_head changed_tables T__SET set_list update_tail? ;
update_head { PART(update_statement); }: T__UPDATE T__HINT? change_option_list? ;
changed_tables { NODE(from_list); }
    : table_reference  { PART; }
    | table_reference T__COMMA from_list
    | portioned_relation  { PART; } ;
portioned_relation { NODE(table_reference); }: relation portion_clause (T__AS? alias)? ;
portion_clause { NODE; }
    : T__FOR T__PORTION T__OF period_name T__FROM restricted_expression T__TO restricted_expression ;
%parts update_tail: where_clause sort_clause limit_clause %node update_statement ;

%replace delete_core { NODE(delete_statement); }
    : delete_word delete_option_list? T__FROM deleted_from delete_tail?
    | delete_word delete_option_list? deleted_first from_clause delete_tail?
    | delete_word T__HISTORY T__FROM table history_end? ;
delete_word { PART(delete_statement); }: T__DELETE T__HINT? ;
%list delete_option_list: delete_option %short %node change_option_list ;
delete_option: change_option | T__QUICK  { NODE(change_option); } ;
deleted_from { PART(delete_statement); }
    : target_relation using_clause?
    | portioned_relation
    | starred_table using_clause
    | deleted_several using_clause ;
/* What is deleted of a join. A table may look like all of its columns. */
%list deleted_list: deleted_table %short %separator T__COMMA %node table_reference_list ;
deleted_table: starred_table | table ;
deleted_several { NODE(table_reference_list); }: deleted_table T__COMMA deleted_list ;
deleted_first { NODE(table_reference_list); }: (starred_table | plain_table) (T__COMMA deleted_list)? ;
plain_table { NODE(table_reference); }: plain_table_name ;
plain_table_name { NODE(table_name); }: table_part | dotted_name ;
/* Not QUICK and HISTORY, which begin what stands before the tables. */
table_part { NODE(sql_identifier); }: quoted_or_plain | plain_word | column_word | clause_word ;
starred_table { NODE(table_reference); }: starred_name ;
starred_name { NODE(table_name); }: starred ;
starred { NODE(qualified_sql_identifier); }: identifier T__DOT T__ASTERISK | dotted_name T__DOT T__ASTERISK ;
%parts delete_tail: where_clause sort_clause limit_clause returning_clause %node delete_statement ;
history_end { NODE; }: T__BEFORE T__SYSTEM_TIME history_point ;

truncated_tables { PART(truncate_statement); }: T__TABLE? relation_list locking_wait ;
truncated_tables: relation_list ;

handler_statement { NODE; }
    : T__HANDLER table_name T__OPEN (T__AS? alias)?
    | T__HANDLER table_name T__READ handler_position where_clause? limit_clause?
    | T__HANDLER table_name T__CLOSE ;
handler_position { NODE; }
    : T__FIRST | T__NEXT
    | index_part (T__FIRST | T__NEXT | T__PREV | T__LAST)
    | index_part (T__EQUAL | T__LESS | T__GREATER | T__LESS_EQUAL | T__GREATER_EQUAL) values_row ;
index_part { NODE(index_name); }: identifier | T__PRIMARY ;
