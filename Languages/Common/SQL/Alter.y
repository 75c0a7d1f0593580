/* ALTER TABLE.
   A dialect defines alter_action_list (a list of alter_action, with commas or without), and adds to altered_table,
   alter_action, added_column and column_action. */

alter_table_statement { NODE; }: T__ALTER T__TABLE altered_table ;
altered_table { PART(alter_table_statement); }: if_exists? table alter_action_list ;
alter_action { PART; }
    : T__ADD T__COLUMN? added_column
    | T__ADD table_constraint
    | T__ALTER T__COLUMN? column_name column_action
    | T__DROP T__COLUMN? dropped_column
    | T__DROP T__CONSTRAINT dropped_constraint
    | T__RENAME T__TO new_name
    | T__RENAME T__COLUMN column_name T__TO new_name ;
added_column { PART(alter_action); }: if_not_exists? column_definition ;
dropped_column { PART(alter_action); }: if_exists? column_name drop_behavior? ;
dropped_constraint { PART(alter_action); }: if_exists? constraint_name drop_behavior? ;
column_action { NODE; }
    : T__SET T__DEFAULT expression
    | T__DROP T__DEFAULT
    | (T__SET | T__DROP) T__NOT T__NULL
    | type_change ;
type_change { NODE(column_action); }: T__SET T__DATA T__TYPE data_type ;
