/* What else PostgreSQL drops. */

dropped_objects { NODE(drop_statement); }
    : T__FOREIGN T__TABLE if_exists? table_name_list
    | T__MATERIALIZED T__VIEW if_exists? view_name_list
    | T__INDEX T__CONCURRENTLY if_exists? index_name_list
    | T__COLLATION if_exists? collation_name_list
    | T__CONVERSION if_exists? conversion_name_list
    | T__STATISTICS if_exists? statistics_name_list
    | T__TEXT T__SEARCH text_search_word if_exists? text_search_name_list
    | T__ACCESS T__METHOD if_exists? access_method_name_list
    | T__EVENT T__TRIGGER if_exists? event_trigger_name_list
    | T__EXTENSION if_exists? extension_name_list
    | T__FOREIGN T__DATA T__WRAPPER if_exists? wrapper_name_list
    | dropped_language if_exists? language_name_list
    | T__PUBLICATION if_exists? publication_name_list
    | T__SERVER if_exists? server_name_list
    | T__SUBSCRIPTION if_exists? subscription_name_list
    | T__TABLESPACE if_exists? tablespace_name_list
    | (T__TYPE | T__DOMAIN) if_exists? data_type_list
    | T__POLICY if_exists? policy_name T__ON table_name
    | T__RULE if_exists? rule_name T__ON table_name
    | T__TRIGGER if_exists? trigger_name T__ON table_name
    | T__AGGREGATE if_exists? aggregate_signature_list
    | T__OPERATOR if_exists? operator_signature_list
    | T__OPERATOR T__CLASS if_exists? operator_class_name T__USING access_method_name
    | T__OPERATOR T__FAMILY if_exists? operator_family_name T__USING access_method_name
    | T__CAST if_exists? T__LPAREN data_type T__AS data_type T__RPAREN
    | T__TRANSFORM if_exists? T__FOR data_type T__LANGUAGE language_name
    | T__OWNED T__BY role_name_list ;
dropped_language { PART(drop_statement); }: T__PROCEDURAL? T__LANGUAGE ;
dropped_alone { NODE(drop_statement); }
    : T__GROUP if_exists? role_name_list
    | T__USER T__MAPPING if_exists? T__FOR mapped_user T__SERVER server_name
    | T__DATABASE if_exists? database_name database_drop_options ;
database_drop_options { PART(drop_statement); }: T__WITH? utility_options ;
