/* Identifiers and names. */

other_identifier
    : T__QUOTED_IDENTIFIER
    | T__UNICODE_IDENTIFIER
    | T__CLIENT_VARIABLE
    | T__CLIENT_IDENTIFIER
    ;

/* A word that no statement knows. */
plain_identifier
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    ;

/* Names of columns, tables and most objects. */
column_name
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    ;

/* Names of functions and types. */
type_function_name
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

non_reserved_word
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

/* Any word at all: after a dot, after AS. */
any_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    | reserved_keyword                                                          { NODE(sql_identifier); }
    ;

/* Words that name a select item without AS. */
bare_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | bare_label_keyword                                                        { NODE(sql_identifier); }
    ;

dotted_name
    : column_name T__DOT any_label                                              { NODE(qualified_sql_identifier); }
    | dotted_name T__DOT any_label                                              { NODE(qualified_sql_identifier); }
    ;

qualified_name
    : column_name
    | dotted_name
    ;

function_name
    : type_function_name
    | dotted_name
    ;

dotted_type_name
    : type_function_name T__DOT any_label                                       { NODE(qualified_sql_identifier); }
    | dotted_type_name T__DOT any_label                                         { NODE(qualified_sql_identifier); }
    ;

%list name_list: column_name %separator T__COMMA ;

qualified_name_list
    : qualified_name                                                            { NODE; }
    | qualified_name_list T__COMMA qualified_name                               { NODE; }
    ;

parenthesized_names
    : T__LPAREN name_list T__RPAREN                                             { NODE; }
    ;
