/* Calls, statements that were prepared, and what is asked about tables and statements. */

statement
    : call_statement | do_statement | prepare_statement | execute_statement | deallocate_statement
    | explain_statement | describe_statement | use_statement | help_statement ;
call_statement { NODE; }: T__CALL bare_call ;
bare_call { NODE(function_call); }: bare_name ;
bare_name { NODE(function_name); }: qualified_name ;
do_statement { NODE; }: T__DO expression_list ;

prepare_statement { NODE; }: T__PREPARE statement_name T__FROM expression ;
execute_statement { NODE; }
    : T__EXECUTE statement_name execute_using_clause
    | T__EXECUTE T__IMMEDIATE expression execute_using_clause? ;
execute_using_clause { NODE; }: T__USING expression_list ;
deallocate_statement { NODE; }: T__DROP T__PREPARE statement_name ;

explain_statement { NODE; }
    : describe_word explain_option? explained_statement
    | describe_word explain_format? T__FOR T__CONNECTION (T__INTEGER_NUMBER | variable)
    | T__ANALYZE explain_format explained_statement
    | T__ANALYZE explained_change
    | T__ANALYZE analyzed_query ;
describe_word: T__EXPLAIN | T__DESCRIBE | T__DESC ;
explain_option { NODE; }: T__EXTENDED | T__PARTITIONS | explain_format | T__ANALYZE explain_format? ;
explain_format { NODE(explain_option); }: T__FORMAT T__EQUAL (identifier | string_literal) ;
explained_statement: query | explained_change ;
/* Without TABLE, that begins with the names of tables there. */
analyzed_query { NODE(select_statement); }
    : plain_select select_tail?  { PART(select_statement); }
    | plain_union select_tail?
    | subquery
    | with_clause plain_select select_tail? ;
plain_union { NODE(set_operation); }: plain_select T__UNION set_quantifier? select_part %prec LOWEST ;
describe_statement { NODE; }: describe_word table (column_name | string_literal)? ;
use_statement { NODE; }: T__USE database_name ;
help_statement { NODE; }: T__HELP (string_literal | identifier)? ;
