/* Settings. */

set_statement
    : T__SET set_target                                                         { NODE; }
    | T__SET T__LOCAL set_target                                                { NODE; }
    | T__SET T__SESSION set_target                                              { NODE; }
    ;
set_target
    : T__TRANSACTION transaction_mode_list                                      { NODE(set_statement); }
    | T__SESSION T__CHARACTERISTICS T__AS T__TRANSACTION transaction_mode_list  { NODE(set_statement); }
    | set_item_more
    ;
set_item_more
    : setting
    | setting_name T__FROM T__CURRENT                                           { NODE(setting); }
    | T__TIME T__ZONE time_zone_value                                           { NODE(setting); }
    | T__SCHEMA string_literal                                                  { NODE(setting); }
    | T__NAMES                                                                  { NODE(setting); }
    | T__NAMES string_literal                                                   { NODE(setting); }
    | T__NAMES T__DEFAULT                                                       { NODE(setting); }
    | T__ROLE word_or_string                                                    { NODE(setting); }
    | T__SESSION T__AUTHORIZATION word_or_string                                { NODE(setting); }
    | T__SESSION T__AUTHORIZATION T__DEFAULT                                    { NODE(setting); }
    | T__XML T__OPTION document_or_content                                      { NODE(setting); }
    | T__TRANSACTION T__SNAPSHOT string_literal                                 { NODE(setting); }
    ;
setting
    : setting_name T__TO setting_value_list                                     { NODE; }
    | setting_name T__EQUAL setting_value_list                                  { NODE; }
    | setting_name T__TO T__DEFAULT                                             { NODE; }
    | setting_name T__EQUAL T__DEFAULT                                          { NODE; }
    ;
setting_value_list
    : setting_value                                                             { NODE; }
    | setting_value_list T__COMMA setting_value                                 { NODE; }
    ;
setting_value
    : option_text                                                               { NODE; }
    | signed_number                                                             { NODE; }
    ;
time_zone_value
    : string_literal
    | plain_identifier
    | T__INTERVAL string_literal                                                { NODE; }
    | T__INTERVAL string_literal interval_fields                                { NODE; }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { NODE; }
    | signed_number
    | T__DEFAULT
    | T__LOCAL
    ;
show_statement
    : T__SHOW shown_setting                                                     { NODE; }
    ;
reset_statement
    : T__RESET reset_target                                                     { NODE; }
    ;
reset_target
    : shown_setting
    ;
shown_setting
    : setting_name                                                              { NODE(setting); }
    | T__TIME T__ZONE                                                           { NODE(setting); }
    | T__TRANSACTION T__ISOLATION T__LEVEL                                      { NODE(setting); }
    | T__SESSION T__AUTHORIZATION                                               { NODE(setting); }
    | T__ALL                                                                    { NODE(setting); }
    ;
set_constraints_statement
    : T__SET T__CONSTRAINTS T__ALL constraints_mode                             { NODE; }
    | T__SET T__CONSTRAINTS constraint_name_list constraints_mode               { NODE; }
    ;
constraint_name_list
    : any_constraint                                                            { NODE; }
    | constraint_name_list T__COMMA any_constraint                              { NODE; }
    ;
any_constraint
    : qualified_name                                                            { NODE(constraint_name); }
    ;
constraints_mode
    : T__DEFERRED
    | T__IMMEDIATE
    ;
