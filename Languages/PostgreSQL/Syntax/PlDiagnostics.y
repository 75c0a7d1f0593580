/* Messages, errors and what a block knows of them. */

raise_statement
    : T__RAISE                                                                  { NODE; }
    | T__RAISE raised                                                           { NODE; }
    | T__RAISE raise_level raised                                               { NODE; }
    ;
raise_level
    : T__DEBUG                                                                  { NODE; }
    | T__LOG                                                                    { NODE; }
    | T__INFO                                                                   { NODE; }
    | T__NOTICE                                                                 { NODE; }
    | T__WARNING                                                                { NODE; }
    | T__EXCEPTION                                                              { NODE; }
    ;
raised
    : raised_condition
    | raised_condition raise_using                                              { NODE(raise_statement); }
    | raise_using
    ;
raised_condition
    : string_literal                                                            { NODE(raise_format); }
    | string_literal T__COMMA value_list                                        { NODE(raise_format); }
    | condition_word                                                            { NODE(exception_condition); }
    | T__SQLSTATE T__STRING                                                     { NODE(exception_condition); }
    ;
condition_word
    : plain_identifier                                                          { NODE(condition_name); }
    ;
raise_using
    : T__USING raise_option_list                                                { NODE(raise_using_clause); }
    ;
raise_option_list
    : raise_option                                                              { NODE(option_list); }
    | raise_option_list T__COMMA raise_option                                   { NODE(option_list); }
    ;
raise_option
    : raise_option_name assignment_operator expression                          { NODE(option); }
    ;
raise_option_name
    : any_label                                                                 { NODE(option_name); }
    ;
assert_statement
    : T__ASSERT condition                                                       { NODE; }
    | T__ASSERT condition T__COMMA expression                                   { NODE; }
    ;
get_diagnostics
    : T__GET T__DIAGNOSTICS diagnostics_item_list                               { NODE(get_diagnostics_statement); }
    | T__GET T__CURRENT T__DIAGNOSTICS diagnostics_item_list                    { NODE(get_diagnostics_statement); }
    | T__GET T__STACKED T__DIAGNOSTICS diagnostics_item_list                    { NODE(get_diagnostics_statement); }
    ;
diagnostics_item_list
    : diagnostics_item                                                          { NODE; }
    | diagnostics_item_list T__COMMA diagnostics_item                           { NODE; }
    ;
diagnostics_item
    : variable assignment_operator item_name                                    { NODE; }
    ;
item_name
    : plain_identifier                                                          { NODE; }
    ;
