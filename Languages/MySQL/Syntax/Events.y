/* Events. */

event_name { NODE; }: dotted_name ;
create_event_statement { NODE; }: event_head event_action ;
event_action { NODE; }: T__DO sole_body ;
event_head { PART(create_event_statement); }: new_event schedule_clause event_clauses? ;
new_event { PART(create_event_statement); }: event_words if_not_exists? event_name ;
event_words { PART(create_event_statement); }: T__CREATE (T__OR T__REPLACE)? definer_clause? T__EVENT ;
schedule_clause { NODE; }
    : T__ON T__SCHEDULE T__AT expression
    | T__ON T__SCHEDULE T__EVERY expression unit (T__STARTS expression)? (T__ENDS expression)? ;
%parts event_clauses: completion_clause state_clause routine_comment %node create_event_statement ;
completion_clause { NODE; }: T__ON T__COMPLETION T__NOT? T__PRESERVE ;
state_clause { NODE; }: T__ENABLE | T__DISABLE | T__DISABLE T__ON (T__SLAVE | T__REPLICA) ;

alter_event_statement { NODE; }
    : altered_event event_changes event_action?
    | altered_event event_action ;
altered_event { PART(alter_event_statement); }: T__ALTER definer_clause? T__EVENT event_name ;
%parts event_changes: schedule_clause completion_clause event_renaming state_clause routine_comment %node alter_event_statement ;
event_renaming { PART(alter_event_statement); }: T__RENAME T__TO new_event_name ;
new_event_name { NODE(new_name); }: qualified_name ;

statement: create_event_statement | alter_event_statement ;

open_event
    : event_head open_event_action  { NODE(create_event_statement); }
    | altered_event event_changes? open_event_action  { NODE(alter_event_statement); } ;
open_event_action { NODE(event_action); }: T__DO open_sole_body ;
