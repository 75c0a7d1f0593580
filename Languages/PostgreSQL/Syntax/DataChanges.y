/* What PostgreSQL adds to INSERT, UPDATE, DELETE and MERGE, and the statements that there are. */

target_column { NODE; }: column_name indirection ;
%parts insert_tail: conflict_clause returning_clause %node insert_statement ;
conflict_clause { NODE; }: T__ON T__CONFLICT conflict_target? conflict_action ;
conflict_target { NODE; }
    : T__LPAREN index_element_list T__RPAREN where_clause?
    | T__ON T__CONSTRAINT constraint_name ;
conflict_action { NODE; }: T__DO T__NOTHING | T__DO T__UPDATE T__SET set_list where_clause? ;
returning_clause { NODE; }
    : T__RETURNING T__WITH T__LPAREN returning_alias_list T__RPAREN select_list into_variables?
    | T__RETURNING into_variables select_list ;
%list returning_alias_list: returning_alias %short %separator T__COMMA ;
returning_alias { NODE; }: old_or_new T__AS alias ;

%parts update_tail: from_clause dml_where returning_clause %node update_statement ;

%parts delete_tail: using_clause dml_where returning_clause %node delete_statement ;
using_clause { NODE; }: T__USING from_list ;

merge_core { NODE(merge_statement); }
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON condition merge_when_list returning_clause
          ;
merge_when { NODE; }
    : T__WHEN T__NOT T__MATCHED T__BY T__TARGET (T__AND condition)? T__THEN merge_insert_action
    | T__WHEN T__NOT T__MATCHED T__BY T__SOURCE (T__AND condition)? T__THEN merge_matched_action ;
merge_matched_action { NODE; }: T__DO T__NOTHING ;
merge_insert_action { NODE; }
    : T__INSERT insert_columns? T__OVERRIDING overriding_kind T__VALUE merge_values
    | T__INSERT T__DEFAULT T__VALUES
    | T__DO T__NOTHING ;

statement: shared_statement | execute_statement | declare_cursor_statement | fetch_statement | close_statement ;
/* What a block of PL/pgSQL says in the same words. */
shared_statement
    : query | insert_statement | update_statement | delete_statement | merge_statement
    | create_table_statement | create_foreign_table_statement | create_index_statement | create_view_statement
    | create_materialized_view_statement | create_sequence_statement | create_routine_statement
    | create_trigger_statement | create_event_trigger_statement | create_rule_statement
    | create_policy_statement | create_schema_statement | create_role_statement | create_database_statement
    | create_tablespace_statement | create_extension_statement | create_language_statement
    | create_publication_statement | create_subscription_statement | create_foreign_object_statement
    | create_statistics_statement | create_object_statement | create_type_statement | create_domain_statement
    | create_aggregate_statement | create_operator_class_statement | create_operator_family_statement
    | create_cast_statement | create_transform_statement | create_conversion_statement
    | create_access_method_statement | alter_table_statement | alter_index_statement | alter_view_statement
    | alter_materialized_view_statement | alter_foreign_table_statement | alter_sequence_statement
    | alter_type_statement | alter_domain_statement | alter_routine_statement | alter_object_statement
    | alter_operator_statement | alter_operator_family_statement | alter_policy_statement
    | alter_role_statement | alter_database_statement | alter_tablespace_statement | alter_extension_statement
    | alter_publication_statement | alter_subscription_statement | alter_foreign_object_statement
    | alter_statistics_statement | alter_text_search_statement | alter_event_trigger_statement
    | alter_system_statement | alter_default_privileges_statement | drop_statement | comment_statement
    | security_label_statement | grant_statement | revoke_statement | reassign_owned_statement
    | transaction_statement | set_statement | show_statement | reset_statement | set_constraints_statement
    | copy_statement | explain_statement | do_statement | call_statement | prepare_statement
    | deallocate_statement | lock_statement | truncate_statement | vacuum_statement | analyze_statement
    | cluster_statement | reindex_statement | refresh_statement | listen_statement | notify_statement
    | discard_statement | load_statement
    | T__CHECKPOINT  { NODE(checkpoint_statement); }
    | import_foreign_schema_statement ;
