/* SEARCH and CYCLE after a common table. */

common_table { NODE; }: table_name_alone columns? cte_body cte_tail ;
%parts cte_tail: search_clause cycle_clause %node common_table ;
search_clause { NODE; }: T__SEARCH (T__DEPTH | T__BREADTH) T__FIRST T__BY column_name_list T__SET column_name ;
cycle_clause { NODE; }
    : T__CYCLE column_name_list T__SET column_name (T__TO constant T__DEFAULT constant)? T__USING column_name ;
