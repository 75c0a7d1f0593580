/* Notification and the rest. */

listen_statement { NODE; }: (T__LISTEN | T__UNLISTEN) channel_name | T__UNLISTEN T__ASTERISK ;
notify_statement { NODE; }: T__NOTIFY channel_name (T__COMMA string_literal)? ;
discard_statement { NODE; }: T__DISCARD (T__ALL | T__TEMP | T__TEMPORARY | T__PLANS | T__SEQUENCES) ;
load_statement { NODE; }: T__LOAD string_literal ;
