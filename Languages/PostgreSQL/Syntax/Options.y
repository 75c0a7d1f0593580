/* Options, and what PostgreSQL adds to indexes, views and sequences. */

options { NODE; }: T__LPAREN option_list T__RPAREN ;
%list option_list: relation_option %short %separator T__COMMA ;
relation_option { NODE(option); }: qualified_option_name (T__EQUAL definition_value)? ;
option_name { NODE; }: any_label ;
qualified_option_name { NODE(option_name); }: any_label | dotted_option_name ;
dotted_option_name { NODE(qualified_sql_identifier); }: any_label T__DOT any_label ;

definitions { NODE(options); }: T__LPAREN definition_list T__RPAREN ;
%list definition_list: definition_item %short %separator T__COMMA %node option_list ;
definition_item { NODE(option); }: option_name (T__EQUAL definition_value)? ;
definition_value { PART; }
    : function_type | reserved_keyword | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN
    | signed_number | string_literal | T__NONE ;

/* A type as functions take it, that of a column included. */
function_type { NODE(data_type); }: data_type  { PART; } | T__SETOF? column_type ;
/* The type that a column has. */
column_type { NODE; }: dotted_type_name T__PERCENT T__TYPE ;

generic_options { NODE(options_clause); }: T__OPTIONS T__LPAREN generic_option_list T__RPAREN ;
%list generic_option_list: generic_option %short %separator T__COMMA %node option_list ;
generic_option { NODE(option); }: option_name string_literal ;

sequence_option { NODE; }: T__OWNED T__BY qualified_column_name | T__SEQUENCE T__NAME sequence_name ;

create_foreign_table_statement { NODE; }
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER server_name generic_options? ;
new_foreign_table { PART(create_foreign_table_statement); }: if_not_exists? table_name ;
foreign_table_definition { NODE(create_foreign_table_statement); }
    : new_foreign_table T__LPAREN table_element_list? T__RPAREN inherits_clause?
    | new_foreign_table T__PARTITION T__OF table_name (T__LPAREN typed_element_list T__RPAREN)? partition_bound
          ;
inherits_clause { NODE; }: T__INHERITS T__LPAREN table_name_list T__RPAREN ;

index_definition { PART(create_index_statement); }: index_target | T__CONCURRENTLY new_index? index_target ;
index_columns { NODE(create_index_statement); }
    : T__USING access_method_name T__LPAREN index_element_list T__RPAREN ;
index_clause { NODE; }
    : T__INCLUDE T__LPAREN index_element_list T__RPAREN
    | nulls_distinct
    | T__WITH options
    | T__TABLESPACE tablespace_name
    | where_clause ;

view_definition { NODE(create_view_statement); }: T__RECURSIVE T__VIEW view_name columns view_body ;
view_body { NODE(create_view_statement); }: T__WITH options T__AS query check_option? ;

create_materialized_view_statement { NODE; }
    : T__CREATE T__UNLOGGED? T__MATERIALIZED T__VIEW materialized_definition ;
new_view { PART(create_materialized_view_statement); }: if_not_exists? view_name ;
materialized_definition { NODE(create_materialized_view_statement); }
    : new_view columns? materialized_option_list? as_query ;
%list materialized_option_list: materialized_option %short %node table_option_list ;
materialized_option { NODE(table_option); }
    : T__USING access_method_name
    | T__WITH options
    | T__TABLESPACE tablespace_name ;
