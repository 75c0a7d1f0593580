/* What MySQL adds to blocks, and where they stand. */

body_delimiter { NODE(pl_sql_statement_delimiter); }: T__SEMICOLON ;
%replace label_name { NODE; }: label_word ;
label_word { NODE(sql_identifier); }
    : quoted_or_plain | %words unreserved | %words reserved_mysql | %words reserved_mariadb ;

block { NODE(block_statement); }: atomic_block  { PART; } ;
atomic_block { NODE(block_statement); }: atomic_head block_statements? T__END label_name? ;
atomic_head { NODE(block_head); }: T__BEGIN_LA T__NOT T__ATOMIC declaration_list? ;
open_atomic_block { NODE(block_statement); }: atomic_head open_list | open_atomic_head ;
open_atomic_head { NODE(block_head); }: T__BEGIN_LA T__NOT T__ATOMIC open_declaration_list ;
open_block_part { NODE(block_statement); }: open_atomic_block  { PART; } ;
/* Pieces of bodies stand in files of their own, too. */
pl_sql_statement { NODE; }
    : block | if_statement | case_statement | loop_statement | declare_statement | exit_statement | return_statement | open_cursor
    | fetch_statement | close_statement ;
delimited { NODE(delimited_pl_sql_statement); }: labeled_to_script_delimiter ;
labeled_to_script_delimiter { NODE(labeled_pl_sql_statement); }: label_and_labelable pl_sql_statement_delimiter ;
label_and_labelable { PART(labeled_pl_sql_statement); }: block_label labelable_statement ;
last_statement { NODE(delimited_pl_sql_statement); }: label_and_statement ;
declare_statement { NODE; }: T__DECLARE declared ;

condition_value { NODE(exception_condition); }: T__INTEGER_NUMBER | T__HEX_NUMBER ;

/* A branch or loop holds a statement at least, and a case compares one value. */
%without if_branch: if_head ;
%without elsif_branch: elsif_head ;
%without else_branch: T__ELSE ;
%without case_when: case_when_head ;
%replace value_list { NODE(expression_list); }: value ;

for_head { NODE; }: T__FOR loop_variables T__IN T__REVERSE reversed_range T__DO ;
/* What can't follow a name, since REVERSE may be one. */
reversed_range { NODE(loop_range); }: reversed_bound T__DOT_DOT expression ;
reversed_bound: T__INTEGER_NUMBER | variable | plain_column | plain_call ;
plain_call { NODE(function_call); }: plain_function T__LPAREN argument_list T__RPAREN ;
plain_function { NODE(function_name); }: plain_name ;
plain_column { NODE(column_name); }: plain_name ;
plain_name { NODE(sql_identifier); }: quoted_or_plain ;
