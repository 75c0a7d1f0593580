/* Rights. */

grant_statement
    : T__GRANT privileges T__ON privilege_target T__TO grantee_list             { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantee_list T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantee_list granted_by  { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantee_list T__WITH T__GRANT T__OPTION granted_by
      { NODE; }
    | T__GRANT privilege_list T__TO grantee_list                                { NODE; }
    | T__GRANT privilege_list T__TO grantee_list T__WITH T__ADMIN T__OPTION     { NODE; }
    | T__GRANT privilege_list T__TO grantee_list granted_by                     { NODE; }
    | T__GRANT privilege_list T__TO grantee_list T__WITH T__ADMIN T__OPTION granted_by
      { NODE; }
    | T__GRANT privilege_list T__TO grantee_list T__WITH membership_option_list { NODE; }
    | T__GRANT privilege_list T__TO grantee_list T__WITH membership_option_list granted_by  { NODE; }
    ;
/* WITH ADMIN OPTION alone has no node of its own. */
membership_option_list
    : membership_option                                                         { NODE; }
    | admin_option T__COMMA membership_option                                   { NODE; }
    | membership_option_list T__COMMA membership_option                         { NODE; }
    | membership_option_list T__COMMA admin_option                              { NODE; }
    ;
membership_option
    : T__ADMIN truth                                                            { NODE; }
    | T__INHERIT T__OPTION                                                      { NODE; }
    | T__INHERIT truth                                                          { NODE; }
    | T__SET T__OPTION                                                          { NODE; }
    | T__SET truth                                                              { NODE; }
    ;
admin_option
    : T__ADMIN T__OPTION                                                        { NODE(membership_option); }
    ;
truth
    : T__TRUE
    | T__FALSE
    ;
revoke_statement
    : T__REVOKE revoked_privileges                                              { NODE; }
    | T__REVOKE revoked_privileges revoke_tail                                  { NODE; }
    ;
revoked_privileges
    : privileges T__ON privilege_target T__FROM grantee_list                    { NODE(revoke_statement); }
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantee_list
      { NODE(revoke_statement); }
    | privilege_list T__FROM grantee_list                                       { NODE(revoke_statement); }
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantee_list             { NODE(revoke_statement); }
    | T__INHERIT T__OPTION T__FOR privilege_list T__FROM grantee_list           { NODE(revoke_statement); }
    | T__SET T__OPTION T__FOR privilege_list T__FROM grantee_list               { NODE(revoke_statement); }
    ;
revoke_tail
    : granted_by
    | drop_behavior
    | granted_by drop_behavior                                                  { NODE(revoke_statement); }
    ;
granted_by
    : T__GRANTED T__BY role_name                                                { NODE; }
    ;
grantee_list
    : grantee                                                                   { NODE; }
    | grantee_list T__COMMA grantee                                             { NODE; }
    ;
grantee
    : role_name                                                                 { NODE; }
    | T__GROUP role_name                                                        { NODE; }
    ;
privileges
    : privilege_list                                                            { NODE; }
    | T__ALL                                                                    { NODE; }
    | T__ALL T__PRIVILEGES                                                      { NODE; }
    | T__ALL columns                                                            { NODE; }
    | T__ALL T__PRIVILEGES columns                                              { NODE; }
    ;
privilege_list
    : privilege                                                                 { NODE; }
    | privilege_list T__COMMA privilege                                         { NODE; }
    ;
privilege
    : privilege_word                                                            { NODE; }
    | privilege_word columns                                                    { NODE; }
    | T__ALTER T__SYSTEM                                                        { NODE; }
    ;
privilege_word
    : T__SELECT
    | T__REFERENCES
    | T__CREATE
    | identifier
    ;
privilege_target
    : table_name_list                                                           { NODE; }
    | T__TABLE table_name_list                                                  { NODE; }
    | T__SEQUENCE sequence_name_list                                            { NODE; }
    | T__FOREIGN T__DATA T__WRAPPER wrapper_name_list                           { NODE; }
    | T__FOREIGN T__SERVER server_name_list                                     { NODE; }
    | any_routine_word routine_signature_list                                   { NODE; }
    | T__DATABASE database_name_list                                            { NODE; }
    | T__DOMAIN domain_name_list                                                { NODE; }
    | T__LANGUAGE language_name_list                                            { NODE; }
    | T__LARGE T__OBJECT number_list                                            { NODE; }
    | T__PARAMETER setting_name_list                                            { NODE; }
    | T__SCHEMA schema_name_list                                                { NODE; }
    | T__TABLESPACE tablespace_name_list                                        { NODE; }
    | T__TYPE type_name_list                                                    { NODE; }
    | T__ALL T__TABLES T__IN T__SCHEMA schema_name_list                         { NODE; }
    | T__ALL T__SEQUENCES T__IN T__SCHEMA schema_name_list                      { NODE; }
    | T__ALL T__FUNCTIONS T__IN T__SCHEMA schema_name_list                      { NODE; }
    | T__ALL T__PROCEDURES T__IN T__SCHEMA schema_name_list                     { NODE; }
    | T__ALL T__ROUTINES T__IN T__SCHEMA schema_name_list                       { NODE; }
    ;
number_list
    : signed_number                                                             { NODE; }
    | number_list T__COMMA signed_number                                        { NODE; }
    ;
reassign_owned_statement
    : T__REASSIGN T__OWNED T__BY role_name_list T__TO role_name                 { NODE; }
    ;
