/* The statements of a block: lists of them, IF and CASE, with what is wrong or open in them.
   A dialect defines unlabeled_statement (what stands in a block without a label, if_statement, case_statement and
   null_statement among it), body_delimiter (what ends a statement there), block, block_label, open_block_part (a block that
   isn't closed) and loop_statement, and adds to value, bad_first_part, open_part and last_in_open_list.
   An error costs its statement up to the delimiter. Where no delimiter follows, it ends the list, and all that is
   open around it is closed there. */

block_statements { NODE(body_pl_sql_statements); }
    : block_statements? listed_statement
    | block_statements? (delimited_labeled_statement | delimited_labeled_bad_head) ;
listed_statement { PART(delimited_pl_sql_statement); }
    : bare_statement body_delimiter
    | bad_head body_delimiter
    | bad_statement ;
bad_statement { NODE(delimited_pl_sql_statement); }: error body_delimiter ;
/* The delimiter stands in it, or what stands before the delimiter would come after it. */
label_and_statement { NODE(labeled_pl_sql_statement); }: block_label labelable_statement ;
delimited_labeled_statement { NODE(delimited_pl_sql_statement); }: labeled_to_delimiter ;
labeled_to_delimiter { NODE(labeled_pl_sql_statement); }: block_label labelable_statement body_delimiter ;
delimited_labeled_bad_head { NODE(delimited_pl_sql_statement); }: labeled_bad_to_delimiter ;
labeled_bad_to_delimiter { NODE(labeled_pl_sql_statement); }: block_label bad_head body_delimiter ;
bare_statement { NODE(pl_sql_statement); }: unlabeled_statement | loop_or_block ;
labelable_statement { NODE(pl_sql_statement); }: loop_or_block ;
loop_or_block: block | loop_statement ;

/* The first half of a statement that is wrong there: its second half follows, or its delimiter. */
bad_head { NODE(pl_sql_statement); }: bad_first_part ;
labeled_bad_head { NODE(delimited_pl_sql_statement); }: label_and_bad_head ;
label_and_bad_head { NODE(labeled_pl_sql_statement); }: block_label bad_head %prec LOWEST ;
bad_first_part { NODE(loop_statement); }
    : T__IF error  { NODE(if_statement); }
    | T__WHILE error ;

if_statement { NODE; }: if_parts else_branch? T__END_LA T__IF ;
if_parts { PART(if_statement); }: if_branch | if_parts elsif_branch ;
if_branch { NODE; }: if_head block_statements? ;
if_head { NODE; }: T__IF tested T__THEN | T__IF error T__THEN ;
elsif_branch { NODE; }: elsif_head block_statements? ;
elsif_head { NODE; }
    : T__ELSIF tested T__THEN
    | T__ELSIF error T__THEN
    | T__ELSIF error body_delimiter ;
else_branch { NODE; }: T__ELSE block_statements? ;

case_statement { NODE; }: case_parts else_branch? T__END_LA T__CASE ;
case_parts { NODE(case_statement); }: case_head case_when | case_parts case_when ;
case_head { NODE; }: T__CASE value? ;
case_when { NODE; }: case_when_head block_statements? ;
case_when_head { NODE; }
    : T__WHEN value_list T__THEN
    | T__WHEN error T__THEN
    | T__WHEN error body_delimiter ;

loop_body { NODE; }: block_statements ;
/* What a loop goes through. */
loop_range { NODE; }: expression T__DOT_DOT expression ;
loop_cursor: qualified_name  { NODE(cursor_name); } | function_call ;

null_statement { NODE; }: T__NULL ;

/* What is open where the body ends. */
open_list { NODE(body_pl_sql_statements); }: block_statements? last_in_open_list ;
last_in_open_list
    : bad_last_statement
    | bad_head %prec LOWEST  { NODE(delimited_pl_sql_statement); }
    | labeled_bad_head %prec LOWEST
    | open_statement ;
/* One that is wrong up to the end of the body. */
bad_last_statement { NODE(delimited_pl_sql_statement); }: error %prec LOWEST ;
open_statement { NODE(delimited_pl_sql_statement); }: bare_open_statement | labeled_open_statement ;
bare_open_statement { NODE(pl_sql_statement); }: open_part | open_block_part ;
labeled_open_statement { NODE(labeled_pl_sql_statement); }: block_label bare_open_statement ;
open_part { NODE(if_statement); }
    : open_if_branch
    | if_parts open_elsif_branch
    | if_parts open_else_branch
    | case_head open_case_branch  { NODE(case_statement); }
    | case_parts (open_case_branch | open_else_branch)  { NODE(case_statement); } ;
open_if_branch { NODE(if_branch); }: if_head open_list ;
open_elsif_branch { NODE(elsif_branch); }: elsif_head open_list | T__ELSIF error %prec LOWEST ;
open_else_branch { NODE(else_branch); }: T__ELSE open_list ;
open_case_branch { NODE(case_when); }: case_when_head open_list | T__WHEN error %prec LOWEST ;
open_loop_body { NODE(loop_body); }: open_list ;

value: expression ;
/* What is true or not. */
tested { NODE(condition); }: value ;
/* Values without brackets around them. In a list of its own, so that within brackets a delimiter stays an error where
   it stands. */
%list value_list: expression %short %separator T__COMMA %node expression_list ;
