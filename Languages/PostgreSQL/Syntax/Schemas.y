/* Schemas, roles, databases. */

schema_element
    : create_table_statement | create_index_statement | create_sequence_statement | create_trigger_statement
    | create_view_statement | grant_statement ;

create_role_statement { NODE; }: T__CREATE (role_or_group | T__USER) role_name T__WITH? new_role_option_list? ;
role_or_group: T__ROLE | T__GROUP ;
role_option { NODE; }
    : (T__ENCRYPTED | T__UNENCRYPTED)? T__PASSWORD string_literal
    | T__PASSWORD T__NULL
    | T__INHERIT
    | T__CONNECTION T__LIMIT signed_integer
    | T__VALID T__UNTIL string_literal
    | T__USER role_name_list
    | plain_identifier ;
/* What only a new role may have. */
%list new_role_option_list: new_role_option %short %node role_option_list ;
new_role_option { NODE(role_option); }
    : role_option  { PART; }
    | T__SYSID T__INTEGER_NUMBER
    | (T__ADMIN | T__IN? T__ROLE | T__IN T__GROUP) role_name_list ;

create_database_statement { NODE; }: T__CREATE T__DATABASE database_name T__WITH? database_option_list? ;
database_option { NODE(option); }: database_option_name T__EQUAL? database_option_value ;
database_option_name { NODE(option_name); }
    : plain_identifier
    | T__CONNECTION T__LIMIT
    | T__ENCODING | T__LOCATION | T__OWNER | T__TABLESPACE | T__TEMPLATE ;
database_option_value: signed_number | option_text | T__DEFAULT ;
/* A value of an option: a word or a string. */
option_text: T__TRUE | T__FALSE | T__ON | non_reserved_word | string_literal ;

create_tablespace_statement { NODE; }
    : T__CREATE T__TABLESPACE tablespace_name (T__OWNER role_name)? T__LOCATION string_literal (T__WITH
          options)? ;

new_extension { PART(create_extension_statement); }: if_not_exists? extension_name ;
create_extension_statement { NODE; }: T__CREATE T__EXTENSION new_extension T__WITH? extension_option_list? ;
%list extension_option_list: extension_option %short ;
extension_option { NODE; }
    : T__SCHEMA schema_name
    | (T__VERSION | T__FROM) word_or_string
    | T__CASCADE ;
word_or_string: non_reserved_word | string_literal ;

create_language_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? language_definition ;
language_definition { NODE(create_language_statement); }
    : language_words language_name (T__HANDLER handler_name language_handlers?)? ;
language_words { PART(create_language_statement); }: T__TRUSTED? T__PROCEDURAL? T__LANGUAGE ;
language_handlers { PART(create_language_statement); }
    : T__INLINE handler_name language_validator?
    | language_validator ;
language_validator { NODE; }: T__VALIDATOR handler_name | T__NO T__VALIDATOR ;
