/* Locks and upkeep. */

lock_statement { NODE; }: T__LOCK locked_tables_part lock_mode? T__NOWAIT? ;
locked_tables_part { PART(lock_statement); }: T__TABLE? relation_list ;
truncated_tables { PART(truncate_statement); }: relation_list ;
lock_mode { NODE; }: T__IN lock_mode_words T__MODE ;
lock_mode_words { PART(lock_mode); }
    : T__ACCESS T__SHARE
    | T__ROW? T__SHARE
    | (T__ROW | T__ACCESS)? T__EXCLUSIVE
    | T__SHARE (T__UPDATE | T__ROW) T__EXCLUSIVE ;
truncate_statement { NODE; }: T__TRUNCATE truncated_tables truncate_tail ;
%parts truncate_tail: identity_restart drop_behavior %node truncate_statement ;
identity_restart { NODE; }: (T__CONTINUE | T__RESTART) T__IDENTITY ;
vacuum_statement { NODE; }: T__VACUUM (vacuum_words | utility_options)? vacuumed_table_list? ;
/* Each once, and in this order. */
%parts vacuum_words: T__FULL T__FREEZE T__VERBOSE analyze_word %node vacuum_statement ;
%list vacuumed_table_list: vacuumed_table %short %separator T__COMMA ;
vacuumed_table { NODE; }: table | table columns ;
analyze_statement { NODE; }: analyze_word (T__VERBOSE | utility_options)? vacuumed_table_list? ;
cluster_statement { NODE; }: T__CLUSTER (T__VERBOSE | utility_options)? clustered_relation? ;
clustered_relation { PART(cluster_statement); }
    : (index_name T__ON)? table_name
    | table_name T__USING index_name ;
reindex_statement { NODE; }: T__REINDEX utility_options? reindex_target ;
reindex_target { NODE(reindex_statement); }
    : T__INDEX T__CONCURRENTLY? index_name
    | T__TABLE T__CONCURRENTLY? table_name
    | T__SCHEMA T__CONCURRENTLY? schema_name
    | reindex_whole T__CONCURRENTLY? database_name? ;
/* What may go without its name. */
reindex_whole: T__SYSTEM | T__DATABASE ;
refresh_statement { NODE; }: T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY? view_name with_data? ;
