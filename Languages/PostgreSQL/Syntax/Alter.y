/* What PostgreSQL adds to ALTER TABLE, and the other statements with ALTER. */

alter_table_statement { NODE; }: T__ALTER T__TABLE tablespace_move ;
alter_index_statement { NODE; }
    : T__ALTER T__INDEX if_exists? index_name alter_action_list
    | T__ALTER T__INDEX index_name attached_index_list
    | T__ALTER T__INDEX tablespace_move ;
alter_view_statement { NODE; }: T__ALTER T__VIEW if_exists? view_name alter_action_list ;
alter_materialized_view_statement { NODE; }
    : T__ALTER T__MATERIALIZED T__VIEW if_exists? view_name alter_action_list
    | T__ALTER T__MATERIALIZED T__VIEW tablespace_move ;
alter_foreign_table_statement { NODE; }: T__ALTER T__FOREIGN T__TABLE if_exists? table alter_action_list ;
/* All that a tablespace holds. */
tablespace_move { NODE; }: moved_objects T__SET T__TABLESPACE tablespace_name T__NOWAIT? ;
moved_objects { NODE(tablespace_move); }
    : T__ALL T__IN T__TABLESPACE tablespace_name (T__OWNED T__BY role_name_list)? ;
%list alter_action_list: alter_action %short %separator T__COMMA ;
alter_action { NODE; }
    : T__ALTER T__COLUMN? T__INTEGER_NUMBER numbered_column_action
    | T__ALTER T__CONSTRAINT constraint_name (T__INHERIT | constraint_attribute_list)?
    | T__VALIDATE T__CONSTRAINT constraint_name
    | T__RENAME column_name T__TO new_name
    | T__RENAME T__CONSTRAINT constraint_name T__TO new_name
    | T__OWNER T__TO role_name
    | T__SET T__SCHEMA schema_name
    | T__SET T__TABLESPACE tablespace_name
    | T__SET T__ACCESS T__METHOD (access_method_name | T__DEFAULT)
    | T__SET T__WITHOUT (T__OIDS | T__CLUSTER)
    | T__SET T__LOGGED
    | T__SET T__UNLOGGED
    | T__SET options
    | T__RESET options
    | T__CLUSTER T__ON index_name
    | T__ENABLE (T__ALWAYS | T__REPLICA)? trigger_or_rule
    | T__DISABLE trigger_or_rule
    | (T__ENABLE | T__DISABLE) T__ROW T__LEVEL T__SECURITY
    | T__NO? T__FORCE T__ROW T__LEVEL T__SECURITY
    | T__NO? T__INHERIT table_name
    | T__OF defined_type_name
    | T__NOT T__OF
    | T__REPLICA T__IDENTITY (T__NOTHING | T__FULL | T__DEFAULT)
    | T__REPLICA T__IDENTITY T__USING T__INDEX index_name
    | T__ATTACH T__PARTITION table_name partition_bound
    | T__DETACH T__PARTITION table_name (T__FINALIZE | T__CONCURRENTLY)?
    | extension_dependency | alter_generic_options ;
/* Partitions of an index have no bounds. */
attached_index_list { NODE(alter_action_list); }: index_attachment ;
index_attachment { NODE(alter_action); }: T__ATTACH T__PARTITION attached_index ;
attached_index { NODE(index_name); }: qualified_name ;
extension_dependency { NODE; }: T__NO? T__DEPENDS T__ON T__EXTENSION extension_name ;
trigger_or_rule { NODE(alter_action); }: T__TRIGGER (trigger_name | T__ALL | T__USER) | T__RULE rule_name ;
column_action { NODE; }
    : T__DROP (T__EXPRESSION | T__IDENTITY) if_exists?
    | T__SET T__EXPRESSION T__AS T__LPAREN expression T__RPAREN
    | T__SET T__STATISTICS statistics_target
    | T__SET options
    | T__RESET options
    | T__SET (T__STORAGE | T__COMPRESSION) (identifier | T__DEFAULT)
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY (T__LPAREN sequence_option_list T__RPAREN)?
    | identity_change_list
    | type_change T__USING expression
    | alter_generic_options ;
/* Columns of an index have numbers. */
numbered_column_action { NODE(column_action); }: T__SET T__STATISTICS statistics_target ;
statistics_target { NODE; }: signed_integer | T__DEFAULT ;
type_change { NODE(column_action); }
    : T__SET T__DATA T__TYPE data_type collate_clause
    | T__TYPE data_type collate_clause? ;
%list identity_change_list: identity_change %short ;
identity_change { NODE; }
    : T__RESTART (T__WITH? signed_number)?
    | T__SET sequence_option
    | T__SET T__GENERATED generated_when ;
alter_generic_options { NODE(options_clause); }: T__OPTIONS T__LPAREN alter_option_list T__RPAREN ;
%list alter_option_list: alter_option %short %separator T__COMMA %node option_list ;
alter_option { PART(option); }: (T__ADD | T__SET)? generic_option | T__DROP option_name ;

