/* Queries. */

query
    : query_body %prec UMINUS
    | subquery %prec UMINUS                                                     { NODE(select_statement); }
    ;

subquery
    : T__LPAREN query_body T__RPAREN                                            { NODE; }
    | T__LPAREN subquery T__RPAREN                                              { NODE; }
    ;

query_body
    : plain_select
    | other_select                                                              { NODE(select_statement); }
    | select_part select_tail                                                   { NODE(select_statement); }
    | with_clause select_part                                                   { NODE(select_statement); }
    | with_clause select_part select_tail                                       { NODE(select_statement); }
    ;

select_part
    : simple_select
    | subquery
    ;

select_tail
    : sort_part
    | sort_part select_limit_part                                               { NODE(select_statement); }
    | select_limit_part
    ;
sort_part
    : sort_clause
    | sort_clause into_variables                                                { NODE(select_statement); }
    ;
select_limit_part
    : locking_clause
    | limit_clause
    | locking_clause limit_clause                                               { NODE(select_statement); }
    | limit_clause locking_clause                                               { NODE(select_statement); }
    | locking_clause into_variables                                             { NODE(select_statement); }
    | limit_clause into_variables                                               { NODE(select_statement); }
    | locking_clause limit_clause into_variables                                { NODE(select_statement); }
    | limit_clause locking_clause into_variables                                { NODE(select_statement); }
    | limit_clause into_variables locking_clause                                { NODE(select_statement); }
    ;

simple_select
    : plain_select
    | other_select
    ;
/* A query is a select_statement: by itself if it is a SELECT, or with these in it. */
plain_select
    : select_head                                                               { NODE(select_statement); }
    | select_head select_list                                                   { NODE(select_statement); }
    | select_head select_clauses                                                { NODE(select_statement); }
    | select_head select_list select_clauses                                    { NODE(select_statement); }
    | select_head into_variables select_list                                    { NODE(select_statement); }
    | select_head into_variables select_list clauses_from_from                  { NODE(select_statement); }
    | distinct_head select_list                                                 { NODE(select_statement); }
    | distinct_head select_list select_clauses                                  { NODE(select_statement); }
    ;
other_select
    : values_clause
    | T__TABLE table                                                            { NODE(table_statement); }
    | select_part T__UNION select_part                                          { NODE(set_operation); }
    | select_part T__UNION set_quantifier select_part %prec T__UNION            { NODE(set_operation); }
    | select_part T__INTERSECT select_part                                      { NODE(intersect_operation); }
    | select_part T__INTERSECT set_quantifier select_part %prec T__INTERSECT    { NODE(intersect_operation); }
    | select_part T__EXCEPT select_part                                         { NODE(set_operation); }
    | select_part T__EXCEPT set_quantifier select_part %prec T__EXCEPT          { NODE(set_operation); }
    ;

set_quantifier
    : T__ALL
    | T__DISTINCT
    ;

select_head
    : T__SELECT
    | T__SELECT T__ALL                                                          { NODE(select_statement); }
    ;
distinct_head
    : T__SELECT distinct_clause                                                 { NODE(select_statement); }
    ;
distinct_clause
    : T__DISTINCT                                                               { NODE; }
    | T__DISTINCT T__ON T__LPAREN expression_list T__RPAREN                     { NODE; }
    ;

%list select_list: select_item %separator T__COMMA ;

select_item
    : expression                                                                { NODE; }
    | expression T__AS any_alias                                                { NODE; }
    | expression bare_alias                                                     { NODE; }
    | every_column                                                              { NODE; }
    ;
every_column
    : T__ASTERISK                                                               { NODE(all_columns); }
    ;

/* The clauses of a SELECT in their order, any of them left out. */
select_clauses
    : into_clause
    | into_clause clauses_from_from                                             { NODE(select_statement); }
    | clauses_from_from
    ;
clauses_from_from
    : from_part
    | from_part clauses_from_where                                              { NODE(select_statement); }
    | clauses_from_where
    ;
clauses_from_where
    : where_part
    | where_part clauses_from_group                                             { NODE(select_statement); }
    | clauses_from_group
    ;
clauses_from_group
    : group_part
    | group_part clauses_from_having                                            { NODE(select_statement); }
    | clauses_from_having
    ;
clauses_from_having
    : having_part
    | having_part window_part                                                   { NODE(select_statement); }
    | window_part
    ;

/* In a block of PL/pgSQL variables may follow any clause. */
from_part
    : from_clause
    | from_clause into_variables                                                { NODE(select_statement); }
    ;
