/* Settings. */

set_statement { NODE; }: T__SET (T__LOCAL | T__SESSION)? set_target ;
set_target { PART(set_statement); }
    : T__TRANSACTION transaction_mode_list
    | T__SESSION T__CHARACTERISTICS T__AS T__TRANSACTION transaction_mode_list
    | set_item_more ;
set_item_more { NODE(setting); }
    : setting  { PART; }
    | setting_name T__FROM T__CURRENT
    | T__TIME T__ZONE time_zone_value
    | (T__SCHEMA | T__NAMES) string_literal
    | T__NAMES T__DEFAULT?
    | T__ROLE word_or_string
    | T__SESSION T__AUTHORIZATION (word_or_string | T__DEFAULT)
    | T__XML T__OPTION document_or_content
    | T__TRANSACTION T__SNAPSHOT string_literal ;
setting { NODE; }: setting_name (T__TO | T__EQUAL) (setting_value_list | T__DEFAULT) ;
%list setting_value_list: setting_value %short %separator T__COMMA ;
setting_value { NODE; }: option_text | signed_number ;
time_zone_value { PART; }
    : T__INTERVAL? string_literal
    | plain_identifier
    | T__INTERVAL string_literal interval_fields
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal
    | signed_number | T__DEFAULT | T__LOCAL ;
show_statement { NODE; }: T__SHOW shown_setting ;
reset_statement { NODE; }: T__RESET reset_target ;
reset_target: shown_setting ;
shown_setting { NODE(setting); }
    : setting_name
    | T__TIME T__ZONE
    | T__TRANSACTION T__ISOLATION T__LEVEL
    | T__SESSION T__AUTHORIZATION
    | T__ALL ;
set_constraints_statement { NODE; }: T__SET T__CONSTRAINTS (T__ALL | constraint_name_list) constraints_mode ;
%list constraint_name_list: any_constraint %short %separator T__COMMA ;
any_constraint { NODE(constraint_name); }: qualified_name ;
constraints_mode: T__DEFERRED | T__IMMEDIATE ;
