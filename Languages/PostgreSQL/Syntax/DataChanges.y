/* What PostgreSQL adds to INSERT, UPDATE, DELETE and MERGE. */

target_column { NODE; }: column_name indirection ;
conflict_clause { NODE; }: T__ON T__CONFLICT conflict_target? conflict_action ;
conflict_target { NODE; }
    : T__LPAREN index_element_list T__RPAREN where_clause?
    | T__ON T__CONSTRAINT constraint_name ;
conflict_action { NODE; }: T__DO T__NOTHING | T__DO T__UPDATE T__SET set_list where_clause? ;
returning_clause { NODE; }
    : T__RETURNING T__WITH T__LPAREN returning_alias_list T__RPAREN select_list into_variables?
    | T__RETURNING into_variables select_list ;
%list returning_alias_list: returning_alias %short %separator T__COMMA ;
returning_alias { NODE; }: old_or_new T__AS alias ;

%parts update_tail: from_clause dml_where returning_clause %node update_statement ;

%parts delete_tail: using_clause dml_where returning_clause %node delete_statement ;

merge_core { NODE(merge_statement); }
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON condition merge_when_list returning_clause
          ;
merge_when { NODE; }
    : T__WHEN T__NOT T__MATCHED T__BY T__TARGET (T__AND condition)? T__THEN merge_insert_action
    | T__WHEN T__NOT T__MATCHED T__BY T__SOURCE (T__AND condition)? T__THEN merge_matched_action ;
merge_matched_action { NODE; }: T__DO T__NOTHING ;
merge_insert_action { NODE; }
    : T__INSERT insert_columns? T__OVERRIDING overriding_kind T__VALUE merge_values
    | T__INSERT T__DEFAULT T__VALUES
    | T__DO T__NOTHING ;
