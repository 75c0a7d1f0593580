/* RETURNING, a clause for the tails of INSERT, UPDATE and DELETE. */

returning_clause { NODE; }: T__RETURNING select_list into_variables? ;
