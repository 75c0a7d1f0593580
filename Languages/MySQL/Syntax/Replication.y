/* Replication and the binary log. */

statement: change_replication_statement | replication_statement | purge_statement | binlog_statement ;
change_replication_statement { NODE; }
    : T__CHANGE T__MASTER connection_name? T__TO replication_options
    | T__CHANGE T__REPLICATION T__SOURCE T__TO replication_options
    | T__CHANGE T__REPLICATION T__FILTER replication_options ;
replication_options { PART(change_replication_statement); }: replication_option_list channel_clause? ;
%list replication_option_list: replication_option %short %separator T__COMMA %node option_list ;
replication_option { NODE(option); }: (option_name | ssl_option_name) T__EQUAL replication_value ;
option_name { NODE; }: identifier ;
ssl_option_name { NODE(option_name); }: T__MASTER_SSL_VERIFY_SERVER_CERT ;
replication_value
    : qualified_name | string_literal | signed_number | T__NULL | T__ON | host_role
    | T__LPAREN replication_value_list? T__RPAREN  { NODE(option_values); } ;
%list replication_value_list: replication_value %short %separator T__COMMA %node option_value_list ;
connection_name { NODE; }: string_literal ;
channel_clause { NODE; }: T__FOR T__CHANNEL channel_name ;
channel_name { NODE; }: string_literal ;

replication_statement { NODE; }
    : start_or_stop replicas replication_parts?
    | start_or_stop T__IDENTIFIER replication_option_list? ;
start_or_stop: T__START | T__STOP ;
replicas { PART(replication_statement); }: replica_word | T__ALL replicas_word ;
replica_word: T__SLAVE | T__REPLICA ;
replicas_word: T__SLAVES | T__REPLICAS ;
%parts replication_parts: connection_name thread_list replication_limit credential_list channel_clause
    %node replication_statement ;
%list thread_list: replication_thread %short %separator T__COMMA ;
replication_thread { NODE; }: T__IDENTIFIER ;
replication_limit { NODE; }: T__UNTIL (replication_option_list | T__IDENTIFIER) ;
%list credential_list: replication_option %short %node option_list ;

purge_statement { NODE; }: T__PURGE (T__BINARY | T__MASTER) T__LOGS purge_limit ;
purge_limit { PART(purge_statement); }: T__TO string_literal | T__BEFORE expression ;
binlog_statement { NODE; }: T__BINLOG (string_literal | variable T__COMMA variable) ;
