/* Blocks of PL/pgSQL and the statements in them. */

block
    : block_head T__END                                                         { NODE(block_statement); }
    | block_head T__END label_name                                              { NODE(block_statement); }
    | block_head block_statements T__END                                        { NODE(block_statement); }
    | block_head block_statements T__END label_name                             { NODE(block_statement); }
    | block_head exception_clause T__END                                        { NODE(block_statement); }
    | block_head exception_clause T__END label_name                             { NODE(block_statement); }
    | block_head block_statements exception_clause T__END                       { NODE(block_statement); }
    | block_head block_statements exception_clause T__END label_name            { NODE(block_statement); }
    ;
block_head
    : T__BEGIN_LA                                                               { NODE; }
    | declare_clause T__BEGIN_LA                                                { NODE; }
    ;
block_label
    : T__LABEL_BEGIN label_name T__LABEL_END                                    { NODE(pl_sql_statement_label); }
    ;

exception_clause
    : T__EXCEPTION exception_handler_list                                       { NODE; }
    ;
exception_handler_list
    : exception_handler                                                         { NODE; }
    | exception_handler_list exception_handler                                  { NODE; }
    ;
exception_handler
    : handler_head                                                              { NODE; }
    | handler_head block_statements                                             { NODE; }
    ;
handler_head
    : T__WHEN exception_condition_list T__THEN                                  { NODE; }
    | T__WHEN error T__THEN                                                     { NODE; }
    | T__WHEN error pl_sql_statement_delimiter                                  { NODE; }
    ;
exception_condition_list
    : exception_condition                                                       { NODE; }
    | exception_condition_list T__OR exception_condition                        { NODE; }
    ;
exception_condition
    : condition_name                                                            { NODE; }
    | T__SQLSTATE T__STRING                                                     { NODE; }
    ;

block_statements
    : listed_statement                                                          { NODE(body_pl_sql_statements); }
    | labeled_statement pl_sql_statement_delimiter                              { NODE(body_pl_sql_statements); }
    | labeled_bad_head pl_sql_statement_delimiter                               { NODE(body_pl_sql_statements); }
    | block_statements listed_statement                                         { NODE(body_pl_sql_statements); }
    | block_statements labeled_statement pl_sql_statement_delimiter             { NODE(body_pl_sql_statements); }
    | block_statements labeled_bad_head pl_sql_statement_delimiter              { NODE(body_pl_sql_statements); }
    ;
listed_statement
    : bare_statement pl_sql_statement_delimiter                                 { NODE(delimited_pl_sql_statement); }
    | bad_head pl_sql_statement_delimiter                                       { NODE(delimited_pl_sql_statement); }
    | bad_statement
    ;
/* The delimiter stands beside it: in the list of a body a labeled statement loses what it holds itself. */
labeled_statement
    : label_and_statement                                                       { NODE(delimited_pl_sql_statement); }
    ;
label_and_statement
    : block_label labelable_statement                                           { NODE(labeled_pl_sql_statement); }
    ;
bare_statement
    : unlabeled_statement                                                       { NODE(pl_sql_statement); }
    | loop_or_block                                                             { NODE(pl_sql_statement); }
    ;
labelable_statement
    : loop_or_block                                                             { NODE(pl_sql_statement); }
    ;
loop_or_block
    : block
    | loop_statement
    ;

/* The first half of a statement that is wrong there: its second half follows, or its delimiter. */
bad_head
    : bad_first_part                                                            { NODE(pl_sql_statement); }
    ;
labeled_bad_head
    : label_and_bad_head                                                        { NODE(delimited_pl_sql_statement); }
    ;
label_and_bad_head
    : block_label bad_head                                                      { NODE(labeled_pl_sql_statement); }
    ;
bad_first_part
    : T__IF error                                                               { NODE(if_statement); }
    | T__WHILE error                                                            { NODE(loop_statement); }
    | T__FOR error                                                              { NODE(loop_statement); }
    | T__FOREACH error                                                          { NODE(loop_statement); }
    ;

/* What is open where the body ends. */
open_list
    : block_statements last_in_open_list                                        { NODE(body_pl_sql_statements); }
    | last_in_open_list                                                         { NODE(body_pl_sql_statements); }
    ;
last_in_open_list
    : bad_last_statement
    | bad_head %prec LOWEST                                                     { NODE(delimited_pl_sql_statement); }
    | labeled_bad_head %prec LOWEST
    | open_statement
    ;
open_statement
    : bare_open_statement                                                       { NODE(delimited_pl_sql_statement); }
    | labeled_open_statement                                                    { NODE(delimited_pl_sql_statement); }
    ;
bare_open_statement
    : open_part                                                                 { NODE(pl_sql_statement); }
    | open_block_part                                                           { NODE(pl_sql_statement); }
    ;
labeled_open_statement
    : block_label bare_open_statement                                           { NODE(labeled_pl_sql_statement); }
    ;
open_block_part
    : open_declarations                                                         { NODE(block_statement); }
    | block_head open_list                                                      { NODE(block_statement); }
    | block_head open_handlers                                                  { NODE(block_statement); }
    | block_head block_statements open_handlers                                 { NODE(block_statement); }
    ;
open_declarations
    : T__DECLARE error %prec LOWEST                                             { NODE(declare_clause); }
    | T__DECLARE declaration_list error %prec LOWEST                            { NODE(declare_clause); }
    ;
open_part
    : open_if_branch                                                            { NODE(if_statement); }
    | if_parts open_elsif_branch                                                { NODE(if_statement); }
    | if_parts open_else_branch                                                 { NODE(if_statement); }
    | case_head open_case_branch                                                { NODE(case_statement); }
    | case_parts open_case_branch                                               { NODE(case_statement); }
    | case_parts open_else_branch                                               { NODE(case_statement); }
    | loop_head open_loop_body                                                  { NODE(loop_statement); }
    ;
open_if_branch
    : if_head open_list                                                         { NODE(if_branch); }
    ;
open_elsif_branch
    : elsif_head open_list                                                      { NODE(elsif_branch); }
    | T__ELSIF error %prec LOWEST                                               { NODE(elsif_branch); }
    ;
open_else_branch
    : T__ELSE open_list                                                         { NODE(else_branch); }
    ;
open_case_branch
    : case_when_head open_list                                                  { NODE(case_when); }
    | T__WHEN error %prec LOWEST                                                { NODE(case_when); }
    ;
open_loop_body
    : open_list                                                                 { NODE(loop_body); }
    ;
open_handlers
    : T__EXCEPTION open_handler_list                                            { NODE(exception_clause); }
    ;
open_handler_list
    : open_handler                                                              { NODE(exception_handler_list); }
    | exception_handler_list open_handler                                       { NODE(exception_handler_list); }
    ;
open_handler
    : handler_head open_list                                                    { NODE(exception_handler); }
    | T__WHEN error %prec LOWEST                                                { NODE(exception_handler); }
    ;
