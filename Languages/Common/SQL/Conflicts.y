/* What an INSERT does where a row with the same key is there: the insert_tail. A dialect defines conflict_clause. */

%parts insert_tail: conflict_clause returning_clause %node insert_statement ;
