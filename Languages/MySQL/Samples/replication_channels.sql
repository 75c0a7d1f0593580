# Replication as MySQL 8 says it.
-- MySQL only
change replication source to
    source_host = 'north.example', source_port = 3306, source_user = 'repl', source_auto_position = 1,
    privilege_checks_user = 'applier'@'localhost', source_bind = '', require_table_primary_key_check = on,
    get_source_public_key = 1, source_tls_ciphersuites = null, ignore_server_ids = ()
    for channel 'north';
-- MySQL only
change replication filter replicate_do_db = (shop, library), replicate_ignore_table = (shop.log),
    replicate_wild_do_table = ('sh%.o%'), replicate_rewrite_db = ((shop, shop_copy), (a, b)) for channel 'north';
-- MySQL only
start replica sql_thread user = 'repl' password = 'quiet' default_auth = 'x' for channel 'north';
-- MySQL only
start replica until sql_after_gtids = '3e11fa47-71ca-11e1-9e33-c80aa9429562:11-56';
-- MySQL only
start replica until sql_after_mts_gaps;
-- MySQL only
stop replica io_thread for channel 'north';
-- MySQL only
show replicas;
-- MySQL only
show relaylog events in 'relay.000002' from 4 limit 10, 20 for channel 'north';
-- MySQL only
show binlog events in 'north-bin.000001' from 157 limit 3;
-- MySQL only
show binary logs;
-- MySQL only
reset replica all for channel 'north';
-- MySQL only
reset master to 1234;
-- MySQL only
reset binary logs and gtids;
-- MySQL only
start group_replication user = 'group', password = 'quiet';
-- MySQL only
stop group_replication;
-- MySQL only
flush relay logs for channel 'north';
-- MySQL only
clone instance from 'donor'@'north.example':3306 identified by 'quiet' data directory = '/srv/clone' require no ssl;
-- MySQL only
clone local data directory '/srv/copy';
-- MySQL only
binlog '8hLzTg8BAAAAdAAAAHgAAAABAAQANS43';
-- MySQL only
alter instance rotate innodb master key;
-- MySQL only
alter instance reload tls for channel 'mysql_main' no rollback on error;
-- MySQL only
restart;
