/* MERGE. A dialect adds to merge_core what may follow, and to merge_when and the actions what else they may say. */

merge_statement { PART; }: with_clause? merge_core ;
merge_core { NODE(merge_statement); }
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON condition merge_when_list ;
%list merge_when_list: merge_when %short ;
merge_when { NODE; }
    : T__WHEN T__MATCHED (T__AND condition)? T__THEN merge_matched_action
    | T__WHEN T__NOT T__MATCHED (T__AND condition)? T__THEN merge_insert_action ;
merge_matched_action { NODE; }: T__UPDATE T__SET set_list | T__DELETE ;
merge_insert_action { NODE; }: T__INSERT insert_columns? merge_values ;
merge_values { NODE; }: T__VALUES T__LPAREN expression_list T__RPAREN ;