where_part
    : where_clause
    | where_clause into_variables                                               { NODE(select_statement); }
    ;
group_part
    : group_clause
    | group_clause into_variables                                               { NODE(select_statement); }
    ;
having_part
    : having_clause
    | having_clause into_variables                                              { NODE(select_statement); }
    ;
window_part
    : window_clause
    | window_clause into_variables                                              { NODE(select_statement); }
    ;

into_clause
    : T__INTO into_target                                                       { NODE; }
    | into_variables
    ;
into_target
    : table_name
    | T__TABLE table_name                                                       { NODE(into_clause); }
    | temporary table_name                                                      { NODE(into_clause); }
    | temporary T__TABLE table_name                                             { NODE(into_clause); }
    ;
temporary
    : T__TEMPORARY
    | T__TEMP
    | T__LOCAL T__TEMPORARY                                                     { NODE; }
    | T__LOCAL T__TEMP                                                          { NODE; }
    | T__GLOBAL T__TEMPORARY                                                    { NODE; }
    | T__GLOBAL T__TEMP                                                         { NODE; }
    | T__UNLOGGED
    ;

from_clause
    : T__FROM from_list                                                         { NODE; }
    ;
where_clause
    : T__WHERE condition                                                        { NODE; }
    ;
group_clause
    : T__GROUP T__BY group_list                                                 { NODE; }
    | T__GROUP T__BY set_quantifier group_list                                  { NODE; }
    ;
having_clause
    : T__HAVING condition                                                       { NODE; }
    ;
window_clause
    : T__WINDOW window_list                                                     { NODE; }
    ;

group_list
    : group_item                                                                { NODE; }
    | group_list T__COMMA group_item                                            { NODE; }
    ;
group_item
    : expression                                                                { NODE; }
    | T__LPAREN T__RPAREN                                                       { NODE; }
    | T__CUBE T__LPAREN expression_list T__RPAREN                               { NODE; }
    | T__ROLLUP T__LPAREN expression_list T__RPAREN                             { NODE; }
    | T__GROUPING T__SETS T__LPAREN group_list T__RPAREN                        { NODE; }
    ;

window_list
    : named_window                                                              { NODE; }
    | window_list T__COMMA named_window                                         { NODE; }
    ;
named_window
    : window_name T__AS window_definition                                       { NODE; }
    ;
window_definition
    : T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN window_parts T__RPAREN                                          { NODE; }
    | T__LPAREN window_name T__RPAREN                                           { NODE; }
    | T__LPAREN window_name window_parts T__RPAREN                              { NODE; }
    ;
window_parts
    : window_partition
    | window_partition window_order_part                                        { NODE(window_definition); }
    | window_order_part
    ;
window_order_part
    : sort_clause
    | sort_clause frame_clause                                                  { NODE(window_definition); }
    | frame_clause
    ;
window_partition
    : T__PARTITION T__BY expression_list                                        { NODE; }
    ;
frame_clause
    : T__RANGE frame_extent                                                     { NODE; }
    | T__RANGE frame_extent frame_exclusion                                     { NODE; }
    | T__ROWS frame_extent                                                      { NODE; }
    | T__ROWS frame_extent frame_exclusion                                      { NODE; }
    | T__GROUPS frame_extent                                                    { NODE; }
    | T__GROUPS frame_extent frame_exclusion                                    { NODE; }
    ;
frame_extent
    : frame_bound                                                               { NODE; }
    | T__BETWEEN frame_bound T__AND frame_bound                                 { NODE; }
    ;
frame_bound
    : T__UNBOUNDED T__PRECEDING                                                 { NODE; }
    | T__UNBOUNDED T__FOLLOWING                                                 { NODE; }
    | T__CURRENT T__ROW                                                         { NODE; }
    | expression T__PRECEDING                                                   { NODE; }
    | expression T__FOLLOWING                                                   { NODE; }
    ;
frame_exclusion
    : T__EXCLUDE T__CURRENT T__ROW                                              { NODE; }
    | T__EXCLUDE T__GROUP                                                       { NODE; }
    | T__EXCLUDE T__TIES                                                        { NODE; }
    | T__EXCLUDE T__NO T__OTHERS                                                { NODE; }
    ;

sort_clause
    : T__ORDER T__BY sort_list                                                  { NODE; }
    ;
sort_list
    : sort_item                                                                 { NODE; }
    | sort_list T__COMMA sort_item                                              { NODE; }
    ;
sort_item
    : expression                                                                { NODE; }
    | expression sort_direction                                                 { NODE; }
    | expression nulls_order                                                    { NODE; }
    | expression sort_direction nulls_order                                     { NODE; }
    ;
