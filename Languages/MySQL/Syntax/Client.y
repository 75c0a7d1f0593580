/* What the client adds to a script: its commands, and delimiters of one's own. */

script_part
    : T__CLIENT_COMMAND  { NODE(client_command); }
    | delimiter_command
    | undelimited ;

delimiter_command { NODE(client_command); }: T__DELIMITER T__DELIMITER_TEXT ;

/* A change of the delimiter ends the statement before it. The two are items of the script's list. */
undelimited { NODE(pl_sql_statements); }
    : pl_sql_statement delimiter_command
    | error delimiter_command ;

/* A semicolon right before another delimiter ends the statement: would the two be one, an error after a semicolon would cost the
   statement before it. */
pl_sql_statement_delimiter { NODE; }
    : T__STATEMENT_DELIMITER
    | T__CLIENT_SEND ;
