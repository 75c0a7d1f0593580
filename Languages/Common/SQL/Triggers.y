/* CREATE TRIGGER. A dialect defines trigger_action, and adds to trigger_event and trigger_clause. */

create_trigger_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? trigger_definition ;
trigger_definition { NODE(create_trigger_statement); }
    : T__TRIGGER trigger_name trigger_time trigger_event_list T__ON table_name trigger_clause_list?
          trigger_action ;
trigger_time { NODE; }
    : T__BEFORE | T__AFTER
    | T__INSTEAD T__OF ;
%list trigger_event_list: trigger_event %short %separator T__OR ;
trigger_event { NODE; }
    : T__INSERT | T__DELETE
    | T__UPDATE (T__OF column_name_list)? ;
%list trigger_clause_list: trigger_clause %short ;
trigger_clause { NODE; }
    : T__REFERENCING transition_table_list
    | T__FOR T__EACH trigger_level
    | T__WHEN T__LPAREN condition T__RPAREN ;
trigger_level: T__ROW | T__STATEMENT ;
%list transition_table_list: transition_table %short ;
transition_table { NODE; }: old_or_new (T__TABLE | T__ROW) T__AS? alias ;
old_or_new: T__OLD | T__NEW ;
