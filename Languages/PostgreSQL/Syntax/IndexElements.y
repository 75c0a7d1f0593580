/* Indexed things. */

index_element_list
    : index_element                                                             { NODE; }
    | index_element_list T__COMMA index_element                                 { NODE; }
    ;
index_element
    : index_key                                                                 { NODE; }
    | index_key index_element_options                                           { NODE; }
    ;
index_key
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { NODE(expression); }
    ;
index_element_options
    : collate_clause
    | collate_clause index_class_part                                           { NODE(index_element); }
    | index_class_part
    ;
index_class_part
    : operator_class_name
    | operator_class_name options                                               { NODE(index_element); }
    | operator_class_name index_order_part                                      { NODE(index_element); }
    | operator_class_name options index_order_part                              { NODE(index_element); }
    | index_order_part
    ;
index_order_part
    : index_direction
    | index_direction nulls_order                                               { NODE(index_element); }
    | nulls_order
    ;
index_direction
    : T__ASC                                                                    { NODE(sort_direction); }
    | T__DESC                                                                   { NODE(sort_direction); }
    ;
