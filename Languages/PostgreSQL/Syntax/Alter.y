/* ALTER. */

alter_relation
    : T__ALTER relation_word altered_relation alter_actions                     { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      T__NOWAIT                                                                 { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name                                                 { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name T__NOWAIT                                       { NODE; }
    ;
relation_word
    : T__TABLE
    | T__INDEX
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { NODE; }
    | T__FOREIGN T__TABLE                                                       { NODE; }
    ;
altered_relation
    : relation
    | T__IF T__EXISTS relation                                                  { NODE; }
    ;
alter_sequence
    : T__ALTER T__SEQUENCE altered_relation sequence_options                    { NODE; }
    | T__ALTER T__SEQUENCE altered_relation alter_actions                       { NODE; }
    ;
alter_actions
    : alter_action
    | alter_actions T__COMMA alter_action                                       { NODE; }
    ;
alter_action
    : T__ADD column_definition                                                  { NODE; }
    | T__ADD T__IF T__NOT T__EXISTS column_definition                           { NODE; }
    | T__ADD T__COLUMN column_definition                                        { NODE; }
    | T__ADD T__COLUMN T__IF T__NOT T__EXISTS column_definition                 { NODE; }
    | T__ADD table_constraint                                                   { NODE; }
    | T__ALTER column_name column_action                                        { NODE; }
    | T__ALTER T__COLUMN column_name column_action                              { NODE; }
    | T__ALTER T__INTEGER_NUMBER T__SET T__STATISTICS statistics_target            { NODE; }
    | T__ALTER T__COLUMN T__INTEGER_NUMBER T__SET T__STATISTICS statistics_target  { NODE; }
    | T__ALTER T__CONSTRAINT column_name                                        { NODE; }
    | T__ALTER T__CONSTRAINT column_name constraint_attributes                  { NODE; }
    | T__ALTER T__CONSTRAINT column_name T__INHERIT                             { NODE; }
    | T__VALIDATE T__CONSTRAINT column_name                                     { NODE; }
    | T__DROP dropped_column                                                    { NODE; }
    | T__DROP T__COLUMN dropped_column                                          { NODE; }
    | T__DROP T__CONSTRAINT dropped_column                                      { NODE; }
    | T__RENAME T__TO column_name                                               { NODE; }
    | T__RENAME column_name T__TO column_name                                   { NODE; }
    | T__RENAME T__COLUMN column_name T__TO column_name                         { NODE; }
    | T__RENAME T__CONSTRAINT column_name T__TO column_name                     { NODE; }
    | T__OWNER T__TO role                                                       { NODE; }
    | T__SET T__SCHEMA column_name                                              { NODE; }
    | T__SET T__TABLESPACE column_name                                          { NODE; }
    | T__SET T__TABLESPACE column_name T__NOWAIT                                { NODE; }
    | T__SET T__ACCESS T__METHOD column_name                                    { NODE; }
    | T__SET T__ACCESS T__METHOD T__DEFAULT                                     { NODE; }
    | T__SET T__WITHOUT T__OIDS                                                 { NODE; }
    | T__SET T__WITHOUT T__CLUSTER                                              { NODE; }
    | T__SET T__LOGGED                                                          { NODE; }
    | T__SET T__UNLOGGED                                                        { NODE; }
    | T__SET relation_options                                                   { NODE; }
    | T__RESET relation_options                                                 { NODE; }
    | T__CLUSTER T__ON column_name                                              { NODE; }
    | T__ENABLE trigger_or_rule                                                 { NODE; }
    | T__ENABLE T__ALWAYS trigger_or_rule                                       { NODE; }
    | T__ENABLE T__REPLICA trigger_or_rule                                      { NODE; }
    | T__DISABLE trigger_or_rule                                                { NODE; }
    | T__ENABLE T__ROW T__LEVEL T__SECURITY                                     { NODE; }
    | T__DISABLE T__ROW T__LEVEL T__SECURITY                                    { NODE; }
    | T__FORCE T__ROW T__LEVEL T__SECURITY                                      { NODE; }
    | T__NO T__FORCE T__ROW T__LEVEL T__SECURITY                                { NODE; }
    | T__INHERIT qualified_name                                                 { NODE; }
    | T__NO T__INHERIT qualified_name                                           { NODE; }
    | T__OF qualified_name                                                      { NODE; }
    | T__NOT T__OF                                                              { NODE; }
    | T__REPLICA T__IDENTITY T__NOTHING                                         { NODE; }
    | T__REPLICA T__IDENTITY T__FULL                                            { NODE; }
    | T__REPLICA T__IDENTITY T__DEFAULT                                         { NODE; }
    | T__REPLICA T__IDENTITY T__USING T__INDEX column_name                      { NODE; }
    | T__ATTACH T__PARTITION qualified_name                                     { NODE; }
    | T__ATTACH T__PARTITION qualified_name partition_bound                     { NODE; }
    | T__DETACH T__PARTITION qualified_name                                     { NODE; }
    | T__DETACH T__PARTITION qualified_name T__CONCURRENTLY                     { NODE; }
    | T__DETACH T__PARTITION qualified_name T__FINALIZE                         { NODE; }
    | extension_dependency
    | alter_generic_options
    ;
extension_dependency
    : T__DEPENDS T__ON T__EXTENSION column_name                                 { NODE; }
    | T__NO T__DEPENDS T__ON T__EXTENSION column_name                           { NODE; }
    ;
trigger_or_rule
    : T__TRIGGER column_name                                                    { NODE; }
    | T__TRIGGER T__ALL                                                         { NODE; }
    | T__TRIGGER T__USER                                                        { NODE; }
    | T__RULE column_name                                                       { NODE; }
    ;
dropped_column
    : column_name
    | T__IF T__EXISTS column_name                                               { NODE; }
    | column_name drop_behavior                                                 { NODE; }
    | T__IF T__EXISTS column_name drop_behavior                                 { NODE; }
    ;
drop_behavior
    : T__CASCADE
    | T__RESTRICT
    ;
column_action
    : T__SET T__DEFAULT expression                                              { NODE; }
    | T__DROP T__DEFAULT                                                        { NODE; }
    | T__SET T__NOT T__NULL                                                     { NODE; }
    | T__DROP T__NOT T__NULL                                                    { NODE; }
    | T__DROP T__EXPRESSION                                                     { NODE; }
    | T__DROP T__EXPRESSION T__IF T__EXISTS                                     { NODE; }
    | T__SET T__EXPRESSION T__AS T__LPAREN expression T__RPAREN                 { NODE; }
    | T__SET T__STATISTICS statistics_target                                    { NODE; }
    | T__SET relation_options                                                   { NODE; }
    | T__RESET relation_options                                                 { NODE; }
    | T__SET T__STORAGE column_name                                             { NODE; }
    | T__SET T__STORAGE T__DEFAULT                                              { NODE; }
    | T__SET T__COMPRESSION column_name                                         { NODE; }
    | T__SET T__COMPRESSION T__DEFAULT                                          { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY                      { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { NODE; }
    | identity_changes
    | T__DROP T__IDENTITY                                                       { NODE; }
    | T__DROP T__IDENTITY T__IF T__EXISTS                                       { NODE; }
    | type_change
    | type_change T__USING expression                                           { NODE; }
    | alter_generic_options
    ;
statistics_target
    : signed_integer
    | T__DEFAULT
    ;
type_change
    : T__TYPE type_name                                                         { NODE; }
    | T__SET T__DATA T__TYPE type_name                                          { NODE; }
    | T__TYPE type_name T__COLLATE qualified_name                               { NODE; }
    | T__SET T__DATA T__TYPE type_name T__COLLATE qualified_name                { NODE; }
    ;
identity_changes
    : identity_change
    | identity_changes identity_change                                          { NODE; }
    ;
identity_change
    : T__RESTART
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    | T__SET sequence_option                                                    { NODE; }
    | T__SET T__GENERATED generated_when                                        { NODE; }
    ;
alter_generic_options
    : T__OPTIONS T__LPAREN alter_option_list T__RPAREN                          { NODE; }
    ;
alter_option_list
    : alter_option
    | alter_option_list T__COMMA alter_option                                   { NODE; }
    ;
alter_option
    : generic_option
    | T__ADD generic_option                                                     { NODE; }
    | T__SET generic_option                                                     { NODE; }
    | T__DROP any_label                                                         { NODE; }
    ;

/* What most objects can be made to do. */
common_change
    : T__RENAME T__TO column_name                                               { NODE; }
    | T__OWNER T__TO role                                                       { NODE; }
    | T__SET T__SCHEMA column_name                                              { NODE; }
    ;

alter_type
    : T__ALTER T__TYPE qualified_name common_change                             { NODE; }
    | T__ALTER T__TYPE qualified_name type_changes                              { NODE; }
    | T__ALTER T__TYPE qualified_name T__SET parenthesized_definitions          { NODE; }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE enum_value                { NODE; }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE T__IF T__NOT T__EXISTS enum_value
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__VALUE string_literal T__TO string_literal
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name drop_behavior
      { NODE; }
    ;
enum_value
    : string_literal
    | string_literal T__BEFORE string_literal                                   { NODE; }
    | string_literal T__AFTER string_literal                                    { NODE; }
    ;
type_changes
    : attribute_change
    | type_changes T__COMMA attribute_change                                    { NODE; }
    ;
attribute_change
    : T__ADD T__ATTRIBUTE table_function_column                                 { NODE; }
    | T__ADD T__ATTRIBUTE table_function_column drop_behavior                   { NODE; }
    | T__DROP T__ATTRIBUTE dropped_column                                       { NODE; }
    | T__ALTER T__ATTRIBUTE column_name type_change                             { NODE; }
    | T__ALTER T__ATTRIBUTE column_name type_change drop_behavior               { NODE; }
    ;

alter_domain
    : T__ALTER T__DOMAIN qualified_name common_change                           { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__SET T__DEFAULT expression            { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__DEFAULT                      { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__SET T__NOT T__NULL                   { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__NOT T__NULL                  { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__ADD common_constraint                { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__ADD domain_not_null                  { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__CONSTRAINT dropped_column    { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__VALIDATE T__CONSTRAINT column_name   { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__RENAME T__CONSTRAINT column_name T__TO column_name
      { NODE; }
    ;
domain_not_null
    : T__NOT T__NULL                                                            { NODE(table_constraint_body); }
    | T__NOT T__NULL constraint_attributes                                      { NODE(table_constraint_body); }
    | T__CONSTRAINT column_name T__NOT T__NULL                                  { NODE(table_constraint); }
    | T__CONSTRAINT column_name T__NOT T__NULL constraint_attributes            { NODE(table_constraint); }
    ;

any_routine_word
    : T__FUNCTION
    | T__PROCEDURE
    | T__ROUTINE
    ;
alter_routine
    : T__ALTER any_routine_word routine_signature common_change                 { NODE; }
    | T__ALTER any_routine_word routine_signature extension_dependency          { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attributes            { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attributes T__RESTRICT  { NODE; }
    | T__ALTER T__AGGREGATE aggregate_signature common_change                   { NODE; }
    ;

alter_object
    : T__ALTER T__COLLATION qualified_name common_change                        { NODE; }
    | T__ALTER T__COLLATION qualified_name T__REFRESH T__VERSION                { NODE; }
    | T__ALTER T__CONVERSION qualified_name common_change                       { NODE; }
    | T__ALTER language_word column_name common_change                          { NODE; }
    | T__ALTER T__LARGE T__OBJECT signed_number T__OWNER T__TO role             { NODE; }
    | T__ALTER T__SCHEMA column_name common_change                              { NODE; }
    | T__ALTER T__RULE column_name T__ON qualified_name T__RENAME T__TO column_name  { NODE; }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name extension_dependency  { NODE; }
    | T__ALTER T__OPERATOR T__CLASS qualified_name T__USING column_name common_change
      { NODE; }
    ;
language_word
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE; }
    ;

alter_operator
    : T__ALTER T__OPERATOR operator_signature common_change                     { NODE; }
    | T__ALTER T__OPERATOR operator_signature T__SET T__LPAREN operator_changes T__RPAREN
      { NODE; }
    ;
operator_changes
    : operator_change
    | operator_changes T__COMMA operator_change                                 { NODE; }
    ;
operator_change
    : any_label
    | any_label T__EQUAL T__NONE                                                { NODE; }
    | any_label T__EQUAL operator_change_value                                  { NODE; }
    ;
operator_change_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { NODE; }
    | signed_number
    | string_literal
    ;

alter_operator_family
    : T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name common_change
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__ADD operator_class_items
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__DROP dropped_family_items
      { NODE; }
    ;
dropped_family_items
    : dropped_family_item
    | dropped_family_items T__COMMA dropped_family_item                         { NODE; }
    ;
dropped_family_item
    : T__OPERATOR T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { NODE; }
    ;

alter_policy
    : T__ALTER T__POLICY column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__POLICY T__IF T__EXISTS column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__POLICY column_name T__ON qualified_name                       { NODE; }
    | T__ALTER T__POLICY column_name T__ON qualified_name policy_clauses        { NODE; }
    ;

alter_role
    : T__ALTER role_or_group role role_options                                  { NODE; }
    | T__ALTER T__USER role role_options                                        { NODE; }
    | T__ALTER role_or_group role T__WITH                                       { NODE; }
    | T__ALTER T__USER role T__WITH                                             { NODE; }
    | T__ALTER role_or_group role T__WITH role_options                          { NODE; }
    | T__ALTER T__USER role T__WITH role_options                                { NODE; }
    | T__ALTER role_or_group role                                               { NODE; }
    | T__ALTER T__USER role                                                     { NODE; }
    | T__ALTER role_or_group role T__RENAME T__TO role                          { NODE; }
    | T__ALTER T__USER role T__RENAME T__TO role                                { NODE; }
    | T__ALTER role_or_group role role_setting                                  { NODE; }
    | T__ALTER T__USER role role_setting                                        { NODE; }
    | T__ALTER role_or_group role T__IN T__DATABASE column_name role_setting    { NODE; }
    | T__ALTER T__USER role T__IN T__DATABASE column_name role_setting          { NODE; }
    | T__ALTER role_or_group T__ALL role_setting                                { NODE; }
    | T__ALTER T__USER T__ALL role_setting                                      { NODE; }
    | T__ALTER role_or_group T__ALL T__IN T__DATABASE column_name role_setting  { NODE; }
    | T__ALTER T__USER T__ALL T__IN T__DATABASE column_name role_setting        { NODE; }
    | T__ALTER role_or_group role T__ADD T__USER role_list                      { NODE; }
    | T__ALTER T__USER role T__ADD T__USER role_list                            { NODE; }
    | T__ALTER role_or_group role T__DROP T__USER role_list                     { NODE; }
    | T__ALTER T__USER role T__DROP T__USER role_list                           { NODE; }
    ;
role_setting
    : T__SET set_target                                                         { NODE; }
    | T__RESET reset_target                                                     { NODE; }
    ;

alter_database
    : T__ALTER T__DATABASE column_name                                          { NODE; }
    | T__ALTER T__DATABASE column_name database_options                         { NODE; }
    | T__ALTER T__DATABASE column_name T__WITH database_options                 { NODE; }
    | T__ALTER T__DATABASE column_name T__WITH                                  { NODE; }
    | T__ALTER T__DATABASE column_name T__SET T__TABLESPACE column_name         { NODE; }
    | T__ALTER T__DATABASE column_name T__REFRESH T__COLLATION T__VERSION       { NODE; }
    | T__ALTER T__DATABASE column_name role_setting                             { NODE; }
    | T__ALTER T__DATABASE column_name T__RENAME T__TO column_name              { NODE; }
    | T__ALTER T__DATABASE column_name T__OWNER T__TO role                      { NODE; }
    ;

alter_tablespace
    : T__ALTER T__TABLESPACE column_name T__RENAME T__TO column_name            { NODE; }
    | T__ALTER T__TABLESPACE column_name T__OWNER T__TO role                    { NODE; }
    | T__ALTER T__TABLESPACE column_name T__SET relation_options                { NODE; }
    | T__ALTER T__TABLESPACE column_name T__RESET relation_options              { NODE; }
    ;

alter_extension
    : T__ALTER T__EXTENSION column_name T__UPDATE                               { NODE; }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string          { NODE; }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string extension_versions
      { NODE; }
    | T__ALTER T__EXTENSION column_name T__ADD named_object                     { NODE; }
    | T__ALTER T__EXTENSION column_name T__DROP named_object                    { NODE; }
    | T__ALTER T__EXTENSION column_name T__SET T__SCHEMA column_name            { NODE; }
    ;
/* A repeated version is a mistake that the server finds only later. */
extension_versions
    : T__TO word_or_string                                                      { NODE; }
    | extension_versions T__TO word_or_string                                   { NODE; }
    ;

alter_publication
    : T__ALTER T__PUBLICATION column_name common_change                         { NODE; }
    | T__ALTER T__PUBLICATION column_name T__SET parenthesized_definitions      { NODE; }
    | T__ALTER T__PUBLICATION column_name T__ADD publication_objects            { NODE; }
    | T__ALTER T__PUBLICATION column_name T__SET publication_objects            { NODE; }
    | T__ALTER T__PUBLICATION column_name T__DROP publication_objects           { NODE; }
    ;

alter_subscription
    : T__ALTER T__SUBSCRIPTION column_name common_change                        { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__SET parenthesized_definitions     { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__SKIP parenthesized_definitions    { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__CONNECTION string_literal         { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION            { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION T__WITH parenthesized_definitions
      { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list
      { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__ENABLE                            { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__DISABLE                           { NODE; }
    ;
subscription_change
    : T__ADD
    | T__SET
    | T__DROP
    ;

alter_foreign_object
    : T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name common_change          { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options        { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name alter_generic_options  { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options alter_generic_options
      { NODE; }
    | T__ALTER T__SERVER column_name common_change                              { NODE; }
    | T__ALTER T__SERVER column_name server_version                             { NODE; }
    | T__ALTER T__SERVER column_name alter_generic_options                      { NODE; }
    | T__ALTER T__SERVER column_name server_version alter_generic_options       { NODE; }
    | T__ALTER T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name alter_generic_options
      { NODE; }
    ;

alter_statistics
    : T__ALTER T__STATISTICS qualified_name common_change                       { NODE; }
    | T__ALTER T__STATISTICS qualified_name T__SET T__STATISTICS statistics_target  { NODE; }
    | T__ALTER T__STATISTICS T__IF T__EXISTS qualified_name T__SET T__STATISTICS statistics_target
      { NODE; }
    ;

alter_text_search
    : T__ALTER T__TEXT T__SEARCH text_search_word qualified_name text_search_change
      { NODE; }
    ;
text_search_change
    : common_change
    | parenthesized_definitions
    | T__ADD T__MAPPING T__FOR name_list T__WITH qualified_name_list            { NODE; }
    | T__ALTER T__MAPPING T__FOR name_list T__WITH qualified_name_list          { NODE; }
    | T__ALTER T__MAPPING T__REPLACE qualified_name T__WITH qualified_name      { NODE; }
    | T__ALTER T__MAPPING T__FOR name_list T__REPLACE qualified_name T__WITH qualified_name
      { NODE; }
    | T__DROP T__MAPPING T__FOR name_list                                       { NODE; }
    | T__DROP T__MAPPING T__IF T__EXISTS T__FOR name_list                       { NODE; }
    ;

alter_event_trigger
    : T__ALTER T__EVENT T__TRIGGER column_name common_change                    { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE                        { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__REPLICA             { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__ALWAYS              { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__DISABLE                       { NODE; }
    ;

alter_system
    : T__ALTER T__SYSTEM T__SET setting                                         { NODE; }
    | T__ALTER T__SYSTEM T__RESET qualified_name                                { NODE; }
    | T__ALTER T__SYSTEM T__RESET T__ALL                                        { NODE; }
    ;

alter_default_privileges
    : T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_action               { NODE; }
    | T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_scope default_privileges_action
      { NODE; }
    ;
default_privileges_scope
    : default_privileges_part
    | default_privileges_scope default_privileges_part                          { NODE; }
    ;
default_privileges_part
    : T__IN T__SCHEMA name_list                                                 { NODE; }
    | T__FOR T__ROLE grantees                                                   { NODE; }
    | T__FOR T__USER grantees                                                   { NODE; }
    ;
default_privileges_action
    : T__GRANT privileges T__ON default_privileges_target T__TO grantees        { NODE; }
    | T__GRANT privileges T__ON default_privileges_target T__TO grantees T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees     { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees drop_behavior
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
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
