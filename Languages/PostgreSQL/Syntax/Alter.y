/* ALTER. */

alter_table_statement
    : T__ALTER T__TABLE table alter_action_list                                 { NODE; }
    | T__ALTER T__TABLE if_exists table alter_action_list                       { NODE; }
    | T__ALTER T__TABLE tablespace_move                                         { NODE; }
    ;
alter_index_statement
    : T__ALTER T__INDEX index_name alter_action_list                            { NODE; }
    | T__ALTER T__INDEX if_exists index_name alter_action_list                  { NODE; }
    | T__ALTER T__INDEX tablespace_move                                         { NODE; }
    ;
alter_view_statement
    : T__ALTER T__VIEW view_name alter_action_list                              { NODE; }
    | T__ALTER T__VIEW if_exists view_name alter_action_list                    { NODE; }
    ;
alter_materialized_view_statement
    : T__ALTER T__MATERIALIZED T__VIEW view_name alter_action_list              { NODE; }
    | T__ALTER T__MATERIALIZED T__VIEW if_exists view_name alter_action_list    { NODE; }
    | T__ALTER T__MATERIALIZED T__VIEW tablespace_move                          { NODE; }
    ;
alter_foreign_table_statement
    : T__ALTER T__FOREIGN T__TABLE table alter_action_list                      { NODE; }
    | T__ALTER T__FOREIGN T__TABLE if_exists table alter_action_list            { NODE; }
    ;
/* All that a tablespace holds. */
tablespace_move
    : moved_objects T__SET T__TABLESPACE tablespace_name                        { NODE; }
    | moved_objects T__SET T__TABLESPACE tablespace_name T__NOWAIT              { NODE; }
    ;
moved_objects
    : T__ALL T__IN T__TABLESPACE tablespace_name                                { NODE(tablespace_move); }
    | T__ALL T__IN T__TABLESPACE tablespace_name T__OWNED T__BY role_name_list  { NODE(tablespace_move); }
    ;
alter_sequence_statement
    : T__ALTER T__SEQUENCE sequence_name sequence_option_list                   { NODE; }
    | T__ALTER T__SEQUENCE if_exists sequence_name sequence_option_list         { NODE; }
    | T__ALTER T__SEQUENCE sequence_name alter_action_list                      { NODE; }
    | T__ALTER T__SEQUENCE if_exists sequence_name alter_action_list            { NODE; }
    ;
alter_action_list
    : alter_action                                                              { NODE; }
    | alter_action_list T__COMMA alter_action                                   { NODE; }
    ;
