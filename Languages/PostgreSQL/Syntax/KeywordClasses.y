/* Keyword classes. */

/* Words without meaning of their own outside of their statements: any name. */
unreserved_keyword
    : %words unreserved
    | T__WITHOUT_LA
    ;

/* Words that can't name a function or a type, since a construct of theirs looks like one. */
column_name_keyword
    : %words column_name
    ;

/* Words that name functions and types, and nothing else. */
type_function_name_keyword
    : %words type_function_name
    ;

reserved_keyword
    : %words reserved
    ;

bare_label_keyword
    : %words bare_label
    ;
