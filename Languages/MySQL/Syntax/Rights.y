/* What MySQL adds to GRANT and REVOKE: words of privileges, levels, users that are made by the way. */

statement: grant_statement | revoke_statement ;
grant_statement { NODE; }: T__GRANT privileges T__ON privilege_target T__TO grantee_list grant_limits ;
grant_limits { PART(grant_statement); }
    : require_clause (T__WITH T__GRANT T__OPTION)?
    | require_clause? resource_limits ;
resource_limits { PART(grant_statement); }
    : T__WITH (T__GRANT T__OPTION)? resource_limit_list
    | T__WITH resource_limit_list T__GRANT T__OPTION resource_limit_list? ;
%list resource_limit_list: resource_limit %short %node role_option_list ;
grantee { NODE; }: role_name identified_clause? ;
%without grant_statement: T__GRANT privilege_list T__TO grantee_list (T__WITH T__ADMIN T__OPTION)? granted_by ;
/* In whose name the right is given. */
%replace granted_by { NODE; }: T__AS role_name (T__WITH T__ROLE active_roles)? ;

revoke_statement { NODE; }: T__REVOKE if_exists revoked_privileges revoke_tail? ;
%without revoked_privileges: T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantee_list ;
revoked_privileges { NODE(revoke_statement); }: T__ALL T__PRIVILEGES? T__COMMA T__GRANT T__OPTION T__FROM grantee_list ;
%replace revoke_tail { NODE(unknown_user_clause); }: T__IGNORE T__UNKNOWN T__USER ;

%without privileges: T__ALL T__PRIVILEGES? columns ;
privilege_word
    : T__ALTER | T__DELETE | T__DROP | T__INDEX | T__INSERT | T__TRIGGER | T__UPDATE | T__USAGE | string_literal ;
privilege { NODE; }
    : (T__ALTER | T__BINLOG | T__CONNECTION | T__CREATE | T__DELETE | T__DROP | T__FEDERATED | T__GRANT | T__LOCK | T__READ
          | T__READ_ONLY | T__REPLICA | T__REPLICATION | T__SET | T__SHOW | T__SLAVE) privilege_rest
    | host_role ;
privilege_rest { PART(privilege); }: privilege_rest? second_privilege_word ;
second_privilege_word: T__IDENTIFIER | free_word | T__CREATE | T__DATABASES ;
/* A role where it could be a privilege, and a user where it could be a table. */
host_role { NODE(role_name); }: user_with_host ;
user_with_host { NODE(qualified_sql_identifier); }: user_part user_host ;
/* No statement tells a routine by its parameters. */
%without routine_signature: function_name parameters ;
%without any_routine_word: T__ROUTINE ;
%without privilege_target: T__SEQUENCE sequence_name_list | T__SCHEMA schema_name_list ;
privilege_target { NODE; }
    : T__TABLE? all_tables
    | host_role
    | user_string ;
user_string { NODE(role_name); }: string_literal | T__CURRENT_USER ;
all_tables { NODE; }: T__ASTERISK | T__ASTERISK T__DOT T__ASTERISK | identifier T__DOT T__ASTERISK ;
