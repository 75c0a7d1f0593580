/* What the server does to itself: caches, sessions, plug-ins, other servers, storage. */

statement
    : flush_statement | reset_statement | kill_statement | plugin_statement | server_statement | storage_statement
    | spatial_reference_statement | clone_statement | backup_statement | alter_instance_statement | import_table_statement
    | T__RESTART  { NODE(restart_statement); }
    | T__SHUTDOWN (T__WAIT T__FOR T__ALL replicas_word)?  { NODE(shutdown_statement); } ;

flush_statement { NODE; }: T__FLUSH (T__NO_WRITE_TO_BINLOG | T__LOCAL)? flushed ;
flushed { PART(flush_statement); }: flush_item_list | (T__TABLE | T__TABLES) flushed_tables? ;
%list flush_item_list: flush_item %short %separator T__COMMA ;
flush_item { NODE; }: flush_words (connection_name | channel_clause | deleted_domains)? ;
flush_words { PART(flush_item); }
    : T__IDENTIFIER | T__LOGS | T__MASTER | T__OPTIMIZER_COSTS | T__PRIVILEGES | T__REPLICA | T__SLAVE | T__SSL | T__STATUS
    | T__THREADS
    | T__QUERY T__CACHE
    | (T__BINARY | T__ENGINE | T__ERROR | T__GENERAL | T__RELAY | T__SLOW) T__LOGS ;
deleted_domains { NODE(option); }: T__DELETE_DOMAIN_ID T__EQUAL T__LPAREN integer_list T__RPAREN ;
%parts flushed_tables: table_name_list flush_purpose %node flush_statement ;
flush_purpose { NODE; }: T__WITH T__READ T__LOCK (T__AND T__DISABLE T__IDENTIFIER)? | T__FOR T__EXPORT ;

reset_statement { NODE; }
    : T__RESET reset_target_list
    | T__RESET T__PERSIST (if_exists? reset_variable)? ;
%list reset_target_list: reset_target %short %separator T__COMMA ;
reset_target { NODE; }
    : reset_log (T__TO T__INTEGER_NUMBER)?
    | replica_word reset_parts?
    | T__QUERY T__CACHE ;
reset_log { PART(reset_target); }: T__MASTER | T__BINARY T__LOGS T__AND T__IDENTIFIER ;
%parts reset_parts: connection_name T__ALL channel_clause %node reset_target ;
reset_variable { NODE(variable_name); }: qualified_name ;

kill_statement { NODE; }: T__KILL kill_force? kill_kind? killed ;
kill_force: T__HARD | T__SOFT ;
kill_kind: T__CONNECTION | T__QUERY ;
killed { PART(kill_statement); }
    : T__INTEGER_NUMBER | variable | qualified_column_name | function_call | T__PLACEHOLDER
    | T__IDENTIFIER T__INTEGER_NUMBER
    | T__USER role_name ;

plugin_statement { NODE(install_statement); }
    : T__INSTALL T__PLUGIN if_not_exists? plugin_name T__SONAME string_literal
    | T__INSTALL T__SONAME string_literal
    | T__INSTALL T__COMPONENT string_list (T__SET variable_item_list)?
    | T__UNINSTALL T__PLUGIN if_exists? plugin_name  { NODE(uninstall_statement); }
    | T__UNINSTALL T__SONAME if_exists? string_literal  { NODE(uninstall_statement); }
    | T__UNINSTALL T__COMPONENT string_list  { NODE(uninstall_statement); } ;

server_statement { NODE(create_server_statement); }
    : T__CREATE (T__OR T__REPLACE)? T__SERVER new_server server_wrapper generic_options
    | T__ALTER T__SERVER server_name generic_options  { NODE(alter_server_statement); } ;
server_wrapper { NODE; }: T__FOREIGN T__DATA T__IDENTIFIER wrapper_name ;
wrapper_name { NODE; }: identifier | string_literal ;
generic_option { NODE(option); }: option_name T__INTEGER_NUMBER ;