renaming { NODE(alter_action); }: T__RENAME T__TO new_name ;
owner_change { NODE(alter_action); }: T__OWNER T__TO role_name ;
/* What most objects can be made to do. */
common_change { PART(alter_action); }
    : renaming | owner_change
    | T__SET T__SCHEMA schema_name ;

alter_type_statement { NODE; }
    : T__ALTER T__TYPE defined_type_name (common_change | attribute_change_list | T__SET definitions)
    | T__ALTER T__TYPE defined_type_name T__ADD T__VALUE if_not_exists? enum_value
    | T__ALTER T__TYPE defined_type_name T__RENAME T__VALUE string_literal T__TO string_literal
    | T__ALTER T__TYPE defined_type_name T__RENAME T__ATTRIBUTE column_name T__TO new_name drop_behavior? ;
enum_value { NODE; }: string_literal (T__AFTER string_literal | T__BEFORE string_literal)? ;
%list attribute_change_list: attribute_change %short %separator T__COMMA %node alter_action_list ;
attribute_change { NODE(alter_action); }
    : T__ADD T__ATTRIBUTE plain_column_definition drop_behavior?
    | T__DROP T__ATTRIBUTE dropped_column
    | T__ALTER T__ATTRIBUTE column_name type_change drop_behavior? ;

alter_domain_statement { NODE; }: T__ALTER T__DOMAIN domain_name domain_change ;
domain_change { PART(alter_action); }
    : common_change
    | T__SET T__DEFAULT expression
    | T__DROP T__DEFAULT
    | (T__SET | T__DROP) T__NOT T__NULL
    | T__ADD common_constraint
    | T__ADD domain_not_null
    | T__DROP T__CONSTRAINT dropped_constraint
    | T__VALIDATE T__CONSTRAINT constraint_name
    | T__RENAME T__CONSTRAINT constraint_name T__TO new_name ;
domain_not_null { NODE(table_constraint); }
    : (T__CONSTRAINT constraint_name)? T__NOT T__NULL constraint_attribute_list? ;

alter_routine_statement { NODE; }
    : T__ALTER any_routine_word routine_signature (common_change | extension_dependency)
    | T__ALTER any_routine_word routine_signature routine_attribute_list T__RESTRICT?
    | T__ALTER T__AGGREGATE aggregate_signature common_change ;

alter_object_statement { NODE(alter_collation_statement); }
    : T__ALTER T__COLLATION collation_name (common_change | T__REFRESH T__VERSION)
    | T__ALTER T__CONVERSION conversion_name common_change  { NODE(alter_conversion_statement); }
    | T__ALTER altered_language language_name common_change  { NODE(alter_language_statement); }
    | T__ALTER T__LARGE T__OBJECT signed_number owner_change  { NODE(alter_large_object_statement); }
    | T__ALTER T__SCHEMA schema_name common_change  { NODE(alter_schema_statement); }
    | T__ALTER T__RULE rule_name T__ON table_name renaming  { NODE(alter_rule_statement); }
    | T__ALTER T__TRIGGER trigger_name T__ON table_name (renaming | extension_dependency)
          { NODE(alter_trigger_statement); }
    | T__ALTER T__OPERATOR T__CLASS operator_class_name T__USING access_method_name common_change
          { NODE(alter_operator_class_statement); } ;
altered_language { PART(alter_language_statement); }: T__PROCEDURAL? T__LANGUAGE ;

alter_operator_statement { NODE; }
    : T__ALTER T__OPERATOR operator_signature (common_change | T__SET definitions) ;

alter_operator_family_statement { NODE; }
    : T__ALTER T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name (common_change | T__ADD
          operator_class_item_list)
    | T__ALTER T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name T__DROP
          dropped_family_item_list ;
%list dropped_family_item_list: dropped_family_item %short %separator T__COMMA %node operator_class_item_list ;
dropped_family_item { NODE(operator_class_item); }
    : (T__OPERATOR | T__FUNCTION) T__INTEGER_NUMBER T__LPAREN data_type_list T__RPAREN ;

alter_policy_statement { NODE; }
    : T__ALTER T__POLICY policy_name T__ON table_name (renaming | policy_clause_list)?
    | T__ALTER T__POLICY if_exists policy_name T__ON table_name renaming ;

alter_role_statement { NODE; }
    : T__ALTER (role_or_group | T__USER) role_name T__WITH? role_option_list?
    | T__ALTER (role_or_group | T__USER) role_name role_renaming
    | T__ALTER (role_or_group | T__USER) (role_name | T__ALL) (T__IN T__DATABASE database_name)? role_setting
    | T__ALTER role_or_group role_name (T__ADD | T__DROP) T__USER role_name_list ;
