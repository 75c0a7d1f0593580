-- What the client reads beside statements.
use mysql
system true
\! true
pager cat
select user, host from user where user = 'root' limit 1\G
select 1 + 1 \g
nopager
delimiter //
create or replace procedure test.hello() begin select 'hello; world' as greeting; end //
call test.hello() // drop procedure test.hello //
delimiter ;
select 1 \c
--no blank after the minus signs, but between statements
select 5--1, 2 # the end of a line
;
status;
exit
