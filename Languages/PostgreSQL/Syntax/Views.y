/* What PostgreSQL adds to views, and materialized views. */

view_definition { NODE(create_view_statement); }: T__RECURSIVE T__VIEW view_name columns view_body ;
view_body { NODE(create_view_statement); }: T__WITH options T__AS query check_option? ;
create_materialized_view_statement { NODE; }
    : T__CREATE T__UNLOGGED? T__MATERIALIZED T__VIEW materialized_definition ;
new_view { PART(create_materialized_view_statement); }: if_not_exists? view_name ;
materialized_definition { NODE(create_materialized_view_statement); }
    : new_view columns? materialized_option_list? as_query ;
%list materialized_option_list: materialized_option %short %node table_option_list ;
materialized_option { NODE(table_option); }
    : T__USING access_method_name
    | T__WITH options
    | T__TABLESPACE tablespace_name ;
