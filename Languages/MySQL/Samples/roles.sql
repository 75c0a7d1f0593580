-- Who may do what, by roles.
create role if not exists desk;
create or replace role archive with admin current_user;
create role `night shift`;
create user nina, 'otto'@'%';

grant select, insert on library.* to desk;
grant desk to archive;
grant desk to nina with admin option;
grant archive to nina, otto;
grant 'night shift' to 'otto'@'%', nina;
revoke admin option for desk from nina;
revoke archive from nina;

set default role desk for nina;
set default role none for nina;
set role none;
grant archive to root@localhost;
set role archive;
set role 'archive';
show grants for desk;
show grants for current_role;
select current_role();

/* The other server has roles with hosts, and more than one is on at a time. */
-- MySQL only
create role reader@localhost, `writer`@`10.%`, 'auditor';
-- MySQL only
grant `writer`@`10.%`, reader@localhost to nina@localhost;
-- MySQL only
set default role reader@localhost, auditor to nina@localhost, otto;
-- MySQL only
set default role all to nina@localhost;
-- MySQL only
set role all except `writer`@`10.%`, auditor;
-- MySQL only
set role reader@localhost, 'auditor';
-- MySQL only
set role default;
-- MySQL only
show grants for nina@localhost using reader@localhost, auditor;
-- MySQL only
revoke if exists auditor from otto ignore unknown user;
