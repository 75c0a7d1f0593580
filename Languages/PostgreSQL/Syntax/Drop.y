/* DROP. */

drop_statement
    : T__DROP dropped_objects                                                   { NODE; }
    | T__DROP dropped_objects drop_behavior                                     { NODE; }
    | T__DROP dropped_roles                                                     { NODE; }
    ;
dropped_objects
    : object_word object_names                                                  { NODE; }
    | T__INDEX T__CONCURRENTLY object_names                                     { NODE; }
    | T__TYPE object_types                                                      { NODE; }
    | T__DOMAIN object_types                                                    { NODE; }
    | T__POLICY object_on_table                                                 { NODE; }
    | T__RULE object_on_table                                                   { NODE; }
    | T__TRIGGER object_on_table                                                { NODE; }
    | any_routine_word routine_signatures                                       { NODE; }
    | any_routine_word T__IF T__EXISTS routine_signatures                       { NODE; }
    | T__AGGREGATE aggregate_signatures                                         { NODE; }
    | T__AGGREGATE T__IF T__EXISTS aggregate_signatures                         { NODE; }
    | T__OPERATOR operator_signatures                                           { NODE; }
    | T__OPERATOR T__IF T__EXISTS operator_signatures                           { NODE; }
    | T__OPERATOR T__CLASS object_in_method                                     { NODE; }
    | T__OPERATOR T__FAMILY object_in_method                                    { NODE; }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { NODE; }
    | T__CAST T__IF T__EXISTS T__LPAREN type_name T__AS type_name T__RPAREN     { NODE; }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { NODE; }
    | T__TRANSFORM T__IF T__EXISTS T__FOR type_name T__LANGUAGE column_name     { NODE; }
    | T__OWNED T__BY role_list                                                  { NODE; }
    ;
/* Objects that a plain name tells. */
object_word
    : T__TABLE
    | T__SEQUENCE
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { NODE; }
    | T__INDEX
    | T__FOREIGN T__TABLE                                                       { NODE; }
    | T__COLLATION
    | T__CONVERSION
    | T__STATISTICS
    | T__TEXT T__SEARCH text_search_word                                        { NODE; }
    | T__ACCESS T__METHOD                                                       { NODE; }
    | T__EVENT T__TRIGGER                                                       { NODE; }
    | T__EXTENSION
    | T__FOREIGN T__DATA T__WRAPPER                                             { NODE; }
    | language_word
    | T__PUBLICATION
    | T__SCHEMA
    | T__SERVER
    | T__SUBSCRIPTION
    | T__TABLESPACE
    ;
object_names
    : qualified_name_list
    | T__IF T__EXISTS qualified_name_list                                       { NODE; }
    ;
object_types
    : type_list
    | T__IF T__EXISTS type_list                                                 { NODE; }
    ;
object_on_table
    : column_name T__ON qualified_name                                          { NODE; }
    | T__IF T__EXISTS column_name T__ON qualified_name                          { NODE; }
    ;
object_in_method
    : qualified_name T__USING column_name                                       { NODE; }
    | T__IF T__EXISTS qualified_name T__USING column_name                       { NODE; }
    ;
dropped_roles
    : role_or_group role_list                                                   { NODE; }
    | T__USER role_list                                                         { NODE; }
    | role_or_group T__IF T__EXISTS role_list                                   { NODE; }
    | T__USER T__IF T__EXISTS role_list                                         { NODE; }
    | T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name               { NODE; }
    | T__USER T__MAPPING T__IF T__EXISTS T__FOR mapped_user T__SERVER column_name  { NODE; }
    | T__DATABASE column_name                                                   { NODE; }
    | T__DATABASE T__IF T__EXISTS column_name                                   { NODE; }
    | T__DATABASE column_name database_drop_options                             { NODE; }
    | T__DATABASE T__IF T__EXISTS column_name database_drop_options             { NODE; }
    ;
database_drop_options
    : utility_options
    | T__WITH utility_options                                                   { NODE; }
    ;
