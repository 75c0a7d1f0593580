/* Locks and upkeep. */

lock_statement
    : T__LOCK locked_relations                                                  { NODE; }
    | T__LOCK locked_relations T__NOWAIT                                        { NODE; }
    | T__LOCK locked_relations lock_mode                                        { NODE; }
    | T__LOCK locked_relations lock_mode T__NOWAIT                              { NODE; }
    ;
locked_relations
    : relation_list
    | T__TABLE relation_list                                                    { NODE; }
    ;
lock_mode
    : T__IN lock_mode_words T__MODE                                             { NODE; }
    ;
lock_mode_words
    : T__ACCESS T__SHARE                                                        { NODE; }
    | T__ROW T__SHARE                                                           { NODE; }
    | T__ROW T__EXCLUSIVE                                                       { NODE; }
    | T__SHARE T__UPDATE T__EXCLUSIVE                                           { NODE; }
    | T__SHARE
    | T__SHARE T__ROW T__EXCLUSIVE                                              { NODE; }
    | T__EXCLUSIVE
    | T__ACCESS T__EXCLUSIVE                                                    { NODE; }
    ;
truncate_statement
    : T__TRUNCATE locked_relations                                              { NODE; }
    | T__TRUNCATE locked_relations truncate_tail                                { NODE; }
    ;
truncate_tail
    : identity_restart
    | drop_behavior
    | identity_restart drop_behavior                                            { NODE; }
    ;
identity_restart
    : T__CONTINUE T__IDENTITY                                                   { NODE; }
    | T__RESTART T__IDENTITY                                                    { NODE; }
    ;
vacuum_statement
    : T__VACUUM
    | T__VACUUM vacuumed_relations                                              { NODE; }
    | T__VACUUM vacuum_words                                                    { NODE; }
    | T__VACUUM vacuum_words vacuumed_relations                                 { NODE; }
    | T__VACUUM utility_options                                                 { NODE; }
    | T__VACUUM utility_options vacuumed_relations                              { NODE; }
    ;
vacuum_words
    : vacuum_word
    | vacuum_words vacuum_word                                                  { NODE; }
    ;
vacuum_word
    : T__FULL
    | T__FREEZE
    | T__VERBOSE
    | analyze_word
    ;
vacuumed_relations
    : vacuumed_relation
    | vacuumed_relations T__COMMA vacuumed_relation                             { NODE; }
    ;
vacuumed_relation
    : relation
    | relation parenthesized_names                                              { NODE; }
    ;
analyze_statement
    : analyze_word
    | analyze_word vacuumed_relations                                           { NODE; }
    | analyze_word T__VERBOSE                                                   { NODE; }
    | analyze_word T__VERBOSE vacuumed_relations                                { NODE; }
    | analyze_word utility_options                                              { NODE; }
    | analyze_word utility_options vacuumed_relations                           { NODE; }
    ;
cluster_statement
    : T__CLUSTER
    | T__CLUSTER T__VERBOSE                                                     { NODE; }
    | T__CLUSTER utility_options                                                { NODE; }
    | T__CLUSTER clustered_relation                                             { NODE; }
    | T__CLUSTER T__VERBOSE clustered_relation                                  { NODE; }
    | T__CLUSTER utility_options clustered_relation                             { NODE; }
    ;
clustered_relation
    : qualified_name
    | qualified_name T__USING column_name                                       { NODE; }
    | column_name T__ON qualified_name                                          { NODE; }
    ;
reindex_statement
    : T__REINDEX reindex_target                                                 { NODE; }
    | T__REINDEX utility_options reindex_target                                 { NODE; }
    ;
reindex_target
    : reindex_word qualified_name                                               { NODE; }
    | reindex_word T__CONCURRENTLY qualified_name                               { NODE; }
    | reindex_whole                                                             { NODE; }
    | reindex_whole T__CONCURRENTLY                                             { NODE; }
    | reindex_whole qualified_name                                              { NODE; }
    | reindex_whole T__CONCURRENTLY qualified_name                              { NODE; }
    ;
reindex_word
    : T__INDEX
    | T__TABLE
    | T__SCHEMA
    ;
/* What may go without its name. */
reindex_whole
    : T__SYSTEM
    | T__DATABASE
    ;
refresh_statement
    : T__REFRESH T__MATERIALIZED T__VIEW qualified_name                         { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name         { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW qualified_name with_data               { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name with_data
      { NODE; }
    ;
