/* Blocks with declarations inside of them, handlers of conditions among these, labels with a colon, and the loops LOOP, WHILE,
   REPEAT and FOR, each with an end of its own.
   A dialect defines variable_type, and adds to block, open_block_part, condition_value and for_head what else it has.
   A body in such blocks is a statement: sole_body, or open_sole_body where a dialect knows that it must end. */

block { NODE(block_statement); }: block_head block_statements? T__END label_name? ;
block_head { NODE; }: T__BEGIN_LA declaration_list? ;
block_label { NODE(pl_sql_statement_label); }: label_name T__COLON ;

%list declaration_list: declaration %short ;
declaration { NODE; }
    : T__DECLARE declared body_delimiter
    | T__DECLARE error stray_block? body_delimiter ;
declared: variable_declaration | condition_declaration | cursor_declaration | exception_handler ;
variable_declaration { NODE; }: declared_variable_list variable_type default_value? ;
%list declared_variable_list: declared_variable %short %separator T__COMMA %node variable_list ;
declared_variable { NODE(variable_name); }: identifier ;
default_value { NODE; }: T__DEFAULT value ;
condition_declaration { NODE; }: condition_name T__CONDITION T__FOR condition_value ;
/* A condition without a name of its own. */
condition_value { NODE(exception_condition); }: T__SQLSTATE T__VALUE? string_literal ;
cursor_declaration { NODE; }: cursor_name T__CURSOR cursor_parameters? T__FOR query ;
cursor_parameters { NODE(parameters); }: T__LPAREN cursor_parameter_list T__RPAREN ;
%list cursor_parameter_list: cursor_parameter %short %separator T__COMMA %node parameter_list ;
cursor_parameter { NODE(parameter); }: parameter_mode? parameter_name variable_type ;

exception_handler { NODE; }: handler_head (sole_body | error) ;
handler_head { NODE; }: handler_action T__HANDLER T__FOR exception_condition_list ;
handler_action: T__CONTINUE | T__EXIT | T__UNDO ;
%list exception_condition_list: exception_condition %short %separator T__COMMA ;
exception_condition { NODE; }
    : condition_value  { PART; }
    | condition_name | T__SQLEXCEPTION | T__SQLWARNING
    | T__NOT T__FOUND ;

/* A block whose head is wrong: its END closes nothing else. */
stray_block { NODE(pl_sql_statement); }: block ;
bad_statement { NODE(delimited_pl_sql_statement); }: error stray_block body_delimiter ;

/* A body of one statement, be it a block or not. */
sole_body { NODE(body_pl_sql_statements); }: sole_statement ;
sole_statement { NODE(delimited_pl_sql_statement); }: bare_statement | label_and_statement | bad_head | label_and_bad_head ;

loop_statement { NODE; }
    : loop_head loop_body loop_end
    | while_head loop_body while_end
    | repeat_head loop_body loop_until repeat_end
    | for_head loop_body for_end ;
loop_head { NODE; }: T__LOOP ;
loop_end { NODE; }: T__END_LA T__LOOP label_name? ;
while_head { NODE; }: T__WHILE tested T__DO | T__WHILE error T__DO ;
while_end { NODE(loop_end); }: T__END_LA T__WHILE label_name? ;
repeat_head { NODE; }: T__REPEAT ;
loop_until { NODE(until_clause); }: T__UNTIL tested ;
repeat_end { NODE(loop_end); }: T__END_LA T__REPEAT label_name? ;
for_head { NODE; }
    : T__FOR loop_variables T__IN (loop_range | loop_query | loop_cursor) T__DO
    | T__FOR error T__DO ;
for_end { NODE(loop_end); }: T__END_LA T__FOR label_name? ;
loop_variables { NODE(variable_list); }: declared_variable ;
loop_query { NODE(select_statement); }: subquery ;
bad_first_part { NODE(loop_statement); }: T__FOR error ;

exit_statement { NODE; }: (T__LEAVE | T__ITERATE) label_name ;

/* An error in the last statement may reach to the END of what it stands in, since no expression holds END IF and the like. */
if_statement { NODE; }
    : (if_branch_to_end | if_parts (elsif_branch_to_end | else_branch_to_end)) T__END_LA T__IF ;
if_branch_to_end { NODE(if_branch); }: if_head list_to_end ;
elsif_branch_to_end { NODE(elsif_branch); }: elsif_head list_to_end ;
else_branch_to_end { NODE(else_branch); }: T__ELSE list_to_end ;
case_statement { NODE; }
    : (case_head when_to_end | case_parts (when_to_end | else_branch_to_end)) T__END_LA T__CASE ;
when_to_end { NODE(case_when); }: case_when_head list_to_end ;
loop_statement { NODE; }
    : loop_head body_to_end loop_end
    | while_head body_to_end while_end
    | repeat_head loop_body (T__UNTIL error body_delimiter? | loop_until error body_delimiter) repeat_end
    | for_head body_to_end for_end ;
body_to_end { NODE(loop_body); }: list_to_end ;
list_to_end { NODE(body_pl_sql_statements); }: block_statements? bad_to_end ;
/* By itself, so that errors in blocks go on to a delimiter. */
bad_to_end { NODE(delimited_pl_sql_statement); }: error %prec LOWEST ;

/* What is open where the body ends. */
open_part { NODE(loop_statement); }
    : (loop_head | while_head | repeat_head | for_head) open_loop_body
    | repeat_head loop_body open_until ;
open_until { NODE(until_clause); }: (T__UNTIL | loop_until) error %prec LOWEST ;
open_block_part { NODE(block_statement); }: block_head open_list | open_block_head ;
open_block_head { NODE(block_head); }: T__BEGIN_LA open_declaration_list ;
open_declaration_list { NODE(declaration_list); }: declaration_list? open_declaration ;
open_declaration { NODE(declaration); }
    : T__DECLARE open_handler
    | T__DECLARE error open_stray_block
    | T__DECLARE error %prec LOWEST ;
open_handler { NODE(exception_handler); }: handler_head open_sole_body | handler_head error %prec LOWEST ;
open_sole_body { NODE(body_pl_sql_statements); }: open_statement ;
last_in_open_list { NODE(delimited_pl_sql_statement); }: error open_stray_block ;
open_stray_block { NODE(pl_sql_statement); }: open_block_part ;
