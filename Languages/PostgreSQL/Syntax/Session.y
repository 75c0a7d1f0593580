/* Notification and the rest. */

listen_statement
    : T__LISTEN column_name                                                     { NODE; }
    | T__UNLISTEN column_name                                                   { NODE; }
    | T__UNLISTEN T__ASTERISK                                                   { NODE; }
    | notify_statement
    ;
notify_statement
    : T__NOTIFY column_name                                                     { NODE; }
    | T__NOTIFY column_name T__COMMA string_literal                             { NODE; }
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
