-- The night job of a server.
flush local hosts, query cache, status;
flush no_write_to_binlog engine logs, error logs, general logs, slow logs;
flush tables;
backup stage start;
backup stage flush;
backup stage block_ddl;
backup stage block_commit;
backup stage end;
backup lock mysql.event;
backup unlock;
flush user_resources;
flush ssl;

-- Who hangs about is sent home.
kill user nobody@localhost;
kill soft query user 'nobody';

create or replace server archive foreign data wrapper mysql
    options (user 'archive', host '10.0.0.9', port 3306, database 'old', password 'dust');
create server if not exists mirror foreign data wrapper 'mysql' options (host 'mirror.example');
alter server mirror options (user 'guest');

-- MySQL only
kill connection 4711;
-- MySQL only
kill query @longest;
-- MySQL only
kill hard query id 12;
-- MySQL only
install component 'file://component_validate_password', 'file://component_log_sink_json'
    set global validate_password.length = 10, persist validate_password.policy = 'STRONG';
-- MySQL only
uninstall component 'file://component_validate_password';
-- MySQL only
install plugin if not exists audit soname 'audit.so';
-- MySQL only
install soname 'ha_blackhole';
-- MySQL only
uninstall plugin if exists audit;
-- MySQL only
uninstall soname if exists 'ha_blackhole';
-- MySQL only
flush optimizer_costs, user_resources;
-- MySQL only
import table from '/srv/shop/orders_123.sdi', '/srv/shop/items_*.sdi';
-- MySQL only
flush tables shop.orders for export;
flush tables with read lock;
shutdown wait for all slaves;
