/* Blocks of PL/pgSQL and the statements in them. */

block { NODE(block_statement); }: block_head block_statements? exception_clause? T__END label_name? ;
block_head { NODE; }: declare_clause? T__BEGIN_LA ;
block_label { NODE(pl_sql_statement_label); }: T__LABEL_BEGIN label_name T__LABEL_END ;

exception_clause { NODE; }: T__EXCEPTION exception_handler_list ;
%list exception_handler_list: exception_handler %short ;
exception_handler { NODE; }: handler_head block_statements? ;
handler_head { NODE; }
    : T__WHEN exception_condition_list T__THEN
    | T__WHEN error T__THEN
    | T__WHEN error pl_sql_statement_delimiter ;
%list exception_condition_list: exception_condition %short %separator T__OR ;
exception_condition { NODE; }: condition_name | T__SQLSTATE T__STRING ;

block_statements { NODE(body_pl_sql_statements); }
    : block_statements? listed_statement
    | block_statements? (labeled_statement | labeled_bad_head) pl_sql_statement_delimiter ;
listed_statement { PART(delimited_pl_sql_statement); }
    : bare_statement pl_sql_statement_delimiter
    | bad_head pl_sql_statement_delimiter
    | bad_statement ;
/* The delimiter stands beside it: in the list of a body a labeled statement loses what it holds itself. */
labeled_statement { NODE(delimited_pl_sql_statement); }: label_and_statement ;
label_and_statement { NODE(labeled_pl_sql_statement); }: block_label labelable_statement ;
bare_statement { NODE(pl_sql_statement); }: unlabeled_statement | loop_or_block ;
labelable_statement { NODE(pl_sql_statement); }: loop_or_block ;
loop_or_block: block | loop_statement ;

/* The first half of a statement that is wrong there: its second half follows, or its delimiter. */
bad_head { NODE(pl_sql_statement); }: bad_first_part ;
labeled_bad_head { NODE(delimited_pl_sql_statement); }: label_and_bad_head ;
label_and_bad_head { NODE(labeled_pl_sql_statement); }: block_label bad_head ;
bad_first_part { NODE(loop_statement); }
    : T__IF error  { NODE(if_statement); }
    | T__WHILE error
    | T__FOR error
    | T__FOREACH error ;

/* What is open where the body ends. */
open_list { NODE(body_pl_sql_statements); }: block_statements? last_in_open_list ;
last_in_open_list
    : bad_last_statement
    | bad_head %prec LOWEST  { NODE(delimited_pl_sql_statement); }
    | labeled_bad_head %prec LOWEST
    | open_statement ;
open_statement { NODE(delimited_pl_sql_statement); }: bare_open_statement | labeled_open_statement ;
bare_open_statement { NODE(pl_sql_statement); }: open_part | open_block_part ;
labeled_open_statement { NODE(labeled_pl_sql_statement); }: block_label bare_open_statement ;
open_block_part { NODE(block_statement); }
    : open_declarations
    | block_head open_list
    | block_head block_statements? open_handlers ;
open_declarations { NODE(declare_clause); }
    : T__DECLARE error %prec LOWEST
    | T__DECLARE declaration_list error %prec LOWEST ;
open_part { NODE(if_statement); }
    : open_if_branch
    | if_parts open_elsif_branch
    | if_parts open_else_branch
    | case_head open_case_branch  { NODE(case_statement); }
    | case_parts (open_case_branch | open_else_branch)  { NODE(case_statement); }
    | loop_head open_loop_body  { NODE(loop_statement); } ;
open_if_branch { NODE(if_branch); }: if_head open_list ;
open_elsif_branch { NODE(elsif_branch); }: elsif_head open_list | T__ELSIF error %prec LOWEST ;
open_else_branch { NODE(else_branch); }: T__ELSE open_list ;
open_case_branch { NODE(case_when); }: case_when_head open_list | T__WHEN error %prec LOWEST ;
open_loop_body { NODE(loop_body); }: open_list ;
open_handlers { NODE(exception_clause); }: T__EXCEPTION open_handler_list ;
open_handler_list { NODE(exception_handler_list); }: exception_handler_list? open_handler ;
open_handler { NODE(exception_handler); }: handler_head open_list | T__WHEN error %prec LOWEST ;
