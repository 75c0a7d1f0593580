/* Queries. */

query: query_body %prec UMINUS | subquery %prec UMINUS  { NODE(select_statement); } ;

subquery { NODE; }: T__LPAREN (query_body | subquery) T__RPAREN ;

query_body { NODE(select_statement); }
    : plain_select  { PART; }
    | other_select
    | select_part select_tail
    | with_clause select_part select_tail? ;

select_part: simple_select | subquery ;

%parts select_tail: sort_part select_limit_part %node select_statement ;
sort_part { PART(select_statement); }: sort_clause into_variables? ;
select_limit_part { PART(select_statement); }
    : locking_clause limit_clause? into_variables?
    | limit_clause (into_variables? locking_clause)?
    | limit_clause locking_clause? into_variables ;

simple_select: plain_select | other_select ;
/* A query is a select_statement: by itself if it is a SELECT, or with these in it. */
plain_select { NODE(select_statement); }
    : select_head select_list? select_clauses?
    | select_head into_variables select_list clauses_after_into?
    | distinct_head select_list select_clauses? ;
other_select { PART(set_operation); }
    : values_clause
    | T__TABLE table  { NODE(table_statement); }
    | select_part T__UNION set_quantifier? select_part %prec T__UNION
    | select_part T__EXCEPT set_quantifier? select_part %prec T__EXCEPT
    | select_part T__INTERSECT set_quantifier? select_part %prec T__INTERSECT  { NODE(intersect_operation); } ;

set_quantifier: T__ALL | T__DISTINCT ;

select_head { PART(select_statement); }: T__SELECT T__ALL? ;
distinct_head { NODE(select_statement); }: T__SELECT distinct_clause ;
distinct_clause { NODE; }: T__DISTINCT | T__DISTINCT T__ON T__LPAREN expression_list T__RPAREN ;

%list select_list: select_item %separator T__COMMA ;

select_item { NODE; }: expression (bare_alias | T__AS any_alias)? | every_column ;
every_column { NODE(all_columns); }: T__ASTERISK ;

/* The clauses of a SELECT in their order, any of them left out. */
%parts select_clauses: into_clause clauses_after_into %node select_statement ;
%parts clauses_after_into: from_part where_part group_part having_part window_part %node select_statement ;

/* In a block of PL/pgSQL variables may follow any clause. */
from_part { PART(select_statement); }: from_clause into_variables? ;
where_part { PART(select_statement); }: where_clause into_variables? ;
group_part { PART(select_statement); }: group_clause into_variables? ;
having_part { PART(select_statement); }: having_clause into_variables? ;
window_part { PART(select_statement); }: window_clause into_variables? ;

into_clause { PART; }: T__INTO into_target | into_variables ;
into_target { PART(into_clause); }: temporary? T__TABLE? table_name ;
temporary { PART; }
    : (T__LOCAL | T__GLOBAL)? T__TEMPORARY
    | (T__LOCAL | T__GLOBAL)? T__TEMP
    | T__UNLOGGED ;

from_clause { NODE; }: T__FROM from_list ;
where_clause { NODE; }: T__WHERE condition ;
group_clause { NODE; }: T__GROUP T__BY set_quantifier? group_list ;
having_clause { NODE; }: T__HAVING condition ;
window_clause { NODE; }: T__WINDOW window_list ;

%list group_list: group_item %short %separator T__COMMA ;
group_item { NODE; }
    : expression
    | T__LPAREN T__RPAREN
    | (T__CUBE | T__ROLLUP) T__LPAREN expression_list T__RPAREN
    | T__GROUPING T__SETS T__LPAREN group_list T__RPAREN ;

sort_clause { NODE; }: T__ORDER T__BY sort_list ;
%list sort_list: sort_item %short %separator T__COMMA ;
sort_item { NODE; }: expression sort_direction? | expression sort_direction? nulls_order ;
sort_direction { NODE; }
    : T__ASC | T__DESC
    | T__USING any_operator
    | T__USING T__OPERATOR T__LPAREN any_operator T__RPAREN ;
nulls_order { NODE; }: T__NULLS_LA (T__FIRST | T__LAST) ;

limit_clause { NODE; }: offset_part? limit_part | limit_part? offset_part ;
limit_part { NODE; }
    : T__LIMIT expression
    | T__LIMIT T__ALL
    | T__FETCH first_or_next fetch_count? row_or_rows only_or_ties ;
offset_part { NODE; }: T__OFFSET (expression | fetch_count row_or_rows) ;
fetch_count { PART; }
    : primary
    | T__PLUS number
    | T__MINUS number ;
first_or_next: T__FIRST | T__NEXT ;
row_or_rows: T__ROW | T__ROWS ;
only_or_ties { PART; }: T__ONLY | T__WITH T__TIES ;

locking_clause { NODE; }: locking_list | T__FOR T__READ T__ONLY ;
%list locking_list: locking_item %short ;
locking_item { NODE; }: locking_strength locked_tables? locking_wait? ;
locking_strength { NODE; }
    : T__FOR (T__UPDATE | T__SHARE)
    | T__FOR T__NO T__KEY T__UPDATE
    | T__FOR T__KEY T__SHARE ;
locked_tables { NODE; }: T__OF table_name_list ;
locking_wait { NODE; }: T__NOWAIT | T__SKIP T__LOCKED ;

values_clause { NODE; }: T__VALUES values_list ;
%list values_list: values_row %separator T__COMMA ;

values_row { NODE; }: T__LPAREN expression_list T__RPAREN ;

with_clause { NODE; }: T__WITH T__RECURSIVE? common_table_list | T__WITH_LA common_table_list ;
%list common_table_list: common_table %short %separator T__COMMA ;
common_table { NODE; }: table_name_alone columns? cte_body | table_name_alone columns? cte_body cte_tail ;
cte_body { NODE; }
    : T__AS T__LPAREN preparable_statement T__RPAREN
    | T__AS T__NOT? T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN ;
%parts cte_tail: search_clause cycle_clause %node common_table ;
search_clause { NODE; }: T__SEARCH (T__DEPTH | T__BREADTH) T__FIRST T__BY column_name_list T__SET column_name ;
cycle_clause { NODE; }
    : T__CYCLE column_name_list T__SET column_name (T__TO constant T__DEFAULT constant)? T__USING column_name ;

preparable_statement: ruled_statement | merge_statement ;
/* What a rule may do as well. */
ruled_statement: query | insert_statement | update_statement | delete_statement ;
