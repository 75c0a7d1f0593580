/* FOR UPDATE and FOR SHARE at the end of a query: a locking_list, of which the dialect makes its locking_clause. */

%list locking_list: locking_item %short ;
locking_item { NODE; }: locking_strength locked_tables? locking_wait? ;
locking_strength { NODE; }: T__FOR (T__UPDATE | T__SHARE) ;
locked_tables { NODE; }: T__OF table_name_list ;
locking_wait { NODE; }: T__NOWAIT | T__SKIP T__LOCKED ;
