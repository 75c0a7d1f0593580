/* What stands in FROM. */

table_reference_list
    : table_reference
    | table_reference_list T__COMMA table_reference                             { NODE; }
    ;

table_reference
    : relation
    | relation alias                                                            { NODE; }
    | relation tablesample                                                      { NODE; }
    | relation alias tablesample                                                { NODE; }
    | function_table
    | function_table function_alias                                             { NODE; }
    | T__LATERAL function_table                                                 { NODE; }
    | T__LATERAL function_table function_alias                                  { NODE; }
    | xml_table
    | xml_table alias                                                           { NODE; }
    | T__LATERAL xml_table                                                      { NODE; }
    | T__LATERAL xml_table alias                                                { NODE; }
    | json_table
    | json_table alias                                                          { NODE; }
    | T__LATERAL json_table                                                     { NODE; }
    | T__LATERAL json_table alias                                               { NODE; }
    | subquery
    | subquery alias                                                            { NODE; }
    | T__LATERAL subquery                                                       { NODE; }
    | T__LATERAL subquery alias                                                 { NODE; }
    | joined_table
    | T__LPAREN joined_table T__RPAREN alias                                    { NODE; }
    ;

relation
    : qualified_name
    | qualified_name T__ASTERISK                                                { NODE; }
    | T__ONLY qualified_name                                                    { NODE; }
    | T__ONLY T__LPAREN qualified_name T__RPAREN                                { NODE; }
    ;

alias
    : column_name                                                               { NODE; }
    | column_name parenthesized_names                                           { NODE; }
    | T__AS column_name                                                         { NODE; }
    | T__AS column_name parenthesized_names                                     { NODE; }
    ;

function_alias
    : alias
    | T__AS T__LPAREN table_function_columns T__RPAREN                          { NODE; }
    | T__AS column_name T__LPAREN table_function_columns T__RPAREN              { NODE; }
    | column_name T__LPAREN table_function_columns T__RPAREN                    { NODE; }
    ;
table_function_columns
    : table_function_column
    | table_function_columns T__COMMA table_function_column                     { NODE; }
    ;
table_function_column
    : column_name type_name                                                     { NODE; }
    | column_name type_name T__COLLATE qualified_name                           { NODE; }
    ;

tablesample
    : T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN          { NODE; }
    | T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN T__REPEATABLE T__LPAREN expression
      T__RPAREN                                                                 { NODE; }
    ;

plain_function
    : function_call
    | special_value
    | special_function
    | json_aggregate
    | json_object_call
    ;
function_table
    : plain_function
    | plain_function T__WITH_LA T__ORDINALITY                                   { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN                        { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN T__WITH_LA T__ORDINALITY  { NODE; }
    ;
rows_from_list
    : rows_from_item
    | rows_from_list T__COMMA rows_from_item                                    { NODE; }
    ;
rows_from_item
    : plain_function
    | plain_function T__AS T__LPAREN table_function_columns T__RPAREN           { NODE; }
    ;

joined_table
    : T__LPAREN joined_table T__RPAREN                                          { NODE(parenthesized_join); }
    | table_reference T__CROSS T__JOIN table_reference                          { NODE; }
    | table_reference T__JOIN table_reference join_condition                    { NODE; }
    | table_reference join_type T__JOIN table_reference join_condition          { NODE; }
    | table_reference T__NATURAL T__JOIN table_reference                        { NODE; }
    | table_reference T__NATURAL join_type T__JOIN table_reference              { NODE; }
    ;
join_type
    : T__FULL
    | T__FULL T__OUTER                                                          { NODE; }
    | T__LEFT
    | T__LEFT T__OUTER                                                          { NODE; }
    | T__RIGHT
    | T__RIGHT T__OUTER                                                         { NODE; }
    | T__INNER
    ;
join_condition
    : T__ON expression                                                          { NODE; }
    | T__USING parenthesized_names                                              { NODE; }
    | T__USING parenthesized_names T__AS column_name                            { NODE; }
    ;

xml_table
    : T__XMLTABLE T__LPAREN primary xml_passing T__COLUMNS xml_table_columns T__RPAREN  { NODE; }
    | T__XMLTABLE T__LPAREN T__XMLNAMESPACES T__LPAREN xml_namespaces T__RPAREN T__COMMA primary xml_passing
      T__COLUMNS xml_table_columns T__RPAREN                                    { NODE; }
    ;
xml_table_columns
    : xml_table_column
    | xml_table_columns T__COMMA xml_table_column                               { NODE; }
    ;
xml_table_column
    : column_name type_name                                                     { NODE; }
    | column_name type_name xml_table_options                                   { NODE; }
    | column_name T__FOR T__ORDINALITY                                          { NODE; }
    ;
xml_table_options
    : xml_table_option
    | xml_table_options xml_table_option                                        { NODE; }
    ;
xml_table_option
    : xml_column_word restricted_expression                                     { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    | T__NOT T__NULL                                                            { NODE; }
    | T__NULL
    ;
xml_column_word
    : plain_identifier
    | T__PATH                                                                   { NODE(sql_identifier); }
    ;
xml_namespaces
    : xml_namespace
    | xml_namespaces T__COMMA xml_namespace                                     { NODE; }
    ;
xml_namespace
    : restricted_expression T__AS any_label                                     { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    ;
