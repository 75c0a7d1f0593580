/* SET: variables, character sets, passwords, roles. */

statement: set_statement ;
set_statement { NODE; }
    : T__SET variable_item_list
    | T__SET T__STATEMENT variable_item_list T__FOR statement
    | T__SET T__ROLE active_roles
    | T__SET T__DEFAULT T__ROLE active_roles role_holders?
    | T__SET T__RESOURCE T__GROUP resource_group_name (T__FOR integer_list)? ;
role_holders { PART(set_statement); }: T__TO role_name_list | T__FOR role_name ;
%list variable_item_list: variable_item %short %separator T__COMMA %node set_list ;
/* The words of scopes stand here, since SET TRANSACTION may follow them, too. */
variable_item { NODE(set_item); }
    : (T__GLOBAL | T__SESSION | T__LOCAL | T__PERSIST | T__PERSIST_ONLY)? set_variable set_sign set_value
    | character_set
    | (T__CHARSET | T__CHARACTER T__SET) T__DEFAULT
    | T__NAMES (T__DEFAULT | any_charset_name set_collation?)
    | T__PASSWORD (T__FOR role_name)? set_password ;
set_variable { NODE(variable_name); }: variable  { PART; } | qualified_name ;
set_sign: T__EQUAL | T__COLON_EQUAL ;
set_value: expression | T__ON | T__ALL | T__BINARY ;
set_collation { NODE(collate_clause); }: T__COLLATE (collation_name | T__DEFAULT) ;
set_password { PART(set_item); }: (T__EQUAL | T__TO) new_password password_change? ;
new_password: string_literal | T__RANDOM | function_call ;

active_roles { NODE; }
    : role_name_list | T__NONE | T__DEFAULT
    | T__ALL (T__EXCEPT role_name_list)? ;

resource_group_name { NODE; }: identifier ;
%list integer_list: T__INTEGER_NUMBER %short %separator T__COMMA %node number_list ;
