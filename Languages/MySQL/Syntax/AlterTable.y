/* What MySQL adds to ALTER TABLE. */

alter_table_statement { NODE; }
    : T__ALTER alter_mode T__TABLE altered_table ;
%replace altered_table { PART(alter_table_statement); }: if_exists? whole_table (alter_action_list | waiting_part)? ;
waiting_part { PART(alter_table_statement); }: lock_wait alter_action_list? ;
alter_mode { NODE; }: T__ONLINE | T__ONLINE? T__IGNORE ;
/* An order is the last action, and how a table is cut is told without a comma. */
alter_action_list { NODE; }
    : plain_action_list (T__COMMA reordering)? repartition?
    | reordering repartition?
    | repartition | partition_action ;
%list plain_action_list: alter_action %short %separator T__COMMA %node alter_action_list ;
reordering { NODE(alter_action); }: sort_clause ;
repartition { NODE(alter_action); }: partition_by | T__REMOVE T__PARTITIONING ;

alter_action { NODE; }
    : T__ADD (table_index | period_definition | T__SYSTEM T__VERSIONING)
    | T__ALTER T__COLUMN? if_exists column_name column_action
    | T__ALTER key_word if_exists? index_name index_clause
    | T__ALTER (T__CHECK | T__CONSTRAINT) constraint_name enforcement
    | T__CHANGE T__COLUMN? changed_column
    | T__MODIFY T__COLUMN? modified_column
    | T__DROP T__PRIMARY T__KEY
    | T__DROP key_word if_exists? index_name
    | T__DROP T__FOREIGN T__KEY if_exists? foreign_key_name
    | T__DROP T__CHECK constraint_name
    | T__DROP (period | T__SYSTEM T__VERSIONING)
    | T__RENAME (T__AS | T__EQUAL)? new_name
    | T__RENAME T__COLUMN if_exists column_name T__TO new_name
    | T__RENAME key_word if_exists? index_name T__TO new_name
    | T__CONVERT T__TO charset_option collate_clause?
    | (T__ENABLE | T__DISABLE) T__KEYS
    | tablespace_verb T__TABLESPACE
    | T__FORCE
    | validation | table_lock | table_option_run ;
added_column { PART(alter_action); }
    : if_not_exists? column_definition column_position
    | if_not_exists? T__LPAREN table_element_list T__RPAREN ;
changed_column { PART(alter_action); }: if_exists? column_name placed_column ;
modified_column { PART(alter_action); }: if_exists? placed_column ;
placed_column { PART(alter_action); }: column_definition column_position? ;
%list table_option_run: table_option %short %node table_option_list ;
foreign_key_name { NODE(constraint_name); }: qualified_name ;
column_position { NODE; }: T__FIRST | T__AFTER column_name ;
new_name { NODE; }: dotted_name ;
validation { NODE(validation_clause); }: (T__WITH | T__WITHOUT) T__VALIDATION ;
%without column_action: (T__SET | T__DROP) T__NOT T__NULL | type_change ;
column_action { NODE; }: T__SET (T__VISIBLE | T__INVISIBLE) ;

/* What stands alone, most of it about partitions. */
partition_action { NODE(alter_action); }
    : T__ADD T__PARTITION if_not_exists? unlogged? added_partitions
    | T__DROP T__PARTITION if_exists? partition_name_list
    | partition_verb T__PARTITION unlogged? partitions
    | check_verb T__PARTITION T__NO_WRITE_TO_BINLOG? partitions upkeep_option_list?
    | T__TRUNCATE T__PARTITION partitions
    | tablespace_verb T__PARTITION partitions T__TABLESPACE
    | quoted_or_plain T__PARTITION unlogged? T__INTEGER_NUMBER
    | T__REORGANIZE T__PARTITION T__NO_WRITE_TO_BINLOG? (partition_name_list T__INTO new_partitions)?
    | T__EXCHANGE T__PARTITION partition_name T__WITH T__TABLE table_name validation?
    | T__CONVERT T__PARTITION partition_name T__TO T__TABLE table_name
    | T__CONVERT T__TABLE table_name T__TO partition_definition
    | (T__SECONDARY_LOAD | T__SECONDARY_UNLOAD) partition_clause? ;
added_partitions { PART(alter_action); }: new_partitions | T__PARTITIONS T__INTEGER_NUMBER ;
partition_verb: T__ANALYZE | T__OPTIMIZE | T__REBUILD ;
check_verb: T__CHECK | T__REPAIR ;
tablespace_verb: T__DISCARD | T__IMPORT ;
partitions { PART(alter_action); }: T__ALL | partition_name_list ;
unlogged: T__NO_WRITE_TO_BINLOG | T__LOCAL ;

/* RENAME TABLE. */
rename_table_statement { NODE; }: T__RENAME tables_word if_exists? renamed_table_list ;
%list renamed_table_list: renamed_table %short %separator T__COMMA ;
renamed_table { NODE; }: table_name lock_wait? T__TO new_name ;
