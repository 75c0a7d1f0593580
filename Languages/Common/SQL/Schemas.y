/* CREATE SCHEMA. A dialect defines schema_element: the statements that may stand in it. */

create_schema_statement { NODE; }: T__CREATE T__SCHEMA schema_head schema_element_list? ;
new_schema { PART(create_schema_statement); }: if_not_exists? schema_name ;
schema_head { PART(create_schema_statement); }
    : new_schema
    | new_schema? T__AUTHORIZATION role_name
    | if_not_exists T__AUTHORIZATION role_name ;
%list schema_element_list: schema_element %short ;
