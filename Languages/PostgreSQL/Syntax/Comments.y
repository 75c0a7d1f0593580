/* COMMENT, SECURITY LABEL. */

named_object
    : T__TABLE table_name                                                       { NODE; }
    | T__SEQUENCE sequence_name                                                 { NODE; }
    | T__VIEW view_name                                                         { NODE; }
    | T__MATERIALIZED T__VIEW view_name                                         { NODE; }
    | T__INDEX index_name                                                       { NODE; }
    | T__FOREIGN T__TABLE table_name                                            { NODE; }
    | T__COLLATION collation_name                                               { NODE; }
    | T__CONVERSION conversion_name                                             { NODE; }
    | T__STATISTICS statistics_name                                             { NODE; }
    | T__TEXT T__SEARCH text_search_word text_search_name                       { NODE; }
    | T__ACCESS T__METHOD access_method_name                                    { NODE; }
    | T__EVENT T__TRIGGER event_trigger_name                                    { NODE; }
    | T__EXTENSION extension_name                                               { NODE; }
    | T__FOREIGN T__DATA T__WRAPPER wrapper_name                                { NODE; }
    | named_language language_name                                              { NODE; }
    | T__PUBLICATION publication_name                                           { NODE; }
    | T__SCHEMA schema_name                                                     { NODE; }
    | T__SERVER server_name                                                     { NODE; }
    | T__SUBSCRIPTION subscription_name                                         { NODE; }
    | T__TABLESPACE tablespace_name                                             { NODE; }
    | T__ROLE role_name                                                         { NODE; }
    | T__DATABASE database_name                                                 { NODE; }
    | T__TYPE data_type                                                         { NODE; }
    | T__DOMAIN data_type                                                       { NODE; }
    | T__AGGREGATE aggregate_signature                                          { NODE; }
    | any_routine_word routine_signature                                        { NODE; }
    | T__OPERATOR operator_signature                                            { NODE; }
    | T__OPERATOR T__CLASS operator_class_name T__USING access_method_name      { NODE; }
    | T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name    { NODE; }
    | T__CAST T__LPAREN data_type T__AS data_type T__RPAREN                     { NODE; }
    | T__TRANSFORM T__FOR data_type T__LANGUAGE language_name                   { NODE; }
    ;
named_language
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE(named_object); }
    ;
commented_object
    : named_object
    | T__COLUMN qualified_column_name                                           { NODE(named_object); }
    | T__CONSTRAINT constraint_name T__ON table_name                            { NODE(named_object); }
    | T__CONSTRAINT constraint_name T__ON T__DOMAIN domain_name                 { NODE(named_object); }
    | T__POLICY policy_name T__ON table_name                                    { NODE(named_object); }
    | T__RULE rule_name T__ON table_name                                        { NODE(named_object); }
    | T__TRIGGER trigger_name T__ON table_name                                  { NODE(named_object); }
    | T__LARGE T__OBJECT signed_number                                          { NODE(named_object); }
    ;
comment_statement
    : T__COMMENT T__ON commented_object T__IS string_literal                    { NODE; }
    | T__COMMENT T__ON commented_object T__IS T__NULL                           { NODE; }
    ;
security_label_statement
    : T__SECURITY T__LABEL T__ON commented_object T__IS security_label          { NODE; }
    | T__SECURITY T__LABEL T__FOR word_or_string T__ON commented_object T__IS security_label
      { NODE; }
    ;
security_label
    : string_literal
    | T__NULL
    ;
