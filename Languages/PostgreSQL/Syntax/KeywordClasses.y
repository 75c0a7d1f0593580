/* Keyword classes. */

/* Words without meaning of their own outside of their statements: any name. */
unreserved_keyword
    : %words unreserved
    | T__WITHOUT_LA | T__ALIAS | T__ASSERT | T__CONSTANT | T__EXIT | T__FOREACH | T__OPEN | T__PERFORM
    | T__RAISE | T__WHILE ;

/* Words that can't name a function or a type, since a construct of theirs looks like one. */
column_name_keyword: %words column_name ;

/* Words that name functions and types, and nothing else. */
type_function_name_keyword: %words type_function_name ;

reserved_keyword: %words reserved ;

/* Words that name nothing in SQL, but variables of PL/pgSQL. */
variable_keyword: %words variable ;

bare_label_keyword: %words bare_label ;
