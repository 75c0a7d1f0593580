/* Replication. */

create_publication_statement { NODE; }
    : T__CREATE T__PUBLICATION publication_name publication_content? (T__WITH definitions)? ;
publication_content { NODE(create_publication_statement); }
    : T__FOR T__ALL T__TABLES
    | T__FOR publication_object_list ;
%list publication_object_list: publication_object %short %separator T__COMMA ;
publication_object { NODE; }
    : T__TABLE? published_table
    | T__TABLES T__IN T__SCHEMA (schema_name | T__CURRENT_SCHEMA)
    | T__CURRENT_SCHEMA ;
published_table { PART(publication_object); }
    : table
    | table columns
    | table columns? T__WHERE T__LPAREN condition T__RPAREN ;

create_subscription_statement { NODE; }
    : T__CREATE T__SUBSCRIPTION subscription_name T__CONNECTION string_literal T__PUBLICATION
          publication_name_list (T__WITH definitions)? ;
