/* NULLS FIRST and NULLS LAST, where rows are sorted. */

sort_item { NODE; }: expression sort_direction? nulls_order ;
nulls_order { NODE; }: T__NULLS_LA (T__FIRST | T__LAST) ;
