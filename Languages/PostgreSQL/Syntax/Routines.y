/* What PostgreSQL adds to routines, bodies in SQL, aggregates and operators. */

/* A type as functions take it, that of a column included. */
function_type { NODE(data_type); }: data_type  { PART; } | T__SETOF? column_type ;
/* The type that a column has. */
column_type { NODE; }: dotted_type_name T__PERCENT T__TYPE ;

parameter { PART; }: plain_parameter T__EQUAL expression ;
plain_parameter { NODE(parameter); }
    : function_type
    | parameter_name parameter_mode function_type
    | parameter_mode function_type ;
parameter_mode { NODE; }: T__IN T__OUT | T__VARIADIC ;
routine_item { NODE; }
    : T__AS string_literal (T__COMMA string_literal)?
    | T__AS quoted_body
    | T__TRANSFORM transform_type_list
    | T__WINDOW ;
returns_clause { NODE; }: T__RETURNS T__TABLE T__LPAREN returned_columns T__RPAREN ;
%list returned_columns: returned_column %short %separator T__COMMA %node column_definition_list ;
/* Such a column is a parameter as well, and takes what names one. */
returned_column { NODE(column_definition); }: returned_name function_type ;
returned_name { NODE(column_name); }: type_function_name ;
%list transform_type_list: transform_type %short %separator T__COMMA ;
transform_type { NODE; }: T__FOR T__TYPE data_type ;
%list routine_attribute_list: routine_attribute %short ;
routine_attribute { NODE; }
    : T__STRICT | T__IMMUTABLE | T__STABLE | T__VOLATILE
    | T__EXTERNAL? T__SECURITY (T__DEFINER | T__INVOKER)
    | T__NOT? T__LEAKPROOF
    | (T__COST | T__ROWS) signed_number
    | T__SUPPORT handler_name
    | T__SET set_item_more
    | T__RESET reset_target
    | T__PARALLEL identifier ;
routine_body { PART; }
    : return_statement
    | T__BEGIN T__ATOMIC body_pl_sql_statements? T__END
    | T__BEGIN T__ATOMIC error T__END
    | T__BEGIN T__ATOMIC body_pl_sql_statements error T__END
    | T__BEGIN T__ATOMIC error %prec LOWEST
    | T__BEGIN T__ATOMIC body_pl_sql_statements error %prec LOWEST
    | T__BEGIN T__ATOMIC open_routine_body %prec LOWEST ;
open_routine_body { NODE(body_pl_sql_statements); }: body_pl_sql_statements? open_body_statement ;
open_body_statement { NODE(delimited_pl_sql_statement); }: open_pl_sql_statement ;
open_pl_sql_statement { NODE(pl_sql_statement); }: open_routine ;
body_pl_sql_statements { NODE; }: body_pl_sql_statements? delimited_body_statement ;
delimited_body_statement { NODE(delimited_pl_sql_statement); }
    : body_statement? pl_sql_statement_delimiter
    | error pl_sql_statement_delimiter ;
body_statement { NODE(pl_sql_statement); }: statement | return_statement ;

keyword_routine { NODE(sql_identifier); }: type_function_name_keyword ;
routine_alone { NODE(function_name); }: keyword_routine ;
aggregate_signature { NODE; }: function_name aggregate_parameters ;
%list aggregate_signature_list: aggregate_signature %short %separator T__COMMA ;
aggregate_parameters { NODE(parameters); }
    : T__LPAREN T__ASTERISK T__RPAREN
    | T__LPAREN (plain_parameters? T__ORDER T__BY)? plain_parameters T__RPAREN ;
%list plain_parameters: plain_parameter %short %separator T__COMMA %node parameter_list ;
operator_signature { NODE; }: any_operator operator_operands ;
%list operator_signature_list: operator_signature %short %separator T__COMMA ;
operator_operands { NODE; }
    : T__LPAREN (data_type | T__NONE) T__COMMA data_type T__RPAREN
    | T__LPAREN data_type T__COMMA T__NONE T__RPAREN ;
