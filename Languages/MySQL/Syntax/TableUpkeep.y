/* What keeps tables in order, and DROP. */

analyze_statement { NODE; }: T__ANALYZE unlogged? tables_word analyzed_table_list histogram_part? ;
%list analyzed_table_list: analyzed_table %short %separator T__COMMA ;
analyzed_table { NODE; }: table persistent_part? ;
persistent_part { NODE(statistics_clause); }
    : T__PERSISTENT T__FOR T__ALL
    | T__PERSISTENT T__FOR T__COLUMNS counted_columns T__INDEXES counted_indexes ;
counted_columns { PART(statistics_clause); }: T__ALL | T__LPAREN column_name_list? T__RPAREN ;
counted_indexes { PART(statistics_clause); }: T__ALL | T__LPAREN hinted_index_list? T__RPAREN ;
histogram_part { NODE(statistics_clause); }
    : T__UPDATE T__HISTOGRAM T__ON column_name_list (T__WITH T__INTEGER_NUMBER T__BUCKETS | T__USING T__DATA string_literal)?
    | T__DROP T__HISTOGRAM T__ON column_name_list ;
check_table_statement { NODE; }
    : T__CHECK tables_word relation_list upkeep_option_list?
    | T__CHECK T__VIEW view_name_list upkeep_option_list? ;
checksum_table_statement { NODE; }: T__CHECKSUM tables_word relation_list (T__QUICK | T__EXTENDED)? ;
optimize_table_statement { NODE; }: T__OPTIMIZE unlogged? tables_word relation_list lock_wait? ;
repair_table_statement { NODE; }
    : T__REPAIR unlogged? tables_word relation_list upkeep_option_list?
    | T__REPAIR unlogged? T__VIEW view_name_list (T__FROM identifier)? ;
tables_word: T__TABLE | T__TABLES ;
%list upkeep_option_list: upkeep_option %short ;
upkeep_option { NODE; }: T__QUICK | T__FAST | T__MEDIUM | T__EXTENDED | T__CHANGED | T__USE_FRM | T__FOR T__UPGRADE ;

cache_index_statement { NODE; }: T__CACHE T__INDEX cached_table_list T__IN (key_cache_name | T__DEFAULT) ;
key_cache_name { NODE; }: identifier ;
load_index_statement { NODE; }: T__LOAD T__INDEX T__INTO T__CACHE cached_table_list ;
%list cached_table_list: cached_table %short %separator T__COMMA ;
cached_table { NODE; }: whole_table cache_option_list? ;
%list cache_option_list: cache_option %short ;
cache_option { NODE; }
    : partition_clause
    | T__PARTITION T__LPAREN T__ALL T__RPAREN
    | key_word T__LPAREN hinted_index_list? T__RPAREN
    | T__IGNORE T__LEAVES ;

%without dropped_objects: T__INDEX if_exists? index_name_list | T__SCHEMA if_exists? schema_name_list
    | any_routine_word if_exists? routine_signature_list ;
dropped_objects { NODE(drop_statement); }
    : other_tables if_exists? table_name_list
    | temporary T__SEQUENCE if_exists? sequence_name_list ;
other_tables { PART(drop_statement); }: T__TABLES | temporary tables_word ;
drop_statement { NODE; }: T__DROP dropped_objects lock_wait drop_behavior? ;
dropped_alone { NODE(drop_statement); }
    : T__INDEX if_exists? dropped_index
    | T__SCHEMA if_exists? database_name
    | (T__FUNCTION | T__PROCEDURE) if_exists? dropped_routine
    | T__TRIGGER if_exists? trigger_name
    | T__EVENT if_exists? event_name
    | T__SERVER if_exists? server_name
    | T__UNDO? T__TABLESPACE tablespace_name engine_option?
    | T__LOGFILE T__GROUP dropped_logfile_group engine_option?
    | T__RESOURCE T__GROUP dropped_resource_group T__FORCE?
    | T__SPATIAL T__REFERENCE T__SYSTEM if_exists? T__INTEGER_NUMBER ;
dropped_index { PART(drop_statement); }: index_name T__ON whole_table index_clause_list? ;
dropped_logfile_group { NODE(logfile_group_name); }: identifier ;
dropped_resource_group { NODE(resource_group_name); }: identifier ;
dropped_routine { NODE(function_name); }: qualified_name ;

statement
    : create_table_statement | create_index_statement | alter_table_statement | rename_table_statement | drop_statement
    | analyze_statement | check_table_statement | checksum_table_statement | optimize_table_statement | repair_table_statement
    | cache_index_statement | load_index_statement ;
