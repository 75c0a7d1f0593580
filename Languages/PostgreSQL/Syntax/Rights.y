/* Rights. */

grant_statement
    : T__GRANT privileges T__ON privilege_target T__TO grantees                 { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees granted_by      { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION granted_by
      { NODE; }
    | T__GRANT privilege_list T__TO grantees                                    { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION         { NODE; }
    | T__GRANT privilege_list T__TO grantees granted_by                         { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION granted_by
      { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH membership_options         { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH membership_options granted_by  { NODE; }
    ;
/* WITH ADMIN OPTION alone has no node of its own. */
membership_options
    : membership_option
    | admin_option T__COMMA membership_option                                   { NODE; }
    | membership_options T__COMMA membership_option                             { NODE; }
    | membership_options T__COMMA admin_option                                  { NODE; }
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
    : privileges T__ON privilege_target T__FROM grantees                        { NODE; }
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantees
      { NODE; }
    | privilege_list T__FROM grantees                                           { NODE; }
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantees                 { NODE; }
    | T__INHERIT T__OPTION T__FOR privilege_list T__FROM grantees               { NODE; }
    | T__SET T__OPTION T__FOR privilege_list T__FROM grantees                   { NODE; }
    ;
revoke_tail
    : granted_by
    | drop_behavior
    | granted_by drop_behavior                                                  { NODE; }
    ;
granted_by
    : T__GRANTED T__BY role                                                     { NODE; }
    ;
grantees
    : grantee
    | grantees T__COMMA grantee                                                 { NODE; }
    ;
grantee
    : role
    | T__GROUP role                                                             { NODE; }
    ;
privileges
    : privilege_list
    | T__ALL
    | T__ALL T__PRIVILEGES                                                      { NODE; }
    | T__ALL parenthesized_names                                                { NODE; }
    | T__ALL T__PRIVILEGES parenthesized_names                                  { NODE; }
    ;
privilege_list
    : privilege
    | privilege_list T__COMMA privilege                                         { NODE; }
    ;
privilege
    : privilege_word
    | privilege_word parenthesized_names                                        { NODE; }
    | T__ALTER T__SYSTEM                                                        { NODE; }
    ;
privilege_word
    : T__SELECT
    | T__REFERENCES
    | T__CREATE
    | column_name
    ;
privilege_target
    : qualified_name_list
    | T__TABLE qualified_name_list                                              { NODE; }
    | T__SEQUENCE qualified_name_list                                           { NODE; }
    | T__FOREIGN T__DATA T__WRAPPER name_list                                   { NODE; }
    | T__FOREIGN T__SERVER name_list                                            { NODE; }
    | any_routine_word routine_signatures                                       { NODE; }
    | T__DATABASE name_list                                                     { NODE; }
    | T__DOMAIN qualified_name_list                                             { NODE; }
    | T__LANGUAGE name_list                                                     { NODE; }
    | T__LARGE T__OBJECT number_list                                            { NODE; }
    | T__PARAMETER qualified_name_list                                          { NODE; }
    | T__SCHEMA name_list                                                       { NODE; }
    | T__TABLESPACE name_list                                                   { NODE; }
    | T__TYPE qualified_name_list                                               { NODE; }
    | T__ALL T__TABLES T__IN T__SCHEMA name_list                                { NODE; }
    | T__ALL T__SEQUENCES T__IN T__SCHEMA name_list                             { NODE; }
    | T__ALL T__FUNCTIONS T__IN T__SCHEMA name_list                             { NODE; }
    | T__ALL T__PROCEDURES T__IN T__SCHEMA name_list                            { NODE; }
    | T__ALL T__ROUTINES T__IN T__SCHEMA name_list                              { NODE; }
    ;
number_list
    : signed_number
    | number_list T__COMMA signed_number                                        { NODE; }
    ;
reassign_owned
    : T__REASSIGN T__OWNED T__BY role_list T__TO role                           { NODE; }
    ;
