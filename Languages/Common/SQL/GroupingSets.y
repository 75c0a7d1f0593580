/* Groups of several kinds at once: CUBE, ROLLUP, GROUPING SETS. */

group_item { NODE; }
    : (T__CUBE | T__ROLLUP) T__LPAREN expression_list T__RPAREN
    | T__GROUPING T__SETS T__LPAREN group_list T__RPAREN ;
