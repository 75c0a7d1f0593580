-- The accounts of a small shop, made on the first evening.
create user if not exists shop_app@localhost identified by 'first evening';
create user if not exists 'shop_app'@'10.20.%' identified by 'first evening'
    require ssl
    with max_user_connections 40 max_queries_per_hour 90000;
create or replace user shop_report@`%` identified via mysql_native_password using password('numbers')
    or unix_socket
    require subject '/CN=report' and issuer '/CN=shop'
    with max_statement_time 30.5
    password expire interval 180 day;
create user 'shop_old' @'localhost', shop_job@127.0.0.1 identified by password '*6C8989366EAF75BB670AD8EA7A7FC1176A95CEF4'
    account lock password expire never;
create user ''@`shop.example`;

-- Somebody left, somebody came.
rename user shop_old@localhost to shop_archive@localhost, shop_job@127.0.0.1 to shop_night@127.0.0.1;
alter user if exists shop_night@127.0.0.1 account unlock;
alter user shop_archive@localhost require x509 password expire;
alter user current_user() identified by '';
set password for shop_app@localhost = password('second evening');
set password for shop_archive@localhost = old_password('ages ago');
set password = password('');

-- What came of it
show create user shop_app@localhost;
show grants for 'shop_app'@'10.20.%';
flush privileges;

-- MySQL only
set password for shop_app@localhost = 'third evening' replace 'second evening' retain current password;
-- MySQL only
set password for shop_archive@localhost to random;
-- MySQL only
alter user user() identified by 'a' replace 'b', shop_app@localhost discard old password;
