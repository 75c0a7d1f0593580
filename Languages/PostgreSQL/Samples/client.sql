\set ON_ERROR_STOP on
\echo it's the client's line, "not SQL

select max(id) as last from orders \gset
select * from orders where id = :last and name = :'who' order by :"column";

copy customers (id, name) from stdin with (delimiter ';');
1;O'Neill
2;$$ -- ; not a statement
\.

select format('drop table %I', tablename) from pg_tables where schemaname = 'scratch'
\gexec

select 1 \; select 2;

\if :verbose
    \d+ orders
\endif

select a[1:2], b[:n], - -1, @ -5, 2 !=-1, x'1F', b'01', u&'d\0061t\+000061', U&"d!0061t!0061" uescape '!',
       E'it\'s\n', 'two '
       'pieces', 1e10, .5, 1., $1 from t where not a in (1) and b is not null;

select title from books where id = $1 \bind 17 \g
insert into books values ($1, $2) \bind 1 'It\s' \sendpipeline
select count(*) from books \parse counted
\bind_named counted \g (format=unaligned) counts.txt
