/* TABLESAMPLE. */

table_reference { NODE; }: relation alias_part? tablesample ;
tablesample { NODE; }
    : T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN (T__REPEATABLE T__LPAREN expression
          T__RPAREN)? ;
