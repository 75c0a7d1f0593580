/* Schemas, roles, databases. */

create_schema_statement
    : T__CREATE T__SCHEMA schema_head                                           { NODE; }
    | T__CREATE T__SCHEMA schema_head schema_element_list                       { NODE; }
    ;
new_schema
    : schema_name
    | if_not_exists schema_name
      { NODE(create_schema_statement); }
    ;
schema_head
    : new_schema
    | new_schema T__AUTHORIZATION role_name
      { NODE(create_schema_statement); }
    | T__AUTHORIZATION role_name
      { NODE(create_schema_statement); }
    | if_not_exists T__AUTHORIZATION role_name
      { NODE(create_schema_statement); }
    ;
schema_element_list
    : schema_element                                                            { NODE; }
    | schema_element_list schema_element                                        { NODE; }
    ;
schema_element
    : create_table_statement
    | create_index_statement
    | create_sequence_statement
    | create_trigger_statement
    | create_view_statement
    | grant_statement
    ;

role_name_list
    : role_name                                                                 { NODE; }
    | role_name_list T__COMMA role_name                                         { NODE; }
    ;
create_role_statement
    : T__CREATE role_or_group role_name                                         { NODE; }
    | T__CREATE T__USER role_name                                               { NODE; }
    | T__CREATE role_or_group role_name role_option_list                        { NODE; }
    | T__CREATE T__USER role_name role_option_list                              { NODE; }
    | T__CREATE role_or_group role_name T__WITH                                 { NODE; }
    | T__CREATE T__USER role_name T__WITH                                       { NODE; }
    | T__CREATE role_or_group role_name T__WITH role_option_list                { NODE; }
    | T__CREATE T__USER role_name T__WITH role_option_list                      { NODE; }
    ;
role_or_group
    : T__ROLE
    | T__GROUP
    ;
role_option_list
    : role_option                                                               { NODE; }
    | role_option_list role_option                                              { NODE; }
    ;
role_option
    : T__PASSWORD string_literal                                                { NODE; }
    | T__PASSWORD T__NULL                                                       { NODE; }
    | T__ENCRYPTED T__PASSWORD string_literal                                   { NODE; }
    | T__UNENCRYPTED T__PASSWORD string_literal                                 { NODE; }
    | T__INHERIT                                                                { NODE; }
    | T__CONNECTION T__LIMIT signed_integer                                     { NODE; }
    | T__VALID T__UNTIL string_literal                                          { NODE; }
    | T__USER role_name_list                                                    { NODE; }
    | plain_identifier                                                          { NODE; }
    | T__SYSID T__INTEGER_NUMBER                                                { NODE; }
    | T__ADMIN role_name_list                                                   { NODE; }
    | T__ROLE role_name_list                                                    { NODE; }
    | T__IN T__ROLE role_name_list                                              { NODE; }
    | T__IN T__GROUP role_name_list                                             { NODE; }
    ;

create_database_statement
    : T__CREATE T__DATABASE database_name                                       { NODE; }
    | T__CREATE T__DATABASE database_name database_option_list                  { NODE; }
    | T__CREATE T__DATABASE database_name T__WITH                               { NODE; }
    | T__CREATE T__DATABASE database_name T__WITH database_option_list          { NODE; }
    ;
database_option_list
    : database_option                                                           { NODE(option_list); }
    | database_option_list database_option                                      { NODE(option_list); }
    ;
database_option
    : database_option_name database_option_value                                { NODE(option); }
    | database_option_name T__EQUAL database_option_value                       { NODE(option); }
    ;
database_option_name
    : plain_identifier                                                          { NODE(option_name); }
    | T__CONNECTION T__LIMIT                                                    { NODE(option_name); }
    | T__ENCODING                                                               { NODE(option_name); }
    | T__LOCATION                                                               { NODE(option_name); }
    | T__OWNER                                                                  { NODE(option_name); }
    | T__TABLESPACE                                                             { NODE(option_name); }
    | T__TEMPLATE                                                               { NODE(option_name); }
    ;
database_option_value
    : signed_number
    | option_text
    | T__DEFAULT
    ;
/* A value of an option: a word or a string. */
option_text
    : T__TRUE
    | T__FALSE
    | T__ON
    | non_reserved_word
    | string_literal
    ;

create_tablespace_statement
    : T__CREATE T__TABLESPACE tablespace_name T__LOCATION string_literal        { NODE; }
    | T__CREATE T__TABLESPACE tablespace_name T__LOCATION string_literal T__WITH options
      { NODE; }
    | T__CREATE T__TABLESPACE tablespace_name T__OWNER role_name T__LOCATION string_literal
      { NODE; }
    | T__CREATE T__TABLESPACE tablespace_name T__OWNER role_name T__LOCATION string_literal T__WITH options
      { NODE; }
    ;

new_extension
    : extension_name
    | if_not_exists extension_name
      { NODE(create_extension_statement); }
    ;
create_extension_statement
    : T__CREATE T__EXTENSION new_extension                                      { NODE; }
    | T__CREATE T__EXTENSION new_extension extension_option_list                { NODE; }
    | T__CREATE T__EXTENSION new_extension T__WITH                              { NODE; }
    | T__CREATE T__EXTENSION new_extension T__WITH extension_option_list        { NODE; }
    ;
extension_option_list
    : extension_option                                                          { NODE; }
    | extension_option_list extension_option                                    { NODE; }
    ;
extension_option
    : T__SCHEMA schema_name                                                     { NODE; }
    | T__VERSION word_or_string                                                 { NODE; }
    | T__FROM word_or_string                                                    { NODE; }
    | T__CASCADE                                                                { NODE; }
    ;
word_or_string
    : non_reserved_word
    | string_literal
    ;

create_language_statement
    : T__CREATE language_definition                                             { NODE; }
    | T__CREATE T__OR T__REPLACE language_definition                            { NODE; }
    ;
language_definition
    : language_words language_name
      { NODE(create_language_statement); }
    | language_words language_name T__HANDLER handler_name
      { NODE(create_language_statement); }
    | language_words language_name T__HANDLER handler_name language_handlers
      { NODE(create_language_statement); }
    ;
language_words
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE
      { NODE(create_language_statement); }
    | T__TRUSTED T__LANGUAGE
      { NODE(create_language_statement); }
    | T__TRUSTED T__PROCEDURAL T__LANGUAGE
      { NODE(create_language_statement); }
    ;
language_handlers
    : T__INLINE handler_name
      { NODE(create_language_statement); }
    | language_validator
    | T__INLINE handler_name language_validator
      { NODE(create_language_statement); }
    ;
language_validator
    : T__VALIDATOR handler_name                                                 { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;
