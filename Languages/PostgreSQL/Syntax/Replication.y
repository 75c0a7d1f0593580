/* Replication. */

create_publication_statement
    : T__CREATE T__PUBLICATION publication_name                                 { NODE; }
    | T__CREATE T__PUBLICATION publication_name publication_content             { NODE; }
    | T__CREATE T__PUBLICATION publication_name T__WITH definitions             { NODE; }
    | T__CREATE T__PUBLICATION publication_name publication_content T__WITH definitions
      { NODE; }
    ;
publication_content
    : T__FOR T__ALL T__TABLES
      { NODE(create_publication_statement); }
    | T__FOR publication_object_list
      { NODE(create_publication_statement); }
    ;
publication_object_list
    : publication_object                                                        { NODE; }
    | publication_object_list T__COMMA publication_object                       { NODE; }
    ;
publication_object
    : T__TABLE published_table                                                  { NODE; }
    | T__TABLES T__IN T__SCHEMA schema_name                                     { NODE; }
    | T__TABLES T__IN T__SCHEMA T__CURRENT_SCHEMA                               { NODE; }
    | published_table                                                           { NODE; }
    | T__CURRENT_SCHEMA                                                         { NODE; }
    ;
published_table
    : table
    | table columns                                                             { NODE(publication_object); }
    | table T__WHERE T__LPAREN condition T__RPAREN                              { NODE(publication_object); }
    | table columns T__WHERE T__LPAREN condition T__RPAREN                      { NODE(publication_object); }
    ;

create_subscription_statement
    : T__CREATE T__SUBSCRIPTION subscription_name T__CONNECTION string_literal T__PUBLICATION publication_name_list
      { NODE; }
    | T__CREATE T__SUBSCRIPTION subscription_name T__CONNECTION string_literal T__PUBLICATION publication_name_list T__WITH
      definitions                                                 { NODE; }
    ;
