/* Replication. */

create_publication
    : T__CREATE T__PUBLICATION column_name                                      { NODE; }
    | T__CREATE T__PUBLICATION column_name publication_content                  { NODE; }
    | T__CREATE T__PUBLICATION column_name T__WITH parenthesized_definitions    { NODE; }
    | T__CREATE T__PUBLICATION column_name publication_content T__WITH parenthesized_definitions
      { NODE; }
    ;
publication_content
    : T__FOR T__ALL T__TABLES                                                   { NODE; }
    | T__FOR publication_objects                                                { NODE; }
    ;
publication_objects
    : publication_object
    | publication_objects T__COMMA publication_object                           { NODE; }
    ;
publication_object
    : T__TABLE published_relation                                               { NODE; }
    | T__TABLES T__IN T__SCHEMA column_name                                     { NODE; }
    | T__TABLES T__IN T__SCHEMA T__CURRENT_SCHEMA                               { NODE; }
    | published_relation
    | T__CURRENT_SCHEMA
    ;
published_relation
    : relation
    | relation parenthesized_names                                              { NODE; }
    | relation T__WHERE T__LPAREN expression T__RPAREN                          { NODE; }
    | relation parenthesized_names T__WHERE T__LPAREN expression T__RPAREN      { NODE; }
    ;

create_subscription
    : T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list
      { NODE; }
    | T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { NODE; }
    ;
