-- How the server is tuned while it runs.
set global max_connections = 200, global wait_timeout = 600, session wait_timeout = 60;
set @@global.slow_query_log = on, @@global.long_query_time = 0.5;
set global innodb_buffer_pool_dump_at_shutdown = 1;
set global hot_keys.key_buffer_size = 1024 * 1024;
set @@global.hot_keys.key_cache_block_size = 2048;
set global event_scheduler = on;
set global sql_mode = default;
set global init_connect = 'set names utf8mb4';
set global read_only = @@global.read_only;

show global variables like 'max_connections';
show session variables where variable_name in ('wait_timeout', 'sql_mode') and value <> '';
show variables like '%timeout';
show global status like 'Threads%';
show local status where Variable_name = 'Uptime';

-- MySQL only
set persist max_connections = 250, persist_only back_log = 100;
-- MySQL only
set persist mysqlx.port = 33061, @@persist.sort_buffer_size = 1000000, @@persist_only.port = 3307;
-- MySQL only
reset persist if exists max_connections;
-- MySQL only
reset persist mysqlx.port;
-- MySQL only
reset persist;
-- MySQL only
create resource group if_idle type = user vcpu = 0-3, 6 thread_priority = 5 disable;
-- MySQL only
alter resource group if_idle vcpu 2 enable;
-- MySQL only
alter resource group if_idle thread_priority = -1;
-- MySQL only
create resource group servers type system;
-- MySQL only
alter resource group if_idle disable force;
-- MySQL only
set resource group if_idle for 14, 15;
-- MySQL only
set resource group if_idle;
