/* Users and roles: CREATE, ALTER, RENAME. */

statement: create_role_statement | alter_role_statement | rename_user_statement ;
create_role_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? created_role ;
created_role { PART(create_role_statement); }
    : T__USER new_users user_tail?
    | T__ROLE new_roles (T__WITH T__ADMIN role_name)? ;
new_users { PART(create_role_statement); }: if_not_exists? user_definition_list ;
new_roles { PART(create_role_statement); }: if_not_exists? role_name_list ;
alter_role_statement { NODE; }: T__ALTER T__USER if_exists? altered_users ;
altered_users { PART(alter_role_statement); }
    : altered_user_list (default_roles | altered_options)?
    | role_name factor registration ;
rename_user_statement { NODE; }: T__RENAME T__USER user_renaming_list ;
%list user_renaming_list: user_renaming %short %separator T__COMMA ;
user_renaming { NODE; }: role_name T__TO new_user_name ;
new_user_name { NODE(new_name); }: user_name ;

%list user_definition_list: user_definition %short %separator T__COMMA ;
user_definition { NODE; }: role_name identification? ;
%list altered_user_list: altered_user %short %separator T__COMMA %node user_definition_list ;
altered_user { NODE(user_definition); }
    : role_name identification?
    | role_name T__DISCARD T__OLD T__PASSWORD
    | role_name factor_change_list ;
%list factor_change_list: factor_change %short ;
factor_change { NODE; }: (T__ADD | T__MODIFY) factor identified_clause | T__DROP factor ;
factor { NODE(authentication_factor); }: T__INTEGER_NUMBER T__IDENTIFIER ;
registration { NODE; }
    : T__IDENTIFIER T__IDENTIFIER?
    | T__IDENTIFIER T__IDENTIFIER T__SET T__IDENTIFIER T__AS string_literal ;

/* Several factors are joined by AND. */
identification { PART(user_definition); }: identified_clause | identification T__AND identified_clause ;
identified_clause { NODE; }: identified_by password_change? ;
identified_by { PART(identified_clause); }
    : T__IDENTIFIED T__BY (T__PASSWORD? string_literal | T__RANDOM T__PASSWORD)
    | T__IDENTIFIED (T__WITH | T__VIA) authentication_list ;
%list authentication_list: authentication %short %separator T__OR ;
authentication { NODE; }
    : authentication_plugin %prec LOWEST
    | authentication_plugin (T__AS | T__BY | T__USING) authentication_text
    | authentication_plugin (T__AS | T__USING) T__PASSWORD T__LPAREN string_literal T__RPAREN
    | authentication_plugin T__BY T__RANDOM T__PASSWORD ;
authentication_plugin { NODE(plugin_name); }: identifier | string_literal ;
authentication_text: string_literal | T__HEX_NUMBER | T__HEX_STRING ;
password_change { NODE; }: T__REPLACE string_literal | (T__REPLACE string_literal)? T__RETAIN T__CURRENT T__PASSWORD ;

%parts user_tail: default_roles require_clause role_option_list %node create_role_statement ;
%parts altered_options: require_clause role_option_list %node alter_role_statement ;
default_roles { NODE; }: T__DEFAULT T__ROLE active_roles ;
require_clause { NODE; }: T__REQUIRE (T__NONE | tls_requirement_list) ;
tls_requirement_list { NODE; }: (tls_requirement_list T__AND?)? tls_requirement ;
tls_requirement { NODE; }: T__SSL | T__X509 | (T__CIPHER | T__ISSUER | T__SUBJECT) string_literal ;

role_option { NODE; }
    : T__WITH? resource_limit  { PART; }
    | T__IDENTIFIER T__IDENTIFIER identified_clause
    | T__PASSWORD T__EXPIRE (T__DEFAULT | T__NEVER | password_days)?
    | T__PASSWORD T__HISTORY (T__DEFAULT | T__INTEGER_NUMBER)
    | T__PASSWORD T__REUSE T__INTERVAL T__DEFAULT
    | T__PASSWORD T__REUSE password_days
    | T__PASSWORD T__REQUIRE T__CURRENT (T__DEFAULT | T__OPTIONAL)?
    | T__ACCOUNT (T__LOCK | T__UNLOCK)
    | (T__COMMENT | T__ATTRIBUTE) string_literal ;
password_days { NODE(interval_expression); }: T__INTERVAL T__INTEGER_NUMBER T__DAY ;
resource_limit { NODE(role_option); }: plain_option_name (number | T__UNBOUNDED) ;
/* No option that is a word of its own. */
plain_option_name { NODE(option_name); }: unlisted_word ;
unlisted_word { NODE(sql_identifier); }: T__IDENTIFIER ;