/* Tablespaces, groups of log files, groups of processors. */
storage_statement { NODE(create_tablespace_statement); }
    : T__CREATE T__UNDO? T__TABLESPACE tablespace_name space_option_list?
    | T__ALTER T__UNDO? T__TABLESPACE tablespace_name altered_storage  { NODE(alter_tablespace_statement); }
    | T__CREATE T__LOGFILE T__GROUP logfile_group_name space_option_list  { NODE(create_logfile_group_statement); }
    | T__ALTER T__LOGFILE T__GROUP logfile_group_name space_option_list  { NODE(alter_logfile_group_statement); }
    | T__CREATE T__RESOURCE T__GROUP resource_group_name resource_option_list  { NODE(create_resource_group_statement); }
    | T__ALTER T__RESOURCE T__GROUP resource_group_name resource_option_list  { NODE(alter_resource_group_statement); } ;
logfile_group_name { NODE; }: identifier ;
altered_storage { PART(alter_tablespace_statement); }
    : space_option_list
    | T__RENAME T__TO new_name
    | T__SET (T__ACTIVE | T__INACTIVE) space_option_list? ;
%list space_option_list: space_option %short %node option_list ;
space_option { NODE(option); }
    : (T__ADD | T__DROP) (T__DATAFILE | T__IDENTIFIER) string_literal
    | T__USE T__LOGFILE T__GROUP logfile_group_name
    | sized_option_name T__EQUAL? storage_value
    | T__ENGINE T__EQUAL? engine_name
    | T__WAIT | T__NO_WAIT ;
sized_option_name { NODE(option_name); }: sized_option_word ;
sized_option_word { NODE(sql_identifier); }: T__IDENTIFIER | T__COMMENT | T__ENCRYPTION | T__NODEGROUP ;
/* A size of the form 10M is an identifier. */
storage_value: T__IDENTIFIER | T__INTEGER_NUMBER | string_literal ;
%list resource_option_list: resource_option %short %node option_list ;
resource_option { NODE(option); }
    : T__TYPE T__EQUAL? group_type
    | plain_option_name T__EQUAL? processor_list
    | T__ENABLE | T__DISABLE | T__FORCE ;
group_type: T__USER | T__SYSTEM ;
%list processor_list: processor_range %short %separator T__COMMA ;
processor_range { NODE; }: signed_integer | T__INTEGER_NUMBER T__MINUS T__INTEGER_NUMBER ;

spatial_reference_statement { NODE(create_spatial_reference_statement); }
    : T__CREATE (T__OR T__REPLACE)? T__SPATIAL T__REFERENCE T__SYSTEM new_reference reference_attribute_list ;
new_reference { PART(create_spatial_reference_statement); }: if_not_exists? T__INTEGER_NUMBER ;
%list reference_attribute_list: reference_attribute %short %node option_list ;
reference_attribute { NODE(option); }
    : (T__NAME | T__DEFINITION | T__DESCRIPTION) string_literal
    | T__ORGANIZATION string_literal T__IDENTIFIED T__BY T__INTEGER_NUMBER ;

clone_statement { NODE; }
    : T__CLONE T__LOCAL clone_directory
    | T__CLONE T__INSTANCE T__FROM role_name T__COLON T__INTEGER_NUMBER T__IDENTIFIED T__BY string_literal clone_parts? ;
%parts clone_parts: clone_directory clone_encryption %node clone_statement ;
clone_directory { NODE(directory_clause); }: T__DATA T__DIRECTORY T__EQUAL? string_literal ;
clone_encryption { NODE(require_clause); }: T__REQUIRE T__NO? T__SSL ;
backup_statement { NODE; }
    : T__BACKUP T__STAGE (T__IDENTIFIER | T__START | T__FLUSH | T__END)
    | T__BACKUP T__LOCK table_name
    | T__BACKUP T__UNLOCK ;
alter_instance_statement { NODE; }: T__ALTER T__INSTANCE instance_words ;
instance_words { PART(alter_instance_statement); }: instance_words channel_clause | instance_words? instance_word ;
instance_word: T__IDENTIFIER | free_word | T__KEY | T__ON ;
import_table_statement { NODE; }: T__IMPORT T__TABLE T__FROM string_list ;
