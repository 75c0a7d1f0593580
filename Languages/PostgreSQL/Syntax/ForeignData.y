/* Foreign data. */

new_server
    : server_name
    | if_not_exists server_name
      { NODE(create_server_statement); }
    ;
create_foreign_object_statement
    : T__CREATE T__FOREIGN T__DATA T__WRAPPER wrapper_name
      { NODE(create_wrapper_statement); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list
      { NODE(create_wrapper_statement); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER wrapper_name generic_options
      { NODE(create_wrapper_statement); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list generic_options
      { NODE(create_wrapper_statement); }
    | T__CREATE T__SERVER new_server server_clauses
      { NODE(create_server_statement); }
    | T__CREATE T__SERVER new_server server_clauses generic_options
      { NODE(create_server_statement); }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER server_name
      { NODE(create_user_mapping_statement); }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER server_name generic_options
      { NODE(create_user_mapping_statement); }
    | T__CREATE T__USER T__MAPPING if_not_exists T__FOR mapped_user T__SERVER server_name
      { NODE(create_user_mapping_statement); }
    | T__CREATE T__USER T__MAPPING if_not_exists T__FOR mapped_user T__SERVER server_name
      generic_options                                                           { NODE(create_user_mapping_statement); }
    ;
wrapper_option_list
    : wrapper_option                                                            { NODE; }
    | wrapper_option_list wrapper_option                                        { NODE; }
    ;
wrapper_option
    : T__HANDLER handler_name                                                   { NODE; }
    | T__NO T__HANDLER                                                          { NODE; }
    | T__VALIDATOR handler_name                                                 { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;
server_clauses
    : server_wrapper
    | T__TYPE string_literal server_wrapper
      { NODE(create_server_statement); }
    | server_version server_wrapper
      { NODE(create_server_statement); }
    | T__TYPE string_literal server_version server_wrapper
      { NODE(create_server_statement); }
    ;
server_version
    : T__VERSION string_literal                                                 { NODE; }
    | T__VERSION T__NULL                                                        { NODE; }
    ;
server_wrapper
    : T__FOREIGN T__DATA T__WRAPPER wrapper_name                                { NODE; }
    ;
mapped_user
    : role_name
    | T__USER                                                                   { NODE(role_name); }
    ;

import_foreign_schema_statement
    : T__IMPORT T__FOREIGN T__SCHEMA schema_name T__FROM T__SERVER server_name T__INTO schema_name
      { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA schema_name T__FROM T__SERVER server_name T__INTO schema_name
      generic_options                                                           { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA schema_name import_filter T__FROM T__SERVER server_name T__INTO
      schema_name                                                               { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA schema_name import_filter T__FROM T__SERVER server_name T__INTO
      schema_name generic_options                                               { NODE; }
    ;
import_filter
    : T__LIMIT T__TO T__LPAREN relation_list T__RPAREN                          { NODE; }
    | T__EXCEPT T__LPAREN relation_list T__RPAREN                               { NODE; }
    ;
relation_list
    : table
      { NODE(table_reference_list); }
    | relation_list T__COMMA table
      { NODE(table_reference_list); }
    ;
