/* A script: its statements and what separates them.
   A dialect defines statement, and adds to script_part what stands between statements without being one, and to
   pl_sql_statement_delimiter. */

SQL_ROOT { NODE(SQL); }: %empty | pl_sql_statements ;

/* Statements come in chunks of chunks under one name, so that a long script doesn't become a deep chain. */
%list pl_sql_statements: script_part %last last_statement %deep ;

script_part: delimited ;

/* What stands after the last delimiter. A rule may end in an error where nothing but the end of the text follows:
   anywhere else the parser would raise the error again on the same token. */
last_statement { NODE(pl_sql_statement); }: pl_sql_statement  { PART; } | error ;

delimited { NODE(delimited_pl_sql_statement); }
    : pl_sql_statement? pl_sql_statement_delimiter
    | error pl_sql_statement_delimiter ;

pl_sql_statement_delimiter { NODE; }: T__SEMICOLON ;

pl_sql_statement { NODE; }: statement ;
