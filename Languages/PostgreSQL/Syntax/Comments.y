/* COMMENT, SECURITY LABEL. */

named_object
    : object_word qualified_name                                                { NODE; }
    | T__ROLE column_name                                                       { NODE; }
    | T__DATABASE column_name                                                   { NODE; }
    | T__TYPE type_name                                                         { NODE; }
    | T__DOMAIN type_name                                                       { NODE; }
    | T__AGGREGATE aggregate_signature                                          { NODE; }
    | any_routine_word routine_signature                                        { NODE; }
    | T__OPERATOR operator_signature                                            { NODE; }
    | T__OPERATOR T__CLASS qualified_name T__USING column_name                  { NODE; }
    | T__OPERATOR T__FAMILY qualified_name T__USING column_name                 { NODE; }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { NODE; }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { NODE; }
    ;
commented_object
    : named_object
    | T__COLUMN qualified_name                                                  { NODE; }
    | T__CONSTRAINT column_name T__ON qualified_name                            { NODE; }
    | T__CONSTRAINT column_name T__ON T__DOMAIN qualified_name                  { NODE; }
    | T__POLICY column_name T__ON qualified_name                                { NODE; }
    | T__RULE column_name T__ON qualified_name                                  { NODE; }
    | T__TRIGGER column_name T__ON qualified_name                               { NODE; }
    | T__LARGE T__OBJECT signed_number                                          { NODE; }
    ;
comment_statement
    : T__COMMENT T__ON commented_object T__IS string_literal                    { NODE; }
    | T__COMMENT T__ON commented_object T__IS T__NULL                           { NODE; }
    ;
security_label_statement
    : T__SECURITY T__LABEL T__ON commented_object T__IS security_label          { NODE; }
    | T__SECURITY T__LABEL T__FOR word_or_string T__ON commented_object T__IS security_label
      { NODE; }
    ;
security_label
    : string_literal
    | T__NULL
    ;
