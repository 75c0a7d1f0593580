/* Triggers, rules, policies. */

create_trigger
    : T__CREATE trigger_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE trigger_definition                             { NODE; }
    | T__CREATE T__CONSTRAINT trigger_definition                                { NODE; }
    | T__CREATE T__OR T__REPLACE T__CONSTRAINT trigger_definition               { NODE; }
    ;
trigger_definition
    : T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_action
      { NODE; }
    | T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_clauses trigger_action
      { NODE; }
    ;
trigger_time
    : T__BEFORE
    | T__AFTER
    | T__INSTEAD T__OF                                                          { NODE; }
    ;
trigger_events
    : trigger_event
    | trigger_events T__OR trigger_event                                        { NODE; }
    ;
trigger_event
    : T__INSERT
    | T__DELETE
    | T__UPDATE
    | T__UPDATE T__OF name_list                                                 { NODE; }
    | T__TRUNCATE
    ;
trigger_clauses
    : trigger_clause
    | trigger_clauses trigger_clause                                            { NODE; }
    ;
trigger_clause
    : T__FROM qualified_name                                                    { NODE; }
    | constraint_attribute
    | T__REFERENCING transition_tables                                          { NODE; }
    | T__FOR trigger_level                                                      { NODE; }
    | T__FOR T__EACH trigger_level                                              { NODE; }
    | T__WHEN T__LPAREN expression T__RPAREN                                    { NODE; }
    ;
trigger_level
    : T__ROW
    | T__STATEMENT
    ;
transition_tables
    : transition_table
    | transition_tables transition_table                                        { NODE; }
    ;
transition_table
    : old_or_new T__TABLE column_name                                           { NODE; }
    | old_or_new T__TABLE T__AS column_name                                     { NODE; }
    | old_or_new T__ROW column_name                                             { NODE; }
    | old_or_new T__ROW T__AS column_name                                       { NODE; }
    ;
old_or_new
    : T__OLD
    | T__NEW
    ;
trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { NODE; }
    | T__EXECUTE T__FUNCTION function_name T__LPAREN trigger_arguments T__RPAREN  { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN trigger_arguments T__RPAREN  { NODE; }
    ;
trigger_arguments
    : trigger_argument
    | trigger_arguments T__COMMA trigger_argument                               { NODE; }
    ;
trigger_argument
    : number
    | string_literal
    | any_label
    ;

create_event_trigger
    : T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label event_trigger_action
      { NODE; }
    | T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label T__WHEN event_conditions
      event_trigger_action                                                      { NODE; }
    ;
event_trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { NODE; }
    ;
event_conditions
    : event_condition
    | event_conditions T__AND event_condition                                   { NODE; }
    ;
event_condition
    : column_name T__IN T__LPAREN string_list T__RPAREN                         { NODE; }
    ;
string_list
    : string_literal
    | string_list T__COMMA string_literal                                       { NODE; }
    ;

create_rule
    : T__CREATE rule_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE rule_definition                                { NODE; }
    ;
rule_definition
    : T__RULE column_name T__AS T__ON rule_event T__TO qualified_name T__DO rule_actions
      { NODE; }
    | T__RULE column_name T__AS T__ON rule_event T__TO qualified_name where_clause T__DO rule_actions
      { NODE; }
    ;
rule_event
    : T__SELECT
    | T__UPDATE
    | T__DELETE
    | T__INSERT
    ;
rule_actions
    : rule_action
    | T__INSTEAD rule_action                                                    { NODE; }
    | T__ALSO rule_action                                                       { NODE; }
    ;
rule_action
    : T__NOTHING
    | rule_statement
    | T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN rule_statements T__RPAREN                                       { NODE; }
    ;
rule_statements
    : rule_statement
    | T__SEMICOLON
    | T__SEMICOLON rule_statement                                               { NODE; }
    | rule_statements T__SEMICOLON                                              { NODE; }
    | rule_statements T__SEMICOLON rule_statement                               { NODE; }
    ;
rule_statement
    : ruled_statement
    | notify_statement
    ;

create_policy
    : T__CREATE T__POLICY column_name T__ON qualified_name                      { NODE; }
    | T__CREATE T__POLICY column_name T__ON qualified_name policy_clauses       { NODE; }
    ;
policy_clauses
    : policy_clause
    | policy_clauses policy_clause                                              { NODE; }
    ;
policy_clause
    : T__AS plain_identifier                                                    { NODE; }
    | T__FOR policy_command                                                     { NODE; }
    | T__TO role_list                                                           { NODE; }
    | T__USING T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__WITH T__CHECK T__LPAREN expression T__RPAREN                           { NODE; }
    ;
policy_command
    : T__ALL
    | T__SELECT
    | T__INSERT
    | T__UPDATE
    | T__DELETE
    ;
