/* GRANT, REVOKE. A dialect defines grantee, and adds to privilege and privilege_target. */

grant_statement { NODE; }
    : T__GRANT privileges T__ON privilege_target T__TO grantee_list (T__WITH T__GRANT T__OPTION)? granted_by?
    | T__GRANT privilege_list T__TO grantee_list (T__WITH T__ADMIN T__OPTION)? granted_by? ;
revoke_statement { NODE; }: T__REVOKE revoked_privileges revoke_tail? ;
revoked_privileges { NODE(revoke_statement); }
    : privileges T__ON privilege_target T__FROM grantee_list
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantee_list
    | privilege_list T__FROM grantee_list
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantee_list ;
%parts revoke_tail: granted_by drop_behavior %node revoke_statement ;
granted_by { NODE; }: T__GRANTED T__BY role_name ;
%list grantee_list: grantee %short %separator T__COMMA ;
privileges { NODE; }: privilege_list | T__ALL T__PRIVILEGES? columns? ;
%list privilege_list: privilege %short %separator T__COMMA ;
privilege { NODE; }: privilege_word columns? ;
privilege_word: T__SELECT | T__REFERENCES | T__CREATE | identifier ;
privilege_target { NODE; }
    : T__TABLE? table_name_list
    | T__SEQUENCE sequence_name_list
    | T__SCHEMA schema_name_list
    | any_routine_word routine_signature_list ;
/* For statements on roles: the dialect defines role_option. */
%list role_option_list: role_option %short ;
