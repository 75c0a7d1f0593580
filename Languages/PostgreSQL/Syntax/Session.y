/* Notification and the rest. */

listen_statement
    : T__LISTEN channel_name                                                    { NODE; }
    | T__UNLISTEN channel_name                                                  { NODE; }
    | T__UNLISTEN T__ASTERISK                                                   { NODE; }
    ;
notify_statement
    : T__NOTIFY channel_name                                                    { NODE; }
    | T__NOTIFY channel_name T__COMMA string_literal                            { NODE; }
    ;
discard_statement
    : T__DISCARD T__ALL                                                         { NODE; }
    | T__DISCARD T__TEMP                                                        { NODE; }
    | T__DISCARD T__TEMPORARY                                                   { NODE; }
    | T__DISCARD T__PLANS                                                       { NODE; }
    | T__DISCARD T__SEQUENCES                                                   { NODE; }
    ;
load_statement
    : T__LOAD string_literal                                                    { NODE; }
    ;