alter_action
    : T__ADD column_definition                                                  { NODE; }
    | T__ADD if_not_exists column_definition                                    { NODE; }
    | T__ADD T__COLUMN column_definition                                        { NODE; }
    | T__ADD T__COLUMN if_not_exists column_definition                          { NODE; }
    | T__ADD table_constraint                                                   { NODE; }
    | T__ALTER column_name column_action                                        { NODE; }
    | T__ALTER T__COLUMN column_name column_action                              { NODE; }
    | T__ALTER T__INTEGER_NUMBER numbered_column_action                         { NODE; }
    | T__ALTER T__COLUMN T__INTEGER_NUMBER numbered_column_action               { NODE; }
    | T__ALTER T__CONSTRAINT constraint_name                                    { NODE; }
    | T__ALTER T__CONSTRAINT constraint_name constraint_attribute_list          { NODE; }
    | T__ALTER T__CONSTRAINT constraint_name T__INHERIT                         { NODE; }
    | T__VALIDATE T__CONSTRAINT constraint_name                                 { NODE; }
    | T__DROP dropped_column                                                    { NODE; }
    | T__DROP T__COLUMN dropped_column                                          { NODE; }
    | T__DROP T__CONSTRAINT dropped_constraint                                  { NODE; }
    | T__RENAME T__TO new_name                                                  { NODE; }
    | T__RENAME column_name T__TO new_name                                      { NODE; }
    | T__RENAME T__COLUMN column_name T__TO new_name                            { NODE; }
    | T__RENAME T__CONSTRAINT constraint_name T__TO new_name                    { NODE; }
    | T__OWNER T__TO role_name                                                  { NODE; }
    | T__SET T__SCHEMA schema_name                                              { NODE; }
    | T__SET T__TABLESPACE tablespace_name                                      { NODE; }
    | T__SET T__ACCESS T__METHOD access_method_name                             { NODE; }
    | T__SET T__ACCESS T__METHOD T__DEFAULT                                     { NODE; }
    | T__SET T__WITHOUT T__OIDS                                                 { NODE; }
    | T__SET T__WITHOUT T__CLUSTER                                              { NODE; }
    | T__SET T__LOGGED                                                          { NODE; }
    | T__SET T__UNLOGGED                                                        { NODE; }
    | T__SET options                                                            { NODE; }
    | T__RESET options                                                          { NODE; }
    | T__CLUSTER T__ON index_name                                               { NODE; }
    | T__ENABLE trigger_or_rule                                                 { NODE; }
    | T__ENABLE T__ALWAYS trigger_or_rule                                       { NODE; }
    | T__ENABLE T__REPLICA trigger_or_rule                                      { NODE; }
    | T__DISABLE trigger_or_rule                                                { NODE; }
    | T__ENABLE T__ROW T__LEVEL T__SECURITY                                     { NODE; }
    | T__DISABLE T__ROW T__LEVEL T__SECURITY                                    { NODE; }
    | T__FORCE T__ROW T__LEVEL T__SECURITY                                      { NODE; }
    | T__NO T__FORCE T__ROW T__LEVEL T__SECURITY                                { NODE; }
    | T__INHERIT table_name                                                     { NODE; }
    | T__NO T__INHERIT table_name                                               { NODE; }
    | T__OF defined_type_name                                                   { NODE; }
    | T__NOT T__OF                                                              { NODE; }
    | T__REPLICA T__IDENTITY T__NOTHING                                         { NODE; }
    | T__REPLICA T__IDENTITY T__FULL                                            { NODE; }
    | T__REPLICA T__IDENTITY T__DEFAULT                                         { NODE; }
    | T__REPLICA T__IDENTITY T__USING T__INDEX index_name                       { NODE; }
    | T__ATTACH T__PARTITION attached_index                                     { NODE; }
    | T__ATTACH T__PARTITION table_name partition_bound                         { NODE; }
    | T__DETACH T__PARTITION table_name                                         { NODE; }
    | T__DETACH T__PARTITION table_name T__CONCURRENTLY                         { NODE; }
    | T__DETACH T__PARTITION table_name T__FINALIZE                             { NODE; }
    | extension_dependency                                                      { NODE; }
    | alter_generic_options                                                     { NODE; }
    ;
/* Partitions of an index have no bounds. */
attached_index
    : qualified_name                                                            { NODE(index_name); }
    ;
extension_dependency
    : T__DEPENDS T__ON T__EXTENSION extension_name                              { NODE; }
    | T__NO T__DEPENDS T__ON T__EXTENSION extension_name                        { NODE; }
    ;
trigger_or_rule
    : T__TRIGGER trigger_name                                                   { NODE(alter_action); }
    | T__TRIGGER T__ALL                                                         { NODE(alter_action); }
    | T__TRIGGER T__USER                                                        { NODE(alter_action); }
    | T__RULE rule_name                                                         { NODE(alter_action); }
    ;
dropped_column
    : column_name
    | if_exists column_name                                                     { NODE(alter_action); }
    | column_name drop_behavior                                                 { NODE(alter_action); }
    | if_exists column_name drop_behavior                                       { NODE(alter_action); }
    ;
dropped_constraint
    : constraint_name
    | if_exists constraint_name                                                 { NODE(alter_action); }
    | constraint_name drop_behavior                                             { NODE(alter_action); }
    | if_exists constraint_name drop_behavior                                   { NODE(alter_action); }
    ;
drop_behavior
    : T__CASCADE                                                                { NODE; }
    | T__RESTRICT                                                               { NODE; }
    ;
