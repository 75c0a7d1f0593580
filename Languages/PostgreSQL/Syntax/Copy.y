/* COPY. */

copy_statement
    : T__COPY copied_table copy_direction copy_place                            { NODE; }
    | T__COPY copied_table copy_direction copy_place copy_clauses               { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place         { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place copy_clauses
      { NODE; }
    ;
copied_table
    : table_name
    | table_name columns                                                        { NODE(copy_statement); }
    | T__BINARY table_name                                                      { NODE(copy_statement); }
    | T__BINARY table_name columns                                              { NODE(copy_statement); }
    ;
copy_direction
    : T__FROM
    | T__TO
    ;
copy_place
    : string_literal                                                            { NODE; }
    | T__PROGRAM string_literal                                                 { NODE; }
    | T__STDIN                                                                  { NODE; }
    | T__STDOUT                                                                 { NODE; }
    ;
copy_clauses
    : copy_delimiters
    | copy_with
    | where_clause
    | copy_delimiters copy_with                                                 { NODE(copy_statement); }
    | copy_delimiters where_clause                                              { NODE(copy_statement); }
    | copy_with where_clause                                                    { NODE(copy_statement); }
    | copy_delimiters copy_with where_clause                                    { NODE(copy_statement); }
    ;
copy_delimiters
    : T__DELIMITERS string_literal                                              { NODE(copy_statement); }
    | T__USING T__DELIMITERS string_literal                                     { NODE(copy_statement); }
    ;
copy_with
    : copy_options
    | T__WITH copy_options                                                      { NODE(copy_statement); }
    | T__WITH                                                                   { NODE(copy_statement); }
    ;
copy_options
    : copy_option_list
    | T__LPAREN copy_generic_list T__RPAREN                                     { NODE(copy_statement); }
    ;
copy_option_list
    : copy_option                                                               { NODE; }
    | copy_option_list copy_option                                              { NODE; }
    ;
copy_option
    : T__BINARY                                                                 { NODE; }
    | T__FREEZE                                                                 { NODE; }
    | T__DELIMITER string_literal                                               { NODE; }
    | T__DELIMITER T__AS string_literal                                         { NODE; }
    | T__NULL string_literal                                                    { NODE; }
    | T__NULL T__AS string_literal                                              { NODE; }
    | T__CSV                                                                    { NODE; }
    | T__HEADER                                                                 { NODE; }
    | T__QUOTE string_literal                                                   { NODE; }
    | T__QUOTE T__AS string_literal                                             { NODE; }
    | T__ESCAPE string_literal                                                  { NODE; }
    | T__ESCAPE T__AS string_literal                                            { NODE; }
    | T__FORCE T__QUOTE column_name_list                                        { NODE; }
    | T__FORCE T__QUOTE T__ASTERISK                                             { NODE; }
    | T__FORCE T__NOT T__NULL column_name_list                                  { NODE; }
    | T__FORCE T__NOT T__NULL T__ASTERISK                                       { NODE; }
    | T__FORCE T__NULL column_name_list                                         { NODE; }
    | T__FORCE T__NULL T__ASTERISK                                              { NODE; }
    | T__ENCODING string_literal                                                { NODE; }
    ;
copy_generic_list
    : copy_generic_option                                                       { NODE(option_list); }
    | copy_generic_list T__COMMA copy_generic_option                            { NODE(option_list); }
    ;
copy_generic_option
    : option_name                                                               { NODE(option); }
    | option_name copy_generic_value                                            { NODE(option); }
    ;
copy_generic_value
    : option_text
    | signed_number
    | T__ASTERISK
    | T__LPAREN option_value_list T__RPAREN                                     { NODE(option_values); }
    ;
option_value_list
    : option_text                                                               { NODE; }
    | option_value_list T__COMMA option_text                                    { NODE; }
    ;
