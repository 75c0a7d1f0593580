/* Names. Each has an element of what it names, in which stands a sql_identifier or a qualified_sql_identifier.
   A dialect defines which words are names: identifier (of columns, tables and most objects), type_function_name,
   non_reserved_word, any_label (after a dot, after AS), bare_label (of a select item without AS). */

column_name, constraint_name, condition_name, cursor_name, database_name, savepoint_name, schema_name, server_name,
statement_name, tablespace_name, trigger_name, window_name, alias { NODE; }: identifier ;
table_name, view_name, sequence_name, index_name, domain_name, collation_name { NODE; }: identifier | dotted_name ;
function_name { NODE; }: type_function_name | dotted_name ;
role_name { NODE; }: non_reserved_word | T__CURRENT_USER ;
parameter_name { NODE; }: type_function_name ;
label_name { NODE; }: non_reserved_word ;
/* What an object will be called. */
new_name { NODE; }: identifier ;
/* A type where it is made or changed. */
defined_type_name { NODE(type_name); }: identifier | dotted_name ;

any_alias { NODE(alias); }: any_label ;
bare_alias { NODE(alias); }: bare_label ;
/* The name of a table that a statement makes for itself. */
table_name_alone { NODE(table_name); }: identifier ;

/* Names of several parts. */
dotted_name { NODE(qualified_sql_identifier); }: identifier T__DOT any_label | dotted_name T__DOT any_label ;
qualified_name: identifier | dotted_name ;
dotted_type_name { NODE(qualified_sql_identifier); }
    : type_function_name T__DOT any_label
    | dotted_type_name T__DOT any_label ;
qualified_column_name { NODE(column_name); }: identifier | dotted_name ;

%list column_name_list: column_name %separator T__COMMA ;
%list table_name_list: table_name %short %separator T__COMMA ;
%list view_name_list: view_name %short %separator T__COMMA ;
%list index_name_list: index_name %short %separator T__COMMA ;
%list sequence_name_list: sequence_name %short %separator T__COMMA ;
%list schema_name_list: schema_name %short %separator T__COMMA ;
%list database_name_list: database_name %short %separator T__COMMA ;
%list role_name_list: role_name %short %separator T__COMMA ;
%list name_list: identifier %short %separator T__COMMA ;

/* Columns in brackets. */
columns { NODE; }: T__LPAREN column_name_list T__RPAREN ;