role_setting { NODE(set_statement); }: T__SET set_target | T__RESET reset_target  { NODE(reset_statement); } ;
role_renaming { NODE(alter_action); }: T__RENAME T__TO new_role ;
new_role { NODE(new_name); }: non_reserved_word ;

alter_database_statement { NODE; }
    : T__ALTER T__DATABASE database_name T__WITH? database_option_list?
    | T__ALTER T__DATABASE database_name T__SET T__TABLESPACE tablespace_name
    | T__ALTER T__DATABASE database_name T__REFRESH T__COLLATION T__VERSION
    | T__ALTER T__DATABASE database_name (role_setting | renaming | owner_change) ;

alter_tablespace_statement { NODE; }
    : T__ALTER T__TABLESPACE tablespace_name (renaming | owner_change)
    | T__ALTER T__TABLESPACE tablespace_name (T__SET | T__RESET) options ;

alter_extension_statement { NODE; }
    : T__ALTER T__EXTENSION extension_name T__UPDATE (T__TO word_or_string extension_versions?)?
    | T__ALTER T__EXTENSION extension_name (T__ADD | T__DROP) named_object
    | T__ALTER T__EXTENSION extension_name T__SET T__SCHEMA schema_name ;
/* A repeated version is a mistake that the server finds only later. */
extension_versions { NODE; }: extension_versions? T__TO word_or_string ;

alter_publication_statement { NODE; }
    : T__ALTER T__PUBLICATION publication_name (common_change | T__SET definitions)
    | T__ALTER T__PUBLICATION publication_name (T__ADD | T__SET | T__DROP) publication_object_list ;

alter_subscription_statement { NODE; }
    : T__ALTER T__SUBSCRIPTION subscription_name (common_change | T__ENABLE | T__DISABLE)
    | T__ALTER T__SUBSCRIPTION subscription_name (T__SET | T__SKIP) definitions
    | T__ALTER T__SUBSCRIPTION subscription_name T__CONNECTION string_literal
    | T__ALTER T__SUBSCRIPTION subscription_name T__REFRESH T__PUBLICATION (T__WITH definitions)?
    | T__ALTER T__SUBSCRIPTION subscription_name subscription_change T__PUBLICATION publication_name_list
          (T__WITH definitions)? ;
subscription_change: T__ADD | T__SET | T__DROP ;

alter_foreign_object_statement { NODE(alter_wrapper_statement); }
    : T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name (common_change | wrapper_option_list)
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list? alter_generic_options
    | T__ALTER T__SERVER server_name (common_change | server_version)  { NODE(alter_server_statement); }
    | T__ALTER T__SERVER server_name server_version? alter_generic_options  { NODE(alter_server_statement); }
    | T__ALTER T__USER T__MAPPING T__FOR mapped_user T__SERVER server_name alter_generic_options
          { NODE(alter_user_mapping_statement); } ;

alter_statistics_statement { NODE; }
    : T__ALTER T__STATISTICS statistics_name common_change
    | T__ALTER T__STATISTICS if_exists? statistics_name T__SET T__STATISTICS statistics_target ;

alter_text_search_statement { NODE; }
    : T__ALTER T__TEXT T__SEARCH text_search_word text_search_name text_search_change ;
text_search_change { PART(alter_action); }
    : common_change | definitions
    | (T__ADD | T__ALTER) T__MAPPING T__FOR name_list T__WITH text_search_name_list
    | T__ALTER T__MAPPING (T__FOR name_list)? T__REPLACE text_search_name T__WITH text_search_name
    | T__DROP T__MAPPING if_exists? T__FOR name_list ;

alter_event_trigger_statement { NODE; }
    : T__ALTER T__EVENT T__TRIGGER event_trigger_name (common_change | T__DISABLE)
    | T__ALTER T__EVENT T__TRIGGER event_trigger_name T__ENABLE (T__ALWAYS | T__REPLICA)? ;

alter_system_statement { NODE; }: T__ALTER T__SYSTEM (T__SET setting | T__RESET system_setting) ;
system_setting { NODE(setting); }: setting_name | T__ALL ;

alter_default_privileges_statement { NODE; }
    : T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_scope? default_privileges_action ;
default_privileges_scope { PART(alter_default_privileges_statement); }
    : default_privileges_scope? default_privileges_part ;
default_privileges_part { NODE; }
    : T__IN T__SCHEMA schema_name_list
    | T__FOR (T__ROLE | T__USER) role_name_list ;
default_privileges_action { NODE; }
    : T__GRANT privileges T__ON default_privileges_target T__TO grantee_list (T__WITH T__GRANT T__OPTION)?
    | T__REVOKE (T__GRANT T__OPTION T__FOR)? privileges T__ON default_privileges_target T__FROM grantee_list
          drop_behavior? ;
default_privileges_target { PART; }
    : T__TABLES | T__FUNCTIONS | T__ROUTINES | T__SEQUENCES | T__TYPES | T__SCHEMAS
    | T__LARGE T__OBJECTS ;
