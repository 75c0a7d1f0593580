/* Blocks with declarations and handlers of exceptions, LOOP, EXIT and assignments.
   A dialect defines declaration, assignment_operator, value_or_query (what a variable may get), variable and
   plain_variable (a whole variable), and adds to exception_condition, loop_head, loop_range
   and loop_query. */

block { NODE(block_statement); }: block_head block_statements? exception_clause? T__END label_name? ;
block_head { NODE; }: declare_clause? T__BEGIN_LA ;
block_label { NODE(pl_sql_statement_label); }: T__LABEL_BEGIN label_name T__LABEL_END ;

declare_clause { NODE; }
    : T__DECLARE declaration_list?
    | T__DECLARE error
    | T__DECLARE declaration_list error ;
%list declaration_list: declaration %short ;

exception_clause { NODE; }: T__EXCEPTION exception_handler_list ;
%list exception_handler_list: exception_handler %short ;
exception_handler { NODE; }: handler_head block_statements? ;
handler_head { NODE; }
    : T__WHEN exception_condition_list T__THEN
    | T__WHEN error T__THEN
    | T__WHEN error body_delimiter ;
%list exception_condition_list: exception_condition %short %separator T__OR ;
exception_condition { NODE; }: condition_name ;

loop_statement { NODE; }: loop_head loop_body? loop_end ;
loop_end { NODE; }: T__END_LA T__LOOP label_name? ;
loop_head { NODE(for_head); }
    : T__LOOP  { NODE; }
    | T__WHILE tested T__LOOP  { NODE(while_head); }
    | T__WHILE error T__LOOP  { NODE(while_head); }
    | T__FOR plain_variable_list T__IN (loop_range | loop_query | loop_cursor) T__LOOP
    | T__FOR plain_variable_list T__IN_LA T__REVERSE loop_range T__LOOP
    | T__FOR error T__LOOP ;
bad_first_part { NODE(loop_statement); }: T__FOR error ;
loop_query: query ;
%list plain_variable_list: plain_variable %short %separator T__COMMA %node variable_list ;

exit_statement { NODE; }: exit_word label_name? exit_condition? ;
exit_word: T__EXIT | T__CONTINUE ;
exit_condition { NODE(when_clause); }: T__WHEN tested ;

assignment { NODE(assignment_statement); }: variable assignment_operator value_or_query ;
%list variable_list: variable %short %separator T__COMMA ;

/* What is open where the body ends. */
open_part { NODE(loop_statement); }: loop_head open_loop_body ;
open_block_part { NODE(block_statement); }
    : open_declarations
    | block_head open_list
    | block_head block_statements? open_handlers ;
open_declarations { NODE(declare_clause); }
    : T__DECLARE error %prec LOWEST
    | T__DECLARE declaration_list error %prec LOWEST ;
open_handlers { NODE(exception_clause); }: T__EXCEPTION open_handler_list ;
open_handler_list { NODE(exception_handler_list); }: exception_handler_list? open_handler ;
open_handler { NODE(exception_handler); }: handler_head open_list | T__WHEN error %prec LOWEST ;
