/* OFFSET and FETCH FIRST: an offset_part and a limit_part, of which the dialect makes its limit_clause. */

limit_part { NODE; }: T__FETCH first_or_next fetch_count? row_or_rows only_or_ties ;
offset_part { NODE; }: T__OFFSET (expression | fetch_count row_or_rows) ;
fetch_count { PART; }
    : primary
    | T__PLUS number
    | T__MINUS number ;
first_or_next: T__FIRST | T__NEXT ;
row_or_rows: T__ROW | T__ROWS ;
only_or_ties { PART; }: T__ONLY | T__WITH T__TIES ;
