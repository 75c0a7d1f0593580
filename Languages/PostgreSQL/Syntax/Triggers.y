/* Triggers, rules, policies. */

create_trigger_statement
    : T__CREATE trigger_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE trigger_definition                             { NODE; }
    | T__CREATE T__CONSTRAINT trigger_definition                                { NODE; }
    ;
trigger_definition
    : T__TRIGGER trigger_name trigger_time trigger_event_list T__ON table_name trigger_action
      { NODE(create_trigger_statement); }
    | T__TRIGGER trigger_name trigger_time trigger_event_list T__ON table_name trigger_clause_list trigger_action
      { NODE(create_trigger_statement); }
    ;
trigger_time
    : T__BEFORE                                                                 { NODE; }
    | T__AFTER                                                                  { NODE; }
    | T__INSTEAD T__OF                                                          { NODE; }
    ;
trigger_event_list
    : trigger_event                                                             { NODE; }
    | trigger_event_list T__OR trigger_event                                    { NODE; }
    ;
trigger_event
    : T__INSERT                                                                 { NODE; }
    | T__DELETE                                                                 { NODE; }
    | T__UPDATE                                                                 { NODE; }
    | T__UPDATE T__OF column_name_list                                          { NODE; }
    | T__TRUNCATE                                                               { NODE; }
    ;
trigger_clause_list
    : trigger_clause                                                            { NODE; }
    | trigger_clause_list trigger_clause                                        { NODE; }
    ;
trigger_clause
    : T__FROM table_name                                                        { NODE; }
    | constraint_attribute                                                      { NODE; }
    | T__REFERENCING transition_table_list                                      { NODE; }
    | T__FOR trigger_level                                                      { NODE; }
    | T__FOR T__EACH trigger_level                                              { NODE; }
    | T__WHEN T__LPAREN condition T__RPAREN                                     { NODE; }
    ;
trigger_level
    : T__ROW
    | T__STATEMENT
    ;
transition_table_list
    : transition_table                                                          { NODE; }
    | transition_table_list transition_table                                    { NODE; }
    ;
transition_table
    : old_or_new T__TABLE alias                                                 { NODE; }
    | old_or_new T__TABLE T__AS alias                                           { NODE; }
    | old_or_new T__ROW alias                                                   { NODE; }
    | old_or_new T__ROW T__AS alias                                             { NODE; }
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
    : trigger_argument                                                          { NODE(argument_list); }
    | trigger_arguments T__COMMA trigger_argument                               { NODE(argument_list); }
    ;
trigger_argument
    : number
    | string_literal
    | any_label
    ;

create_event_trigger_statement
    : T__CREATE T__EVENT T__TRIGGER event_trigger_name T__ON any_label event_trigger_action
      { NODE; }
    | T__CREATE T__EVENT T__TRIGGER event_trigger_name T__ON any_label T__WHEN event_condition_list
      event_trigger_action                                                      { NODE; }
    ;
event_trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { NODE; }
    ;
event_condition_list
    : event_condition                                                           { NODE; }
    | event_condition_list T__AND event_condition                               { NODE; }
    ;
event_condition
    : identifier T__IN T__LPAREN string_list T__RPAREN                          { NODE; }
    ;
string_list
    : string_literal                                                            { NODE; }
    | string_list T__COMMA string_literal                                       { NODE; }
    ;

create_rule_statement
    : T__CREATE rule_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE rule_definition                                { NODE; }
    ;
rule_definition
    : T__RULE rule_name T__AS T__ON rule_event T__TO table_name T__DO rule_actions
      { NODE(create_rule_statement); }
    | T__RULE rule_name T__AS T__ON rule_event T__TO table_name where_clause T__DO rule_actions
      { NODE(create_rule_statement); }
    ;
rule_event
    : T__SELECT
    | T__UPDATE
    | T__DELETE
    | T__INSERT
    ;
rule_actions
    : rule_action
    | T__INSTEAD rule_action
      { NODE(create_rule_statement); }
    | T__ALSO rule_action
      { NODE(create_rule_statement); }
    ;
rule_action
    : T__NOTHING                                                                { NODE; }
    | rule_statement                                                            { NODE; }
    | T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN rule_statement_list T__RPAREN                                   { NODE; }
    ;
rule_statement_list
    : rule_statement                                                            { NODE; }
    | T__SEMICOLON                                                              { NODE; }
    | T__SEMICOLON rule_statement                                               { NODE; }
    | rule_statement_list T__SEMICOLON                                          { NODE; }
    | rule_statement_list T__SEMICOLON rule_statement                           { NODE; }
    ;
rule_statement
    : ruled_statement
    | notify_statement
    ;

create_policy_statement
    : T__CREATE T__POLICY policy_name T__ON table_name                          { NODE; }
    | T__CREATE T__POLICY policy_name T__ON table_name policy_clause_list       { NODE; }
    ;
policy_clause_list
    : policy_clause                                                             { NODE; }
    | policy_clause_list policy_clause                                          { NODE; }
    ;
policy_clause
    : T__AS plain_identifier                                                    { NODE; }
    | T__FOR policy_command                                                     { NODE; }
    | T__TO role_name_list                                                      { NODE; }
    | T__USING T__LPAREN condition T__RPAREN                                    { NODE; }
    | T__WITH T__CHECK T__LPAREN condition T__RPAREN                            { NODE; }
    ;
policy_command
    : T__ALL
    | T__SELECT
    | T__INSERT
    | T__UPDATE
    | T__DELETE
    ;
