/* What PostgreSQL adds to triggers; event triggers, rules, policies. */

create_trigger_statement { NODE; }: T__CREATE T__CONSTRAINT constraint_trigger_definition ;
constraint_trigger_definition { NODE(create_trigger_statement); }
    : T__TRIGGER trigger_name trigger_time trigger_event_list T__ON table_name constraint_trigger_clause_list
          trigger_action ;
trigger_event { NODE; }: T__TRUNCATE ;
trigger_clause { NODE; }: T__FOR trigger_level ;
%list constraint_trigger_clause_list: constraint_trigger_clause %short %node trigger_clause_list ;
constraint_trigger_clause { NODE(trigger_clause); }
    : T__FROM table_name
    | constraint_attribute
    | T__FOR T__EACH T__ROW
    | T__WHEN T__LPAREN condition T__RPAREN ;
trigger_action { NODE; }
    : T__EXECUTE (T__FUNCTION | T__PROCEDURE) function_name T__LPAREN trigger_arguments? T__RPAREN ;
%list trigger_arguments: trigger_argument %short %separator T__COMMA %node argument_list ;
trigger_argument: number | string_literal | any_label ;

create_event_trigger_statement { NODE; }
    : T__CREATE T__EVENT T__TRIGGER event_trigger_name T__ON any_label (T__WHEN event_condition_list)?
          event_trigger_action ;
event_trigger_action { NODE; }: T__EXECUTE (T__FUNCTION | T__PROCEDURE) function_name T__LPAREN T__RPAREN ;
%list event_condition_list: event_condition %short %separator T__AND ;
event_condition { NODE; }: identifier T__IN T__LPAREN string_list T__RPAREN ;

create_rule_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? rule_definition ;
rule_definition { NODE(create_rule_statement); }
    : T__RULE rule_name T__AS T__ON rule_event T__TO table_name where_clause? T__DO rule_actions ;
rule_event: T__SELECT | T__UPDATE | T__DELETE | T__INSERT ;
rule_actions { PART(create_rule_statement); }: (T__ALSO | T__INSTEAD)? rule_action ;
rule_action { NODE; }
    : T__NOTHING | rule_statement
    | T__LPAREN rule_statement_list? T__RPAREN ;
rule_statement_list { NODE; }
    : T__SEMICOLON? rule_statement
    | T__SEMICOLON
    | rule_statement_list T__SEMICOLON rule_statement? ;
rule_statement: ruled_statement | notify_statement ;

create_policy_statement { NODE; }: T__CREATE T__POLICY policy_name T__ON table_name policy_clause_list? ;
%list policy_clause_list: policy_clause %short ;
policy_clause { NODE; }
    : T__AS plain_identifier
    | T__FOR policy_command
    | T__TO role_name_list
    | T__USING T__LPAREN condition T__RPAREN
    | T__WITH T__CHECK T__LPAREN condition T__RPAREN ;
policy_command: T__ALL | T__SELECT | T__INSERT | T__UPDATE | T__DELETE ;
