/* What MySQL adds to triggers. */

trigger_name { NODE; }: dotted_name ;
create_trigger_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? definer_clause trigger_definition ;
%replace trigger_definition { NODE(create_trigger_statement); }: trigger_head trigger_action ;
trigger_head { PART(create_trigger_statement); }
    : T__TRIGGER if_not_exists? trigger_name trigger_time trigger_event_list T__ON table_name trigger_clause_list ;
%without trigger_time: T__INSTEAD T__OF ;
%replace trigger_event_list { NODE; }: trigger_event ;
%without trigger_event: T__UPDATE T__OF column_name_list ;
%replace trigger_clause_list { NODE; }: row_clause order_clause? ;
row_clause { NODE(trigger_clause); }: T__FOR T__EACH T__ROW ;
order_clause { NODE(trigger_clause); }: (T__FOLLOWS | T__PRECEDES) trigger_name ;
trigger_action { NODE; }: sole_body ;

statement: create_trigger_statement ;

open_trigger { NODE(create_trigger_statement); }
    : T__CREATE (T__OR T__REPLACE)? definer_clause? trigger_head open_trigger_action ;
open_trigger_action { NODE(trigger_action); }: open_sole_body ;
