-- Rights of every kind and level.
create user ada, ben@localhost, cyd, dan;

grant all privileges on *.* to ada with grant option;
grant usage on *.* to ben@localhost require ssl with max_queries_per_hour 500 max_updates_per_hour 100;
grant reload, process, show databases, replication slave, replication client, super, file on *.* to cyd;
grant create temporary tables, lock tables, create view, show view, create routine, alter routine, event, trigger,
    index, references, drop, delete, delete history, execute, update
    on `shop\_%`.* to ben@localhost, cyd with grant option;
grant select (host, user), update (host) on mysql.db to dan;
grant create, alter, insert on table shop.orders to dan;
grant binlog monitor, binlog admin, connection admin, federated admin, read_only admin, set user, slave monitor,
    replication master admin, create user, create tablespace, shutdown on *.* to ada;
grant select on shop.* to eva identified by 'shop' require cipher 'AES' with grant option max_user_connections 2;
grant insert on shop.* to eva with max_user_connections 3 grant option;
grant all on library.* to fay identified via mysql_native_password using '*6C8989366EAF75BB670AD8EA7A7FC1176A95CEF4';
grant proxy on ben@localhost to cyd with grant option;
grant proxy on ''@'' to ada;

revoke proxy on ben@localhost from cyd;
revoke grant option, delete on `shop\_%`.* from cyd;
revoke all on library.* from fay;
revoke all privileges, grant option from ben@localhost, ada;

-- MySQL only
grant backup_admin, 'clone_admin', system_variables_admin on *.* to ada as ben@localhost with role all except desk;
-- MySQL only
grant create role, drop role on *.* to ben@localhost as current_user() with role default;
-- MySQL only
grant execute on procedure shop.close_day to ben@localhost, cyd;
-- MySQL only
grant execute on function shop.net to desk;
-- MySQL only
revoke if exists select, insert (a, b) on shop.orders from dan ignore unknown user;
-- MySQL only
grant all on * to ada;
