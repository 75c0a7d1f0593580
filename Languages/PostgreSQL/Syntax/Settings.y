/* Settings. */

set_statement
    : T__SET set_target                                                         { NODE; }
    | T__SET T__LOCAL set_target                                                { NODE; }
    | T__SET T__SESSION set_target                                              { NODE; }
    ;
set_target
    : T__TRANSACTION transaction_modes                                          { NODE; }
    | T__SESSION T__CHARACTERISTICS T__AS T__TRANSACTION transaction_modes      { NODE; }
    | set_item_more
    ;
set_item_more
    : setting
    | qualified_name T__FROM T__CURRENT                                         { NODE; }
    | T__TIME T__ZONE time_zone_value                                           { NODE; }
    | T__CATALOG string_literal                                                 { NODE; }
    | T__SCHEMA string_literal                                                  { NODE; }
    | T__NAMES
    | T__NAMES string_literal                                                   { NODE; }
    | T__NAMES T__DEFAULT                                                       { NODE; }
    | T__ROLE word_or_string                                                    { NODE; }
    | T__SESSION T__AUTHORIZATION word_or_string                                { NODE; }
    | T__SESSION T__AUTHORIZATION T__DEFAULT                                    { NODE; }
    | T__XML T__OPTION document_or_content                                      { NODE; }
    | T__TRANSACTION T__SNAPSHOT string_literal                                 { NODE; }
    ;
setting
    : qualified_name T__TO setting_values                                       { NODE; }
    | qualified_name T__EQUAL setting_values                                    { NODE; }
    | qualified_name T__TO T__DEFAULT                                           { NODE; }
    | qualified_name T__EQUAL T__DEFAULT                                        { NODE; }
    ;
setting_values
    : setting_value
    | setting_values T__COMMA setting_value                                     { NODE; }
    ;
setting_value
    : option_text
    | signed_number
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
    : qualified_name
    | T__TIME T__ZONE                                                           { NODE; }
    | T__TRANSACTION T__ISOLATION T__LEVEL                                      { NODE; }
    | T__SESSION T__AUTHORIZATION                                               { NODE; }
    | T__ALL
    ;
constraints_statement
    : T__SET T__CONSTRAINTS T__ALL constraints_mode                             { NODE; }
    | T__SET T__CONSTRAINTS qualified_name_list constraints_mode                { NODE; }
    ;
constraints_mode
    : T__DEFERRED
    | T__IMMEDIATE
    ;
