/* CREATE VIEW. A dialect adds to view_definition and view_body. */

create_view_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? temporary? view_definition ;
view_definition { NODE(create_view_statement); }: T__VIEW view_name columns? view_body ;
view_body { NODE(create_view_statement); }: T__AS query check_option? ;
check_option { NODE; }: T__WITH (T__LOCAL | T__CASCADED)? T__CHECK T__OPTION ;
