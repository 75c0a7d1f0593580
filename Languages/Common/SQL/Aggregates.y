/* WITHIN GROUP and FILTER after a function that takes many rows. */

function_suffix { PART(function_call); }
    : within_group over_clause?
    | within_group? filter_clause over_clause? ;
within_group { NODE; }: T__WITHIN T__GROUP T__LPAREN sort_clause T__RPAREN ;
filter_clause { NODE; }: T__FILTER T__LPAREN T__WHERE condition T__RPAREN ;
