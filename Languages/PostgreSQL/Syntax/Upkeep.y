/* Locks and upkeep. */

lock_statement
    : T__LOCK locked_tables_part                                                { NODE; }
    | T__LOCK locked_tables_part T__NOWAIT                                      { NODE; }
    | T__LOCK locked_tables_part lock_mode                                      { NODE; }
    | T__LOCK locked_tables_part lock_mode T__NOWAIT                            { NODE; }
    ;
locked_tables_part
    : relation_list
    | T__TABLE relation_list                                                    { NODE(lock_statement); }
    ;
truncated_tables
    : relation_list
    | T__TABLE relation_list                                                    { NODE(truncate_statement); }
    ;
lock_mode
    : T__IN lock_mode_words T__MODE                                             { NODE; }
    ;
lock_mode_words
    : T__ACCESS T__SHARE                                                        { NODE(lock_mode); }
    | T__ROW T__SHARE                                                           { NODE(lock_mode); }
    | T__ROW T__EXCLUSIVE                                                       { NODE(lock_mode); }
    | T__SHARE T__UPDATE T__EXCLUSIVE                                           { NODE(lock_mode); }
    | T__SHARE
    | T__SHARE T__ROW T__EXCLUSIVE                                              { NODE(lock_mode); }
    | T__EXCLUSIVE
    | T__ACCESS T__EXCLUSIVE                                                    { NODE(lock_mode); }
    ;
truncate_statement
    : T__TRUNCATE truncated_tables                                              { NODE; }
    | T__TRUNCATE truncated_tables truncate_tail                                { NODE; }
    ;
truncate_tail
    : identity_restart
    | drop_behavior
    | identity_restart drop_behavior                                            { NODE(truncate_statement); }
    ;
identity_restart
    : T__CONTINUE T__IDENTITY                                                   { NODE; }
    | T__RESTART T__IDENTITY                                                    { NODE; }
    ;
vacuum_statement
    : T__VACUUM                                                                 { NODE; }
    | T__VACUUM vacuumed_table_list                                             { NODE; }
    | T__VACUUM vacuum_words                                                    { NODE; }
    | T__VACUUM vacuum_words vacuumed_table_list                                { NODE; }
    | T__VACUUM utility_options                                                 { NODE; }
    | T__VACUUM utility_options vacuumed_table_list                             { NODE; }
    ;
vacuum_words
    : vacuum_word
    | vacuum_words vacuum_word                                                  { NODE(vacuum_statement); }
    ;
vacuum_word
    : T__FULL
    | T__FREEZE
    | T__VERBOSE
    | analyze_word
    ;
vacuumed_table_list
    : vacuumed_table                                                            { NODE; }
    | vacuumed_table_list T__COMMA vacuumed_table                               { NODE; }
    ;
vacuumed_table
    : table                                                                     { NODE; }
    | table columns                                                             { NODE; }
    ;
analyze_statement
    : analyze_word                                                              { NODE; }
    | analyze_word vacuumed_table_list                                          { NODE; }
    | analyze_word T__VERBOSE                                                   { NODE; }
    | analyze_word T__VERBOSE vacuumed_table_list                               { NODE; }
    | analyze_word utility_options                                              { NODE; }
    | analyze_word utility_options vacuumed_table_list                          { NODE; }
    ;
cluster_statement
    : T__CLUSTER                                                                { NODE; }
    | T__CLUSTER T__VERBOSE                                                     { NODE; }
    | T__CLUSTER utility_options                                                { NODE; }
    | T__CLUSTER clustered_relation                                             { NODE; }
    | T__CLUSTER T__VERBOSE clustered_relation                                  { NODE; }
    | T__CLUSTER utility_options clustered_relation                             { NODE; }
    ;
clustered_relation
    : table_name
    | table_name T__USING index_name                                            { NODE(cluster_statement); }
    | index_name T__ON table_name                                               { NODE(cluster_statement); }
    ;
reindex_statement
    : T__REINDEX reindex_target                                                 { NODE; }
    | T__REINDEX utility_options reindex_target                                 { NODE; }
    ;
reindex_target
    : T__INDEX index_name                                                       { NODE(reindex_statement); }
    | T__INDEX T__CONCURRENTLY index_name                                       { NODE(reindex_statement); }
    | T__TABLE table_name                                                       { NODE(reindex_statement); }
    | T__TABLE T__CONCURRENTLY table_name                                       { NODE(reindex_statement); }
    | T__SCHEMA schema_name                                                     { NODE(reindex_statement); }
    | T__SCHEMA T__CONCURRENTLY schema_name                                     { NODE(reindex_statement); }
    | reindex_whole                                                             { NODE(reindex_statement); }
    | reindex_whole T__CONCURRENTLY                                             { NODE(reindex_statement); }
    | reindex_whole database_name                                               { NODE(reindex_statement); }
    | reindex_whole T__CONCURRENTLY database_name                               { NODE(reindex_statement); }
    ;
/* What may go without its name. */
reindex_whole
    : T__SYSTEM
    | T__DATABASE
    ;
refresh_statement
    : T__REFRESH T__MATERIALIZED T__VIEW view_name                              { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY view_name              { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW view_name with_data                    { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY view_name with_data
      { NODE; }
    ;
