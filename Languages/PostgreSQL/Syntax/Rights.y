/* Rights. */

grant_statement { NODE; }
    : T__GRANT privileges T__ON privilege_target T__TO grantee_list (T__WITH T__GRANT T__OPTION)? granted_by?
    | T__GRANT privilege_list T__TO grantee_list (T__WITH T__ADMIN T__OPTION)? granted_by?
    | T__GRANT privilege_list T__TO grantee_list T__WITH membership_option_list granted_by? ;
/* WITH ADMIN OPTION alone has no node of its own. */
membership_option_list { NODE; }
    : (admin_option T__COMMA)? membership_option
    | membership_option_list T__COMMA (membership_option | admin_option) ;
membership_option { NODE; }
    : T__ADMIN truth
    | T__INHERIT (T__OPTION | truth)
    | T__SET T__OPTION
    | T__SET truth ;
admin_option { NODE(membership_option); }: T__ADMIN T__OPTION ;
truth: T__TRUE | T__FALSE ;
revoke_statement { NODE; }: T__REVOKE revoked_privileges revoke_tail? ;
revoked_privileges { NODE(revoke_statement); }
    : privileges T__ON privilege_target T__FROM grantee_list
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantee_list
    | privilege_list T__FROM grantee_list
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantee_list
    | (T__INHERIT | T__SET) T__OPTION T__FOR privilege_list T__FROM grantee_list ;
%parts revoke_tail: granted_by drop_behavior %node revoke_statement ;
granted_by { NODE; }: T__GRANTED T__BY role_name ;
%list grantee_list: grantee %short %separator T__COMMA ;
grantee { NODE; }: T__GROUP? role_name ;
privileges { NODE; }: privilege_list | T__ALL T__PRIVILEGES? columns? ;
%list privilege_list: privilege %short %separator T__COMMA ;
privilege { NODE; }: privilege_word columns? | T__ALTER T__SYSTEM ;
privilege_word: T__SELECT | T__REFERENCES | T__CREATE | identifier ;
privilege_target { NODE; }
    : T__TABLE? table_name_list
    | T__SEQUENCE sequence_name_list
    | T__FOREIGN T__DATA T__WRAPPER wrapper_name_list
    | T__FOREIGN T__SERVER server_name_list
    | any_routine_word routine_signature_list
    | T__DATABASE database_name_list
    | T__DOMAIN domain_name_list
    | T__LANGUAGE language_name_list
    | T__LARGE T__OBJECT number_list
    | T__PARAMETER setting_name_list
    | T__SCHEMA schema_name_list
    | T__TABLESPACE tablespace_name_list
    | T__TYPE type_name_list
    | T__ALL (T__TABLES | T__SEQUENCES | T__FUNCTIONS | T__PROCEDURES | T__ROUTINES) T__IN T__SCHEMA
          schema_name_list ;
%list number_list: signed_number %short %separator T__COMMA ;
reassign_owned_statement { NODE; }: T__REASSIGN T__OWNED T__BY role_name_list T__TO role_name ;
