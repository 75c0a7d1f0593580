/* What stands in FROM.
   A dialect adds to table_reference what else rows come from, and to relation how it names a table. */

%list from_list: table_reference %short %separator T__COMMA ;

table_reference { NODE; }
    : relation (T__AS? alias columns?)?
    | subquery alias_part
    | joined_table
    | T__LPAREN joined_table T__RPAREN alias_part ;

relation: table_name ;
/* Where it gets no alias. */
table { NODE(table_reference); }: relation ;
%list relation_list: table %short %separator T__COMMA %node table_reference_list ;

alias_part { PART(table_reference); }
    : alias
    | T__AS? alias columns
    | T__AS alias ;

joined_table { NODE; }
    : T__LPAREN joined_table T__RPAREN
    | table_reference T__CROSS T__JOIN table_reference
    | table_reference join_type? T__JOIN table_reference join_condition
    | table_reference T__NATURAL join_type? T__JOIN table_reference ;
join_type { NODE; }: (T__FULL | T__LEFT | T__RIGHT) T__OUTER? | T__INNER ;
join_condition { NODE; }: T__ON condition | T__USING columns ;
