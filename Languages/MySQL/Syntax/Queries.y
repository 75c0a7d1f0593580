/* What MySQL adds to queries, and what it hasn't. */

%replace plain_select { NODE(select_statement); }: (select_head | distinct_head) select_list select_clauses? ;
%replace select_head { PART(select_statement); }: T__SELECT T__HINT? select_option_list? ;
%replace distinct_head { NODE(select_statement); }: select_head distinct_clause select_option_list? ;
%list select_option_list: select_option %short ;
select_option { NODE; }
    : T__ALL | T__HIGH_PRIORITY | T__STRAIGHT_JOIN | T__SQL_SMALL_RESULT | T__SQL_BIG_RESULT | T__SQL_BUFFER_RESULT
    | T__SQL_CACHE | T__SQL_NO_CACHE | T__SQL_CALC_FOUND_ROWS ;
distinct_clause { NODE; }: T__DISTINCTROW | T__UNIQUE ;

values_row { NODE; }: T__ROW T__LPAREN expression_list T__RPAREN ;

%replace group_clause { NODE; }: T__GROUP T__BY group_list (T__WITH_LA T__ROLLUP)? ;
%replace group_item { NODE; }: expression sort_direction? ;

into_variables { NODE(into_clause); }
    : T__INTO variable_list
    | T__INTO T__OUTFILE string_literal character_set? file_format?
    | T__INTO T__DUMPFILE string_literal ;
%list variable_list: target_variable %short %separator T__COMMA ;
target_variable: variable | plain_target ;
plain_target { NODE(variable_name); }: qualified_name ;
/* How fields and lines of a file are written and read. */
%parts file_format: fields_clause lines_clause %node into_clause ;
fields_clause { NODE; }: (T__FIELDS | T__COLUMNS) field_format_list ;
%list field_format_list: field_format %short ;
field_format { NODE; }: (T__TERMINATED | T__OPTIONALLY? T__ENCLOSED | T__ESCAPED) T__BY file_text ;
lines_clause { NODE; }: T__LINES line_format_list ;
%list line_format_list: line_format %short ;
line_format { NODE; }: (T__STARTING | T__TERMINATED) T__BY file_text ;
file_text: string_literal | T__HEX_STRING | T__HEX_NUMBER | T__BIT_STRING | T__BIT_NUMBER ;

limit_clause { NODE; }
    : limit_part (offset_part | rows_examined)?
    | offset_part limit_part?
    | T__LIMIT rows_examined ;
limit_part { NODE; }: T__LIMIT expression (T__COMMA expression)? ;
rows_examined { NODE; }: T__ROWS T__EXAMINED expression ;

query_body { NODE(select_statement); }: (subquery | closed_union) into_variables ;
/* A union that ends in a bracket, so that INTO belongs to all of it. */
closed_union { NODE(set_operation); }: select_part T__UNION set_quantifier? subquery ;
%without select_limit_part: locking_clause limit_clause? into_variables? ;
select_limit_part { PART(select_statement); }: locking_clause into_variables? ;
select_limit_part { PART(select_statement); }: limit_clause? procedure_clause ;
procedure_clause { NODE; }: T__PROCEDURE function_call ;

locking_clause { NODE; }
    : locking_list
    | T__LOCK T__IN T__SHARE T__MODE locking_wait? ;
locking_wait { NODE; }: T__WAIT T__INTEGER_NUMBER ;

preparable_statement: query ;
common_table { NODE; }: table_name_alone columns? cte_body T__CYCLE column_name_list T__RESTRICT ;

statement: query ;