column_action
    : T__SET T__DEFAULT expression                                              { NODE; }
    | T__DROP T__DEFAULT                                                        { NODE; }
    | T__SET T__NOT T__NULL                                                     { NODE; }
    | T__DROP T__NOT T__NULL                                                    { NODE; }
    | T__DROP T__EXPRESSION                                                     { NODE; }
    | T__DROP T__EXPRESSION if_exists                                           { NODE; }
    | T__SET T__EXPRESSION T__AS T__LPAREN expression T__RPAREN                 { NODE; }
    | T__SET T__STATISTICS statistics_target                                    { NODE; }
    | T__SET options                                                            { NODE; }
    | T__RESET options                                                          { NODE; }
    | T__SET T__STORAGE identifier                                              { NODE; }
    | T__SET T__STORAGE T__DEFAULT                                              { NODE; }
    | T__SET T__COMPRESSION identifier                                          { NODE; }
    | T__SET T__COMPRESSION T__DEFAULT                                          { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY                      { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_option_list T__RPAREN
      { NODE; }
    | identity_change_list                                                      { NODE; }
    | T__DROP T__IDENTITY                                                       { NODE; }
    | T__DROP T__IDENTITY if_exists                                             { NODE; }
    | type_change                                                               { NODE; }
    | type_change T__USING expression                                           { NODE; }
    | alter_generic_options                                                     { NODE; }
    ;
/* Columns of an index have numbers. */
numbered_column_action
    : T__SET T__STATISTICS statistics_target                                    { NODE(column_action); }
    ;
statistics_target
    : signed_integer                                                            { NODE; }
    | T__DEFAULT                                                                { NODE; }
    ;
type_change
    : T__TYPE data_type                                                         { NODE(column_action); }
    | T__SET T__DATA T__TYPE data_type                                          { NODE(column_action); }
    | T__TYPE data_type collate_clause                                          { NODE(column_action); }
    | T__SET T__DATA T__TYPE data_type collate_clause                           { NODE(column_action); }
    ;
identity_change_list
    : identity_change                                                           { NODE; }
    | identity_change_list identity_change                                      { NODE; }
    ;
identity_change
    : T__RESTART                                                                { NODE; }
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    | T__SET sequence_option                                                    { NODE; }
    | T__SET T__GENERATED generated_when                                        { NODE; }
    ;
alter_generic_options
    : T__OPTIONS T__LPAREN alter_option_list T__RPAREN                          { NODE(options_clause); }
    ;
alter_option_list
    : alter_option                                                              { NODE(option_list); }
    | alter_option_list T__COMMA alter_option                                   { NODE(option_list); }
    ;
alter_option
    : generic_option
    | T__ADD generic_option                                                     { NODE(option); }
    | T__SET generic_option                                                     { NODE(option); }
    | T__DROP option_name                                                       { NODE(option); }
    ;

renaming
    : T__RENAME T__TO new_name                                                  { NODE(alter_action); }
    ;
owner_change
    : T__OWNER T__TO role_name                                                  { NODE(alter_action); }
    ;
/* What most objects can be made to do. */
common_change
    : renaming
    | owner_change
    | T__SET T__SCHEMA schema_name                                              { NODE(alter_action); }
    ;

alter_type_statement
    : T__ALTER T__TYPE defined_type_name common_change                          { NODE; }
    | T__ALTER T__TYPE defined_type_name attribute_change_list                  { NODE; }
    | T__ALTER T__TYPE defined_type_name T__SET definitions                     { NODE; }
    | T__ALTER T__TYPE defined_type_name T__ADD T__VALUE enum_value             { NODE; }
    | T__ALTER T__TYPE defined_type_name T__ADD T__VALUE if_not_exists enum_value
      { NODE; }
    | T__ALTER T__TYPE defined_type_name T__RENAME T__VALUE string_literal T__TO string_literal
      { NODE; }
    | T__ALTER T__TYPE defined_type_name T__RENAME T__ATTRIBUTE column_name T__TO new_name
      { NODE; }
    | T__ALTER T__TYPE defined_type_name T__RENAME T__ATTRIBUTE column_name T__TO new_name drop_behavior
      { NODE; }
    ;
enum_value
    : string_literal                                                            { NODE; }
    | string_literal T__BEFORE string_literal                                   { NODE; }
    | string_literal T__AFTER string_literal                                    { NODE; }
    ;
attribute_change_list
    : attribute_change                                                          { NODE(alter_action_list); }
    | attribute_change_list T__COMMA attribute_change                           { NODE(alter_action_list); }
    ;
attribute_change
    : T__ADD T__ATTRIBUTE plain_column_definition                               { NODE(alter_action); }
    | T__ADD T__ATTRIBUTE plain_column_definition drop_behavior                 { NODE(alter_action); }
    | T__DROP T__ATTRIBUTE dropped_column                                       { NODE(alter_action); }
    | T__ALTER T__ATTRIBUTE column_name type_change                             { NODE(alter_action); }
    | T__ALTER T__ATTRIBUTE column_name type_change drop_behavior               { NODE(alter_action); }
    ;

alter_domain_statement
    : T__ALTER T__DOMAIN domain_name domain_change                              { NODE; }
    ;
domain_change
    : common_change
    | T__SET T__DEFAULT expression                                              { NODE(alter_action); }
    | T__DROP T__DEFAULT                                                        { NODE(alter_action); }
    | T__SET T__NOT T__NULL                                                     { NODE(alter_action); }
    | T__DROP T__NOT T__NULL                                                    { NODE(alter_action); }
    | T__ADD common_constraint                                                  { NODE(alter_action); }
    | T__ADD domain_not_null                                                    { NODE(alter_action); }
    | T__DROP T__CONSTRAINT dropped_constraint                                  { NODE(alter_action); }
    | T__VALIDATE T__CONSTRAINT constraint_name                                 { NODE(alter_action); }
    | T__RENAME T__CONSTRAINT constraint_name T__TO new_name                    { NODE(alter_action); }
    ;
domain_not_null
    : T__NOT T__NULL                                                            { NODE(table_constraint); }
    | T__NOT T__NULL constraint_attribute_list                                  { NODE(table_constraint); }
    | T__CONSTRAINT constraint_name T__NOT T__NULL                              { NODE(table_constraint); }
    | T__CONSTRAINT constraint_name T__NOT T__NULL constraint_attribute_list    { NODE(table_constraint); }
    ;

any_routine_word
    : T__FUNCTION
    | T__PROCEDURE
    | T__ROUTINE
    ;
alter_routine_statement
    : T__ALTER any_routine_word routine_signature common_change                 { NODE; }
    | T__ALTER any_routine_word routine_signature extension_dependency          { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attribute_list        { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attribute_list T__RESTRICT  { NODE; }
    | T__ALTER T__AGGREGATE aggregate_signature common_change                   { NODE; }
    ;

alter_object_statement
    : T__ALTER T__COLLATION collation_name common_change
      { NODE(alter_collation_statement); }
    | T__ALTER T__COLLATION collation_name T__REFRESH T__VERSION
      { NODE(alter_collation_statement); }
    | T__ALTER T__CONVERSION conversion_name common_change
      { NODE(alter_conversion_statement); }
    | T__ALTER altered_language language_name common_change
      { NODE(alter_language_statement); }
    | T__ALTER T__LARGE T__OBJECT signed_number owner_change
      { NODE(alter_large_object_statement); }
    | T__ALTER T__SCHEMA schema_name common_change
      { NODE(alter_schema_statement); }
    | T__ALTER T__RULE rule_name T__ON table_name renaming
      { NODE(alter_rule_statement); }
    | T__ALTER T__TRIGGER trigger_name T__ON table_name renaming
      { NODE(alter_trigger_statement); }
    | T__ALTER T__TRIGGER trigger_name T__ON table_name extension_dependency
      { NODE(alter_trigger_statement); }
    | T__ALTER T__OPERATOR T__CLASS operator_class_name T__USING access_method_name common_change
      { NODE(alter_operator_class_statement); }
    ;
altered_language
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE(alter_language_statement); }
    ;

alter_operator_statement
    : T__ALTER T__OPERATOR operator_signature common_change                     { NODE; }
    | T__ALTER T__OPERATOR operator_signature T__SET definitions                { NODE; }
    ;

alter_operator_family_statement
    : T__ALTER T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name common_change
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name T__ADD operator_class_item_list
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name T__DROP dropped_family_item_list
      { NODE; }
    ;
dropped_family_item_list
    : dropped_family_item
      { NODE(operator_class_item_list); }
    | dropped_family_item_list T__COMMA dropped_family_item
      { NODE(operator_class_item_list); }
    ;
dropped_family_item
    : T__OPERATOR T__INTEGER_NUMBER T__LPAREN data_type_list T__RPAREN          { NODE(operator_class_item); }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN data_type_list T__RPAREN          { NODE(operator_class_item); }
    ;

alter_policy_statement
    : T__ALTER T__POLICY policy_name T__ON table_name renaming
      { NODE; }
    | T__ALTER T__POLICY if_exists policy_name T__ON table_name renaming
      { NODE; }
    | T__ALTER T__POLICY policy_name T__ON table_name                           { NODE; }
    | T__ALTER T__POLICY policy_name T__ON table_name policy_clause_list        { NODE; }
    ;

alter_role_statement
    : T__ALTER role_or_group role_name role_option_list                         { NODE; }
    | T__ALTER T__USER role_name role_option_list                               { NODE; }
    | T__ALTER role_or_group role_name T__WITH                                  { NODE; }
    | T__ALTER T__USER role_name T__WITH                                        { NODE; }
    | T__ALTER role_or_group role_name T__WITH role_option_list                 { NODE; }
    | T__ALTER T__USER role_name T__WITH role_option_list                       { NODE; }
    | T__ALTER role_or_group role_name                                          { NODE; }
    | T__ALTER T__USER role_name                                                { NODE; }
    | T__ALTER role_or_group role_name role_renaming                            { NODE; }
    | T__ALTER T__USER role_name role_renaming                                  { NODE; }
    | T__ALTER role_or_group role_name role_setting                             { NODE; }
    | T__ALTER T__USER role_name role_setting                                   { NODE; }
    | T__ALTER role_or_group role_name T__IN T__DATABASE database_name role_setting  { NODE; }
    | T__ALTER T__USER role_name T__IN T__DATABASE database_name role_setting   { NODE; }
    | T__ALTER role_or_group T__ALL role_setting                                { NODE; }
    | T__ALTER T__USER T__ALL role_setting                                      { NODE; }
    | T__ALTER role_or_group T__ALL T__IN T__DATABASE database_name role_setting  { NODE; }
    | T__ALTER T__USER T__ALL T__IN T__DATABASE database_name role_setting      { NODE; }
    | T__ALTER role_or_group role_name T__ADD T__USER role_name_list            { NODE; }
    | T__ALTER role_or_group role_name T__DROP T__USER role_name_list           { NODE; }
    ;
role_setting
    : T__SET set_target                                                         { NODE(set_statement); }
    | T__RESET reset_target                                                     { NODE(reset_statement); }
    ;
role_renaming
    : T__RENAME T__TO new_role                                                  { NODE(alter_action); }
    ;
new_role
    : non_reserved_word                                                         { NODE(new_name); }
    ;

alter_database_statement
    : T__ALTER T__DATABASE database_name                                        { NODE; }
    | T__ALTER T__DATABASE database_name database_option_list                   { NODE; }
    | T__ALTER T__DATABASE database_name T__WITH database_option_list           { NODE; }
    | T__ALTER T__DATABASE database_name T__WITH                                { NODE; }
    | T__ALTER T__DATABASE database_name T__SET T__TABLESPACE tablespace_name   { NODE; }
    | T__ALTER T__DATABASE database_name T__REFRESH T__COLLATION T__VERSION     { NODE; }
    | T__ALTER T__DATABASE database_name role_setting                           { NODE; }
    | T__ALTER T__DATABASE database_name renaming                               { NODE; }
    | T__ALTER T__DATABASE database_name owner_change                           { NODE; }
    ;

alter_tablespace_statement
    : T__ALTER T__TABLESPACE tablespace_name renaming                           { NODE; }
    | T__ALTER T__TABLESPACE tablespace_name owner_change                       { NODE; }
    | T__ALTER T__TABLESPACE tablespace_name T__SET options                     { NODE; }
    | T__ALTER T__TABLESPACE tablespace_name T__RESET options                   { NODE; }
    ;

alter_extension_statement
    : T__ALTER T__EXTENSION extension_name T__UPDATE                            { NODE; }
    | T__ALTER T__EXTENSION extension_name T__UPDATE T__TO word_or_string       { NODE; }
    | T__ALTER T__EXTENSION extension_name T__UPDATE T__TO word_or_string extension_versions
      { NODE; }
    | T__ALTER T__EXTENSION extension_name T__ADD named_object                  { NODE; }
    | T__ALTER T__EXTENSION extension_name T__DROP named_object                 { NODE; }
    | T__ALTER T__EXTENSION extension_name T__SET T__SCHEMA schema_name         { NODE; }
    ;
/* A repeated version is a mistake that the server finds only later. */
extension_versions
    : T__TO word_or_string                                                      { NODE; }
    | extension_versions T__TO word_or_string                                   { NODE; }
    ;

alter_publication_statement
    : T__ALTER T__PUBLICATION publication_name common_change                    { NODE; }
    | T__ALTER T__PUBLICATION publication_name T__SET definitions               { NODE; }
    | T__ALTER T__PUBLICATION publication_name T__ADD publication_object_list   { NODE; }
    | T__ALTER T__PUBLICATION publication_name T__SET publication_object_list   { NODE; }
    | T__ALTER T__PUBLICATION publication_name T__DROP publication_object_list  { NODE; }
    ;

alter_subscription_statement
    : T__ALTER T__SUBSCRIPTION subscription_name common_change                  { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__SET definitions             { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__SKIP definitions            { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__CONNECTION string_literal   { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__REFRESH T__PUBLICATION      { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__REFRESH T__PUBLICATION T__WITH definitions
      { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name subscription_change T__PUBLICATION publication_name_list
      { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name subscription_change T__PUBLICATION publication_name_list T__WITH
      definitions                                                 { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__ENABLE                      { NODE; }
    | T__ALTER T__SUBSCRIPTION subscription_name T__DISABLE                     { NODE; }
    ;
subscription_change
    : T__ADD
    | T__SET
    | T__DROP
    ;

alter_foreign_object_statement
    : T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name common_change
      { NODE(alter_wrapper_statement); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list
      { NODE(alter_wrapper_statement); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name alter_generic_options
      { NODE(alter_wrapper_statement); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list alter_generic_options
      { NODE(alter_wrapper_statement); }
    | T__ALTER T__SERVER server_name common_change
      { NODE(alter_server_statement); }
    | T__ALTER T__SERVER server_name server_version
      { NODE(alter_server_statement); }
    | T__ALTER T__SERVER server_name alter_generic_options
      { NODE(alter_server_statement); }
    | T__ALTER T__SERVER server_name server_version alter_generic_options
      { NODE(alter_server_statement); }
    | T__ALTER T__USER T__MAPPING T__FOR mapped_user T__SERVER server_name alter_generic_options
      { NODE(alter_user_mapping_statement); }
    ;

alter_statistics_statement
    : T__ALTER T__STATISTICS statistics_name common_change                      { NODE; }
    | T__ALTER T__STATISTICS statistics_name T__SET T__STATISTICS statistics_target  { NODE; }
    | T__ALTER T__STATISTICS if_exists statistics_name T__SET T__STATISTICS statistics_target
      { NODE; }
    ;

alter_text_search_statement
    : T__ALTER T__TEXT T__SEARCH text_search_word text_search_name text_search_change
      { NODE; }
    ;
text_search_change
    : common_change
    | definitions
    | T__ADD T__MAPPING T__FOR name_list T__WITH text_search_name_list          { NODE(alter_action); }
    | T__ALTER T__MAPPING T__FOR name_list T__WITH text_search_name_list        { NODE(alter_action); }
    | T__ALTER T__MAPPING T__REPLACE text_search_name T__WITH text_search_name  { NODE(alter_action); }
    | T__ALTER T__MAPPING T__FOR name_list T__REPLACE text_search_name T__WITH text_search_name
      { NODE(alter_action); }
    | T__DROP T__MAPPING T__FOR name_list                                       { NODE(alter_action); }
    | T__DROP T__MAPPING if_exists T__FOR name_list                             { NODE(alter_action); }
    ;

alter_event_trigger_statement
    : T__ALTER T__EVENT T__TRIGGER event_trigger_name common_change             { NODE; }
    | T__ALTER T__EVENT T__TRIGGER event_trigger_name T__ENABLE                 { NODE; }
    | T__ALTER T__EVENT T__TRIGGER event_trigger_name T__ENABLE T__REPLICA      { NODE; }
    | T__ALTER T__EVENT T__TRIGGER event_trigger_name T__ENABLE T__ALWAYS       { NODE; }
    | T__ALTER T__EVENT T__TRIGGER event_trigger_name T__DISABLE                { NODE; }
    ;

alter_system_statement
    : T__ALTER T__SYSTEM T__SET setting                                         { NODE; }
    | T__ALTER T__SYSTEM T__RESET system_setting                                { NODE; }
    ;
system_setting
    : setting_name                                                              { NODE(setting); }
    | T__ALL                                                                    { NODE(setting); }
    ;

alter_default_privileges_statement
    : T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_action               { NODE; }
    | T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_scope default_privileges_action
      { NODE; }
    ;
default_privileges_scope
    : default_privileges_part
    | default_privileges_scope default_privileges_part
      { NODE(alter_default_privileges_statement); }
    ;
default_privileges_part
    : T__IN T__SCHEMA schema_name_list                                          { NODE; }
    | T__FOR T__ROLE role_name_list                                             { NODE; }
    | T__FOR T__USER role_name_list                                             { NODE; }
    ;
default_privileges_action
    : T__GRANT privileges T__ON default_privileges_target T__TO grantee_list    { NODE; }
    | T__GRANT privileges T__ON default_privileges_target T__TO grantee_list T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantee_list { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantee_list drop_behavior
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantee_list
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantee_list
      drop_behavior                                                             { NODE; }
    ;
default_privileges_target
    : T__TABLES
    | T__FUNCTIONS
    | T__ROUTINES
    | T__SEQUENCES
    | T__TYPES
    | T__SCHEMAS
    | T__LARGE T__OBJECTS                                                       { NODE; }
    ;
