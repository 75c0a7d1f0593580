/* TABLE in the place of a SELECT: all of a table. */

other_select { PART(set_operation); }: T__TABLE table  { NODE(table_statement); } ;
