/* What an index holds. */

index_element { NODE; }: index_key index_element_options? ;
index_key { PART(expression); }
    : column_name | plain_function
    | T__LPAREN expression T__RPAREN ;
%parts index_element_options: collate_clause index_class_part %node index_element ;
index_class_part { PART(index_element); }: operator_class_name options? index_order_part? | index_order_part ;
%parts index_order_part: index_direction nulls_order %node index_element ;
