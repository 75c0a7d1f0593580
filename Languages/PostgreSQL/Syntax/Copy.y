/* COPY. */

copy_statement
    : T__COPY copied_table copy_direction copy_place                            { NODE; }
    | T__COPY copied_table copy_direction copy_place copy_clauses               { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place         { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place copy_clauses
      { NODE; }
    ;
copied_table
    : qualified_name
    | qualified_name parenthesized_names                                        { NODE; }
    | T__BINARY qualified_name                                                  { NODE; }
    | T__BINARY qualified_name parenthesized_names                              { NODE; }
    ;
copy_direction
    : T__FROM
    | T__TO
    ;
copy_place
    : string_literal
    | T__PROGRAM string_literal                                                 { NODE; }
    | T__STDIN
    | T__STDOUT
    ;
copy_clauses
    : copy_delimiters
    | copy_with
    | where_clause
    | copy_delimiters copy_with                                                 { NODE; }
    | copy_delimiters where_clause                                              { NODE; }
    | copy_with where_clause                                                    { NODE; }
    | copy_delimiters copy_with where_clause                                    { NODE; }
    ;
copy_delimiters
    : T__DELIMITERS string_literal                                              { NODE; }
    | T__USING T__DELIMITERS string_literal                                     { NODE; }
    ;
copy_with
    : copy_options
    | T__WITH copy_options                                                      { NODE; }
    | T__WITH                                                                   { NODE; }
    ;
copy_options
    : copy_option_list
    | T__LPAREN copy_generic_list T__RPAREN                                     { NODE; }
    ;
copy_option_list
    : copy_option
    | copy_option_list copy_option                                              { NODE; }
    ;
copy_option
    : T__BINARY
    | T__FREEZE
    | T__DELIMITER string_literal                                               { NODE; }
    | T__DELIMITER T__AS string_literal                                         { NODE; }
    | T__NULL string_literal                                                    { NODE; }
    | T__NULL T__AS string_literal                                              { NODE; }
    | T__CSV
    | T__HEADER
    | T__QUOTE string_literal                                                   { NODE; }
    | T__QUOTE T__AS string_literal                                             { NODE; }
    | T__ESCAPE string_literal                                                  { NODE; }
    | T__ESCAPE T__AS string_literal                                            { NODE; }
    | T__FORCE T__QUOTE name_list                                               { NODE; }
    | T__FORCE T__QUOTE T__ASTERISK                                             { NODE; }
    | T__FORCE T__NOT T__NULL name_list                                         { NODE; }
    | T__FORCE T__NOT T__NULL T__ASTERISK                                       { NODE; }
    | T__FORCE T__NULL name_list                                                { NODE; }
    | T__FORCE T__NULL T__ASTERISK                                              { NODE; }
    | T__ENCODING string_literal                                                { NODE; }
    ;
copy_generic_list
    : copy_generic_option
    | copy_generic_list T__COMMA copy_generic_option                            { NODE; }
    ;
copy_generic_option
    : any_label
    | any_label copy_generic_value                                              { NODE; }
    ;
copy_generic_value
    : option_text
    | signed_number
    | T__ASTERISK
    | T__LPAREN copy_value_list T__RPAREN                                       { NODE; }
    ;
copy_value_list
    : option_text
    | copy_value_list T__COMMA option_text                                      { NODE; }
    ;
