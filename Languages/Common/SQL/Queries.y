/* Queries.
   A dialect defines limit_clause (how many rows), locking_clause, into_variables (what a query puts into
   variables) and preparable_statement (what a common table may be made by). It adds to other_select what may
   stand in the place of a SELECT, and to distinct_clause, group_item, sort_direction, with_clause and into_clause
   their further forms. */

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
    | select_part T__UNION set_quantifier? select_part %prec T__UNION
    | select_part T__EXCEPT set_quantifier? select_part %prec T__EXCEPT
    | select_part T__INTERSECT set_quantifier? select_part %prec T__INTERSECT  { NODE(intersect_operation); } ;

set_quantifier: T__ALL | T__DISTINCT ;

select_head { PART(select_statement); }: T__SELECT T__ALL? ;
distinct_head { NODE(select_statement); }: T__SELECT distinct_clause ;
distinct_clause { NODE; }: T__DISTINCT ;

%list select_list: select_item %separator T__COMMA ;

select_item { NODE; }: expression (bare_alias | T__AS any_alias)? | every_column ;
every_column { NODE(all_columns); }: T__ASTERISK ;

/* The clauses of a SELECT in their order, any of them left out. */
%parts select_clauses: into_clause clauses_after_into %node select_statement ;
%parts clauses_after_into: from_part where_part group_part having_part window_part %node select_statement ;

/* Where variables are given values within a query, they may follow any clause. */
from_part { PART(select_statement); }: from_clause into_variables? ;
where_part { PART(select_statement); }: where_clause into_variables? ;
group_part { PART(select_statement); }: group_clause into_variables? ;
having_part { PART(select_statement); }: having_clause into_variables? ;
window_part { PART(select_statement); }: window_clause into_variables? ;

into_clause: into_variables ;

from_clause { NODE; }: T__FROM from_list ;
where_clause { NODE; }: T__WHERE condition ;
group_clause { NODE; }: T__GROUP T__BY set_quantifier? group_list ;
having_clause { NODE; }: T__HAVING condition ;
window_clause { NODE; }: T__WINDOW window_list ;

%list group_list: group_item %short %separator T__COMMA ;
group_item { NODE; }: expression | T__LPAREN T__RPAREN ;

sort_clause { NODE; }: T__ORDER T__BY sort_list ;
%list sort_list: sort_item %short %separator T__COMMA ;
sort_item { NODE; }: expression sort_direction? ;
sort_direction { NODE; }: T__ASC | T__DESC ;

values_clause { NODE; }: T__VALUES values_list ;
%list values_list: values_row %separator T__COMMA ;

values_row { NODE; }: T__LPAREN expression_list T__RPAREN ;

with_clause { NODE; }: T__WITH T__RECURSIVE? common_table_list ;
%list common_table_list: common_table %short %separator T__COMMA ;
common_table { NODE; }: table_name_alone columns? cte_body ;
cte_body { NODE; }: T__AS T__LPAREN preparable_statement T__RPAREN ;
