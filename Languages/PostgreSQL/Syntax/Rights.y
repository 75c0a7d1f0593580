/* What PostgreSQL adds to GRANT and REVOKE. */

grant_statement { NODE; }
    : T__GRANT privilege_list T__TO grantee_list T__WITH membership_option_list granted_by? ;
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
revoked_privileges { NODE(revoke_statement); }
    : (T__INHERIT | T__SET) T__OPTION T__FOR privilege_list T__FROM grantee_list ;
grantee { NODE; }: T__GROUP? role_name ;
privilege { NODE; }: T__ALTER T__SYSTEM ;
privilege_target { NODE; }
    : T__FOREIGN T__DATA T__WRAPPER wrapper_name_list
    | T__FOREIGN T__SERVER server_name_list
    | T__DATABASE database_name_list
    | T__DOMAIN domain_name_list
    | T__LANGUAGE language_name_list
    | T__LARGE T__OBJECT number_list
    | T__PARAMETER setting_name_list
    | T__TABLESPACE tablespace_name_list
    | T__TYPE type_name_list
    | T__ALL (T__TABLES | T__SEQUENCES | T__FUNCTIONS | T__PROCEDURES | T__ROUTINES) T__IN T__SCHEMA
          schema_name_list ;
%list number_list: signed_number %short %separator T__COMMA ;
reassign_owned_statement { NODE; }: T__REASSIGN T__OWNED T__BY role_name_list T__TO role_name ;
