/* Foreign data. */

create_foreign_object
    : T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name                       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name generic_options       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options generic_options
      { NODE; }
    | T__CREATE T__SERVER new_name server_clauses                               { NODE; }
    | T__CREATE T__SERVER new_name server_clauses generic_options               { NODE; }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name     { NODE; }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name generic_options
      { NODE; }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      { NODE; }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      generic_options                                                           { NODE; }
    ;
wrapper_options
    : wrapper_option
    | wrapper_options wrapper_option                                            { NODE; }
    ;
wrapper_option
    : T__HANDLER qualified_name                                                 { NODE; }
    | T__NO T__HANDLER                                                          { NODE; }
    | T__VALIDATOR qualified_name                                               { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;
server_clauses
    : server_wrapper
    | T__TYPE string_literal server_wrapper                                     { NODE; }
    | server_version server_wrapper                                             { NODE; }
    | T__TYPE string_literal server_version server_wrapper                      { NODE; }
    ;
server_version
    : T__VERSION string_literal                                                 { NODE; }
    | T__VERSION T__NULL                                                        { NODE; }
    ;
server_wrapper
    : T__FOREIGN T__DATA T__WRAPPER column_name                                 { NODE; }
    ;
mapped_user
    : role
    | T__USER
    ;

import_foreign_schema
    : T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      generic_options                                                           { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name                                                               { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name generic_options                                               { NODE; }
    ;
import_filter
    : T__LIMIT T__TO T__LPAREN relation_list T__RPAREN                          { NODE; }
    | T__EXCEPT T__LPAREN relation_list T__RPAREN                               { NODE; }
    ;
relation_list
    : relation
    | relation_list T__COMMA relation                                           { NODE; }
    ;
