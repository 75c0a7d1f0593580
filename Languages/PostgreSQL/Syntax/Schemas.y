/* Schemas, roles, databases. */

create_schema
    : T__CREATE T__SCHEMA schema_name                                           { NODE; }
    | T__CREATE T__SCHEMA schema_name schema_elements                           { NODE; }
    ;
schema_name
    : new_name
    | new_name T__AUTHORIZATION role                                            { NODE; }
    | T__AUTHORIZATION role                                                     { NODE; }
    | T__IF T__NOT T__EXISTS T__AUTHORIZATION role                              { NODE; }
    ;
schema_elements
    : schema_element
    | schema_elements schema_element                                            { NODE; }
    ;
schema_element
    : create_table
    | create_index
    | create_sequence
    | create_trigger
    | create_view
    | grant_statement
    ;

role
    : non_reserved_word
    | T__CURRENT_ROLE
    | T__CURRENT_USER
    | T__SESSION_USER
    ;
role_list
    : role
    | role_list T__COMMA role                                                   { NODE; }
    ;
create_role
    : T__CREATE role_or_group role                                              { NODE; }
    | T__CREATE T__USER role                                                    { NODE; }
    | T__CREATE role_or_group role role_options                                 { NODE; }
    | T__CREATE T__USER role role_options                                       { NODE; }
    | T__CREATE role_or_group role T__WITH                                      { NODE; }
    | T__CREATE T__USER role T__WITH                                            { NODE; }
    | T__CREATE role_or_group role T__WITH role_options                         { NODE; }
    | T__CREATE T__USER role T__WITH role_options                               { NODE; }
    ;
role_or_group
    : T__ROLE
    | T__GROUP
    ;
role_options
    : role_option
    | role_options role_option                                                  { NODE; }
    ;
role_option
    : T__PASSWORD string_literal                                                { NODE; }
    | T__PASSWORD T__NULL                                                       { NODE; }
    | T__ENCRYPTED T__PASSWORD string_literal                                   { NODE; }
    | T__UNENCRYPTED T__PASSWORD string_literal                                 { NODE; }
    | T__INHERIT
    | T__CONNECTION T__LIMIT signed_integer                                     { NODE; }
    | T__VALID T__UNTIL string_literal                                          { NODE; }
    | T__USER role_list                                                         { NODE; }
    | plain_identifier
    | T__SYSID T__INTEGER_NUMBER                                                { NODE; }
    | T__ADMIN role_list                                                        { NODE; }
    | T__ROLE role_list                                                         { NODE; }
    | T__IN T__ROLE role_list                                                   { NODE; }
    | T__IN T__GROUP role_list                                                  { NODE; }
    ;

create_database
    : T__CREATE T__DATABASE column_name                                         { NODE; }
    | T__CREATE T__DATABASE column_name database_options                        { NODE; }
    | T__CREATE T__DATABASE column_name T__WITH                                 { NODE; }
    | T__CREATE T__DATABASE column_name T__WITH database_options                { NODE; }
    ;
database_options
    : database_option
    | database_options database_option                                          { NODE; }
    ;
database_option
    : database_option_name database_option_value                                { NODE; }
    | database_option_name T__EQUAL database_option_value                       { NODE; }
    ;
database_option_name
    : plain_identifier
    | T__CONNECTION T__LIMIT                                                    { NODE; }
    | T__ENCODING
    | T__LOCATION
    | T__OWNER
    | T__TABLESPACE
    | T__TEMPLATE
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

create_tablespace
    : T__CREATE T__TABLESPACE column_name T__LOCATION string_literal            { NODE; }
    | T__CREATE T__TABLESPACE column_name T__LOCATION string_literal T__WITH relation_options
      { NODE; }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal
      { NODE; }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal T__WITH relation_options
      { NODE; }
    ;

create_extension
    : T__CREATE T__EXTENSION new_name                                           { NODE; }
    | T__CREATE T__EXTENSION new_name extension_options                         { NODE; }
    | T__CREATE T__EXTENSION new_name T__WITH                                   { NODE; }
    | T__CREATE T__EXTENSION new_name T__WITH extension_options                 { NODE; }
    ;
extension_options
    : extension_option
    | extension_options extension_option                                        { NODE; }
    ;
extension_option
    : T__SCHEMA column_name                                                     { NODE; }
    | T__VERSION word_or_string                                                 { NODE; }
    | T__FROM word_or_string                                                    { NODE; }
    | T__CASCADE
    ;
word_or_string
    : non_reserved_word
    | string_literal
    ;

create_language
    : T__CREATE language_definition                                             { NODE; }
    | T__CREATE T__OR T__REPLACE language_definition                            { NODE; }
    ;
language_definition
    : language_words column_name                                                { NODE; }
    | language_words column_name T__HANDLER qualified_name                      { NODE; }
    | language_words column_name T__HANDLER qualified_name language_handlers    { NODE; }
    ;
language_words
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE; }
    | T__TRUSTED T__LANGUAGE                                                    { NODE; }
    | T__TRUSTED T__PROCEDURAL T__LANGUAGE                                      { NODE; }
    ;
language_handlers
    : T__INLINE qualified_name                                                  { NODE; }
    | language_validator
    | T__INLINE qualified_name language_validator                               { NODE; }
    ;
language_validator
    : T__VALIDATOR qualified_name                                               { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;
