/* Foreign data. */

create_foreign_table_statement { NODE; }
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER server_name generic_options? ;
new_foreign_table { PART(create_foreign_table_statement); }: if_not_exists? table_name ;
foreign_table_definition { NODE(create_foreign_table_statement); }
    : new_foreign_table T__LPAREN table_element_list? T__RPAREN inherits_clause?
    | new_foreign_table T__PARTITION T__OF table_name (T__LPAREN typed_element_list T__RPAREN)? partition_bound
          ;
inherits_clause { NODE; }: T__INHERITS T__LPAREN table_name_list T__RPAREN ;

create_foreign_object_statement { NODE(create_wrapper_statement); }
    : T__CREATE T__FOREIGN T__DATA T__WRAPPER wrapper_name wrapper_option_list? generic_options?
    | T__CREATE T__SERVER new_server server_clauses generic_options?  { NODE(create_server_statement); }
    | T__CREATE T__USER T__MAPPING if_not_exists? T__FOR mapped_user T__SERVER server_name generic_options?
          { NODE(create_user_mapping_statement); } ;
%list wrapper_option_list: wrapper_option %short ;
wrapper_option { NODE; }
    : (T__HANDLER | T__VALIDATOR) handler_name
    | T__NO T__HANDLER
    | T__NO T__VALIDATOR ;
server_clauses { PART(create_server_statement); }: (T__TYPE string_literal)? server_version? server_wrapper ;
server_version { NODE; }: T__VERSION (string_literal | T__NULL) ;
server_wrapper { NODE; }: T__FOREIGN T__DATA T__WRAPPER wrapper_name ;
mapped_user: role_name | T__USER  { NODE(role_name); } ;

import_foreign_schema_statement { NODE; }
    : T__IMPORT T__FOREIGN T__SCHEMA schema_name import_filter? T__FROM T__SERVER server_name T__INTO
          schema_name generic_options? ;
import_filter { NODE; }
    : T__LIMIT T__TO T__LPAREN relation_list T__RPAREN
    | T__EXCEPT T__LPAREN relation_list T__RPAREN ;
