/* Indexed things. */

index_elements
    : index_element
    | index_elements T__COMMA index_element                                     { NODE; }
    ;
index_element
    : index_key
    | index_key index_element_options                                           { NODE; }
    ;
index_key
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { NODE; }
    ;
index_element_options
    : T__COLLATE qualified_name                                                 { NODE; }
    | T__COLLATE qualified_name index_class_part                                { NODE; }
    | index_class_part
    ;
index_class_part
    : qualified_name
    | qualified_name relation_options                                           { NODE; }
    | qualified_name index_order_part                                           { NODE; }
    | qualified_name relation_options index_order_part                          { NODE; }
    | index_order_part
    ;
index_order_part
    : index_direction
    | index_direction nulls_order                                               { NODE; }
    | nulls_order
    ;
index_direction
    : T__ASC
    | T__DESC
    ;
