-- A replica of two sources, in MariaDB's words.
stop all slaves;
change master 'north' to
    master_host = 'north.example', master_port = 3306, master_user = 'repl', master_password = 'quiet',
    master_use_gtid = slave_pos, master_ssl = 1, master_ssl_verify_server_cert = 0, ignore_server_ids = (3, 4),
    do_domain_ids = (), master_connect_retry = 20;
change master to master_host = 'south.example', master_user = 'repl', master_log_file = 'south-bin.000003', master_log_pos = 4;
start slave 'north' sql_thread;
stop slave 'north' sql_thread;
start slave sql_thread until master_log_file = 'south-bin.000004', master_log_pos = 120;
show slave status;
show slave 'north' status;
show all slaves status;
show slave hosts;
show master status;
show binlog status;
stop slave io_thread, sql_thread;
stop slave;
reset slave 'north' all;
reset slave all;
reset replica;
reset query cache;
flush relay logs;
flush binary logs;
purge binary logs before now() - interval 7 day;
purge master logs to 'north-bin.000001';
