/* Marks after a constraint of a table. A dialect defines constraint_mark: Deferral.y, Enforcement.y and its own. */

table_constraint_body { NODE(table_constraint); }
    : T__CHECK T__LPAREN condition T__RPAREN constraint_attribute_list
    | T__FOREIGN T__KEY foreign_columns references_clause constraint_attribute_list ;
%list constraint_attribute_list: constraint_mark %short ;
