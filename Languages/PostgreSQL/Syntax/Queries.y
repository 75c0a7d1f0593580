/* What PostgreSQL adds to queries. */

distinct_clause { NODE; }: T__DISTINCT T__ON T__LPAREN expression_list T__RPAREN ;

into_clause { PART; }: T__INTO into_target ;
into_target { PART(into_clause); }: temporary? T__TABLE? table_name ;

sort_direction { NODE; }: T__USING any_operator | T__USING T__OPERATOR T__LPAREN any_operator T__RPAREN ;

limit_clause { NODE; }: offset_part? limit_part | limit_part? offset_part ;
limit_part { NODE; }: T__LIMIT expression | T__LIMIT T__ALL ;

locking_clause { NODE; }: locking_list | T__FOR T__READ T__ONLY ;
locking_strength { NODE; }: T__FOR T__NO T__KEY T__UPDATE | T__FOR T__KEY T__SHARE ;

with_clause { NODE; }: T__WITH_LA common_table_list ;
cte_body { NODE; }: T__AS T__NOT? T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN ;

preparable_statement: ruled_statement | merge_statement ;
/* What a rule may do as well. */
ruled_statement: query | insert_statement | update_statement | delete_statement ;
