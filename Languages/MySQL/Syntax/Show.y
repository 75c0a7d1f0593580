/* SHOW: names of objects and filters are told apart, the rest is words. */

statement: show_statement ;
show_statement { NODE; }
    : T__SHOW show_words show_clauses?
    | T__SHOW show_words? shown_columns
    | T__SHOW T__CREATE shown_object
    | T__SHOW T__ENGINE (engine_name | T__ALL) server_word
    | T__SHOW T__PLUGINS T__SONAME (string_literal | show_filter)
    | T__SHOW T__GRANTS (T__FOR role_name (T__USING role_name_list)?)?
    | T__SHOW T__PROFILE profile_parts? show_clauses?
    | T__SHOW T__IDENTIFIER T__LPAREN T__ASTERISK T__RPAREN server_word
    | T__SHOW running_plan T__FOR T__INTEGER_NUMBER ;
show_words { PART(show_statement); }: show_words? server_word ;
shown_columns { PART(show_statement); }: columns_word shown_in table_name show_clauses? ;
columns_word: T__COLUMNS | T__FIELDS | T__INDEX | T__INDEXES | T__KEYS ;
shown_in: T__FROM | T__IN ;
profile_parts { PART(show_statement); }: (profile_parts T__COMMA)? show_words ;
running_plan { PART(show_statement); }: (T__ANALYZE | T__EXPLAIN) plan_format? ;
plan_format { NODE(option); }: T__FORMAT T__EQUAL identifier ;
shown_object { PART(show_statement); }
    : (T__DATABASE | T__SCHEMA) if_not_exists? database_name
    | T__TABLE table_name
    | T__VIEW view_name
    | T__SEQUENCE sequence_name
    | (T__FUNCTION | T__PROCEDURE) routine_alone
    | T__EVENT shown_event
    | T__TRIGGER shown_trigger
    | T__SERVER server_name
    | T__USER role_name? ;
shown_event { NODE(event_name); }: qualified_name ;
shown_trigger { NODE(trigger_name); }: qualified_name ;

%parts show_clauses: show_places show_end %node show_statement ;
show_end: show_filter | show_range ;
%parts show_range: query_number limit_clause channel_clause %node show_statement ;
show_places { PART(show_statement); }: show_place show_place? ;
show_place { PART(show_statement); }: shown_in (database_name | string_literal | T__INTEGER_NUMBER) ;
show_filter: where_clause | T__LIKE string_literal  { NODE(pattern_clause); } ;
query_number { PART(show_statement); }: T__FOR T__QUERY T__INTEGER_NUMBER ;

server_word
    : T__IDENTIFIER | T__ALL | T__BINARY | T__BINLOG | T__CHARACTER | T__CHARSET | T__COLLATION | T__DATABASES | T__ENGINES
    | T__ERRORS | T__EVENTS | T__EXTENDED | T__FULL | T__FUNCTION | T__GLOBAL | T__IO | T__LOCAL | T__LOGS | T__MASTER
    | T__MEMORY | T__MUTEX | T__OPEN | T__PLUGINS | T__PRIVILEGES | T__PROCEDURE | T__PROCESSLIST | T__PROFILES | T__RELAYLOG
    | T__REPLICA | T__REPLICAS | T__SCHEMAS | T__SESSION | T__SET | T__SLAVE | T__SLAVES | T__SOURCE | T__STATUS | T__STORAGE
    | T__TABLE | T__TABLES | T__TRIGGERS | T__VARIABLES | T__WARNINGS | connection_name ;
