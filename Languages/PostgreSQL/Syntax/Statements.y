/* Which statements there are. */

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