sort_direction
    : T__ASC                                                                    { NODE; }
    | T__DESC                                                                   { NODE; }
    | T__USING any_operator                                                     { NODE; }
    | T__USING T__OPERATOR T__LPAREN any_operator T__RPAREN                     { NODE; }
    ;
nulls_order
    : T__NULLS_LA T__FIRST                                                      { NODE; }
    | T__NULLS_LA T__LAST                                                       { NODE; }
    ;

limit_clause
    : limit_part                                                                { NODE; }
    | offset_part                                                               { NODE; }
    | limit_part offset_part                                                    { NODE; }
    | offset_part limit_part                                                    { NODE; }
    ;
limit_part
    : T__LIMIT expression                                                       { NODE; }
    | T__LIMIT T__ALL                                                           { NODE; }
    | T__FETCH first_or_next row_or_rows only_or_ties                           { NODE; }
    | T__FETCH first_or_next fetch_count row_or_rows only_or_ties               { NODE; }
    ;
offset_part
    : T__OFFSET expression                                                      { NODE; }
    | T__OFFSET fetch_count row_or_rows                                         { NODE; }
    ;
fetch_count
    : primary
    | T__PLUS number                                                            { NODE; }
    | T__MINUS number                                                           { NODE; }
    ;
first_or_next
    : T__FIRST
    | T__NEXT
    ;
row_or_rows
    : T__ROW
    | T__ROWS
    ;
only_or_ties
    : T__ONLY
    | T__WITH T__TIES                                                           { NODE; }
    ;

locking_clause
    : locking_list                                                              { NODE; }
    | T__FOR T__READ T__ONLY                                                    { NODE; }
    ;
locking_list
    : locking_item                                                              { NODE; }
    | locking_list locking_item                                                 { NODE; }
    ;
locking_item
    : locking_strength                                                          { NODE; }
    | locking_strength locked_tables                                            { NODE; }
    | locking_strength locking_wait                                             { NODE; }
    | locking_strength locked_tables locking_wait                               { NODE; }
    ;
locking_strength
    : T__FOR T__UPDATE                                                          { NODE; }
    | T__FOR T__NO T__KEY T__UPDATE                                             { NODE; }
    | T__FOR T__SHARE                                                           { NODE; }
    | T__FOR T__KEY T__SHARE                                                    { NODE; }
    ;
locked_tables
    : T__OF table_name_list                                                     { NODE; }
    ;
locking_wait
    : T__NOWAIT                                                                 { NODE; }
    | T__SKIP T__LOCKED                                                         { NODE; }
    ;

values_clause
    : T__VALUES values_list                                                     { NODE; }
    ;
%list values_list: values_row %separator T__COMMA ;

values_row
    : T__LPAREN expression_list T__RPAREN                                       { NODE; }
    ;

with_clause
    : T__WITH common_table_list                                                 { NODE; }
    | T__WITH_LA common_table_list                                              { NODE; }
    | T__WITH T__RECURSIVE common_table_list                                    { NODE; }
    ;
common_table_list
    : common_table                                                              { NODE; }
    | common_table_list T__COMMA common_table                                   { NODE; }
    ;
table_name_alone
    : identifier                                                                { NODE(table_name); }
    ;
common_table
    : table_name_alone cte_body                                                 { NODE; }
    | table_name_alone columns cte_body                                         { NODE; }
    | table_name_alone cte_body cte_tail                                        { NODE; }
    | table_name_alone columns cte_body cte_tail                                { NODE; }
    ;
cte_body
    : T__AS T__LPAREN preparable_statement T__RPAREN                            { NODE; }
    | T__AS T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN            { NODE; }
    | T__AS T__NOT T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN     { NODE; }
    ;
cte_tail
    : search_clause
    | cycle_clause
    | search_clause cycle_clause                                                { NODE(common_table); }
    ;
search_clause
    : T__SEARCH T__DEPTH T__FIRST T__BY column_name_list T__SET column_name     { NODE; }
    | T__SEARCH T__BREADTH T__FIRST T__BY column_name_list T__SET column_name   { NODE; }
    ;
cycle_clause
    : T__CYCLE column_name_list T__SET column_name T__USING column_name         { NODE; }
    | T__CYCLE column_name_list T__SET column_name T__TO constant T__DEFAULT constant T__USING column_name
      { NODE; }
    ;

preparable_statement
    : ruled_statement
    | merge_statement
    ;
/* What a rule may do as well. */
ruled_statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    ;
