/* Declarations of a block of PL/pgSQL. */

declare_clause
    : T__DECLARE                                                                { NODE; }
    | T__DECLARE declaration_list                                               { NODE; }
    | T__DECLARE error                                                          { NODE; }
    | T__DECLARE declaration_list error                                         { NODE; }
    ;
declaration_list
    : declaration                                                               { NODE; }
    | declaration_list declaration                                              { NODE; }
    ;
declaration
    : variable_declaration pl_sql_statement_delimiter                           { NODE; }
    | alias_declaration pl_sql_statement_delimiter                              { NODE; }
    | cursor_declaration pl_sql_statement_delimiter                             { NODE; }
    | error pl_sql_statement_delimiter                                          { NODE; }
    ;

variable_declaration
    : declared_name declared_type                                               { NODE; }
    | declared_name declared_type declared_value                                { NODE; }
    | declared_name T__CONSTANT declared_type                                   { NODE; }
    | declared_name T__CONSTANT declared_type declared_value                    { NODE; }
    ;
declared_name
    : identifier                                                                { NODE(variable_name); }
    | variable_word                                                             { NODE(variable_name); }
    ;
variable_word
    : variable_keyword                                                          { NODE(sql_identifier); }
    ;
declared_type
    : variable_type
    | variable_type T__COLLATE collation_name                                   { NODE(variable_declaration); }
    ;
variable_type
    : data_type
    | copied_type                                                               { NODE(data_type); }
    | copied_type array_bounds                                                  { NODE(data_type); }
    | copied_type T__ARRAY                                                      { NODE(data_type); }
    ;
/* The type of another variable, or of a column or row. */
copied_type
    : type_name T__PERCENT T__TYPE                                              { NODE(data_type); }
    | type_name T__PERCENT T__ROWTYPE                                           { NODE(data_type); }
    ;
declared_value
    : default_value
    | T__NOT T__NULL default_value                                              { NODE(variable_declaration); }
    ;
default_value
    : assignment_operator value                                                 { NODE; }
    | T__DEFAULT value                                                          { NODE; }
    ;
assignment_operator
    : T__COLON_EQUAL
    | T__EQUAL
    ;

alias_declaration
    : declared_name T__ALIAS T__FOR variable                                    { NODE; }
    ;

cursor_declaration
    : declared_name cursor_word cursor_is query                                 { NODE; }
    | declared_name cursor_scroll cursor_word cursor_is query                   { NODE; }
    | declared_name T__CURSOR_LA cursor_parameters cursor_is query              { NODE; }
    | declared_name cursor_scroll T__CURSOR_LA cursor_parameters cursor_is query  { NODE; }
    ;
cursor_word
    : T__CURSOR
    ;
cursor_scroll
    : T__SCROLL                                                                 { NODE(cursor_option); }
    | T__NO T__SCROLL                                                           { NODE(cursor_option); }
    ;
cursor_is
    : T__FOR
    | T__IS
    ;
cursor_parameters
    : T__LPAREN cursor_parameter_list T__RPAREN                                 { NODE(parameters); }
    ;
cursor_parameter_list
    : cursor_parameter                                                          { NODE(parameter_list); }
    | cursor_parameter_list T__COMMA cursor_parameter                           { NODE(parameter_list); }
    ;
cursor_parameter
    : cursor_parameter_name variable_type                                       { NODE(parameter); }
    ;
cursor_parameter_name
    : identifier                                                                { NODE(parameter_name); }
    | variable_word                                                             { NODE(parameter_name); }
    ;

/* A variable, its element or field, where one is given a value. */
variable
    : plain_variable
    | identifier subscript                                                      { NODE(variable_name); }
    | identifier subscript indirection                                          { NODE(variable_name); }
    | dotted_name subscript                                                     { NODE(variable_name); }
    | dotted_name subscript indirection                                         { NODE(variable_name); }
    | T__PARAMETER_NUMBER indirection                                           { NODE(variable_name); }
    ;
/* A whole variable. */
plain_variable
    : identifier                                                                { NODE(variable_name); }
    | variable_word                                                             { NODE(variable_name); }
    | dotted_name                                                               { NODE(variable_name); }
    | T__PARAMETER_NUMBER                                                       { NODE(variable_name); }
    ;
plain_variable_list
    : plain_variable                                                            { NODE(variable_list); }
    | plain_variable_list T__COMMA plain_variable                               { NODE(variable_list); }
    ;
variable_list
    : variable                                                                  { NODE; }
    | variable_list T__COMMA variable                                           { NODE; }
    ;
into_variables
    : T__INTO_VARIABLES variable_list                                           { NODE(into_clause); }
    | T__INTO_LA T__STRICT variable_list                                        { NODE(into_clause); }
    ;

/* Values without brackets around them. In a list of its own, so that within brackets a delimiter stays an error where it
   stands. */
value_list
    : expression                                                                { NODE(expression_list); }
    | value_list T__COMMA expression                                            { NODE(expression_list); }
    ;

/* A value may be a whole query without its first word. */
value
    : expression
    | one_column_query                                                          { NODE(select_statement); }
    ;
one_column_query
    : one_column clauses_from_from                                              { NODE(select_statement); }
    | one_column clauses_from_from select_tail                                  { NODE(select_statement); }
    | one_column select_tail                                                    { NODE(select_statement); }
    ;
one_column
    : value_item                                                                { NODE(select_list); }
    ;
value_item
    : expression                                                                { NODE(select_item); }
    ;
/* What is true or not. */
tested
    : value                                                                     { NODE(condition); }
    ;
/* Up to a delimiter it may have several columns, or none. */
value_or_query
    : value
    | value_columns                                                             { NODE(select_statement); }
    | value_columns clauses_from_from                                           { NODE(select_statement); }
    | value_columns select_tail                                                 { NODE(select_statement); }
    | value_columns clauses_from_from select_tail                               { NODE(select_statement); }
    | clauses_from_from                                                         { NODE(select_statement); }
    | clauses_from_from select_tail                                             { NODE(select_statement); }
    ;
value_columns
    : every_item                                                                { NODE(select_list); }
    | every_item T__COMMA select_list                                           { NODE(select_list); }
    | value_item T__COMMA select_list                                           { NODE(select_list); }
    | distinct_clause select_list                                               { NODE(select_statement); }
    ;
every_item
    : every_column                                                              { NODE(select_item); }
    ;
