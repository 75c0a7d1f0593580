/* What PostgreSQL adds to indexes, and what they hold. */

index_definition { PART(create_index_statement); }: index_target | T__CONCURRENTLY new_index? index_target ;
index_columns { NODE(create_index_statement); }
    : T__USING access_method_name T__LPAREN index_element_list T__RPAREN ;
index_clause { NODE; }
    : T__INCLUDE T__LPAREN index_element_list T__RPAREN
    | nulls_distinct
    | T__WITH options
    | T__TABLESPACE tablespace_name
    | where_clause ;

index_element { NODE; }: index_key index_element_options? ;
index_key { PART(expression); }
    : column_name | plain_function
    | T__LPAREN expression T__RPAREN ;
%parts index_element_options: collate_clause index_class_part %node index_element ;
index_class_part { PART(index_element); }: operator_class_name options? index_order_part? | index_order_part ;
%parts index_order_part: index_direction nulls_order %node index_element ;
