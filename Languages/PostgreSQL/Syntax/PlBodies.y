/* Bodies of routines in dollar quotes: a block of PL/pgSQL, or statements of SQL. */

/* The closing quote ends a body whatever is wrong in it. So an error that no delimiter follows makes an open body, and all
   that is still open around it. Flattening takes a node in its like for a list and leaves statements in that as they are, so
   options have no such node with their block. */
quoted_body
    : T__BLOCK_QUOTE_BEGIN body_block T__BODY_QUOTE_END                         { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_option_list body_block T__BODY_QUOTE_END        { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_block stray_statements T__BODY_QUOTE_END        { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_option_list body_block stray_statements T__BODY_QUOTE_END  { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_block open_strays T__BODY_QUOTE_END             { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_option_list body_block open_strays T__BODY_QUOTE_END  { NODE; }
    | T__BLOCK_QUOTE_BEGIN stray_statements T__BODY_QUOTE_END                   { NODE; }
    | T__BLOCK_QUOTE_BEGIN open_strays T__BODY_QUOTE_END                        { NODE; }
    | T__BLOCK_QUOTE_BEGIN open_block T__BODY_QUOTE_END                         { NODE; }
    | T__BLOCK_QUOTE_BEGIN body_option_list open_block T__BODY_QUOTE_END        { NODE; }
    | T__SQL_QUOTE_BEGIN sql_body T__BODY_QUOTE_END                             { NODE; }
    | T__SQL_QUOTE_BEGIN open_sql_body T__BODY_QUOTE_END                        { NODE; }
    ;
/* What stands outside of the block, where nothing may stand. */
stray_statements
    : bad_statement                                                             { NODE(body_pl_sql_statements); }
    | stray_statements listed_statement                                         { NODE(body_pl_sql_statements); }
    | stray_statements labeled_statement pl_sql_statement_delimiter             { NODE(body_pl_sql_statements); }
    | stray_statements labeled_bad_head pl_sql_statement_delimiter              { NODE(body_pl_sql_statements); }
    ;
bad_statement
    : error pl_sql_statement_delimiter                                          { NODE(delimited_pl_sql_statement); }
    ;
/* One that is wrong up to the end of the body. */
bad_last_statement
    : error %prec LOWEST                                                        { NODE(delimited_pl_sql_statement); }
    ;
open_strays
    : bad_last_statement                                                        { NODE(body_pl_sql_statements); }
    | stray_statements last_in_open_list                                        { NODE(body_pl_sql_statements); }
    ;

/* A routine whose closing quote is missing reaches to the end of the text. */
open_routine
    : T__CREATE open_definition                                                 { NODE(create_routine_statement); }
    | T__CREATE T__OR T__REPLACE open_definition                                { NODE(create_routine_statement); }
    | T__DO open_do_items                                                       { NODE(do_statement); }
    ;
open_definition
    : routine_word function_name parameters open_routine_items                  { NODE(create_routine_statement); }
    ;
open_routine_items
    : open_routine_item                                                         { NODE(routine_item_list); }
    | routine_item_list open_routine_item                                       { NODE(routine_item_list); }
    ;
open_routine_item
    : T__AS open_body                                                           { NODE(routine_item); }
    ;
open_do_items
    : open_body                                                                 { NODE(do_item_list); }
    | do_item_list open_body                                                    { NODE(do_item_list); }
    ;
open_body
    : T__BLOCK_QUOTE_BEGIN body_block open_strays %prec LOWEST                  { NODE(quoted_body); }
    | T__BLOCK_QUOTE_BEGIN body_option_list body_block open_strays %prec LOWEST { NODE(quoted_body); }
    | T__BLOCK_QUOTE_BEGIN open_strays %prec LOWEST                             { NODE(quoted_body); }
    | T__BLOCK_QUOTE_BEGIN open_block %prec LOWEST                              { NODE(quoted_body); }
    | T__BLOCK_QUOTE_BEGIN body_option_list open_block %prec LOWEST             { NODE(quoted_body); }
    | T__SQL_QUOTE_BEGIN open_sql_body %prec LOWEST                             { NODE(quoted_body); }
    ;

body_block
    : last_block                                                                { NODE(body_pl_sql_statements); }
    | ended_block                                                               { NODE(body_pl_sql_statements); }
    | labeled_block                                                             { NODE(body_pl_sql_statements); }
    | labeled_block pl_sql_statement_delimiter                                  { NODE(body_pl_sql_statements); }
    ;
last_block
    : plain_block                                                               { NODE(delimited_pl_sql_statement); }
    ;
ended_block
    : plain_block pl_sql_statement_delimiter                                    { NODE(delimited_pl_sql_statement); }
    ;
plain_block
    : block                                                                     { NODE(pl_sql_statement); }
    ;
labeled_block
    : label_and_block                                                           { NODE(delimited_pl_sql_statement); }
    ;
label_and_block
    : block_label plain_block                                                   { NODE(labeled_pl_sql_statement); }
    ;
open_block
    : first_open_block                                                          { NODE(body_pl_sql_statements); }
    ;
first_open_block
    : bare_open_block                                                           { NODE(delimited_pl_sql_statement); }
    | labeled_open_block                                                        { NODE(delimited_pl_sql_statement); }
    ;
bare_open_block
    : open_block_part                                                           { NODE(pl_sql_statement); }
    ;
labeled_open_block
    : block_label bare_open_block                                               { NODE(labeled_pl_sql_statement); }
    ;
body_option_list
    : body_option                                                               { NODE; }
    | body_option_list body_option                                              { NODE; }
    ;
body_option
    : T__HASH body_option_name any_label                                        { NODE; }
    ;
body_option_name
    : any_label                                                                 { NODE(option_name); }
    ;

sql_body
    : sql_statements
    | sql_statements last_sql_statement                                         { NODE(body_pl_sql_statements); }
    | last_sql_statement                                                        { NODE(body_pl_sql_statements); }
    ;
open_sql_body
    : sql_statements bad_last_statement                                         { NODE(body_pl_sql_statements); }
    | bad_last_statement                                                        { NODE(body_pl_sql_statements); }
    ;
sql_statements
    : delimited_sql_statement                                                   { NODE(body_pl_sql_statements); }
    | sql_statements delimited_sql_statement                                    { NODE(body_pl_sql_statements); }
    ;
delimited_sql_statement
    : sql_statement pl_sql_statement_delimiter                                  { NODE(delimited_pl_sql_statement); }
    | pl_sql_statement_delimiter                                                { NODE(delimited_pl_sql_statement); }
    | bad_statement
    ;
last_sql_statement
    : sql_statement                                                             { NODE(delimited_pl_sql_statement); }
    ;
sql_statement
    : statement                                                                 { NODE(pl_sql_statement); }
    ;
