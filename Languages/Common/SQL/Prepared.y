/* Calls of procedures, and statements that were prepared. What is prepared each dialect says in its own way. */

call_statement { NODE; }: T__CALL function_call ;
execute_statement { NODE; }: T__EXECUTE statement_name ;
deallocate_statement { NODE; }: T__DEALLOCATE T__PREPARE statement_name ;
