/* INSERT, UPDATE, DELETE, MERGE. */

insert_statement
    : insert_core
    | with_clause insert_core                                                   { NODE; }
    ;
insert_core
    : T__INSERT T__INTO insert_target insert_source                             { NODE(insert_statement); }
    | T__INSERT T__INTO insert_target insert_source insert_tail                 { NODE(insert_statement); }
    ;
insert_target
    : qualified_name
    | qualified_name T__AS column_name                                          { NODE; }
    ;
insert_source
    : query
    | T__OVERRIDING overriding_kind T__VALUE query                              { NODE; }
    | insert_columns query                                                      { NODE; }
    | insert_columns T__OVERRIDING overriding_kind T__VALUE query               { NODE; }
    | T__DEFAULT T__VALUES                                                      { NODE; }
    ;
overriding_kind
    : T__USER
    | T__SYSTEM
    ;
insert_columns
    : T__LPAREN insert_column_list T__RPAREN                                    { NODE; }
    ;
%list insert_column_list: target_column %separator T__COMMA ;

target_column
    : column_name
    | column_name indirection                                                   { NODE; }
    ;
insert_tail
    : on_conflict
    | on_conflict returning_clause                                              { NODE; }
    | returning_clause
    ;
on_conflict
    : T__ON T__CONFLICT conflict_action                                         { NODE; }
    | T__ON T__CONFLICT conflict_target conflict_action                         { NODE; }
    ;
conflict_target
    : T__LPAREN index_elements T__RPAREN                                        { NODE; }
    | T__LPAREN index_elements T__RPAREN where_clause                           { NODE; }
    | T__ON T__CONSTRAINT column_name                                           { NODE; }
    ;
conflict_action
    : T__DO T__NOTHING                                                          { NODE; }
    | T__DO T__UPDATE T__SET set_list                                           { NODE; }
    | T__DO T__UPDATE T__SET set_list where_clause                              { NODE; }
    ;
returning_clause
    : T__RETURNING select_list                                                  { NODE; }
    | T__RETURNING T__WITH T__LPAREN returning_aliases T__RPAREN select_list    { NODE; }
    ;
returning_aliases
    : returning_alias
    | returning_aliases T__COMMA returning_alias                                { NODE; }
    ;
returning_alias
    : old_or_new T__AS column_name                                              { NODE; }
    ;

update_statement
    : update_core
    | with_clause update_core                                                   { NODE; }
    ;
update_core
    : T__UPDATE target_relation T__SET set_list                                 { NODE(update_statement); }
    | T__UPDATE target_relation T__SET set_list update_tail                     { NODE(update_statement); }
    ;
update_tail
    : from_clause
    | from_clause dml_where_part                                                { NODE(dml_clauses); }
    | dml_where_part
    ;
dml_where_part
    : dml_where
    | dml_where returning_clause                                                { NODE(dml_clauses); }
    | returning_clause
    ;
dml_where
    : where_clause
    | T__WHERE T__CURRENT T__OF column_name                                     { NODE(where_clause); }
    ;
target_relation
    : relation %prec UMINUS
    | relation column_name                                                      { NODE; }
    | relation T__AS column_name                                                { NODE; }
    ;
set_list
    : set_item
    | set_list T__COMMA set_item                                                { NODE; }
    ;
set_item
    : target_column T__EQUAL expression                                         { NODE; }
    | T__LPAREN insert_column_list T__RPAREN T__EQUAL expression                { NODE; }
    ;

delete_statement
    : delete_core
    | with_clause delete_core                                                   { NODE; }
    ;
delete_core
    : T__DELETE T__FROM target_relation                                         { NODE(delete_statement); }
    | T__DELETE T__FROM target_relation delete_tail                             { NODE(delete_statement); }
    ;
delete_tail
    : using_tables
    | using_tables dml_where_part                                               { NODE(dml_clauses); }
    | dml_where_part
    ;
using_tables
    : T__USING table_reference_list                                             { NODE; }
    ;

merge_statement
    : merge_core
    | with_clause merge_core                                                    { NODE; }
    ;
