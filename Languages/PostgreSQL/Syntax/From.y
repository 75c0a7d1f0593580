/* What else PostgreSQL takes in FROM: functions, tables of XML and JSON, ONLY. */

table_reference { NODE; }
    : T__LATERAL? function_table function_alias?
    | subquery
    | T__LATERAL subquery
    | T__LATERAL? (xml_table | json_table) alias_part? ;

relation { PART(table_reference); }
    : T__ONLY table_name
    | table_name T__ASTERISK
    | T__ONLY T__LPAREN table_name T__RPAREN ;

function_alias { PART(table_reference); }
    : alias_part
    | T__AS alias? T__LPAREN column_definition_list T__RPAREN
    | alias T__LPAREN column_definition_list T__RPAREN ;
%list column_definition_list: plain_column_definition %short %separator T__COMMA ;
/* A column of a row that has no table: a name and a type. */
plain_column_definition { NODE(column_definition); }: column_name data_type (T__COLLATE collation_name)? ;

plain_function: function_call | special_value | special_function | json_aggregate | json_object_call ;
function_table { NODE; }
    : plain_function (T__WITH_LA T__ORDINALITY)?
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN (T__WITH_LA T__ORDINALITY)? ;
%list rows_from_list: rows_from_item %short %separator T__COMMA ;
rows_from_item { NODE; }: plain_function (T__AS T__LPAREN column_definition_list T__RPAREN)? ;

join_condition { NODE; }: T__USING columns T__AS alias ;

xml_table { NODE; }
    : T__XMLTABLE T__LPAREN (T__XMLNAMESPACES T__LPAREN xml_namespace_list T__RPAREN T__COMMA)? primary
          xml_passing T__COLUMNS xml_column_list T__RPAREN ;
%list xml_column_list: xml_column %short %separator T__COMMA ;
xml_column { NODE; }: column_name data_type xml_column_option_list? | column_name T__FOR T__ORDINALITY ;
%list xml_column_option_list: xml_column_option %short ;
xml_column_option { NODE; }
    : xml_column_word restricted_expression
    | T__DEFAULT restricted_expression
    | T__NOT? T__NULL ;
xml_column_word: plain_identifier | T__PATH  { NODE(sql_identifier); } ;
%list xml_namespace_list: xml_namespace %short %separator T__COMMA ;
xml_namespace { NODE; }: restricted_expression T__AS any_alias | T__DEFAULT restricted_expression ;
