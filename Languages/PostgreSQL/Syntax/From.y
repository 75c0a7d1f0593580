/* What stands in FROM. */

from_list
    : table_reference                                                           { NODE; }
    | from_list T__COMMA table_reference                                        { NODE; }
    ;

table_reference
    : relation                                                                  { NODE; }
    | relation alias                                                            { NODE; }
    | relation alias columns                                                    { NODE; }
    | relation T__AS alias                                                      { NODE; }
    | relation T__AS alias columns                                              { NODE; }
    | relation tablesample                                                      { NODE; }
    | relation alias_part tablesample                                           { NODE; }
    | function_table                                                            { NODE; }
    | function_table function_alias                                             { NODE; }
    | T__LATERAL function_table                                                 { NODE; }
    | T__LATERAL function_table function_alias                                  { NODE; }
    | xml_table                                                                 { NODE; }
    | xml_table alias_part                                                      { NODE; }
    | T__LATERAL xml_table                                                      { NODE; }
    | T__LATERAL xml_table alias_part                                           { NODE; }
    | json_table                                                                { NODE; }
    | json_table alias_part                                                     { NODE; }
    | T__LATERAL json_table                                                     { NODE; }
    | T__LATERAL json_table alias_part                                          { NODE; }
    | subquery                                                                  { NODE; }
    | subquery alias_part                                                       { NODE; }
    | T__LATERAL subquery                                                       { NODE; }
    | T__LATERAL subquery alias_part                                            { NODE; }
    | joined_table                                                              { NODE; }
    | T__LPAREN joined_table T__RPAREN alias_part                               { NODE; }
    ;

relation
    : table_name
    | table_name T__ASTERISK                                                    { NODE(table_reference); }
    | T__ONLY table_name                                                        { NODE(table_reference); }
    | T__ONLY T__LPAREN table_name T__RPAREN                                    { NODE(table_reference); }
    ;
/* Where it gets no alias. */
table
    : relation                                                                  { NODE(table_reference); }
    ;

alias_part
    : alias
    | alias columns                                                             { NODE(table_reference); }
    | T__AS alias                                                               { NODE(table_reference); }
    | T__AS alias columns                                                       { NODE(table_reference); }
    ;

function_alias
    : alias_part
    | T__AS T__LPAREN column_definition_list T__RPAREN                          { NODE(table_reference); }
    | T__AS alias T__LPAREN column_definition_list T__RPAREN                    { NODE(table_reference); }
    | alias T__LPAREN column_definition_list T__RPAREN                          { NODE(table_reference); }
    ;
column_definition_list
    : plain_column_definition                                                   { NODE; }
    | column_definition_list T__COMMA plain_column_definition                   { NODE; }
    ;
/* A column of a row that has no table: a name and a type. */
plain_column_definition
    : column_name data_type                                                     { NODE(column_definition); }
    | column_name data_type T__COLLATE collation_name                           { NODE(column_definition); }
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
    : plain_function                                                            { NODE; }
    | plain_function T__WITH_LA T__ORDINALITY                                   { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN                        { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN T__WITH_LA T__ORDINALITY  { NODE; }
    ;
rows_from_list
    : rows_from_item                                                            { NODE; }
    | rows_from_list T__COMMA rows_from_item                                    { NODE; }
    ;
rows_from_item
    : plain_function                                                            { NODE; }
    | plain_function T__AS T__LPAREN column_definition_list T__RPAREN           { NODE; }
    ;

joined_table
    : T__LPAREN joined_table T__RPAREN                                          { NODE; }
    | table_reference T__CROSS T__JOIN table_reference                          { NODE; }
    | table_reference T__JOIN table_reference join_condition                    { NODE; }
    | table_reference join_type T__JOIN table_reference join_condition          { NODE; }
    | table_reference T__NATURAL T__JOIN table_reference                        { NODE; }
    | table_reference T__NATURAL join_type T__JOIN table_reference              { NODE; }
    ;
join_type
    : T__FULL                                                                   { NODE; }
    | T__FULL T__OUTER                                                          { NODE; }
    | T__LEFT                                                                   { NODE; }
    | T__LEFT T__OUTER                                                          { NODE; }
    | T__RIGHT                                                                  { NODE; }
    | T__RIGHT T__OUTER                                                         { NODE; }
    | T__INNER                                                                  { NODE; }
    ;
join_condition
    : T__ON condition                                                           { NODE; }
    | T__USING columns                                                          { NODE; }
    | T__USING columns T__AS alias                                              { NODE; }
    ;

xml_table
    : T__XMLTABLE T__LPAREN primary xml_passing T__COLUMNS xml_column_list T__RPAREN  { NODE; }
    | T__XMLTABLE T__LPAREN T__XMLNAMESPACES T__LPAREN xml_namespace_list T__RPAREN T__COMMA primary xml_passing
      T__COLUMNS xml_column_list T__RPAREN                                    { NODE; }
    ;
xml_column_list
    : xml_column                                                                { NODE; }
    | xml_column_list T__COMMA xml_column                                       { NODE; }
    ;
xml_column
    : column_name data_type                                                     { NODE; }
    | column_name data_type xml_column_option_list                              { NODE; }
    | column_name T__FOR T__ORDINALITY                                          { NODE; }
    ;
xml_column_option_list
    : xml_column_option                                                         { NODE; }
    | xml_column_option_list xml_column_option                                  { NODE; }
    ;
xml_column_option
    : xml_column_word restricted_expression                                     { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    | T__NOT T__NULL                                                            { NODE; }
    | T__NULL                                                                   { NODE; }
    ;
xml_column_word
    : plain_identifier
    | T__PATH                                                                   { NODE(sql_identifier); }
    ;
xml_namespace_list
    : xml_namespace                                                             { NODE; }
    | xml_namespace_list T__COMMA xml_namespace                                 { NODE; }
    ;
xml_namespace
    : restricted_expression T__AS any_alias                                     { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    ;
