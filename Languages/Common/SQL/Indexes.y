/* CREATE INDEX.
   A dialect defines index_element (one of the indexed things in the brackets) and index_clause (what follows
   them), and adds to index_definition and index_columns. */

create_index_statement { NODE; }: T__CREATE T__UNIQUE? T__INDEX index_definition ;
new_index { PART(create_index_statement); }: if_not_exists? index_name ;
index_definition { PART(create_index_statement); }: new_index index_target ;
index_target { NODE(create_index_statement); }: T__ON table index_columns index_clause_list? ;
index_columns { NODE(create_index_statement); }: T__LPAREN index_element_list T__RPAREN ;
%list index_element_list: index_element %short %separator T__COMMA ;
index_direction { NODE(sort_direction); }: T__ASC | T__DESC ;
%list index_clause_list: index_clause %short ;
