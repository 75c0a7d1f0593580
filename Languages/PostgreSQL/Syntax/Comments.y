/* What else has comments, and SECURITY LABEL. */

named_object { NODE; }
    : T__FOREIGN T__TABLE table_name
    | T__MATERIALIZED T__VIEW view_name
    | T__COLLATION collation_name
    | T__CONVERSION conversion_name
    | T__STATISTICS statistics_name
    | T__TEXT T__SEARCH text_search_word text_search_name
    | T__ACCESS T__METHOD access_method_name
    | T__EVENT T__TRIGGER event_trigger_name
    | T__EXTENSION extension_name
    | T__FOREIGN T__DATA T__WRAPPER wrapper_name
    | named_language language_name
    | T__PUBLICATION publication_name
    | T__SCHEMA schema_name
    | T__SERVER server_name
    | T__SUBSCRIPTION subscription_name
    | T__TABLESPACE tablespace_name
    | T__ROLE role_name
    | T__DATABASE database_name
    | (T__TYPE | T__DOMAIN) data_type
    | T__AGGREGATE aggregate_signature
    | any_routine_word routine_signature
    | T__OPERATOR operator_signature
    | T__OPERATOR (T__CLASS operator_class_name | T__FAMILY operator_family_name) T__USING access_method_name
    | T__CAST T__LPAREN data_type T__AS data_type T__RPAREN
    | T__TRANSFORM T__FOR data_type T__LANGUAGE language_name ;
named_language { PART(named_object); }: T__PROCEDURAL? T__LANGUAGE ;
commented_object { PART(named_object); }
    : T__CONSTRAINT constraint_name T__ON (table_name | T__DOMAIN domain_name)
    | T__POLICY policy_name T__ON table_name
    | T__RULE rule_name T__ON table_name
    | T__TRIGGER trigger_name T__ON table_name
    | T__LARGE T__OBJECT signed_number ;
comment_statement { NODE; }: T__COMMENT T__ON commented_object T__IS T__NULL ;
security_label_statement { NODE; }
    : T__SECURITY T__LABEL (T__FOR word_or_string)? T__ON commented_object T__IS security_label ;
security_label: string_literal | T__NULL ;
