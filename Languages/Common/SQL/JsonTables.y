/* The columns of JSON_TABLE. A dialect defines json_table and json_column. */

json_columns { NODE; }: T__COLUMNS T__LPAREN json_column_list T__RPAREN ;
%list json_column_list: json_column %short %separator T__COMMA ;