merge_core
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON expression merge_when_list
      { NODE(merge_statement); }
    | T__MERGE T__INTO target_relation T__USING table_reference T__ON expression merge_when_list
      returning_clause                                                          { NODE(merge_statement); }
    ;
merge_when_list
    : merge_when
    | merge_when_list merge_when                                                { NODE; }
    ;
merge_when
    : T__WHEN T__MATCHED T__THEN merge_matched_action                           { NODE; }
    | T__WHEN T__MATCHED T__AND expression T__THEN merge_matched_action         { NODE; }
    | T__WHEN T__NOT T__MATCHED T__THEN merge_insert_action                     { NODE; }
    | T__WHEN T__NOT T__MATCHED T__AND expression T__THEN merge_insert_action   { NODE; }
    | T__WHEN T__NOT T__MATCHED T__BY T__SOURCE T__THEN merge_matched_action    { NODE; }
    | T__WHEN T__NOT T__MATCHED T__BY T__SOURCE T__AND expression T__THEN merge_matched_action  { NODE; }
    | T__WHEN T__NOT T__MATCHED T__BY T__TARGET T__THEN merge_insert_action     { NODE; }
    | T__WHEN T__NOT T__MATCHED T__BY T__TARGET T__AND expression T__THEN merge_insert_action  { NODE; }
    ;
merge_matched_action
    : T__UPDATE T__SET set_list                                                 { NODE; }
    | T__DELETE
    | T__DO T__NOTHING                                                          { NODE; }
    ;
merge_insert_action
    : T__INSERT merge_values                                                    { NODE; }
    | T__INSERT T__OVERRIDING overriding_kind T__VALUE merge_values             { NODE; }
    | T__INSERT insert_columns merge_values                                     { NODE; }
    | T__INSERT insert_columns T__OVERRIDING overriding_kind T__VALUE merge_values
      { NODE; }
    | T__INSERT T__DEFAULT T__VALUES                                            { NODE; }
    | T__DO T__NOTHING                                                          { NODE; }
    ;
merge_values
    : T__VALUES T__LPAREN expression_list T__RPAREN                             { NODE; }
    ;

statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    | merge_statement
    | create_table
    | create_foreign_table
    | create_index
    | create_view
    | create_materialized_view
    | create_sequence
    | create_routine
    | create_trigger
    | create_event_trigger
    | create_rule
    | create_policy
    | create_schema
    | create_role
    | create_database
    | create_tablespace
    | create_extension
    | create_language
    | create_publication
    | create_subscription
    | create_foreign_object
    | create_statistics
    | create_definition
    | create_type
    | create_domain
    | create_aggregate
    | create_operator_class
    | create_operator_family
    | create_cast
    | create_transform
    | create_conversion
    | create_access_method
    | alter_relation
    | alter_sequence
    | alter_type
    | alter_domain
    | alter_routine
    | alter_object
    | alter_operator
    | alter_operator_family
    | alter_policy
    | alter_role
    | alter_database
    | alter_tablespace
    | alter_extension
    | alter_publication
    | alter_subscription
    | alter_foreign_object
    | alter_statistics
    | alter_text_search
    | alter_event_trigger
    | alter_system
    | alter_default_privileges
    | drop_statement
    | comment_statement
    | security_label_statement
    | grant_statement
    | revoke_statement
    | reassign_owned
    | transaction_statement
    | set_statement
    | show_statement
    | reset_statement
    | constraints_statement
    | copy_statement
    | explain_statement
    | do_statement
    | call_statement
    | prepare_statement
    | execute_statement
    | deallocate_statement
    | declare_cursor
    | fetch_statement
    | close_statement
    | lock_statement
    | truncate_statement
    | vacuum_statement
    | analyze_statement
    | cluster_statement
    | reindex_statement
    | refresh_statement
    | listen_statement
    | discard_statement
    | load_statement
    | T__CHECKPOINT                                                             { NODE(checkpoint_statement); }
    | import_foreign_schema
    ;
