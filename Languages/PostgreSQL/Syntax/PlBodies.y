/* Bodies of routines in dollar quotes: a block of PL/pgSQL, or statements of SQL. */

/* The closing quote ends a body whatever is wrong in it. So an error that no delimiter follows makes an open body, and all
   that is still open around it. Flattening takes a node in its like for a list and leaves statements in that as they are, so
   options have no such node with their block. */
quoted_body { NODE; }
    : T__BLOCK_QUOTE_BEGIN body_block T__BODY_QUOTE_END
    | T__BLOCK_QUOTE_BEGIN body_option_list body_block (open_strays | stray_statements)? T__BODY_QUOTE_END
    | T__BLOCK_QUOTE_BEGIN body_block? (stray_statements | open_strays) T__BODY_QUOTE_END
    | T__BLOCK_QUOTE_BEGIN body_option_list? open_block T__BODY_QUOTE_END
    | T__SQL_QUOTE_BEGIN (sql_body | open_sql_body) T__BODY_QUOTE_END ;
/* What stands outside of the block, where nothing may stand. */
stray_statements { NODE(body_pl_sql_statements); }
    : bad_statement
    | stray_statements listed_statement
    | stray_statements (delimited_labeled_statement | delimited_labeled_bad_head) ;
open_strays { NODE(body_pl_sql_statements); }: bad_last_statement | stray_statements last_in_open_list ;

/* A routine whose closing quote is missing reaches to the end of the text. */
open_routine { NODE(create_routine_statement); }
    : T__CREATE (T__OR T__REPLACE)? open_definition
    | T__DO open_do_items  { NODE(do_statement); } ;
open_definition { NODE(create_routine_statement); }: routine_head open_routine_items ;
open_routine_items { NODE(routine_item_list); }: routine_item_list? open_routine_item ;
open_routine_item { NODE(routine_item); }: T__AS open_body ;
open_do_items { NODE(do_item_list); }: do_item_list? open_body ;
open_body { NODE(quoted_body); }
    : T__BLOCK_QUOTE_BEGIN (body_block | body_option_list body_block)? open_strays %prec LOWEST
    | T__BLOCK_QUOTE_BEGIN body_option_list? open_block %prec LOWEST
    | T__SQL_QUOTE_BEGIN open_sql_body %prec LOWEST ;

body_block { NODE(body_pl_sql_statements); }
    : last_block | ended_block
    | labeled_block body_delimiter? ;
last_block { NODE(delimited_pl_sql_statement); }: plain_block ;
ended_block { NODE(delimited_pl_sql_statement); }: plain_block body_delimiter ;
plain_block { NODE(pl_sql_statement); }: block ;
labeled_block { NODE(delimited_pl_sql_statement); }: label_and_block ;
label_and_block { NODE(labeled_pl_sql_statement); }: block_label plain_block ;
open_block { NODE(body_pl_sql_statements); }: first_open_block ;
first_open_block { NODE(delimited_pl_sql_statement); }: bare_open_block | labeled_open_block ;
bare_open_block { NODE(pl_sql_statement); }: open_block_part ;
labeled_open_block { NODE(labeled_pl_sql_statement); }: block_label bare_open_block ;
%list body_option_list: body_option %short ;
body_option { NODE; }: T__HASH body_option_name any_label ;
body_option_name { NODE(option_name); }: any_label ;

sql_body { NODE(body_pl_sql_statements); }: sql_statements  { PART; } | sql_statements? last_sql_statement ;
open_sql_body { NODE(body_pl_sql_statements); }: sql_statements? bad_last_statement ;
sql_statements { NODE(body_pl_sql_statements); }: sql_statements? delimited_sql_statement ;
delimited_sql_statement { NODE(delimited_pl_sql_statement); }
    : sql_statement? pl_sql_statement_delimiter
    | bad_statement  { PART; } ;
last_sql_statement { NODE(delimited_pl_sql_statement); }: sql_statement ;
sql_statement { NODE(pl_sql_statement); }: statement ;
