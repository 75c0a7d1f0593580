/* LATERAL: a query in FROM that sees what stands before it. */

table_reference { NODE; }: T__LATERAL subquery alias_part ;
