-- A look at a server that one doesn't know yet.
show databases;
show schemas like 'm%';
show full tables from mysql like 'time%';
show tables in mysql where `Tables_in_mysql` like '%priv';
show open tables from mysql;
show table status from mysql where engine = 'Aria';
show full columns from mysql.user like 'h%';
show fields in user in mysql where Field = 'Host';
show index from db from mysql where key_name = 'PRIMARY';
show keys from mysql.event;
show indexes in mysql.proc;
show create table mysql.event;
show create view mysql.user;
show create database if not exists mysql;
show create schema mysql;
show create procedure mysql.AddGeometryColumn;

show triggers from mysql;
show events;
show procedure status where Db = 'mysql';
show function status like 'x%';
show engines;
show storage engines;
show engine innodb status;
show engine innodb mutex;
show character set like 'utf8%';
show collation where Charset = 'latin1' and Id < 40;
show plugins;
show privileges;
show authors;
show processlist;
show full processlist;
select 1;
show warnings limit 5;
show errors limit 2, 3;
show count(*) warnings;
set profiling = 1;
show profiles;
show profile;
show profile block io, cpu for query 1 limit 2 offset 1;
show profile all;

-- MySQL only
show extended full columns from mysql.user;
-- MySQL only
show create user;
-- MySQL only
show replica status for channel 'north';
