/* COMMENT ON. A dialect adds to commented_object, and to named_object what is a thing by itself. */

comment_statement { NODE; }: T__COMMENT T__ON commented_object T__IS string_literal ;
commented_object { PART(named_object); }
    : named_object
    | T__COLUMN qualified_column_name ;
named_object { NODE; }
    : T__TABLE table_name
    | T__VIEW view_name
    | T__SEQUENCE sequence_name
    | T__INDEX index_name ;
