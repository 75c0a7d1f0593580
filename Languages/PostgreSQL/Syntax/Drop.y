/* DROP. */

drop_statement
    : T__DROP dropped_objects                                                   { NODE; }
    | T__DROP dropped_objects drop_behavior                                     { NODE; }
    | T__DROP dropped_roles                                                     { NODE; }
    ;
dropped_objects
    : T__TABLE table_name_list                                                  { NODE(drop_statement); }
    | T__TABLE if_exists table_name_list                                        { NODE(drop_statement); }
    | T__SEQUENCE sequence_name_list                                            { NODE(drop_statement); }
    | T__SEQUENCE if_exists sequence_name_list                                  { NODE(drop_statement); }
    | T__VIEW view_name_list                                                    { NODE(drop_statement); }
    | T__VIEW if_exists view_name_list                                          { NODE(drop_statement); }
    | T__MATERIALIZED T__VIEW view_name_list                                    { NODE(drop_statement); }
    | T__MATERIALIZED T__VIEW if_exists view_name_list                          { NODE(drop_statement); }
    | T__INDEX index_name_list                                                  { NODE(drop_statement); }
    | T__INDEX if_exists index_name_list                                        { NODE(drop_statement); }
    | T__FOREIGN T__TABLE table_name_list                                       { NODE(drop_statement); }
    | T__FOREIGN T__TABLE if_exists table_name_list                             { NODE(drop_statement); }
    | T__COLLATION collation_name_list                                          { NODE(drop_statement); }
    | T__COLLATION if_exists collation_name_list                                { NODE(drop_statement); }
    | T__CONVERSION conversion_name_list                                        { NODE(drop_statement); }
    | T__CONVERSION if_exists conversion_name_list                              { NODE(drop_statement); }
    | T__STATISTICS statistics_name_list                                        { NODE(drop_statement); }
    | T__STATISTICS if_exists statistics_name_list                              { NODE(drop_statement); }
    | T__TEXT T__SEARCH text_search_word text_search_name_list                  { NODE(drop_statement); }
    | T__TEXT T__SEARCH text_search_word if_exists text_search_name_list        { NODE(drop_statement); }
    | T__ACCESS T__METHOD access_method_name_list                               { NODE(drop_statement); }
    | T__ACCESS T__METHOD if_exists access_method_name_list                     { NODE(drop_statement); }
    | T__EVENT T__TRIGGER event_trigger_name_list                               { NODE(drop_statement); }
    | T__EVENT T__TRIGGER if_exists event_trigger_name_list                     { NODE(drop_statement); }
    | T__EXTENSION extension_name_list                                          { NODE(drop_statement); }
    | T__EXTENSION if_exists extension_name_list                                { NODE(drop_statement); }
    | T__FOREIGN T__DATA T__WRAPPER wrapper_name_list                           { NODE(drop_statement); }
    | T__FOREIGN T__DATA T__WRAPPER if_exists wrapper_name_list                 { NODE(drop_statement); }
    | dropped_language language_name_list                                       { NODE(drop_statement); }
    | dropped_language if_exists language_name_list                             { NODE(drop_statement); }
    | T__PUBLICATION publication_name_list                                      { NODE(drop_statement); }
    | T__PUBLICATION if_exists publication_name_list                            { NODE(drop_statement); }
    | T__SCHEMA schema_name_list                                                { NODE(drop_statement); }
    | T__SCHEMA if_exists schema_name_list                                      { NODE(drop_statement); }
    | T__SERVER server_name_list                                                { NODE(drop_statement); }
    | T__SERVER if_exists server_name_list                                      { NODE(drop_statement); }
    | T__SUBSCRIPTION subscription_name_list                                    { NODE(drop_statement); }
    | T__SUBSCRIPTION if_exists subscription_name_list                          { NODE(drop_statement); }
    | T__TABLESPACE tablespace_name_list                                        { NODE(drop_statement); }
    | T__TABLESPACE if_exists tablespace_name_list                              { NODE(drop_statement); }
    | T__INDEX T__CONCURRENTLY index_name_list                                  { NODE(drop_statement); }
    | T__INDEX T__CONCURRENTLY if_exists index_name_list                        { NODE(drop_statement); }
    | T__TYPE data_type_list                                                    { NODE(drop_statement); }
    | T__TYPE if_exists data_type_list                                          { NODE(drop_statement); }
    | T__DOMAIN data_type_list                                                  { NODE(drop_statement); }
    | T__DOMAIN if_exists data_type_list                                        { NODE(drop_statement); }
    | T__POLICY policy_name T__ON table_name                                    { NODE(drop_statement); }
    | T__POLICY if_exists policy_name T__ON table_name                          { NODE(drop_statement); }
    | T__RULE rule_name T__ON table_name                                        { NODE(drop_statement); }
    | T__RULE if_exists rule_name T__ON table_name                              { NODE(drop_statement); }
    | T__TRIGGER trigger_name T__ON table_name                                  { NODE(drop_statement); }
    | T__TRIGGER if_exists trigger_name T__ON table_name                        { NODE(drop_statement); }
    | any_routine_word routine_signature_list                                   { NODE(drop_statement); }
    | any_routine_word if_exists routine_signature_list                         { NODE(drop_statement); }
    | T__AGGREGATE aggregate_signature_list                                     { NODE(drop_statement); }
    | T__AGGREGATE if_exists aggregate_signature_list                           { NODE(drop_statement); }
    | T__OPERATOR operator_signature_list                                       { NODE(drop_statement); }
    | T__OPERATOR if_exists operator_signature_list                             { NODE(drop_statement); }
    | T__OPERATOR T__CLASS operator_class_name T__USING access_method_name      { NODE(drop_statement); }
    | T__OPERATOR T__CLASS if_exists operator_class_name T__USING access_method_name
      { NODE(drop_statement); }
    | T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name    { NODE(drop_statement); }
    | T__OPERATOR T__FAMILY if_exists operator_family_name T__USING access_method_name
      { NODE(drop_statement); }
    | T__CAST T__LPAREN data_type T__AS data_type T__RPAREN                     { NODE(drop_statement); }
    | T__CAST if_exists T__LPAREN data_type T__AS data_type T__RPAREN           { NODE(drop_statement); }
    | T__TRANSFORM T__FOR data_type T__LANGUAGE language_name                   { NODE(drop_statement); }
    | T__TRANSFORM if_exists T__FOR data_type T__LANGUAGE language_name         { NODE(drop_statement); }
    | T__OWNED T__BY role_name_list                                             { NODE(drop_statement); }
    ;
dropped_language
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE(drop_statement); }
    ;
if_exists
    : T__IF T__EXISTS                                                           { NODE; }
    ;
dropped_roles
    : role_or_group role_name_list                                              { NODE(drop_statement); }
    | T__USER role_name_list                                                    { NODE(drop_statement); }
    | role_or_group if_exists role_name_list                                    { NODE(drop_statement); }
    | T__USER if_exists role_name_list                                          { NODE(drop_statement); }
    | T__USER T__MAPPING T__FOR mapped_user T__SERVER server_name               { NODE(drop_statement); }
    | T__USER T__MAPPING if_exists T__FOR mapped_user T__SERVER server_name     { NODE(drop_statement); }
    | T__DATABASE database_name                                                 { NODE(drop_statement); }
    | T__DATABASE if_exists database_name                                       { NODE(drop_statement); }
    | T__DATABASE database_name database_drop_options                           { NODE(drop_statement); }
    | T__DATABASE if_exists database_name database_drop_options                 { NODE(drop_statement); }
    ;
database_drop_options
    : utility_options
    | T__WITH utility_options                                                   { NODE(drop_statement); }
    ;
