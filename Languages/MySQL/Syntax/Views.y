/* What MySQL adds to views, and who something runs as. */

%without create_view_statement: T__CREATE (T__OR T__REPLACE)? temporary view_definition ;
view_definition { NODE(create_view_statement); }
    : T__VIEW checked_view columns? view_body
    | view_options T__VIEW (view_name | checked_view) columns? view_body ;
checked_view { PART(create_view_statement); }: if_not_exists view_name ;
%parts view_options: algorithm_clause definer_clause security_clause %node create_view_statement ;
algorithm_clause { NODE; }: T__ALGORITHM T__EQUAL (T__UNDEFINED | T__MERGE | T__TEMPTABLE) ;
definer_clause { NODE; }: T__DEFINER T__EQUAL role_name ;
security_clause { NODE; }: T__SQL T__SECURITY (T__DEFINER | T__INVOKER) ;

alter_view_statement { NODE; }: altered_view columns? view_body ;
altered_view { PART(alter_view_statement); }: T__ALTER view_options? T__VIEW if_exists? view_name ;

statement: create_view_statement | alter_view_statement ;
